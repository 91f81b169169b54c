// The progress window.
#include "core/progress.h"

#include <gtest/gtest.h>

#include "platform/key_codes.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark::test {
namespace {

class ProgressTest : public ::testing::Test, protected ScratchMachine {
 protected:
  ProgressTest() { owner_.Show(); }

  class Owner final : public ProgramForm {
   public:
    explicit Owner(Application& app) : ProgramForm(app, ProgramWindow::kOrganize, L"frmOwner", Size{9000, 6000}) {
      SetCaption(L"Owner");
    }
  };

  LocalDesktop& desktop_ = machine.windows.Desktop;
  Owner owner_{app};
};

TEST_F(ProgressTest, WorkKeepsTheWindowBehindItFromTheUserAndGivesItBack) {
  machine.AddFile(L"C:\\Program Files\\Burrowmark\\filecopy.avi");
  app.AlwaysOnTop = true;
  {
    Work work(app);
    work.SetProgressText(L"A text alone shows no window");
    EXPECT_EQ(desktop_.Visible().size(), 1U);
    work.ShowProgress(owner_, L"One", L"First");
    work.ShowProgress(owner_, L"Two", L"Second");
    work.SetProgressText(L"Ampersands && \"R&D\"");
    EXPECT_EQ(desktop_.Visible().size(), 2U);
    const ShownWindow& window = machine.user.Window(L"Two");
    EXPECT_EQ(window.LabelTexts(), L"Ampersands && \"R&D\"\n");
    EXPECT_FALSE(window.controls[1]->useMnemonic) << "names of folders are shown as they are";
    EXPECT_EQ(window.owner, owner_.Window());
    EXPECT_TRUE(window.topMost);
    EXPECT_TRUE(window.Find(L"C:\\Program Files\\Burrowmark\\filecopy.avi")->playing);
    EXPECT_FALSE(machine.user.Window(L"Owner").enabled);
  }
  EXPECT_EQ(desktop_.Visible().size(), 1U);
  EXPECT_TRUE(machine.user.Window(L"Owner").enabled);
}

TEST_F(ProgressTest, OnceTheUserClosedItLaterTextsDontBringItBack) {
  for (const bool byKey : {true, false}) {
    Work work(app);
    work.ShowProgress(owner_, L"Title", L"Text");
    byKey ? machine.user.Window(L"Title").Press(kKeyCodeEscape) : machine.user.Window(L"Title").Click(L"Close");
    work.SetProgressText(L"The work goes on");
    EXPECT_EQ(desktop_.Visible().size(), 1U);
  }
}

}  // namespace
}  // namespace burrowmark::test
