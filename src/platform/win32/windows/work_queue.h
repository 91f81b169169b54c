// Work that waits for the message loop.
#pragma once

#include <windows.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <mutex>

#include "platform/win32/windows/window_class.h"

namespace burrowmark {

// Hangs on a window that takes messages alone, so that it also runs in the loops of menus and boxes, which know
// nothing of it.
class WorkQueue {
 public:
  WorkQueue();
  ~WorkQueue();
  WorkQueue(const WorkQueue&) = delete;
  WorkQueue& operator=(const WorkQueue&) = delete;

  // From any thread; the work runs on the one that made this.
  void Post(std::function<void()> work);
  void PostLater(std::int32_t milliseconds, std::function<void()> work);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void RunNext();
  void RunTimer(UINT_PTR timer);

  WindowClass class_;
  HWND window_ = nullptr;
  std::mutex mutex_;
  std::deque<std::function<void()>> waiting_;        // under the mutex
  std::map<UINT_PTR, std::function<void()>> later_;  // by timer
  UINT_PTR lastTimer_ = 0;
};

}  // namespace burrowmark
