#include "platform/win32/win32_clock.h"

#include <windows.h>

namespace burrowmark {

LocalTime Win32Clock::GetLocalTime() const {
  SYSTEMTIME now = {};
  ::GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace burrowmark
