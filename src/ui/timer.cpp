#include "ui/timer.h"

#include "ui/control.h"

namespace burrowmark {

void Timer::SetInterval(std::int32_t milliseconds) {
  if (Assign(interval_, milliseconds)) Start();
}

void Timer::SetEnabled(bool enabled) {
  if (Assign(enabled_, enabled)) Start();
}

void Timer::Start() {
  run_ = nullptr;
  if (!enabled_ || interval_ <= 0) return;
  run_ = std::make_shared<Run>();
  WaitForTick();
}

void Timer::WaitForTick() {
  windows_.PostLater(interval_, [this, run = std::weak_ptr<Run>(run_)] {
    if (run.expired()) return;
    Raise(Tick);
    if (!run.expired()) WaitForTick();
  });
}

}  // namespace burrowmark
