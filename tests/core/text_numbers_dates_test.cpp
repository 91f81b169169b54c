#include <gtest/gtest.h>

#include "core/dates.h"
#include "core/failure.h"
#include "core/file_names.h"
#include "core/numbers.h"
#include "core/text.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

TEST(Text, UpperCaseFollowsTheSimpleMapping) {
  EXPECT_EQ(UpperCaseText(L"a\xE9\xFF\x44F\x3B1z"), L"A\xC9\x178\x42F\x391Z");
  EXPECT_EQ(UpperCaseText(L"\xDF\xB5\x131\x17F"), L"\xDF\xB5\x131\x17F");  // no capital within their alphabet
  EXPECT_EQ(LowerCaseText(L"A\xC9\x178\x42F\x100"), L"a\xE9\xFF\x44F\x101");
}

TEST(Text, TrimAndSplit) {
  EXPECT_EQ(Trim(L"  a b  "), L"a b");
  EXPECT_EQ(Trim(L"\ta"), L"\ta");
  EXPECT_EQ(Split(L"a||b|", L'|'), (std::vector<std::wstring>{L"a", L"", L"b", L""}));
}

TEST(Text, Utf8ThereAndBack) {
  const std::wstring all = L"a\xE9\x20AC\xFFFD" + FromUtf8("\xF0\x9F\x98\x80");
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(ToUtf8(all), "a\xC3\xA9\xE2\x82\xAC\xEF\xBF\xBD\xF0\x9F\x98\x80");
  // A lone byte, an overlong form, a surrogate and a cut-off character become one mark for each run.
  EXPECT_EQ(FromUtf8("\xC0\xAF"), L"\xFFFD\xFFFD");
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), L"\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(FromUtf8("\xE2\x82"), L"\xFFFD");
}

