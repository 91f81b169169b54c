// The scale of screens.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/win32/system_library.h"

namespace burrowmark {

// Dots per inch. Systems before 8.1 have one scale for all screens.
class ScreenDpi {
 public:
  std::int32_t AtMouse() const;
  std::int32_t OfWindow(HWND window) const;
  std::int32_t OfMonitor(HMONITOR monitor) const;
  // The one scale of the system.
  static std::int32_t OfSystem();

 private:
  SystemLibrary shcore_{L"shcore.dll"};
};

}  // namespace burrowmark
