#include "platform/win32/windows/work_queue.h"

#include <algorithm>
#include <utility>

#include "platform/from_system.h"

namespace burrowmark {
namespace {

constexpr wchar_t kClassName[] = L"BurrowmarkWork";
constexpr UINT kRunNext = WM_APP;

}  // namespace

WorkQueue::WorkQueue() : class_(kClassName, Procedure) {
  window_ = ::CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, WindowClass::Module(), this);
}

WorkQueue::~WorkQueue() {
  if (window_ != nullptr) ::DestroyWindow(window_);  // its timers go with it
}

void WorkQueue::Post(std::function<void()> work) {
  const std::lock_guard lock(mutex_);
  waiting_.push_back(std::move(work));
  // One message is on its way at a time, however much waits: the system's queue has an end.
  if (waiting_.size() == 1) ::PostMessageW(window_, kRunNext, 0, 0);
}

void WorkQueue::PostLater(std::int32_t milliseconds, std::function<void()> work) {
  const UINT_PTR timer = ++lastTimer_;
  later_[timer] = std::move(work);
  ::SetTimer(window_, timer, static_cast<UINT>(std::max(milliseconds, 0)), nullptr);
}

LRESULT CALLBACK WorkQueue::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* queue = ObjectOfWindow<WorkQueue>(window, message, lParam);
  if (queue == nullptr || (message != kRunNext && message != WM_TIMER)) {
    return ::DefWindowProcW(window, message, wParam, lParam);
  }
  return FromSystem(
      [&]() -> LRESULT {
        message == kRunNext ? queue->RunNext() : queue->RunTimer(wParam);
        return 0;
      },
      LRESULT{0});
}

void WorkQueue::RunNext() {
  std::function<void()> work;
  {
    const std::lock_guard lock(mutex_);
    if (waiting_.empty()) return;
    work = std::move(waiting_.front());
    waiting_.pop_front();
    if (!waiting_.empty()) ::PostMessageW(window_, kRunNext, 0, 0);
  }
  work();
}

void WorkQueue::RunTimer(UINT_PTR timer) {
  ::KillTimer(window_, timer);
  const auto found = later_.find(timer);
  if (found == later_.end()) return;
  const std::function<void()> work = std::move(found->second);
  later_.erase(found);
  work();
}

}  // namespace burrowmark
