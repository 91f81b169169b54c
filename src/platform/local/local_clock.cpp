#include "platform/local/local_clock.h"

#include <ctime>

namespace burrowmark {

LocalTime LocalClock::GetLocalTime() const { return Fixed ? *Fixed : Split(std::time(nullptr)); }

LocalTime LocalClock::Split(std::time_t moment) {
  const std::tm* parts = std::localtime(&moment);
  if (parts == nullptr) return {};
  return {parts->tm_year + 1900, parts->tm_mon + 1, parts->tm_mday, parts->tm_hour, parts->tm_min, parts->tm_sec};
}

}  // namespace burrowmark
