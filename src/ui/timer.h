// An event that comes again and again.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/window_system.h"

namespace burrowmark {

// The next event comes one interval after the one before has returned. None comes once the timer was switched off, got
// another interval, which counts anew, or is gone.
class Timer {
 public:
  // `windows` must outlive this object.
  explicit Timer(WindowSystem& windows) : windows_(windows) {}
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  std::function<void()> Tick;

  std::int32_t Interval() const { return interval_; }
  // Milliseconds; 0 for no event at all.
  void SetInterval(std::int32_t milliseconds);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

 private:
  struct Run {};

  void Start();
  void WaitForTick();

  WindowSystem& windows_;
  std::int32_t interval_ = 0;
  bool enabled_ = false;
  std::shared_ptr<Run> run_;  // what waits for its time asks whether this is still there
};

}  // namespace burrowmark
