// The shell and the boxes of the local machine.
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

class ShellTest : public LocalTest {
 protected:
  static TrayIcon Icon(std::uint32_t flags, const std::wstring& tip) { return {5, 1, flags, 512, 77, tip}; }
  std::int32_t Ask(const std::wstring& text, std::uint32_t style = kBoxYesNoCancel | kBoxWarning) {
    return machine_.dialogs.MessageBoxA(5, text, L"Title", style);
  }

  LocalShell& shell_ = machine_.shell;
};

TEST_F(ShellTest, ALinkIsOneCallThatFailsAsADiskDoesAndTouchesNoTarget) {
  const ShellLink link{L"D:\\Folder", L"", kShowNormal};
  ShellLink read;
  ASSERT_TRUE(machine_.drives.Add(L'D') && shell_.WriteShellLink(L"C:\\a.lnk", link));
  const std::size_t before = machine_.drives.MediumTouches(L'D');
  EXPECT_TRUE(shell_.ReadShellLink(L"C:\\a.lnk", read));
  EXPECT_EQ(machine_.drives.MediumTouches(L'D'), before);
  machine_.uiFaults.FailFrom(1);
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\b.lnk", link));
  EXPECT_FALSE(shell_.ReadShellLink(L"C:\\a.lnk", read));
  EXPECT_EQ(machine_.uiFaults.Record(),
            std::vector<std::string>({"WriteShellLink C:\\b.lnk", "ReadShellLink C:\\a.lnk"}));
  EXPECT_EQ(machine_.faults.Calls(), 0U) << "its file isn't read by calls of the program's";
  machine_.uiFaults.Clear();
  machine_.faults.FoldersWithoutNewFiles.insert(L"C:\\");
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\c.lnk", link));
  EXPECT_TRUE(shell_.WriteShellLink(L"C:\\a.lnk", link)) << "writing into a file makes none";
  machine_.faults.HeldOpen.insert(L"C:\\A.LNK");
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\a.lnk", link));
}

TEST_F(ShellTest, TheTrayHoldsAnIconUntilItIsDeleted) {
  constexpr std::uint32_t kAll = kTrayHasMessage | kTrayHasIcon | kTrayHasTip;
  ASSERT_TRUE(shell_.Shell_NotifyIconA(kTrayAdd, Icon(kAll, std::wstring(70, L'x'))));
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayAdd, Icon(kAll, L"Again")));
  EXPECT_EQ(shell_.Tray()->tip, std::wstring(63, L'x'));
  EXPECT_TRUE(shell_.Shell_NotifyIconA(kTrayModify, Icon(kTrayHasIcon, L"Not meant")));
  EXPECT_EQ(shell_.Tray()->tip, std::wstring(63, L'x'));
  EXPECT_TRUE(shell_.Shell_NotifyIconA(kTrayDelete, Icon(0, L"")));
  EXPECT_EQ(shell_.Tray(), nullptr);
}

TEST_F(ShellTest, BoxesAreAnsweredInOrderWhileTheProgramGoesOn) {
  int ran = 0;
  machine_.windows.Post([&ran] { ++ran; });
  machine_.user.NextBox(L"delete", kAnswerYes, [&ran] { EXPECT_EQ(ran, 1); });
  machine_.user.NextBox(L"", kAnswerOk);
  EXPECT_EQ(Ask(L"Do you want to delete it?"), kAnswerYes);
  EXPECT_EQ(Ask(L"Gone.", kBoxOk | kBoxCritical), kAnswerOk);
  ASSERT_EQ(machine_.dialogs.Shown.size(), 2U);
  EXPECT_EQ(machine_.dialogs.Shown[0].style, 51U);
  EXPECT_EQ(machine_.dialogs.Shown[1].text, L"Gone.");
}

TEST_F(ShellTest, ABoxThatIsNotAsExpectedThrowsAndIsKept) {
  const auto complaint = [this](const char* part) {
    const bool found = machine_.user.Complaints().find(part) != std::string::npos;
    machine_.user.TakeComplaints();
    return found;
  };
  EXPECT_THROW(Ask(L"Surprise"), std::logic_error);
  EXPECT_TRUE(complaint("Surprise"));
  machine_.user.NextBox(L"delete", kAnswerYes);
  EXPECT_THROW(Ask(L"Do you want to keep it?"), std::logic_error);
  EXPECT_TRUE(complaint("keep it"));
  machine_.user.NextBox(L"", kAnswerYes);
  EXPECT_THROW(Ask(L"Gone.", kBoxOk), std::logic_error);
  EXPECT_TRUE(complaint("button"));
  machine_.user.NextBox(L"never shown", kAnswerYes);
  EXPECT_TRUE(complaint("never shown"));
}

}  // namespace
}  // namespace burrowmark
