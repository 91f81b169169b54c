// What other tests believe of the local machine without seeing it themselves: that it fails what wasn't expected,
// counts what it is asked for, and lasts.
#include "platform/local/machine.h"

#include <gtest/gtest.h>

#include "core/registry.h"
#include "tests/support/scratch_machine.h"
#include "ui/command_button.h"
#include "ui/common_dialog.h"
#include "ui/form.h"
#include "ui/menu.h"

namespace burrowmark::test {
namespace {

using namespace std::string_literals;

constexpr MenuRow kMenus[] = {{0, L"mnuEdit", L"&Edit"},
                              {1, L"mnuCut", L"Cu&t"},
                              {1, L"mnuCopy", L"&Copy"},
                              {1, L"mnuMore", L"&More"},
                              {2, L"mnuPaste", L"&Paste"}};

class LocalMachineTest : public ::testing::Test, protected ScratchMachine {
 protected:
  LocalMachineTest() {
    form_.SetCaption(L"Form");
    menus_[L"mnuCut"].SetEnabled(false);
    menus_[L"mnuCopy"].SetVisible(false);
  }
  // What the machine says of something that must have thrown.
  std::string Complaint(const std::function<void()>& act) {
    EXPECT_THROW(act(), std::logic_error);
    return machine.user.TakeComplaints();
  }
  void Ask(const std::wstring& text, std::uint32_t style = kBoxYesNoCancel) {
    machine.dialogs.MessageBoxA(0, text, L"Title", style);
  }

