#include "platform/local/local_clock.h"

#include <ctime>

namespace burrowmark {

LocalTime LocalClock::GetLocalTime() const {
  if (Fixed) return *Fixed;
  const std::time_t now = std::time(nullptr);
  if (now == second_) return parts_;
  const std::tm* parts = std::localtime(&now);
  if (parts == nullptr) return {};
  second_ = now;
  parts_ = {parts->tm_year + 1900, parts->tm_mon + 1, parts->tm_mday, parts->tm_hour, parts->tm_min, parts->tm_sec};
  return parts_;
}

}  // namespace burrowmark
