// The clock of the local machine: the time of the system below it, unless a test sets it.
#pragma once

#include <ctime>
#include <optional>

#include "platform/system_facts.h"

namespace burrowmark {

class LocalClock final : public Clock {
 public:
  std::optional<LocalTime> Fixed;  // while it is set, the clock stands at this moment

  LocalTime GetLocalTime() const override;
  // A moment on the clock of the system below.
  static LocalTime Split(std::time_t moment);

 private:
  // The last answer, for all questions of its second: the zone's file is looked at for every one that is worked out.
  mutable std::time_t second_ = 0;
  mutable LocalTime parts_;
};

}  // namespace burrowmark
