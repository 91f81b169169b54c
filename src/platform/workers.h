// Work that may take long: it runs beside the interface thread.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace burrowmark {

// Work may outlive whoever asked for it: what it uses it holds by shared_ptr, or by value. Of the seam it may call
// FileSystem, Network, SystemFacts and WindowSystem::Post, nothing else; of what it throws nobody hears. The end of the
// program waits for no work.
class Workers {
 public:
  virtual ~Workers() = default;

  // Runs `work`, and then `done` from the interface thread's loop, be it that of a modal window or a box. Work that
  // never ends never tells.
  virtual void Run(std::function<void()> work, std::function<void()> done) = 0;
  // Runs `work` and waits for its end, though not longer than that. False: it goes on and nobody hears of it.
  bool RunWithin(std::int32_t milliseconds, std::function<void()> work) {
    return RunAllWithin(milliseconds, {std::move(work)});
  }
  // Likewise for several pieces of work, which run at the same time. False if one of them didn't end.
  virtual bool RunAllWithin(std::int32_t milliseconds, std::vector<std::function<void()>> works) = 0;
};

}  // namespace burrowmark
