// The program's own icons.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>

namespace burrowmark {

struct DestroyIconImage {
  void operator()(HICON icon) const { ::DestroyIcon(icon); }
};
using IconImage = std::unique_ptr<std::remove_pointer_t<HICON>, DestroyIconImage>;

// By its number; `size` in pixels. None for 0, and for a number that no icon has.
IconImage LoadProgramIcon(std::int32_t number, int size);

}  // namespace burrowmark
