// Dates and times in the user's own long form, put together from the single settings of the locale. Lists and reports
// show the system's default text instead (core/dates.h).
#pragma once

#include <string>

#include "core/dates.h"

namespace burrowmark {

// The picture of the locale's long date; empty if it has none.
std::wstring GetLongDateFormat(const SystemFacts& system);

// The long date and, unless it is midnight to the second, the time behind it. Without a long date the default text.
// Throws OverflowFailure for dates outside the years 100 to 9999, as does the next.
std::wstring FormatLongDateTime(Date value, const SystemFacts& system);

// Hour, minute and second, and the locale's word for that half of the day if it has one, whatever its clock. Empty
// where the separator, the kind of clock or the leading zero isn't set.
std::wstring FormatLocaleTime(Date value, const SystemFacts& system);

}  // namespace burrowmark
