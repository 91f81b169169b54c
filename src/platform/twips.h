// Twips, the measure of forms and controls, and pixels.
#pragma once

#include <cstdint>

#include "platform/drawing.h"

namespace burrowmark {

inline constexpr std::int32_t kTwipsPerInch = 1440;

struct Size {
  std::int32_t width = 0;
  std::int32_t height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Box {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  friend bool operator==(const Box&, const Box&) = default;
};

// The nearest multiple of `to` / `from`, halves away from zero.
constexpr std::int32_t Scaled(std::int32_t value, std::int32_t to, std::int32_t from) {
  const std::int64_t product = static_cast<std::int64_t>(value) * to;
  const std::int64_t half = product < 0 ? -(from / 2) : from / 2;
  return static_cast<std::int32_t>((product + half) / from);
}
constexpr std::int32_t ToPixels(std::int32_t twips, std::int32_t dpi) { return Scaled(twips, dpi, kTwipsPerInch); }
constexpr std::int32_t ToTwips(std::int32_t pixels, std::int32_t dpi) { return Scaled(pixels, kTwipsPerInch, dpi); }

// Edges are rounded, not widths, so that neighbours that touch in twips touch in pixels too.
constexpr Rect ToPixels(const Box& box, std::int32_t dpi) {
  return {ToPixels(box.left, dpi), ToPixels(box.top, dpi), ToPixels(box.left + box.width, dpi),
          ToPixels(box.top + box.height, dpi)};
}

}  // namespace burrowmark
