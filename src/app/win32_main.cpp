// The entry point of burrowmark.exe.
#include <windows.h>

#include <cstdlib>

#include "app/start.h"
#include "core/failure.h"
#include "platform/win32/win32_platform.h"

// The compiler's library tells the name of what nobody caught, on a console that isn't there, and takes 45 KB for that.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the library's
namespace __gnu_cxx {
// NOLINTNEXTLINE(bugprone-reserved-identifier)
void __verbose_terminate_handler() { std::abort(); }
}  // namespace __gnu_cxx

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
  // What the system's libraries load by name later mustn't come from the program's folder, which may be anybody's.
  ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  return burrowmark::FromSystem(
      [commandLine] {
        burrowmark::Win32Platform system;
        burrowmark::RunBurrowmark(system.platform(), commandLine);
        return 0;
      },
      1);
}
