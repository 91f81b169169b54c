#include "core/dates.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

#include "core/failure.h"
#include "core/numbers.h"

namespace burrowmark {
namespace {

constexpr std::int64_t kSecondsADay = 86400;
constexpr std::int64_t kFirstDay = -657434;  // 1 January 100
constexpr std::int64_t kLastDay = 2958465;   // 31 December 9999
constexpr std::int64_t kUnixEpoch = 25569;   // day number of 1 January 1970
constexpr std::int32_t kLargestField = 32767;

struct DayAndSecond {
  std::int64_t day = 0;
  std::int64_t second = 0;
};

DayAndSecond SplitDay(Date date) {
  const double day = std::trunc(date);
  const auto second =
      static_cast<std::int64_t>(std::llround(std::fabs(date - day) * static_cast<double>(kSecondsADay)));
  const auto wholeDay = static_cast<std::int64_t>(day);
  return second == kSecondsADay ? DayAndSecond{wholeDay + 1, 0} : DayAndSecond{wholeDay, second};
}

Date JoinDay(DayAndSecond moment) {
  const double fraction = static_cast<double>(moment.second) / static_cast<double>(kSecondsADay);
  const auto day = static_cast<double>(moment.day);
  return moment.day < 0 ? day - fraction : day + fraction;
}

void CheckDay(std::int64_t day) {
  if (day < kFirstDay || day > kLastDay) throw OverflowFailure("a date out of range");
}

// Day number of a day of the Gregorian calendar; `month` is 1 to 12. The year starts in March here, so that the leap
// day is its last, and 400 years are one era of 146,097 days.
std::int64_t DayNumber(std::int64_t year, std::int64_t month, std::int64_t day) {
  if (month <= 2) --year;
  const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
  const std::int64_t yearOfEra = year - era * 400;
  const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468 + kUnixEpoch;
}

void SetCalendarDay(std::int64_t dayNumber, LocalTime& parts) {
  const std::int64_t shifted = dayNumber - kUnixEpoch + 719468;
  const std::int64_t era = (shifted >= 0 ? shifted : shifted - 146096) / 146097;
  const std::int64_t dayOfEra = shifted - era * 146097;
  const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t marchMonth = (5 * dayOfYear + 2) / 153;
  parts.day = static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1);
  parts.month = static_cast<int>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
  parts.year = static_cast<int>(yearOfEra + era * 400 + (parts.month <= 2 ? 1 : 0));
}

// Fields of a packed date: nothing for one that is empty or missing.
std::array<std::optional<std::int32_t>, 6> PackedFields(std::wstring_view text) {
  std::array<std::optional<std::int32_t>, 6> fields;
  std::size_t field = 0;
  std::optional<std::int32_t> value;
  for (const wchar_t c : text) {
    if (c == L'|') {
      fields.at(field++) = value;
      value.reset();
      if (field == fields.size()) break;
    } else if (c >= L'0' && c <= L'9') {
      value = value.value_or(0) * 10 + (c - L'0');
      if (*value > kLargestField) throw OverflowFailure("a date field out of range");
    }
  }
  // Three fields make a date and three a time: a group cut short counts for nothing.
  for (std::size_t i = field / 3 * 3; i < fields.size(); ++i) fields.at(i).reset();
  return fields;
}

std::wstring Padded(int value) { return (value < 10 ? L"0" : L"") + DecimalText(value); }

// Day of the week, Monday 0. Day 0 was a Saturday.
int WeekDay(Date date) { return static_cast<int>(((SplitDay(date).day + 5) % 7 + 7) % 7); }

std::wstring DateField(wchar_t letter, std::size_t count, Date date, const LocalTime& parts,
                       const SystemFacts& system) {
  const auto number = [count](int value) { return count == 1 ? DecimalText(value) : Padded(value); };
  switch (letter) {
    case L'd':
      if (count == 3) return system.GetLocaleInfoA(kLocaleShortDayName1 + WeekDay(date));
      if (count > 3) return system.GetLocaleInfoA(kLocaleDayName1 + WeekDay(date));
      return number(parts.day);
    case L'M':
      if (count == 3) return system.GetLocaleInfoA(kLocaleShortMonthName1 + parts.month - 1);
      if (count > 3) return system.GetLocaleInfoA(kLocaleMonthName1 + parts.month - 1);
      return number(parts.month);
    case L'y':
      return count > 2 ? DecimalText(parts.year) : number(parts.year % 100);
    case L'h':
      return number((parts.hour + 11) % 12 + 1);
    case L'H':
      return number(parts.hour);
    case L'm':
      return number(parts.minute);
    case L's':
      return number(parts.second);
    default: {  // t: the designator, or its first letter
      const std::wstring half = system.GetLocaleInfoA(parts.hour < 12 ? kLocaleMorning : kLocaleAfternoon);
      return count == 1 ? half.substr(0, 1) : half;
    }
  }
}

// Copies a text in single quotes, whose first character stands at `at`, up to the closing one; a doubled quote is a
// quote. Gives the place behind it.
std::size_t AppendQuoted(std::wstring& text, std::wstring_view picture, std::size_t at) {
  for (; at < picture.size(); ++at) {
    if (picture[at] == L'\'') {
      if (at + 1 == picture.size() || picture[at + 1] != L'\'') return at + 1;
      ++at;
    }
    text += picture[at];
  }
  return at;
}

}  // namespace

