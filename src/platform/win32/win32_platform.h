// The real system behind the seam.
#pragma once

#include "platform/platform.h"
#include "platform/win32/files/win32_file_system.h"
#include "platform/win32/menus/menu_font.h"
#include "platform/win32/menus/win32_drawing.h"
#include "platform/win32/menus/win32_menus.h"
#include "platform/win32/shell/win32_network.h"
#include "platform/win32/shell/win32_registry.h"
#include "platform/win32/shell/win32_shell.h"
#include "platform/win32/win32_clock.h"
#include "platform/win32/win32_facts.h"
#include "platform/win32/windows/screen_dpi.h"
#include "platform/win32/windows/win32_clipboard.h"
#include "platform/win32/windows/win32_dialogs.h"
#include "platform/win32/windows/win32_keyboard.h"
#include "platform/win32/windows/win32_windows.h"
#include "platform/win32/windows/win32_workers.h"

namespace burrowmark {

// All windows and menus belong to the thread that makes this.
class Win32Platform {
 public:
  Platform platform() {
    return {registry_, Files(),  facts_,    clock_,     windows_, menus_,      drawing_,
            shell_,    dialogs_, keyboard_, clipboard_, workers_, TheNetwork()};
  }

 private:
  std::uint32_t MajorVersion() const {
    SystemVersion version;
    facts_.GetVersionExA(version);
    return version.major;
  }

  // Work that hangs may come back to these two at any time until the process ends.
  static FileSystem& Files() {
    static auto* const files = new Win32FileSystem;
    return *files;
  }
  static Network& TheNetwork() {
    static auto* const network = new Win32Network;
    return *network;
  }

  Win32Registry registry_;
  Win32Facts facts_;
  Win32Clock clock_;
  ScreenDpi screenDpi_;
  MenuFont menuFont_;
  Win32Shell shell_;
  Win32Drawing drawing_{menuFont_};
  Win32Menus menus_{screenDpi_, menuFont_};
  Win32Windows windows_{menuFont_, screenDpi_, MajorVersion()};
  Win32Dialogs dialogs_;
  Win32Keyboard keyboard_;
  Win32Clipboard clipboard_;
  Win32Workers workers_{windows_};
};

}  // namespace burrowmark
