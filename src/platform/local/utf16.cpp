#include "platform/local/utf16.h"

namespace burrowmark {
namespace {

constexpr char32_t kFirstBeyond = 0x10000;  // from here on a character takes two units
constexpr char32_t kHigh = 0xD800;
constexpr char32_t kLow = 0xDC00;
constexpr char32_t kLowEnd = 0xE000;
constexpr char32_t kUnitMask = 0x3FF;
constexpr bool kWideIs16Bits = sizeof(wchar_t) == 2;

void PutUnit(std::string& bytes, char32_t unit) {
  bytes += static_cast<char>(static_cast<unsigned char>(unit & 0xFF));
  bytes += static_cast<char>(static_cast<unsigned char>(unit >> 8 & 0xFF));
}

char32_t UnitAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]) | char32_t{static_cast<unsigned char>(bytes[at + 1])} << 8;
}

bool IsLow(char32_t unit) { return unit >= kLow && unit < kLowEnd; }

}  // namespace

std::string ToUtf16Bytes(std::wstring_view text) {
  std::string bytes;
  for (const wchar_t wide : text) {
    const auto c = static_cast<char32_t>(wide);
    if (c < kFirstBeyond) {
      PutUnit(bytes, c);
    } else {
      PutUnit(bytes, kHigh + ((c - kFirstBeyond) >> 10 & kUnitMask));
      PutUnit(bytes, kLow + ((c - kFirstBeyond) & kUnitMask));
    }
  }
  return bytes;
}

std::wstring FromUtf16Bytes(std::string_view bytes) {
  std::wstring text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t c = UnitAt(bytes, at);
    if (!kWideIs16Bits && c >= kHigh && c < kLow && at + 3 < bytes.size() && IsLow(UnitAt(bytes, at + 2))) {
      at += 2;
      c = kFirstBeyond + ((c - kHigh) << 10) + (UnitAt(bytes, at) - kLow);
    }
    text += static_cast<wchar_t>(c);
  }
  return text;
}

}  // namespace burrowmark