TEST(Numbers, TextToNumberFailsOnWhatIsNone) {
  EXPECT_EQ(ToInt32(L" -12 "), -12);
  EXPECT_EQ(ToInt32(L"-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ToInt32(L"&hFFFFFFFF"), -1);
  EXPECT_EQ(ToInt32(L"&H10"), 16);
  for (const wchar_t* text : {L"", L" ", L"-", L"1x", L"1.5", L"&h", L"&hG", L"- 1", L"99999999999999999999x"}) {
    EXPECT_THROW(ToInt32(text), ConversionFailure) << ToUtf8(text);
  }
  for (const wchar_t* text : {L"2147483648", L"-2147483649", L"99999999999999999999", L"&h100000000"}) {
    EXPECT_THROW(ToInt32(text), OverflowFailure) << ToUtf8(text);
  }
  EXPECT_THROW(ToInt16(L"32768"), OverflowFailure);
}

TEST(Numbers, PicturesUseTheSignsOfTheLocale) {
  LocalFacts system;
  const std::tuple<double, const wchar_t*, const wchar_t*> cases[] = {
      {0, L"#.0", L".0"},          {12.25, L"#.0", L"12.3"},        {-0.5, L"#.0", L"-.5"},     {-0.04, L"#.0", L".0"},
      {999.95, L"#.0", L"1000.0"}, {1048576, L"#,0", L"1,048,576"}, {0, L"#,0", L"0"},          {0, L"#,#", L""},
      {-1234, L"#,#", L"-1,234"},  {0.5, L"#,#.00", L".50"},        {1.005, L"#,#.00", L"1.01"}};
  for (const auto& [value, picture, text] : cases) EXPECT_EQ(FormatNumber(value, picture, system), text) << value;
  system.Locale[kLocaleDecimal] = L",";
  system.Locale[kLocaleThousand] = L".";
  EXPECT_EQ(FormatNumber(1234.5, L"#,#.00", system), L"1.234,50");
}

TEST(Dates, CalendarAndItsOverflow) {
  EXPECT_EQ(DateFromParts(1899, 12, 30), 0);
  EXPECT_EQ(DateFromParts(2003, 11, 5), 37930);
  EXPECT_EQ(DateFromParts(2003, 14, 1), DateFromParts(2004, 2, 1));
  EXPECT_EQ(DateFromParts(2003, 0, 1), DateFromParts(2002, 12, 1));
  EXPECT_EQ(DateFromParts(29, 1, 1), DateFromParts(2029, 1, 1));
  EXPECT_EQ(DateFromParts(30, 1, 1), DateFromParts(1930, 1, 1));
  EXPECT_EQ(DateFromParts(100, 1, 1), -657434);
  EXPECT_THROW(DateFromParts(10000, 1, 1), OverflowFailure);
  EXPECT_THROW(DateFromParts(100, 1, 0), OverflowFailure);
  for (Date date = -657434; date <= 2958465; date += date < 36525 || date > 73050 ? 997 : 1) {  // a century whole
    const LocalTime parts = SplitDate(date);
    ASSERT_EQ(DateFromParts(parts.year, parts.month, parts.day), date);
  }
  for (const auto& [year, leap] : {std::pair{1900, false}, {2000, true}, {2003, false}, {2004, true}}) {
    EXPECT_EQ(SplitDate(DateFromParts(year, 2, 29)).month, leap ? 2 : 3) << year;
  }
}

TEST(Dates, TheFractionCountsForwardAlsoBeforeDayZero) {
  const Date before = AddSeconds(DateFromParts(1899, 12, 29), 6 * 3600);
  EXPECT_EQ(before, -1.25);
  EXPECT_EQ(SplitDate(before).hour + SplitDate(before).day, 6 + 29);
  EXPECT_EQ(AddSeconds(0, -1), -1 - 86399.0 / 86400);
  EXPECT_THROW(SplitDate(1e300), OverflowFailure);
}

TEST(Dates, PackedFormThereAndBack) {
  for (int second = 0; second < 86400; second += 7) {
    const Date date = AddSeconds(37930, second);
    ASSERT_EQ(UnpackDateText(PackDateText(date)), date) << second;
  }
  EXPECT_EQ(PackDateText(0), L"");
  EXPECT_EQ(PackDateText(0.5), L"30|12|1899|12|0|0|");
  EXPECT_EQ(PackDateText(AddSeconds(37930, 86399)), L"5|11|2003|23|59|59|");
}

TEST(Dates, UnpackingTakesWhatIsWhole) {
  EXPECT_EQ(UnpackDateText(L""), 0);
  EXPECT_EQ(UnpackDateText(L"5|11|2003"), 0);             // the third bar is missing
  EXPECT_EQ(UnpackDateText(L"5|11|2003|"), 37930);        // no time
  EXPECT_EQ(UnpackDateText(L"5||2003|12|0|0|"), 0.5);     // no date
  EXPECT_EQ(UnpackDateText(L"5|11|2003|12||0|"), 37930);  // the time has a gap
  EXPECT_EQ(UnpackDateText(L" 5|11|2003|12|0|0|9|9|"), 37930.5);
  EXPECT_EQ(UnpackDateText(L"5|11|2003|24|0|0|"), 37931);
  EXPECT_THROW(UnpackDateText(L"32768|1|2003|"), OverflowFailure);
  EXPECT_THROW(UnpackDateText(L"31|12|9999|24|0|0|"), OverflowFailure);
}

TEST(Dates, DefaultTextLeavesOutMidnightAndDayZero) {
  LocalFacts system;
  EXPECT_EQ(DefaultDateText(37930.5, system), L"11/5/2003 12:00:00 PM");
  EXPECT_EQ(DefaultDateText(37930, system), L"11/5/2003");
  EXPECT_EQ(DefaultDateText(0.25, system), L"6:00:00 AM");
  EXPECT_EQ(DefaultDateText(0, system), L"12:00:00 AM");
  system.Locale[kLocaleShortDate] = L"dd.MM.yy";
  system.Locale[kLocaleTimeFormat] = L"HH:mm:ss";
  EXPECT_EQ(DefaultDateText(UnpackDateText(L"5|1|2003|4|7|9|"), system), L"05.01.03 04:07:09");
  EXPECT_EQ(FormatDate(37930, L"dddd, d MMMM yyyy 'o''clock' ddd MMM h t", system),
            L"Wednesday, 5 November 2003 o'clock Wed Nov 12 A");
}

TEST(FileNames, PartsOfPaths) {
  EXPECT_EQ(RemoveBadFileChars(L"a\\/:*?\"<>|b"), L"ab");
  EXPECT_EQ(ReplaceBadFileChars(L"a\\:b"), L"a--b");
  // The path; its name, folder, extension and base.
  const std::pair<std::wstring, const wchar_t*> cases[] = {{L"C:\\x\\Y.TXT", L"Y.TXT C:\\x txt c:\\x\\y"},
                                                           {L"C:\\x", L"x C:\\  C:\\x"},
                                                           {L"C:\\", L"C C:\\  C:\\"},
                                                           {L"plain", L"plain plain  plain"},
                                                           {L"C:\\a.b\\c", L"c C:\\a.b b\\c c:\\a"},
                                                           {L"x.", L"x. x.  x"},
                                                           {L"", L"   "}};
  for (const auto& [path, parts] : cases) {
    EXPECT_EQ(
        GetFileName(path) + L" " + GetFolderName(path) + L" " + GetFileExtension(path) + L" " + GetFileBaseName(path),
        parts);
  }
}

}  // namespace
}  // namespace burrowmark
