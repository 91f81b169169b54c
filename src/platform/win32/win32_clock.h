// The clock of the real system.
#pragma once

#include "platform/system_facts.h"

namespace burrowmark {

class Win32Clock final : public Clock {
 public:
  LocalTime GetLocalTime() const override;
};

}  // namespace burrowmark
