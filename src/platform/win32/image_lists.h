// Lists of images for the system's controls.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <memory>
#include <type_traits>

#include "platform/ui_images.h"

namespace burrowmark {

struct DestroyImageList {
  void operator()(HIMAGELIST list) const { ::ImageList_Destroy(list); }
};
using ImageListHandle = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, DestroyImageList>;

// The pictures in the size that the scale asks for, in the same order. One that the program hasn't got is left empty.
ImageListHandle MakeImageList(const ImageList& images, std::int32_t dpi);

}  // namespace burrowmark
