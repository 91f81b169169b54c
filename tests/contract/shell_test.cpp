// Shortcut files, and what else of the shell can be asked without showing anything.
#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::size_t kShowCommandAt = 0x3C;  // in the documented format

class ShellContract : public ContractTest {
 protected:
  ShellLink Read(const std::wstring& path) {
    ShellLink link{L"(no link)", L"(no link)", 99};
    const bool read = shell_.ReadShellLink(path, link);
    EXPECT_EQ(read, link.target != L"(no link)") << "a failure leaves it as it was";
    return link;
  }

  Shell& shell_ = platform_.shell;
  const std::wstring path_ = In(L"x.lnk");
};

TEST_F(ShellContract, ALinkSaysWhatWasWrittenLast) {
  const std::wstring wide = In(L"\u041F\u0430\u043F\u043A\u0430 \U0001F98A");
  ASSERT_TRUE(files_.CreateFolder(wide) && Make(wide + L"\\file.txt"));
  const ShellLink rows[] = {{L"C:\\Windows\\explorer.exe", std::wstring(200, L'x'), 1},
                            {L"C:\\Windows", L"", 3},
                            {L"C:\\", L"\u00E9 \u0416 \u20AC", 7},
                            {wide, L"a & b = [c] 'd' #e %f", 1},
                            {wide + L"\\file.txt", L"words", 1},
                            {In(L"Missing\\below\\far.txt"), L"words", 1},
                            {L"C:\\No such folder \u0416", L"words", 1},
                            {L"\\\\no-such-server\\share\\a\\b \u00E9.txt", L"words", 1}};
  for (const ShellLink& row : rows) {
    SCOPED_TRACE(ToUtf8(row.target));
    ASSERT_TRUE(shell_.WriteShellLink(path_, row));
    EXPECT_EQ(Content(path_).at(kShowCommandAt), static_cast<char>(row.showCommand));
    const ShellLink link = Read(path_);
    EXPECT_TRUE(EqualIgnoringCase(link.target, row.target)) << ToUtf8(link.target);
    EXPECT_EQ(link.description, row.description);
    EXPECT_EQ(link.showCommand, system_->IsWine() ? 1 : row.showCommand) << "Wine's reader always answers 1";
  }
}

TEST_F(ShellContract, LinksOfOtherSystemsAreRead) {
  const std::pair<const char*, const wchar_t*> rows[] = {{"windows.lnk", L"C:\\Caf\u00E9 \u0416\\far away.txt"},
                                                         {"local.lnk", L"C:\\Caf\u00E9 \u0416\\far away.txt"},
                                                         {"control-panel.lnk", L"(no link)"},
                                                         {"plain.bwmk", L"(no link)"}};
  for (const auto& [name, target] : rows) {
    const std::wstring path = In(FromUtf8(name));
    ASSERT_TRUE(Make(path, Fixture(name)));
    EXPECT_EQ(Read(path).target, target) << name;
  }
  EXPECT_EQ(Read(In(L"missing.lnk")).target, L"(no link)");
}

TEST_F(ShellContract, ALinkIsWrittenOnlyWhereAFileCanBe) {
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")));
  for (const std::wstring& path : {In(L"missing\\x.lnk"), In(L"folder"), In(L"a*b.lnk"), std::wstring(L"x.lnk")}) {
    EXPECT_FALSE(shell_.WriteShellLink(path, {L"C:\\Windows", L"", kShowNormal})) << ToUtf8(path);
  }
  for (const wchar_t* target : {L"", L"Windows"}) EXPECT_FALSE(shell_.WriteShellLink(path_, {target, L"", 1}));
  EXPECT_FALSE(files_.FileExists(path_));
}

TEST_F(ShellContract, AnIconThatIsNotThereIsNeitherChangedNorDeleted) {
  TrayIcon icon;
  icon.id = 1;
  icon.flags = kTrayHasMessage;
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayModify, icon));
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayDelete, icon));
  EXPECT_EQ(shell_.Shell_NotifyIconGetRect(icon.window, icon.id), std::nullopt);
}

#ifdef _WIN32  // the local machine launches whatever it is told, and answers as its test wants it

TEST_F(ShellContract, OnlyWhatIsThereIsLaunchedWhateverTheDirectory) {
  const std::wstring program = platform_.system.GetSystemDirectoryA() + L"\\cmd.exe";
  for (const std::wstring& directory : {std::wstring(L"0"), system_->Folder()}) {
    EXPECT_LE(shell_.ShellExecuteA(L"open", In(L"missing.exe"), L"/x", directory, kShowNormal), kLastShellError);
    EXPECT_GT(shell_.ShellExecuteA(L"open", program, L"/c exit", directory, 0), kLastShellError);
  }
}

TEST_F(ShellContract, AMediaCommandThatIsNoneHasAnErrorNumber) { EXPECT_NE(shell_.mciSendStringA(L"nonsense"), 0); }

#endif

}  // namespace
}  // namespace burrowmark
