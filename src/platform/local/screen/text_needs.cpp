#include "platform/local/screen/text_needs.h"

#include <algorithm>

namespace burrowmark {
namespace {

constexpr wchar_t kMark = L'&';
constexpr std::int32_t kEm = 180;  // a font of nine points
constexpr std::int32_t kCharacter = kEm * 55 / 100;
constexpr std::int32_t kLine = 240;

// The words of one line, put below each other as they find room.
class Lines {
 public:
  explicit Lines(std::int32_t width) : width_(width) {}

  void Add(std::int32_t word) {
    const bool breaks = width_ > 0 && now_ > 0 && now_ + kCharacter + word > width_;
    if (breaks) End();
    now_ += now_ > 0 ? kCharacter + word : word;
    size_.width = std::max(size_.width, now_);
  }
  void End() {
    size_.height += kLine;
    now_ = 0;
  }
  const Size& TheSize() const { return size_; }

 private:
  std::int32_t width_;
  std::int32_t now_ = 0;
  Size size_;
};

}  // namespace

Size EstimateText(const std::wstring& text, std::int32_t width) {
  if (text.empty()) return {};
  Lines lines(width);
  std::int32_t word = 0;
  for (const wchar_t character : text + L'\n') {
    if (character == L'\r') continue;
    if (character != L' ' && character != L'\n') {
      word += kCharacter;
      continue;
    }
    lines.Add(word);
    word = 0;
    if (character == L'\n') lines.End();
  }
  return lines.TheSize();
}

std::wstring WithoutMarks(const std::wstring& text) {
  std::wstring plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == kMark && ++i == text.size()) break;
    plain += text[i];
  }
  return plain;
}

}  // namespace burrowmark
