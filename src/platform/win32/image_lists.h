// Lists of images as controls of the system have them.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <memory>

#include "platform/ui_images.h"

namespace burrowmark {

struct DestroyImages {
  void operator()(HIMAGELIST images) const { ::ImageList_Destroy(images); }
};
using NativeImages = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, DestroyImages>;

// Image n stands at index n, and an empty one at 0; an icon that isn't there is empty too. None for a list without
// images.
NativeImages MakeImages(const ImageList& images, std::int32_t dpi);

}  // namespace burrowmark
