// Keeps the system from asking for a medium that isn't in its drive.
#pragma once

#include <windows.h>

namespace burrowmark {

// While one of these lives, a call of this thread that meets an empty drive fails instead of showing a box. It is set
// for the thread, not for the process, since programs that we start would inherit the process's mode.
class QuietDrives {
 public:
  QuietDrives() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_); }
  ~QuietDrives() { ::SetThreadErrorMode(before_, nullptr); }
  QuietDrives(const QuietDrives&) = delete;
  QuietDrives& operator=(const QuietDrives&) = delete;

 private:
  DWORD before_ = 0;
};

}  // namespace burrowmark
