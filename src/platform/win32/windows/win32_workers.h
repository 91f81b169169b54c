// Threads of the real system for work that may take long.
#pragma once

#include <memory>

#include "platform/window_system.h"
#include "platform/workers.h"

namespace burrowmark {

class Win32Workers final : public Workers {
 public:
  // `windows` must outlive this object. No work is told of when it has gone.
  explicit Win32Workers(WindowSystem& windows);
  ~Win32Workers() override;
  Win32Workers(const Win32Workers&) = delete;
  Win32Workers& operator=(const Win32Workers&) = delete;

  void Run(std::function<void()> work, std::function<void()> done) override;
  bool RunAllWithin(std::int32_t milliseconds, std::vector<std::function<void()>> works) override;

 private:
  struct Loop;
  std::shared_ptr<Loop> loop_;
};

}  // namespace burrowmark