  Form form_{app.platform.windows, L"frmTest", Size{3000, 1500}};
  CommandButton button_{form_, L"cmdGo", Box{150, 150, 1200, 375}, L"&Go"};
  FormMenus menus_{form_, kMenus};
  LocalUser& user_ = machine.user;
};

TEST_F(LocalMachineTest, ABoxThatIsNotAsExpectedFails) {
  EXPECT_EQ(Complaint([this] { Ask(L"Surprise"); }), "a box that nobody expected: Surprise\n");
  user_.NextBox(L"delete", kAnswerYes);
  EXPECT_NE(Complaint([this] { Ask(L"Do you want to keep it?"); }).find("keep it"), std::string::npos);
  user_.NextBox(L"", kAnswerYes);
  EXPECT_NE(Complaint([this] { Ask(L"Gone.", kBoxOk); }).find("button"), std::string::npos);
  user_.NextBox(L"never shown", kAnswerYes);
  EXPECT_EQ(user_.TakeComplaints(), "a box that never came: never shown\n");
}

TEST_F(LocalMachineTest, AFileDialogThatIsNotAsExpectedFails) {
  CommonDialog dialog(app.platform.dialogs, form_);
  dialog.DialogTitle = L"Open";
  EXPECT_EQ(Complaint([&] { dialog.ShowOpen(); }), "a file dialog that nobody expected: Open\n");
  user_.NextFile(L"Save", L"C:\\File");
  EXPECT_EQ(Complaint([&] { dialog.ShowOpen(); }),
            "a file dialog that nobody expected: Open\na file dialog that never came: Save\n");
}

TEST_F(LocalMachineTest, AWindowThatIsNotAsExpectedOrStaysOpenFails) {
  const auto nothing = [](ShownWindow&) {};
  const auto show = [this] { form_.Show(Modal); };
  EXPECT_EQ(Complaint(show), "a window that nobody expected: Form\n");
  form_.Unload();
  user_.NextWindow(L"Other", nothing);
  EXPECT_EQ(Complaint(show), "a window that nobody expected: Form\na window that never came: Other\n");
  form_.Unload();
  user_.NextWindow(L"Form", nothing);
  EXPECT_EQ(Complaint(show), "a window that is still open: Form\n");
  form_.Unload();
  user_.NextWindow(L"Form", [](ShownWindow& window) { window.Click(L"Missing"); });
  EXPECT_EQ(Complaint(show), "in the window Form: there is no button Missing\n");
}

TEST_F(LocalMachineTest, AnEntryThatCannotBeChosenAndAPopupThatIsNotAsExpectedFail) {
  form_.Show();
  const MenuPath paths[] = {
      {}, {L"Edit"}, {L"Edit", L"Cut"}, {L"Edit", L"Copy"}, {L"Missing"}, {L"Edit", L"More", L"Paste", L"Deeper"}};
  for (const MenuPath& path : paths) EXPECT_THROW(user_.Window(L"Form").ChooseMenu(path), std::logic_error);
  const auto popUp = [this] { menus_.PopupMenu(L"mnuEdit"); };
  EXPECT_EQ(Complaint(popUp), "a popup that nobody expected\n");
  user_.NextPopup(MenuPath{L"Cut"});
  EXPECT_EQ(Complaint(popUp), "in a popup: the menu entry is disabled: Cut\n");
  user_.NextPopup(MenuPath{L"Cut"});
  EXPECT_EQ(user_.TakeComplaints(), "popups that never came: 1\n");
}

TEST_F(LocalMachineTest, AMenuThatIsNotAsExpectedFailsAndIsMeasuredOnceForEachChangeAndScale) {
  constexpr std::int32_t kDrawn = kMenuByPosition | kMenuOwnerDrawn;
  MainWindowEvents events;
  const WindowHandle window = machine.windows.CreateMainWindow(L"Test", events);
  LocalMenus& menus = machine.menus;
  const MenuHandle root = menus.GetSubMenu(menus.GetMenu(window), 0);
  ASSERT_TRUE(menus.ModifyMenuA(root, 0, kDrawn, 1, L"Alpha") && menus.InsertMenuA(root, 1, kDrawn, 2, L"Beta"));
  int measured = 0;
  machine.windows.SetWindowHook(window, [&measured](WindowMessage& message) {
    measured += message.measure != nullptr ? 1 : 0;
    return MessageResult();
  });
  const auto open = [&](const MenuActions& actions) {
    measured = 0;
    user_.NextMenu(actions);
    menus.TrackPopupMenu(root, window, 0, {});
    return measured;
  };
  EXPECT_NE(Complaint([&] { menus.TrackPopupMenu(root, window, 0, {}); }).find("nobody expected"), std::string::npos);
  for (const MenuActions& actions : {MenuActions{L"Nowhere"}, MenuActions({L"Alpha"}).Press(MenuKey::kDown)}) {
    EXPECT_NE(Complaint([&] { open(actions); }), "");
  }
  open({L"Alpha"});
  EXPECT_EQ(open({L"Alpha"}), 0);
  ASSERT_TRUE(menus.ModifyMenuA(root, 1, kDrawn, 2, L"Gamma"));
  EXPECT_EQ(open({L"Alpha"}), 1);
  machine.windows.Dpi = 144;
  EXPECT_EQ(open({L"Alpha"}), 2);
  machine.windows.DestroyMainWindow(window);
  EXPECT_EQ(menus.LiveMenus(), 0U);
}

TEST_F(LocalMachineTest, ALoopThatCouldNeverEndFails) {
  MainWindowEvents events;
  machine.windows.CreateMainWindow(L"Test", events);
  EXPECT_THROW(machine.windows.RunLoop(), std::logic_error);
  const std::function<void()> again = [&] { machine.windows.PostLater(1000, again); };
  machine.windows.Post(again);
  EXPECT_THROW(machine.windows.RunLoop(), std::logic_error) << "it only waits and waits";
}

TEST_F(LocalMachineTest, WhatIsAskedOfItIsCounted) {
  LocalDrawing& drawing = machine.drawing;
  const BrushHandle brush = drawing.CreateSolidBrush(0x112233);
  EXPECT_EQ(drawing.LiveBrushes(), 1U);
  EXPECT_TRUE(drawing.DeleteObject(brush));
  EXPECT_FALSE(drawing.DeleteObject(brush));
  EXPECT_EQ(drawing.LiveBrushes() + drawing.FailedDeletes(), 1U);
  machine.faults.FailFrom(2);
  EXPECT_TRUE(machine.files.FileExists(L"C:\\Windows\\explorer.exe"));
  EXPECT_NE(machine.registry.RegCloseKey(RegistryKey::kCurrentUser), kErrorSuccess);
  EXPECT_EQ(machine.faults.Calls() + machine.faults.Failed(), 3U);
  EXPECT_EQ(machine.faults.Record()[0], "FileExists C:\\Windows\\explorer.exe");
  machine.faults.Clear();
}

TEST_F(LocalMachineTest, AMachineOpenedAgainIsAsItWasLeft) {
  const std::wstring odd = L"\"a\"\r\n\\b^{41}[\u0416]"s;
  machine.AddFile(L"C:\\Kept \u0416.txt", "content");
  ASSERT_TRUE(machine.files.SetFileAttributesA(L"C:\\kept \u0436.TXT", kFileReadOnly | kFileHidden));
  Register(L"Software\\[Odd]\n\"Key\"", odd, odd);
  ASSERT_TRUE(machine.drives.Add(L'E') && machine.drives.SetFacts(L'E', {kDriveTypeFixed, L"LABEL", {}}));
  LocalMachine again(folder.Path());
  EXPECT_EQ(again.BytesOf(L"c:\\KEPT \u0416.txt"), "content");
  EXPECT_EQ(again.files.GetFileAttributesA(L"C:\\Kept \u0416.txt"), kFileReadOnly | kFileHidden);
  std::wstring text;
  EXPECT_TRUE(
      clsRegHandler(again.registry).GetKeyValue(RegistryKey::kCurrentUser, L"software\\[odd]\n\"KEY\"", odd, text));
  EXPECT_EQ(text, odd);
  EXPECT_EQ(again.files.DriveList(), (std::vector<std::wstring>{L"c:", L"e: [LABEL]"}));
}

}  // namespace
}  // namespace burrowmark::test
