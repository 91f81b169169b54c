// The progress window.
#include "core/progress.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/key_codes.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark::test {
namespace {

class ProgressTest : public ::testing::Test, protected ScratchMachine {
 protected:
  ProgressTest() { owner_.SetCaption(L"Owner"); }

  LocalDesktop& desktop_ = machine.windows.Desktop;
  Form owner_{app.platform.windows, L"frmOwner", Size{9000, 6000}};
};

TEST_F(ProgressTest, ShowsTitleTextAndFilmInFrontOfItsOwner) {
  machine.AddFile(L"C:\\Program Files\\Burrowmark\\filecopy.avi");
  owner_.Show();
  work->ShowProgress(owner_, L"Saving Changes...", L"Saving Organized Folders on the Desktop...");
  const ShownWindow& window = machine.user.Window(L"Saving Changes...");
  EXPECT_EQ(window.LabelTexts(), L"Saving Organized Folders on the Desktop...\n");
  EXPECT_EQ(window.owner, owner_.Window());
  EXPECT_TRUE(machine.user.Window(L"Owner").enabled) << "the user can go on";
  const ShownControl* film = window.Find(L"C:\\Program Files\\Burrowmark\\filecopy.avi");
  ASSERT_NE(film, nullptr);
  EXPECT_TRUE(film->playing);
  const Rect around = machine.user.Window(L"Owner").place;
  EXPECT_NEAR(window.place.left + window.place.right, around.left + around.right, 1);
}

TEST_F(ProgressTest, StaysAboveOthersWithTheEditorAndLooksAnewEachTime) {
  work.reset();
  for (const bool onTop : {true, false}) {
    app.AlwaysOnTop = onTop;
    work->ShowProgress(owner_, L"Title", L"Text");
    EXPECT_EQ(machine.user.Window(L"Title").topMost, onTop);
    work.reset();
    EXPECT_TRUE(desktop_.Visible().empty());
  }
}

TEST_F(ProgressTest, OneWindowTakesOnWhatIsSaidNext) {
  work->SetProgressText(L"A text alone shows no window");
  EXPECT_TRUE(desktop_.Visible().empty());
  work->ShowProgress(owner_, L"One", L"First");
  work->ShowProgress(owner_, L"Two", L"Second");
  work->SetProgressText(L"Ampersands && \"R&D\"");
  EXPECT_EQ(desktop_.Visible().size(), 1U);
  const ShownWindow& window = machine.user.Window(L"Two");
  EXPECT_EQ(window.LabelTexts(), L"Ampersands && \"R&D\"\n");
  EXPECT_FALSE(window.controls[1]->useMnemonic) << "names of folders are shown as they are";
}

TEST_F(ProgressTest, OnceTheUserClosedItLaterTextsDontBringItBack) {
  for (const bool byKey : {true, false}) {
    work->ShowProgress(owner_, L"Title", L"Text");
    byKey ? machine.user.Window(L"Title").Press(kKeyCodeEscape) : machine.user.Window(L"Title").Click(L"Close");
    work->SetProgressText(L"The work goes on");
    EXPECT_TRUE(desktop_.Visible().empty());
    work.reset();
  }
}

TEST_F(ProgressTest, EachCallLetsMessagesRun) {
  int ran = 0;
  const std::function<void()> calls[] = {[&] { work->ShowProgress(owner_, L"Title", L"Text"); },
                                         [&] { work->SetProgressText(L"Text"); }, [&] { work.reset(); }};
  for (const auto& call : calls) {
    app.platform.windows.Post([&ran] { ++ran; });
    call();
    EXPECT_EQ(ran, &call - calls + 1);
  }
}

}  // namespace
}  // namespace burrowmark::test
