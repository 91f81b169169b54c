// The images of an icon file.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/drawing.h"

namespace burrowmark {

// A square of pixels with 8 bits each of blue, green, red and opacity, the lowest first; row by row from the top.
struct IconImage {
  std::int32_t size = 0;  // 0: there is none
  std::vector<std::uint32_t> pixels;
};

// The image of this size, or the next larger one, or else the largest, out of an .ico file with images of 32 bits a
// pixel. Bytes that aren't such a file have none.
IconImage ReadIconImage(std::string_view bytes, std::int32_t size);

// The colour of a pixel of an image over a background.
Color Blend(std::uint32_t pixel, Color background);

}  // namespace burrowmark
