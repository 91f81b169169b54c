#include "platform/win32/program_icon.h"

#include "platform/win32/window_class.h"

namespace burrowmark {

IconImage LoadProgramIcon(std::int32_t number, int size) {
  if (number == 0) return nullptr;
  return IconImage(static_cast<HICON>(
      ::LoadImageW(WindowClass::Module(), MAKEINTRESOURCEW(number), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

}  // namespace burrowmark
