// Pixels that a drawing leaves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/drawing.h"

namespace burrowmark {

struct Canvas {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::vector<Color> pixels;  // row by row from the top

  Canvas() = default;
  // A negative side counts as 0.
  Canvas(std::int32_t wide, std::int32_t high, Color background);

  bool Holds(std::int32_t x, std::int32_t y) const { return x >= 0 && y >= 0 && x < width && y < height; }
  // Outside of the canvas a pixel is kNowhere, and nothing is set.
  static constexpr Color kNowhere = 0xFFFFFFFF;
  Color At(std::int32_t x, std::int32_t y) const { return Holds(x, y) ? pixels[Index(x, y)] : kNowhere; }
  void Set(std::int32_t x, std::int32_t y, Color color) {
    if (Holds(x, y)) pixels[Index(x, y)] = color;
  }
  void Fill(const Rect& rect, Color color);

 private:
  std::size_t Index(std::int32_t x, std::int32_t y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
  }
};

// What two rectangles share; empty, and nothing else can be said of it, if they share nothing.
Rect Intersection(const Rect& left, const Rect& right);

}  // namespace burrowmark
