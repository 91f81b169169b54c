// Pictures of the program's icons.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

#include "platform/win32/windows/window_class.h"

namespace burrowmark {

struct DestroyIconImage {
  void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using IconImage = std::unique_ptr<std::remove_pointer_t<HICON>, DestroyIconImage>;

// Of that many pixels; none if the program hasn't got such a number.
inline IconImage LoadIconImage(int number, int size) {
  if (number == 0) return nullptr;
  return IconImage(static_cast<HICON>(
      ::LoadImageW(WindowClass::Module(), MAKEINTRESOURCEW(number), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

}  // namespace burrowmark
