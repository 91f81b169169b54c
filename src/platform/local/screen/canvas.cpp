#include "platform/local/screen/canvas.h"

#include <algorithm>

namespace burrowmark {

Canvas::Canvas(std::int32_t wide, std::int32_t high, Color background)
    : width(std::max(wide, 0)),
      height(std::max(high, 0)),
      pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), background) {}

void Canvas::Fill(const Rect& rect, Color color) {
  const Rect inside = Intersection(rect, {0, 0, width, height});
  for (std::int32_t y = inside.top; y < inside.bottom; ++y) {
    for (std::int32_t x = inside.left; x < inside.right; ++x) Set(x, y, color);
  }
}

Rect Intersection(const Rect& left, const Rect& right) {
  return {std::max(left.left, right.left), std::max(left.top, right.top), std::min(left.right, right.right),
          std::min(left.bottom, right.bottom)};
}

}  // namespace burrowmark
