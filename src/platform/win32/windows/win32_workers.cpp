#include "platform/win32/windows/win32_workers.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

#include "platform/from_system.h"
#include "platform/win32/start_thread.h"

namespace burrowmark {
namespace {

void RunQuietly(const std::function<void()>& work) {
  FromSystem(
      [&work] {
        work();
        return true;
      },
      false);
}

// False if the system gives no thread.
bool Start(std::function<void()> work) {
  const HANDLE thread = StartThread(std::move(work));
  if (thread == nullptr) return false;
  ::CloseHandle(thread);
  return true;
}

// The end of pieces of work that somebody waits for.
class Finish {
 public:
  explicit Finish(std::size_t works) : left_(works) {}
  void Tell() {
    const std::lock_guard lock(mutex_);
    --left_;
    changed_.notify_all();
  }
  bool Wait(std::int32_t milliseconds) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return left_ == 0; });
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t left_;
};

struct Task {
  std::function<void()> work;
  std::function<void()> done;
};

}  // namespace

// The interface thread's loop as threads know it that may end long after it.
struct Win32Workers::Loop {
  std::mutex mutex;
  WindowSystem* windows = nullptr;  // under the mutex; none when the loop is no more

  void Post(std::function<void()> work) {
    const std::lock_guard lock(mutex);
    if (windows != nullptr) windows->Post(std::move(work));
  }
};

Win32Workers::Win32Workers(WindowSystem& windows) : loop_(std::make_shared<Loop>()) { loop_->windows = &windows; }

Win32Workers::~Win32Workers() {
  const std::lock_guard lock(loop_->mutex);
  loop_->windows = nullptr;
}

// A thread for each piece of work: one that hangs holds up no other, and ends with the process at the latest.
void Win32Workers::Run(std::function<void()> work, std::function<void()> done) {
  auto task = std::make_shared<Task>(Task{std::move(work), std::move(done)});
  const bool runs = Start([loop = loop_, task]() mutable {
    RunQuietly(task->work);
    // It goes where it was made: it may hold what belongs there.
    loop->Post([task = std::move(task)] { task->done(); });
  });
  if (!runs) loop_->Post([task = std::move(task)] { task->done(); });
}

bool Win32Workers::RunAllWithin(std::int32_t milliseconds, std::vector<std::function<void()>> works) {
  const auto finish = std::make_shared<Finish>(works.size());
  bool all = true;
  for (std::function<void()>& work : works) {
    const bool runs = Start([finish, work = std::move(work)] {
      RunQuietly(work);
      finish->Tell();
    });
    if (!runs) finish->Tell();
    all = all && runs;
  }
  return finish->Wait(milliseconds) && all;
}

}  // namespace burrowmark
