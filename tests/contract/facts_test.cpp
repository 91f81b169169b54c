// What the machine says about itself.
#include <chrono>
#include <set>

#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class FactsContract : public ContractTest {
 protected:
  SystemFacts& facts_ = platform_.system;
};

TEST_F(FactsContract, TheVersionIsOneThatTheProgramRunsOn) {
  SystemVersion version;
  ASSERT_TRUE(facts_.GetVersionExA(version));
  EXPECT_EQ(version.platform, kPlatformNT);
  EXPECT_GE(version.major, 6U) << "a program without a manifest must not be told an older one";
  EXPECT_GT(version.build, 0U);
}

TEST_F(FactsContract, FoldersAndTheProgramsOwnExistWithoutAClosingBackslash) {
  const std::wstring module = facts_.GetModuleFileNameA();
  EXPECT_TRUE(module.ends_with(L".exe")) << ToUtf8(module);
  for (const std::wstring& folder : {facts_.GetWindowsDirectoryA(), facts_.GetSystemDirectoryA(), facts_.GetTempPathA(),
                                     module.substr(0, module.rfind(L'\\'))}) {
    EXPECT_TRUE(files_.FolderExists(folder)) << ToUtf8(folder);
    EXPECT_FALSE(folder.ends_with(L'\\')) << ToUtf8(folder);
  }
  EXPECT_TRUE(files_.FileExists(facts_.GetWindowsDirectoryA() + L"\\explorer.exe"));
}

TEST_F(FactsContract, SettingsOfTheLocaleArePresent) {
  for (const std::int32_t setting : {kLocaleDecimal, kLocaleTimeSeparator, kLocaleShortDate, kLocaleLongDate,
                                     kLocaleClock24, kLocaleLeadingZero, kLocaleTimeFormat}) {
    EXPECT_NE(facts_.GetLocaleInfoA(setting), L"") << setting;
  }
  for (const auto& [first, count] : {std::pair{kLocaleDayName1, 7},
                                     {kLocaleShortDayName1, 7},
                                     {kLocaleMonthName1, 12},
                                     {kLocaleShortMonthName1, 12}}) {
    std::set<std::wstring> names = {L""};
    for (std::int32_t i = 0; i < count; ++i) names.insert(facts_.GetLocaleInfoA(first + i));
    EXPECT_EQ(names.size(), static_cast<std::size_t>(count) + 1) << first << ": each has a name of its own";
  }
}

TEST_F(FactsContract, TextOfTheAnsiPageGoesThereAndBackAndAnyOtherBecomesQuestionMarks) {
  if (!system_->HasPage1252()) GTEST_SKIP() << "the system's ANSI code page is another one than 1252";
  std::string allBytes;
  for (int byte = 0; byte < 256; ++byte) allBytes += static_cast<char>(byte);
  EXPECT_EQ(facts_.FromAnsi(allBytes).substr(0x7F, 4), L"\x7F\u20AC\x81\u201A");
  // Letters that look alike don't stand in for each other: the file would hold another name than the one given.
  const std::pair<std::wstring, std::string> rows[] = {{facts_.FromAnsi(allBytes), allBytes},
                                                       {L"", ""},
                                                       {L"what?", "what?"},
                                                       {L"a\u0416b", "a?b"},
                                                       {L"\u0101\uFF21\u2260\u2153", "????"}};
  for (const auto& [text, expected] : rows) {
    std::string bytes = "from before";
    EXPECT_EQ(facts_.ToAnsi(text, bytes), facts_.FromAnsi(expected) == text) << expected;
    EXPECT_EQ(bytes, expected);
  }
}

TEST_F(FactsContract, TheClockShowsTodayWithinATimeZone) {
  using namespace std::chrono;
  const LocalTime now = platform_.clock.GetLocalTime();
  const auto wall =
      sys_days(year(now.year) / now.month / now.day) + hours(now.hour) + minutes(now.minute) + seconds(now.second);
  EXPECT_LT(abs(wall - system_clock::now()), hours(15)) << "no zone is further from the universal time";
}

}  // namespace
}  // namespace burrowmark
