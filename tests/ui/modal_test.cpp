// What the person at the local machine is told when windows don't come as expected.
#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"
#include "ui/command_button.h"
#include "ui/form.h"

namespace burrowmark::test {
namespace {

class ModalTest : public ::testing::Test, protected ScratchMachine {
 protected:
  ModalTest() {
    form_.SetCaption(L"Form");
    button_.Click = [this] { form_.Unload(); };
  }

  Form form_{app.platform.windows, L"frmTest", Size{3000, 1500}};
  CommandButton button_{form_, L"cmdClose", Box{150, 150, 1200, 375}, L"&Close"};
};

TEST_F(ModalTest, AWindowThatNobodyExpectedOrThatStaysOpenFails) {
  const struct {
    const wchar_t* expected;
    const char* complaints;
  } cases[] = {{nullptr, "a window that nobody expected: Form\n"},
               {L"Other", "a window that nobody expected: Form\na window that never came: Other\n"},
               {L"Form", "a window that is still open: Form\n"}};
  for (const auto& row : cases) {
    if (row.expected != nullptr) machine.user.NextWindow(row.expected, [](ShownWindow&) {});
    EXPECT_THROW(form_.Show(Modal), std::logic_error);
    EXPECT_EQ(machine.user.TakeComplaints(), row.complaints);
    EXPECT_FALSE(form_.IsModal());
    form_.Unload();
  }
}

TEST_F(ModalTest, AGestureThatCannotBeMadeFails) {
  machine.user.NextWindow(L"Form", [](ShownWindow& window) { window.Click(L"Missing"); });
  EXPECT_THROW(form_.Show(Modal), std::logic_error);
  EXPECT_EQ(machine.user.TakeComplaints(), "in the window Form: there is no button Missing\n");
}

TEST_F(ModalTest, SomebodyAtTheMachineCanMeetAWindowWithoutAScript) {
  machine.windows.Input = [this] {
    machine.user.Window(L"Form").Click(L"Close");
    return true;
  };
  form_.Show(Modal);
  EXPECT_FALSE(form_.Loaded());
}

TEST_F(ModalTest, WindowsStandOneAboveTheOther) {
  Form top(app.platform.windows, L"frmTop", Size{3000, 1500});
  Form second(app.platform.windows, L"frmSecond", Size{3000, 1500});
  top.SetCaption(L"Top");
  second.SetCaption(L"Second");
  top.SetTopMost(true);
  top.Show();
  form_.Show();
  second.Show();
  const auto order = [this] {
    std::wstring captions;
    for (const auto& window : machine.windows.Desktop.Visible()) captions += window->caption + L' ';
    return captions;
  };
  EXPECT_EQ(order(), L"Top Second Form ");
  form_.BringToFront();
  EXPECT_EQ(order(), L"Top Form Second ");
  second.Show(Modeless, form_);
  second.SetOwner(form_);
  form_.BringToFront();
  EXPECT_EQ(order(), L"Top Second Form ") << "what a window owns stays above it";
}

}  // namespace
}  // namespace burrowmark::test
