#include "platform/win32/start_thread.h"

#include <memory>
#include <utility>

namespace burrowmark {
namespace {

using Work = std::function<void()>;

DWORD WINAPI RunThread(void* parameter) {
  const std::unique_ptr<Work> work(static_cast<Work*>(parameter));
  (*work)();
  return 0;
}

}  // namespace

HANDLE StartThread(std::function<void()> work) {
  auto own = std::make_unique<Work>(std::move(work));
  const HANDLE thread = ::CreateThread(nullptr, 0, RunThread, own.get(), 0, nullptr);
  if (thread != nullptr) static_cast<void>(own.release());
  return thread;
}

}  // namespace burrowmark
