// Dates: whole days since 30 December 1899, with the time of day as the fraction; 0 means "never".
#pragma once

#include <string>
#include <string_view>

#include "platform/system_facts.h"

namespace burrowmark {

// Before day 0 the fraction still counts forward within its day: -1.25 is six in the morning of 29 December 1899.
using Date = double;

// This moment, to the second.
Date Now(const Clock& clock);
// Throws OverflowFailure for dates outside the years 100 to 9999, as does what follows.
Date DateOf(const LocalTime& moment);

// A date from its numbers. A month or a day beyond its range runs into the next ones; years 0 to 29 are 2000 to 2029,
// and 30 to 99 are 1930 to 1999. Throws OverflowFailure for dates outside the years 100 to 9999.
Date DateFromParts(int year, int month, int day);
// A time of day from its numbers, which may run over likewise: 25 hours are a day and an hour.
Date TimeFromParts(int hour, int minute, int second);
// The moment that many seconds after `date`.
Date AddSeconds(Date date, long long seconds);
// Throws OverflowFailure for dates outside the years 100 to 9999.
LocalTime SplitDate(Date date);

// The form that files keep: day, month, year, hour, minute and second, unpadded, each followed by "|"; empty for 0.
std::wstring PackDateText(Date date);
// The date of such a text. A date or a time with an empty field, or with fields missing, is left out of the result;
// with both left out it is 0. Characters other than digits and bars are passed over. Throws OverflowFailure for numbers
// past 32,767 and dates out of range.
Date UnpackDateText(std::wstring_view text);

// A date in a picture of the locale ("M/d/yyyy", "h:mm:ss tt" ...): d, M, y, h, H, m, s and t repeated as the system's
// own pictures repeat them, text in single quotes as it stands.
std::wstring FormatDate(Date date, std::wstring_view picture, const SystemFacts& system);
// The system's default text: short date and time, without the time at midnight, without the date on day 0.
std::wstring DefaultDateText(Date date, const SystemFacts& system);

}  // namespace burrowmark
