// The real system behind the seam.
#pragma once

#include "platform/platform.h"
#include "platform/win32/win32_clock.h"
#include "platform/win32/win32_facts.h"
#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_registry.h"

namespace burrowmark {

class Win32Platform {
 public:
  Platform platform() { return {registry_, files_, facts_, clock_}; }

 private:
  Win32Registry registry_;
  Win32FileSystem files_;
  Win32Facts facts_;
  Win32Clock clock_;
};

}  // namespace burrowmark
