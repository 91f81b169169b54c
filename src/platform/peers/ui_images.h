// Images that controls show beside their texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace burrowmark {

// Pictures of one size: the program's icons by their numbers. Image n of a list is its nth entry, counted from 1;
// 0 is none.
struct ImageList {
  std::int32_t size = 16;  // pixels at 96 dots per inch
  std::vector<std::int32_t> icons;
  friend bool operator==(const ImageList&, const ImageList&) = default;

  // The number of the icon; 0 for an image that isn't there.
  std::int32_t IconOf(std::int32_t image) const {
    return image > 0 && static_cast<std::size_t>(image) <= icons.size() ? icons[static_cast<std::size_t>(image) - 1]
                                                                        : 0;
  }
};

}  // namespace burrowmark
