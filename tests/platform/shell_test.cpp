// The shell and the boxes of the local machine.
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

class ShellTest : public LocalTest {
 protected:
  static TrayIcon Icon(std::uint32_t flags, const std::wstring& tip) { return {5, 1, flags, 512, 77, tip}; }
  static constexpr std::uint32_t kAll = kTrayHasMessage | kTrayHasIcon | kTrayHasTip;

  LocalShell& shell_ = machine_.shell;
};

TEST_F(ShellTest, LaunchesAreKeptAlsoThoseThatFail) {
  EXPECT_GT(shell_.ShellExecuteA(L"open", L"C:\\a.exe", L"/e", L"0", kShowNormal), kLastShellError);
  machine_.uiFaults.FailCall(1);
  EXPECT_LE(shell_.ShellExecuteA(L"find", L"C:\\", L"", L"0", kShowNormal), kLastShellError);
  shell_.LaunchResult = 5;
  EXPECT_EQ(shell_.ShellExecuteA(L"open", L"C:\\b", L"", L"", kShowNormal), 5);
  ASSERT_EQ(shell_.Launches.size(), 3U);
  EXPECT_EQ(shell_.Launches[0].file, L"C:\\a.exe");
  EXPECT_EQ(shell_.Launches[0].parameters, L"/e");
  EXPECT_EQ(shell_.Launches[0].directory, L"0");
  EXPECT_EQ(shell_.Launches[1].verb, L"find");
  EXPECT_EQ(shell_.Launches[2].result, 5);
}

TEST_F(ShellTest, ALinkIsOneCallThatCanFail) {
  const ShellLink link{L"C:\\Windows", L"", kShowNormal};
  ASSERT_TRUE(shell_.WriteShellLink(L"C:\\a.lnk", link));
  machine_.uiFaults.FailFrom(1);
  machine_.faults.FailFrom(1);
  ShellLink read;
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\b.lnk", link));
  EXPECT_FALSE(shell_.ReadShellLink(L"C:\\a.lnk", read));
  const std::vector<std::string> expected = {"WriteShellLink C:\\b.lnk", "ReadShellLink C:\\a.lnk"};
  EXPECT_EQ(machine_.uiFaults.Record(), expected);
  machine_.uiFaults.Clear();
  EXPECT_TRUE(shell_.ReadShellLink(L"C:\\a.lnk", read));
  EXPECT_EQ(machine_.faults.Calls(), 0U) << "its file isn't read by calls of the program's";
  machine_.faults.Clear();
  EXPECT_FALSE(machine_.files.FileExists(L"C:\\b.lnk"));
}

TEST_F(ShellTest, ALinkIsReadWithoutALookAtItsTarget) {
  ASSERT_TRUE(machine_.drives.Add(L'D'));
  ASSERT_TRUE(shell_.WriteShellLink(L"C:\\a.lnk", {L"D:\\Folder", L"", kShowNormal}));
  const std::size_t before = machine_.drives.MediumTouches(L'D');
  ShellLink read;
  EXPECT_TRUE(shell_.ReadShellLink(L"C:\\a.lnk", read));
  EXPECT_EQ(read.target, L"D:\\Folder");
  EXPECT_EQ(machine_.drives.MediumTouches(L'D'), before);
}

TEST_F(ShellTest, TheDiskHoldsForLinksToo) {
  const ShellLink link{L"C:\\Windows", L"", kShowNormal};
  ASSERT_TRUE(shell_.WriteShellLink(L"C:\\a.lnk", link) && shell_.WriteShellLink(L"C:\\b.lnk", link));
  ASSERT_TRUE(machine_.files.SetFileAttributesA(L"C:\\a.lnk", kFileReadOnly));
  machine_.faults.HeldOpen.insert(L"C:\\B.LNK");
  machine_.faults.FoldersWithoutNewFiles.insert(L"C:\\");
  ShellLink read;
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\a.lnk", link));
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\b.lnk", link));
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\c.lnk", link));
  EXPECT_TRUE(shell_.ReadShellLink(L"C:\\a.lnk", read));
  EXPECT_FALSE(shell_.ReadShellLink(L"C:\\b.lnk", read));
  machine_.faults.HeldOpen.clear();
  EXPECT_TRUE(shell_.WriteShellLink(L"C:\\b.lnk", link)) << "writing into a file makes none";
  machine_.faults.DiskRoom = 10;
  EXPECT_FALSE(shell_.WriteShellLink(L"C:\\b.lnk", link));
}

