// Long dates and times in the settings of locales as the system ships them.
#include <gtest/gtest.h>

#include "core/regional_formats.h"
#include "core/text.h"
#include "platform/local/local_facts.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kSettings[] = {kLocaleLongDate, kLocaleTimeSeparator, kLocaleClock24,   kLocaleLeadingZero,
                                      kLocaleMorning,  kLocaleAfternoon,     kLocaleShortDate, kLocaleTimeFormat};

// The settings in this order, and what is made of 5 November 2003: its long date, what stands behind that at 9:05:07,
// noon and 23:59:59, and the default text of the last.
constexpr std::pair<const wchar_t*, const wchar_t*> kLocales[] = {
    {L"dddd, MMMM d, yyyy|:|0|0|AM|PM|M/d/yyyy|h:mm:ss tt",  // United States
     L"Wednesday, November 5, 2003| 9:05:07 AM| 12:00:00 PM| 11:59:59 PM|11/5/2003 11:59:59 PM"},
    {L"dd MMMM yyyy|:|1|1|AM|PM|dd/MM/yyyy|HH:mm:ss",  // British
     L"05 November 2003| 09:05:07 AM| 12:00:00 PM| 23:59:59 PM|05/11/2003 23:59:59"},
    {L"dddd, d. MMMM yyyy|:|1|1|||dd.MM.yyyy|HH:mm:ss",  // German, with English names of days
     L"Wednesday, 5. November 2003| 09:05:07| 12:00:00| 23:59:59|05.11.2003 23:59:59"},
    {L"d. MMMM yyyy|.|1|0|||d.M.yyyy|H.mm.ss",  // Serbian in Latin letters, likewise
     L"5. November 2003| 9.05.07| 12.00.00| 23.59.59|5.11.2003 23.59.59"},
    {L"yyyy'\u5E74'M'\u6708'd'\u65E5'|:|1|0|\u5348\u524D|\u5348\u5F8C|yyyy/MM/dd|H:mm:ss",  // Japanese
     L"2003\u5E7411\u67085\u65E5| 9:05:07 \u5348\u524D| 12:00:00 \u5348\u5F8C| 23:59:59 \u5348\u5F8C|"
     L"2003/11/05 23:59:59"},
    {L"d MMM yy|:|0|1|||d/M/yy|hh:mm:ss", L"5 Nov 03| 09:05:07| 12:00:00| 11:59:59|5/11/03 11:59:59"},
    // One setting is missing.
    {L"|:|0|0|AM|PM|M/d/yyyy|h:mm tt", L"11/5/2003| 9:05 AM| 12:00 PM| 11:59 PM|11/5/2003 11:59 PM"},
    {L"d MMM||0|0|AM|PM|M/d|h:mm", L"5 Nov||||11/5 11:59"},
    {L"d MMM|:||0|AM|PM|M/d|h:mm", L"5 Nov||||11/5 11:59"},
    {L"d MMM|:|0||AM|PM|M/d|h:mm", L"5 Nov||||11/5 11:59"},
};

TEST(RegionalFormats, MomentsOfADayInTheSettingsOfManyLocales) {
  const Date day = DateFromParts(2003, 11, 5);
  for (const auto& [settings, texts] : kLocales) {
    SCOPED_TRACE(ToUtf8(settings));
    LocalFacts system;
    const std::vector<std::wstring> values = Split(settings, L'|');
    for (std::size_t i = 0; i < std::size(kSettings); ++i) system.Locale[kSettings[i]] = values.at(i);
    const std::vector<std::wstring> expected = Split(texts, L'|');
    EXPECT_EQ(FormatLongDateTime(day, system), expected[0]);
    EXPECT_EQ(FormatLongDateTime(AddSeconds(day, 9 * 3600 + 5 * 60 + 7), system), expected[0] + expected[1]);
    EXPECT_EQ(FormatLongDateTime(day + 0.5, system), expected[0] + expected[2]);
    EXPECT_EQ(FormatLongDateTime(AddSeconds(day, 86399), system), expected[0] + expected[3]);
    EXPECT_EQ(DefaultDateText(AddSeconds(day, 86399), system), expected[4]);
  }
}

TEST(RegionalFormats, DatesFarFromToday) {
  const LocalFacts system;
  EXPECT_EQ(FormatLongDateTime(DateFromParts(1979, 12, 31), system), L"Monday, December 31, 1979");
  EXPECT_EQ(FormatLongDateTime(-1.25, system), L"Friday, December 29, 1899 6:00:00 AM");
  EXPECT_EQ(FormatLongDateTime(DateFromParts(9999, 12, 31) + 0.5, system), L"Friday, December 31, 9999 12:00:00 PM");
}

}  // namespace
}  // namespace burrowmark
