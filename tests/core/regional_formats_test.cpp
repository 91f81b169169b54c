// Long dates and times in the settings of locales as the system ships them.
#include <gtest/gtest.h>

#include "core/regional_formats.h"
#include "platform/characters.h"
#include "platform/local/local_facts.h"

namespace burrowmark {
namespace {

using Settings = std::map<std::int32_t, std::wstring>;

Settings Locale(const wchar_t* longDate, const wchar_t* clock24, const wchar_t* leadingZero, const wchar_t* morning,
                const wchar_t* afternoon, const wchar_t* shortDate, const wchar_t* time) {
  return {{kLocaleLongDate, longDate}, {kLocaleClock24, clock24},     {kLocaleLeadingZero, leadingZero},
          {kLocaleMorning, morning},   {kLocaleAfternoon, afternoon}, {kLocaleShortDate, shortDate},
          {kLocaleTimeFormat, time}};
}

Settings With(Settings settings, const Settings& others) {
  for (const auto& [setting, text] : others) settings[setting] = text;
  return settings;
}

constexpr std::int32_t kWednesday = kLocaleDayName1 + 2;
constexpr std::int32_t kNovember = kLocaleMonthName1 + 10;
const Settings kUnitedStates = Locale(L"dddd, MMMM d, yyyy", L"0", L"0", L"AM", L"PM", L"M/d/yyyy", L"h:mm:ss tt");

// What a locale makes of five moments of 5 November 2003: the long form of all, and the default one of the last.
const struct {
  const char* name;
  Settings settings;
  std::wstring midnight, morning, noon, late, defaultLate;
} kLocales[] = {
    {"United States", kUnitedStates, L"Wednesday, November 5, 2003", L" 9:05:07 AM", L" 12:00:00 PM", L" 11:59:59 PM",
     L"11/5/2003 11:59:59 PM"},
    {"British", Locale(L"dd MMMM yyyy", L"1", L"1", L"AM", L"PM", L"dd/MM/yyyy", L"HH:mm:ss"), L"05 November 2003",
     L" 09:05:07 AM", L" 12:00:00 PM", L" 23:59:59 PM", L"05/11/2003 23:59:59"},
    {"German",
     With(Locale(L"dddd, d. MMMM yyyy", L"1", L"1", L"", L"", L"dd.MM.yyyy", L"HH:mm:ss"), {{kWednesday, L"Mittwoch"}}),
     L"Mittwoch, 5. November 2003", L" 09:05:07", L" 12:00:00", L" 23:59:59", L"05.11.2003 23:59:59"},
    {"Serbian, Latin",
     With(Locale(L"d. MMMM yyyy", L"1", L"0", L"", L"", L"d.M.yyyy", L"H:mm:ss"), {{kNovember, L"novembar"}}),
     L"5. novembar 2003", L" 9:05:07", L" 12:00:00", L" 23:59:59", L"5.11.2003 23:59:59"},
    {"Japanese",
     Locale(L"yyyy'\u5E74'M'\u6708'd'\u65E5'", L"1", L"0", L"\u5348\u524D", L"\u5348\u5F8C", L"yyyy/MM/dd", L"H:mm:ss"),
     L"2003\u5E7411\u67085\u65E5", L" 9:05:07 \u5348\u524D", L" 12:00:00 \u5348\u5F8C", L" 23:59:59 \u5348\u5F8C",
     L"2003/11/05 23:59:59"},
    {"twelve hours, a zero, no words, points",
     With(kUnitedStates,
          {{kLocaleLeadingZero, L"1"}, {kLocaleMorning, L""}, {kLocaleAfternoon, L""}, {kLocaleTimeSeparator, L"."}}),
     L"Wednesday, November 5, 2003", L" 09.05.07", L" 12.00.00", L" 11.59.59", L"11/5/2003 11:59:59 "},
    {"no separator", With(kUnitedStates, {{kLocaleTimeSeparator, L""}}), L"Wednesday, November 5, 2003", L"", L"", L"",
     L"11/5/2003 11:59:59 PM"},
    {"nothing of the kind of clock", With(kUnitedStates, {{kLocaleClock24, L""}}), L"Wednesday, November 5, 2003", L"",
     L"", L"", L"11/5/2003 11:59:59 PM"},
    {"nothing of zeros", With(kUnitedStates, {{kLocaleLeadingZero, L""}}), L"Wednesday, November 5, 2003", L"", L"",
     L"", L"11/5/2003 11:59:59 PM"},
    {"no long date", With(kUnitedStates, {{kLocaleLongDate, L""}}), L"11/5/2003", L" 9:05:07 AM", L" 12:00:00 PM",
     L" 11:59:59 PM", L"11/5/2003 11:59:59 PM"},
};

TEST(RegionalFormats, MomentsOfADayInTheSettingsOfManyLocales) {
  const Date day = DateFromParts(2003, 11, 5);
  for (const auto& locale : kLocales) {
    SCOPED_TRACE(locale.name);
    LocalFacts system;
    for (const auto& [setting, text] : locale.settings) system.Locale[setting] = text;
    const auto at = [&](int hour, int minute, int second) {
      return FormatLongDateTime(AddSeconds(day, hour * 3600 + minute * 60 + second), system);
    };
    EXPECT_EQ(at(0, 0, 0), locale.midnight);
    EXPECT_EQ(at(9, 5, 7), locale.midnight + locale.morning);
    EXPECT_EQ(at(12, 0, 0), locale.midnight + locale.noon);
    EXPECT_EQ(at(23, 59, 59), locale.midnight + locale.late);
    EXPECT_EQ(DefaultDateText(AddSeconds(day, 86399), system), locale.defaultLate);
  }
}

TEST(RegionalFormats, DatesFarFromToday) {
  const LocalFacts system;
  EXPECT_EQ(FormatLongDateTime(DateFromParts(1979, 12, 31), system), L"Monday, December 31, 1979");
  EXPECT_EQ(FormatLongDateTime(DateFromParts(1899, 12, 29) - 0.25, system), L"Friday, December 29, 1899 6:00:00 AM");
  EXPECT_EQ(FormatLongDateTime(DateFromParts(9999, 12, 31) + 0.5, system), L"Friday, December 31, 9999 12:00:00 PM");
}

}  // namespace
}  // namespace burrowmark
