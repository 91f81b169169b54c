// What the machine says about itself.
#include <chrono>

#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class FactsContract : public ContractTest {
 protected:
  SystemFacts& facts_ = platform_.system;
};
INSTANTIATE_TEST_SUITE_P(Systems, FactsContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(FactsContract, TheVersionIsOneThatTheProgramRunsOn) {
  SystemVersion version;
  ASSERT_TRUE(facts_.GetVersionExA(version));
  EXPECT_EQ(version.platform, kPlatformNT);
  EXPECT_GE(version.major, 6U) << "a program without a manifest must not be told an older one";
  EXPECT_GT(version.build, 0U);
}

TEST_P(FactsContract, FoldersExistAndHaveNoClosingBackslash) {
  for (const std::wstring& folder : {facts_.GetWindowsDirectoryA(), facts_.GetSystemDirectoryA()}) {
    SCOPED_TRACE(ToUtf8(folder));
    EXPECT_TRUE(files_.FolderExists(folder));
    EXPECT_FALSE(folder.ends_with(L'\\'));
    EXPECT_EQ(folder.find(L'\0'), std::wstring::npos);
  }
  EXPECT_TRUE(files_.FileExists(facts_.GetWindowsDirectoryA() + L"\\explorer.exe"));
}

TEST_P(FactsContract, TheProgramKnowsItsFolder) {
  const std::wstring module = facts_.GetModuleFileNameA();
  EXPECT_TRUE(module.ends_with(L".exe")) << ToUtf8(module);
  EXPECT_TRUE(files_.FolderExists(module.substr(0, module.rfind(L'\\')))) << ToUtf8(module);
}

TEST_P(FactsContract, SettingsOfTheLocaleArePresent) {
  for (const std::int32_t setting : {kLocaleDecimal, kLocaleTimeSeparator, kLocaleShortDate, kLocaleLongDate,
                                     kLocaleClock24, kLocaleLeadingZero, kLocaleTimeFormat}) {
    EXPECT_NE(facts_.GetLocaleInfoA(setting), L"") << setting;
  }
  const struct {
    std::int32_t first;
    std::int32_t count;
  } names[] = {{kLocaleDayName1, 7}, {kLocaleShortDayName1, 7}, {kLocaleMonthName1, 12}, {kLocaleShortMonthName1, 12}};
  for (const auto& row : names) {
    for (std::int32_t i = 1; i < row.count; ++i) {
      EXPECT_NE(facts_.GetLocaleInfoA(row.first + i), L"") << row.first + i;
      EXPECT_NE(facts_.GetLocaleInfoA(row.first + i), facts_.GetLocaleInfoA(row.first)) << row.first + i;
    }
  }
  const std::wstring date = facts_.GetLocaleInfoA(kLocaleShortDate);
  for (const wchar_t part : {L'd', L'M', L'y'}) EXPECT_NE(date.find(part), std::wstring::npos) << ToUtf8(date);
  EXPECT_EQ(facts_.GetLocaleInfoA(0x7FFF), L"");
}

TEST_P(FactsContract, EveryByteOfTheAnsiPageSurvivesTheWayToTextAndBack) {
  if (!system_->HasPage1252()) GTEST_SKIP() << "the system's ANSI code page is another one than 1252";
  std::string allBytes;
  for (int byte = 0; byte < 256; ++byte) allBytes += static_cast<char>(byte);
  const std::wstring text = facts_.FromAnsi(allBytes);
  ASSERT_EQ(text.size(), allBytes.size());
  EXPECT_EQ(text[0x80], L'\u20AC');
  EXPECT_EQ(text[0x81], static_cast<wchar_t>(0x81));
  EXPECT_EQ(text[0x9F], L'\u0178');
  EXPECT_EQ(text[0xE9], L'\u00E9');
  std::string back;
  EXPECT_TRUE(facts_.ToAnsi(text, back));
  EXPECT_EQ(back, allBytes);
}

TEST_P(FactsContract, CharactersOutsideTheAnsiPageBecomeQuestionMarks) {
  if (!system_->HasPage1252()) GTEST_SKIP() << "the system's ANSI code page is another one than 1252";
  std::string bytes = "from before";
  EXPECT_TRUE(facts_.ToAnsi(L"", bytes));
  EXPECT_EQ(bytes, "");
  EXPECT_FALSE(facts_.ToAnsi(L"a\u0416b", bytes));
  EXPECT_EQ(bytes, "a?b");
  // Letters that look alike don't stand in for each other: the file would hold another name than the one given.
  EXPECT_FALSE(facts_.ToAnsi(L"\u0101\uFF21\u2260\u2153", bytes));
  EXPECT_EQ(bytes, "????");
  EXPECT_TRUE(facts_.ToAnsi(L"what?", bytes)) << "a question mark of the text's own is no misfit";
  EXPECT_EQ(facts_.FromAnsi(""), L"");
}

TEST_P(FactsContract, TheClockShowsTodayWithinATimeZone) {
  const LocalTime now = platform_.clock.GetLocalTime();
  const std::chrono::year_month_day shown{std::chrono::year(now.year),
                                          std::chrono::month(static_cast<unsigned>(now.month)),
                                          std::chrono::day(static_cast<unsigned>(now.day))};
  ASSERT_TRUE(shown.ok());
  const auto wall = std::chrono::sys_days(shown) + std::chrono::hours(now.hour) + std::chrono::minutes(now.minute) +
                    std::chrono::seconds(now.second);
  const auto off = std::chrono::abs(wall - std::chrono::system_clock::now());
  EXPECT_LT(off, std::chrono::hours(15)) << "no zone is further from the universal time";
}

}  // namespace
}  // namespace burrowmark
