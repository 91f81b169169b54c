#include "platform/local/local_clock.h"

#include <ctime>

namespace burrowmark {

LocalTime LocalClock::GetLocalTime() const {
  if (Fixed) return *Fixed;
  const std::time_t now = std::time(nullptr);
  if (now != second_) parts_ = Split(now);
  second_ = now;
  return parts_;
}

LocalTime LocalClock::Split(std::time_t moment) {
  const std::tm* parts = std::localtime(&moment);
  if (parts == nullptr) return {};
  return {parts->tm_year + 1900, parts->tm_mon + 1, parts->tm_mday, parts->tm_hour, parts->tm_min, parts->tm_sec};
}

}  // namespace burrowmark
