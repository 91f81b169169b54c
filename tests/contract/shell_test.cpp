// What of the shell can be asked without starting or showing anything.
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class ShellContract : public ContractTest {
 protected:
  Shell& shell_ = platform_.shell;
};
INSTANTIATE_TEST_SUITE_P(Systems, ShellContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(ShellContract, AnIconThatIsNotThereIsNeitherChangedNorDeleted) {
  TrayIcon icon;
  icon.id = 1;
  icon.flags = kTrayHasMessage;
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayModify, icon));
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayDelete, icon));
}

#ifdef _WIN32

// The local machine launches whatever it is told, and answers as its test wants it.
class RealShellContract : public ShellContract {};
INSTANTIATE_TEST_SUITE_P(Systems, RealShellContract, ::testing::ValuesIn(std::vector<SystemKind>{Systems().back()}),
                         KindName);

TEST_P(RealShellContract, WhatIsNotThereIsNotLaunched) {
  for (const wchar_t* directory : {L"", L"0", L"Q:\\missing"}) {
    const std::int32_t result = shell_.ShellExecuteA(L"open", In(L"missing.exe"), L"/x", directory, kShowNormal);
    EXPECT_GE(result, 0);
    EXPECT_LE(result, kLastShellError);
  }
}

TEST_P(RealShellContract, ADirectoryThatIsNoFolderDoesNotKeepAProgramFromStarting) {
  const std::wstring program = platform_.system.GetSystemDirectoryA() + L"\\cmd.exe";
  for (const std::wstring& directory : {std::wstring(L"0"), system_->Folder()}) {
    EXPECT_GT(shell_.ShellExecuteA(L"open", program, L"/c exit", directory, 0), kLastShellError);
  }
}

TEST_P(RealShellContract, AMediaCommandThatIsNoneHasAnErrorNumber) { EXPECT_NE(shell_.mciSendStringA(L"nonsense"), 0); }

#endif

}  // namespace
}  // namespace burrowmark
