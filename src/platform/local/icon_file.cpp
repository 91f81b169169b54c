#include "platform/local/icon_file.h"

#include <cstddef>
#include <optional>

namespace burrowmark {
namespace {

// Offsets in the file: its directory, an entry of it, and the head of an image.
constexpr std::size_t kCountAt = 4;
constexpr std::size_t kDirectoryAt = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr std::size_t kImageAt = 12;
constexpr std::size_t kHeadBytes = 40;
constexpr std::size_t kBitsAt = 14;
constexpr std::uint32_t kBits = 32;
constexpr std::size_t kPixelBytes = 4;
constexpr std::uint32_t kOpaque = 255;

// A number of the file, lowest byte first; 0 beyond the end.
std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t length) {
  if (at > bytes.size() || bytes.size() - at < length) return 0;
  std::uint32_t value = 0;
  for (std::size_t i = length; i > 0; --i) value = value << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
  return value;
}

struct Candidate {
  std::int32_t size = 0;
  std::size_t offset = 0;
};

bool IsBetter(const Candidate& candidate, const Candidate& best, std::int32_t size) {
  if (best.size < size) return candidate.size > best.size;
  return candidate.size >= size && candidate.size < best.size;
}

bool IsWholeImage(std::string_view bytes, const Candidate& image) {
  const std::size_t side = static_cast<std::size_t>(image.size);
  return Number(bytes, image.offset, 4) == kHeadBytes && Number(bytes, image.offset + kBitsAt, 2) == kBits &&
         image.offset <= bytes.size() && bytes.size() - image.offset >= kHeadBytes + side * side * kPixelBytes;
}

Candidate BestImage(std::string_view bytes, std::int32_t size) {
  Candidate best;
  const std::size_t count = Number(bytes, kCountAt, 2);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t entry = kDirectoryAt + i * kEntryBytes;
    const Candidate image{static_cast<std::int32_t>(Number(bytes, entry, 1)), Number(bytes, entry + kImageAt, 4)};
    if (image.size > 0 && IsWholeImage(bytes, image) && IsBetter(image, best, size)) best = image;
  }
  return best;
}

std::uint32_t Mixed(std::uint32_t pixel, Color background, unsigned shiftOfPixel, unsigned shiftOfColor) {
  const std::uint32_t opacity = pixel >> 24;
  const std::uint32_t over = pixel >> shiftOfPixel & 0xFF;
  const std::uint32_t under = background >> shiftOfColor & 0xFF;
  return (over * opacity + under * (kOpaque - opacity) + kOpaque / 2) / kOpaque << shiftOfColor;
}

}  // namespace

IconImage ReadIconImage(std::string_view bytes, std::int32_t size) {
  const Candidate best = BestImage(bytes, size);
  IconImage image{best.size, {}};
  const auto side = static_cast<std::size_t>(best.size);
  image.pixels.reserve(side * side);
  for (std::size_t row = 0; row < side; ++row) {
    const std::size_t line =
        best.offset + kHeadBytes + (side - 1 - row) * side * kPixelBytes;  // the lowest comes first
    for (std::size_t x = 0; x < side; ++x) image.pixels.push_back(Number(bytes, line + x * kPixelBytes, kPixelBytes));
  }
  return image;
}

Color Blend(std::uint32_t pixel, Color background) {
  return Mixed(pixel, background, 0, 16) | Mixed(pixel, background, 8, 8) | Mixed(pixel, background, 16, 0);
}

}  // namespace burrowmark
