#include "platform/win32/controls/image_lists.h"

#include <vector>

#include "platform/twips.h"
#include "platform/win32/controls/icon_image.h"

namespace burrowmark {
namespace {

IconImage EmptyImage(int size) {
  constexpr int kBitsOfRow = 16;
  const int row = (size + kBitsOfRow - 1) / kBitsOfRow * (kBitsOfRow / 8);
  const std::size_t bytes = static_cast<std::size_t>(row) * static_cast<std::size_t>(size);
  const std::vector<BYTE> screen(bytes, 0xFF);
  const std::vector<BYTE> picture(bytes, 0);
  return IconImage(::CreateIcon(WindowClass::Module(), size, size, 1, 1, screen.data(), picture.data()));
}

}  // namespace

ImageListHandle MakeImageList(const ImageList& images, std::int32_t dpi) {
  if (images.icons.empty()) return nullptr;
  const int size = Scaled(images.size, dpi, kDesignDpi);
  const int count = static_cast<int>(images.icons.size()) + 1;
  ImageListHandle list(::ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, count, 0));
  const IconImage empty = EmptyImage(size);
  ::ImageList_ReplaceIcon(list.get(), -1, empty.get());
  for (const std::int32_t number : images.icons) {
    const IconImage image = LoadIconImage(number, size);
    ::ImageList_ReplaceIcon(list.get(), -1, image ? image.get() : empty.get());
  }
  return list;
}

}  // namespace burrowmark