TEST_F(ShellTest, TheTrayHoldsAnIconUntilItIsDeleted) {
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayModify, Icon(kAll, L"Tip")));
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayDelete, Icon(0, L"")));
  ASSERT_TRUE(shell_.Shell_NotifyIconA(kTrayAdd, Icon(kAll, std::wstring(70, L'x'))));
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayAdd, Icon(kAll, L"Again")));
  ASSERT_NE(shell_.Tray(), nullptr);
  EXPECT_EQ(shell_.Tray()->tip, std::wstring(63, L'x'));
  EXPECT_EQ(shell_.Tray()->icon, 77);
  EXPECT_TRUE(shell_.Shell_NotifyIconA(kTrayModify, Icon(kTrayHasIcon, L"Not meant")));
  EXPECT_EQ(shell_.Tray()->tip, std::wstring(63, L'x'));
  EXPECT_TRUE(shell_.Shell_NotifyIconA(kTrayModify, Icon(kTrayHasTip, L"Tip")));
  EXPECT_EQ(shell_.Tray()->tip, L"Tip");
  EXPECT_TRUE(shell_.Shell_NotifyIconA(kTrayDelete, Icon(0, L"")));
  EXPECT_EQ(shell_.Tray(), nullptr);
}

TEST_F(ShellTest, WithoutATaskBarThereIsNoTray) {
  shell_.HasTaskBar = false;
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayAdd, Icon(kAll, L"Tip")));
  machine_.user.StartTaskBar();
  machine_.uiFaults.FailCall(1);
  EXPECT_FALSE(shell_.Shell_NotifyIconA(kTrayAdd, Icon(kAll, L"Tip")));
  EXPECT_TRUE(shell_.Shell_NotifyIconA(kTrayAdd, Icon(kAll, L"Tip")));
  machine_.user.LoseTaskBar();
  EXPECT_EQ(shell_.Tray(), nullptr);
}

TEST_F(ShellTest, HelpAndMediaAnswerWhatTheTestSays) {
  EXPECT_TRUE(shell_.HtmlHelpA(L"C:\\a.chm", 1));
  shell_.HelpOpens = false;
  EXPECT_FALSE(shell_.HtmlHelpA(L"C:\\a.chm", 2));
  ASSERT_EQ(shell_.HelpCalls.size(), 2U);
  EXPECT_EQ(shell_.HelpCalls[1].command, 2);
  EXPECT_EQ(shell_.mciSendStringA(L"close all"), 0);
  shell_.MediaResult = 263;
  EXPECT_EQ(shell_.mciSendStringA(L"set cdr door open"), 263);
  EXPECT_EQ(shell_.MediaCommands, (std::vector<std::wstring>{L"close all", L"set cdr door open"}));
}

class BoxTest : public LocalTest {
 protected:
  std::int32_t Ask(const std::wstring& text, std::uint32_t style = kBoxYesNoCancel | kBoxWarning) {
    return machine_.dialogs.MessageBoxA(5, text, L"Title", style);
  }
};

TEST_F(BoxTest, BoxesAreAnsweredInOrderAndKept) {
  machine_.user.NextBox(L"delete", kAnswerYes);
  machine_.user.NextBox(L"", kAnswerOk);
  EXPECT_EQ(Ask(L"Do you want to delete it?"), kAnswerYes);
  EXPECT_EQ(Ask(L"Gone.", kBoxOk | kBoxCritical), kAnswerOk);
  ASSERT_EQ(machine_.dialogs.Shown.size(), 2U);
  EXPECT_EQ(machine_.dialogs.Shown[0].title, L"Title");
  EXPECT_EQ(machine_.dialogs.Shown[0].style, 51U);
  EXPECT_EQ(machine_.dialogs.Shown[0].owner, 5);
  EXPECT_EQ(machine_.dialogs.Shown[1].text, L"Gone.");
}

TEST_F(BoxTest, TheProgramGoesOnBehindABox) {
  int ran = 0;
  machine_.windows.Post([&ran] { ++ran; });
  machine_.user.NextBox(L"", kAnswerNo, [this, &ran] {
    EXPECT_EQ(ran, 1);
    EXPECT_TRUE(machine_.dialogs.Shown.empty());
    machine_.windows.Post([&ran] { ++ran; });
  });
  EXPECT_EQ(Ask(L"Well?"), kAnswerNo);
  EXPECT_EQ(ran, 2);
}

TEST_F(BoxTest, ABoxThatIsNotAsExpectedThrowsAndIsKept) {
  EXPECT_THROW(Ask(L"Surprise"), std::logic_error);
  EXPECT_NE(machine_.user.TakeComplaints().find("Surprise"), std::string::npos);
  machine_.user.NextBox(L"delete", kAnswerYes);
  EXPECT_THROW(Ask(L"Do you want to keep it?"), std::logic_error);
  EXPECT_NE(machine_.user.TakeComplaints().find("keep it"), std::string::npos);
  machine_.user.NextBox(L"", kAnswerYes);
  EXPECT_THROW(Ask(L"Gone.", kBoxOk), std::logic_error) << "there is no such button";
  EXPECT_NE(machine_.user.TakeComplaints().find("button"), std::string::npos);
  machine_.user.NextBox(L"never shown", kAnswerYes);
  EXPECT_NE(machine_.user.TakeComplaints().find("never shown"), std::string::npos);
}

}  // namespace
}  // namespace burrowmark
