// Work that may take long, on the local machine: it runs from the one thread's own loop, when a test lets it.
#pragma once

#include "platform/local/screen/local_windows.h"
#include "platform/workers.h"

namespace burrowmark {

// Work that meets a server which is away (Faults::SilentPlaces) never ends.
class LocalWorkers final : public Workers {
 public:
  // `windows` must outlive this object.
  explicit LocalWorkers(LocalWindows& windows) : windows_(windows) {}

  // Milliseconds of the machine's time that all work takes from now on.
  std::int32_t Takes = 0;
  // How much work there was that somebody waited for, and how much of that in vain.
  std::size_t Waits = 0;
  std::size_t VainWaits = 0;

  void Run(std::function<void()> work, std::function<void()> done) override;
  bool RunAllWithin(std::int32_t milliseconds, std::vector<std::function<void()>> works) override;

 private:
  LocalWindows& windows_;
};

}  // namespace burrowmark
