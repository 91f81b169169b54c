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
  static LocalTime Split(std::time_t moment);
};

}  // namespace burrowmark
