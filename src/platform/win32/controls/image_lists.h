// Lists of images for the system's controls.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <memory>
#include <type_traits>

#include "platform/peers/ui_images.h"

namespace burrowmark {

struct DestroyImageList {
  void operator()(HIMAGELIST list) const { ::ImageList_Destroy(list); }
};
using ImageListHandle = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, DestroyImageList>;

// The pictures in the size that the scale asks for: image n stands at index n, and an empty one at 0. One that the
// program hasn't got is empty too. None for a list without images.
ImageListHandle MakeImageList(const ImageList& images, std::int32_t dpi);

}  // namespace burrowmark