Date Now(const Clock& clock) { return DateOf(clock.GetLocalTime()); }

Date DateOf(const LocalTime& moment) {
  return AddSeconds(DateFromParts(moment.year, moment.month, moment.day),
                    static_cast<long long>(moment.hour) * 3600 + moment.minute * 60 + moment.second);
}

Date DateFromParts(int year, int month, int day) {
  if (year >= 0 && year < 100) year += year < 30 ? 2000 : 1900;
  const std::int64_t months = static_cast<std::int64_t>(year) * 12 + month - 1;
  const std::int64_t floorYear = (months >= 0 ? months : months - 11) / 12;
  const std::int64_t number = DayNumber(floorYear, months - floorYear * 12 + 1, 1) + day - 1;
  CheckDay(number);
  return static_cast<Date>(number);
}

Date TimeFromParts(int hour, int minute, int second) {
  return AddSeconds(0, static_cast<long long>(hour) * 3600 + static_cast<long long>(minute) * 60 + second);
}

Date AddSeconds(Date date, long long seconds) {
  const DayAndSecond start = SplitDay(date);
  const std::int64_t total = start.second + seconds;
  const std::int64_t days = (total >= 0 ? total : total - (kSecondsADay - 1)) / kSecondsADay;
  CheckDay(start.day + days);
  return JoinDay({start.day + days, total - days * kSecondsADay});
}

LocalTime SplitDate(Date date) {
  if (!(std::fabs(date) < 1e7)) throw OverflowFailure("a date out of range");
  const DayAndSecond moment = SplitDay(date);
  CheckDay(moment.day);
  LocalTime parts;
  SetCalendarDay(moment.day, parts);
  parts.hour = static_cast<int>(moment.second / 3600);
  parts.minute = static_cast<int>(moment.second / 60 % 60);
  parts.second = static_cast<int>(moment.second % 60);
  return parts;
}

std::wstring PackDateText(Date date) {
  if (date == 0) return {};
  const LocalTime parts = SplitDate(date);
  std::wstring text;
  for (const int field : {parts.day, parts.month, parts.year, parts.hour, parts.minute, parts.second}) {
    text += DecimalText(field) + L"|";
  }
  return text;
}

Date UnpackDateText(std::wstring_view text) {
  const auto fields = PackedFields(text);
  std::optional<Date> date;
  std::optional<Date> time;
  if (fields[0] && fields[1] && fields[2]) date = DateFromParts(*fields[2], *fields[1], *fields[0]);
  if (fields[3] && fields[4] && fields[5]) time = TimeFromParts(*fields[3], *fields[4], *fields[5]);
  if (!date || !time) return date.value_or(time.value_or(0));
  if (*date == 0) return *time;
  return AddSeconds(*date, *fields[3] * 3600LL + *fields[4] * 60LL + *fields[5]);
}

std::wstring FormatDate(Date date, std::wstring_view picture, const SystemFacts& system) {
  constexpr std::wstring_view kLetters = L"dMyhHmst";
  const LocalTime parts = SplitDate(date);
  std::wstring text;
  for (std::size_t i = 0; i < picture.size();) {
    if (picture[i] == L'\'') {
      i = AppendQuoted(text, picture, i + 1);
      continue;
    }
    std::size_t count = 1;
    while (i + count < picture.size() && picture[i + count] == picture[i]) ++count;
    if (kLetters.find(picture[i]) == std::wstring_view::npos) {
      text.append(count, picture[i]);
    } else {
      text += DateField(picture[i], count, date, parts, system);
    }
    i += count;
  }
  return text;
}

std::wstring DefaultDateText(Date date, const SystemFacts& system) {
  const DayAndSecond moment = SplitDay(date);
  std::wstring text;
  if (moment.day != 0) text = FormatDate(date, system.GetLocaleInfoA(kLocaleShortDate), system);
  if (moment.second == 0 && moment.day != 0) return text;
  return text + (text.empty() ? L"" : L" ") + FormatDate(date, system.GetLocaleInfoA(kLocaleTimeFormat), system);
}

}  // namespace burrowmark
