// The font of forms and controls.
#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <memory>

#include "platform/win32/system_library.h"

namespace burrowmark {

class ControlFonts {
 public:
  // The font of the system's messages at a scale; it stays as long as this object.
  HFONT At(std::int32_t dpi);

 private:
  struct Delete {
    void operator()(HFONT font) const { ::DeleteObject(font); }
  };
  using Font = std::unique_ptr<std::remove_pointer_t<HFONT>, Delete>;

  SystemLibrary user_{L"user32.dll"};
  std::map<std::int32_t, Font> fonts_;  // by scale
};

}  // namespace burrowmark
