// The entry point of burrowmark.exe.
#include <windows.h>

#include "app/start.h"
#include "core/failure.h"
#include "platform/win32/win32_platform.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
  return burrowmark::FromSystem(
      [commandLine] {
        burrowmark::Win32Platform system;
        burrowmark::RunBurrowmark(system.platform(), commandLine);
        return 0;
      },
      1);
}
