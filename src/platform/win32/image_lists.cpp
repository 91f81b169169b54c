#include "platform/win32/image_lists.h"

#include <vector>

#include "platform/twips.h"
#include "platform/win32/window_class.h"

namespace burrowmark {
namespace {

struct DestroyImage {
  void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using Image = std::unique_ptr<std::remove_pointer_t<HICON>, DestroyImage>;

constexpr BYTE kAllThrough = 0xFF;

// Lets everything through.
Image EmptyImage(int size) {
  const std::size_t line = static_cast<std::size_t>((size + 15) / 16) * 2;
  const std::vector<BYTE> mask(line * static_cast<std::size_t>(size), kAllThrough);
  const std::vector<BYTE> colors(mask.size(), 0);
  return Image(::CreateIcon(WindowClass::Module(), size, size, 1, 1, mask.data(), colors.data()));
}

Image LoadImageOf(std::int32_t icon, int size) {
  if (icon == 0) return nullptr;
  return Image(static_cast<HICON>(
      ::LoadImageW(WindowClass::Module(), MAKEINTRESOURCEW(icon), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

}  // namespace

NativeImages MakeImages(const ImageList& images, std::int32_t dpi) {
  if (images.icons.empty()) return nullptr;
  const int size = Scaled(images.size, dpi, kDesignDpi);
  const int count = static_cast<int>(images.icons.size()) + 1;
  NativeImages native(::ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, count, 0));
  const Image empty = EmptyImage(size);
  ::ImageList_ReplaceIcon(native.get(), -1, empty.get());
  for (const std::int32_t icon : images.icons) {
    const Image image = LoadImageOf(icon, size);
    ::ImageList_ReplaceIcon(native.get(), -1, image ? image.get() : empty.get());
  }
  return native;
}

}  // namespace burrowmark
