// When timers tick, and when they don't any more.
#include "ui/timer.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/support/scratch_machine.h"

namespace burrowmark::test {
namespace {

class TimerTest : public ::testing::Test, protected ScratchMachine {
 protected:
  TimerTest() {
    timer_->Tick = [this] { ++ticks_; };
    timer_->SetInterval(100);
    timer_->SetEnabled(true);
  }
  int TicksIn(std::int64_t milliseconds) {
    ticks_ = 0;
    machine.windows.Advance(milliseconds);
    return ticks_;
  }

  std::optional<Timer> timer_{std::in_place, app.platform.windows};
  int ticks_ = 0;
};

TEST_F(TimerTest, TicksOnceInEveryIntervalWhileItIsOn) {
  EXPECT_EQ(TicksIn(99), 0);
  EXPECT_EQ(TicksIn(1), 1);
  EXPECT_EQ(TicksIn(300), 3);
  timer_->SetEnabled(false);
  EXPECT_EQ(TicksIn(1000), 0);
  timer_->SetEnabled(true);
  EXPECT_EQ(TicksIn(100), 1);
}

TEST_F(TimerTest, AnotherIntervalCountsAnew) {
  TicksIn(90);
  timer_->SetInterval(50);
  EXPECT_EQ(TicksIn(49), 0);
  EXPECT_EQ(TicksIn(51), 2);
  timer_->SetInterval(0);
  EXPECT_EQ(TicksIn(1000), 0);
}

TEST_F(TimerTest, MayBeSwitchedOffOrGoInItsOwnTick) {
  timer_->Tick = [this] {
    ++ticks_;
    timer_->SetEnabled(false);
  };
  EXPECT_EQ(TicksIn(1000), 1);
  timer_->SetEnabled(true);
  timer_->Tick = [this] {
    ++ticks_;
    timer_.reset();
  };
  EXPECT_EQ(TicksIn(1000), 1);
}

}  // namespace
}  // namespace burrowmark::test
