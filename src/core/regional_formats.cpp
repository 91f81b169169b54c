#include "core/regional_formats.h"

namespace burrowmark {
namespace {

constexpr wchar_t kYes[] = L"1";
constexpr int kNoon = 12;

bool HasTimeOfDay(Date value) {
  const LocalTime parts = SplitDate(value);
  return parts.hour != 0 || parts.minute != 0 || parts.second != 0;
}

const wchar_t* HourPicture(bool clock24, bool leadingZero) {
  if (clock24) return leadingZero ? L"HH" : L"H";
  return leadingZero ? L"hh" : L"h";
}

}  // namespace

std::wstring GetLongDateFormat(const SystemFacts& system) { return system.GetLocaleInfoA(kLocaleLongDate); }

std::wstring FormatLongDateTime(Date value, const SystemFacts& system) {
  const std::wstring picture = GetLongDateFormat(system);
  if (picture.empty()) return DefaultDateText(value, system);
  const std::wstring date = FormatDate(value, picture, system);
  const std::wstring time = HasTimeOfDay(value) ? FormatLocaleTime(value, system) : std::wstring();
  return time.empty() ? date : date + L" " + time;
}

std::wstring FormatLocaleTime(Date value, const SystemFacts& system) {
  const std::wstring separator = system.GetLocaleInfoA(kLocaleTimeSeparator);
  const std::wstring clock24 = system.GetLocaleInfoA(kLocaleClock24);
  const std::wstring leadingZero = system.GetLocaleInfoA(kLocaleLeadingZero);
  if (separator.empty() || clock24.empty() || leadingZero.empty()) return {};
  const auto part = [&](const wchar_t* picture) { return FormatDate(value, picture, system); };
  const std::wstring time =
      part(HourPicture(clock24 == kYes, leadingZero == kYes)) + separator + part(L"mm") + separator + part(L"ss");
  const std::wstring half = system.GetLocaleInfoA(SplitDate(value).hour < kNoon ? kLocaleMorning : kLocaleAfternoon);
  return half.empty() ? time : time + L" " + half;
}

}  // namespace burrowmark
