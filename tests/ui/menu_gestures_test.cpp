// What the person at the local machine is told when menus and file dialogs don't come as expected.
#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"
#include "ui/common_dialog.h"
#include "ui/form.h"
#include "ui/menu.h"

namespace burrowmark::test {
namespace {

constexpr MenuRow kMenus[] = {{0, L"mnuEdit", L"&Edit"},
                              {1, L"mnuCut", L"Cu&t"},
                              {1, L"mnuCopy", L"&Copy"},
                              {1, L"mnuMore", L"&More"},
                              {2, L"mnuPaste", L"&Paste"}};

class MenuGesturesTest : public ::testing::Test, protected ScratchMachine {
 protected:
  MenuGesturesTest() {
    form_.SetCaption(L"Form");
    menus_[L"mnuCut"].SetEnabled(false);
    menus_[L"mnuCopy"].SetVisible(false);
    form_.Show();
  }

  Form form_{app.platform.windows, L"frmTest", Size{3000, 1500}};
  FormMenus menus_{form_, kMenus};
};

TEST_F(MenuGesturesTest, AnEntryThatCannotBeChosenFails) {
  const MenuPath paths[] = {
      {}, {L"Edit"}, {L"Edit", L"Cut"}, {L"Edit", L"Copy"}, {L"Missing"}, {L"Edit", L"More", L"Paste", L"Deeper"}};
  for (const MenuPath& path : paths) {
    SCOPED_TRACE(path.size());
    EXPECT_THROW(machine.user.Window(L"Form").ChooseMenu(path), std::logic_error);
  }
  EXPECT_NO_THROW(machine.user.Window(L"Form").ChooseMenu({L"Edit", L"More", L"Paste"}));
}

TEST_F(MenuGesturesTest, APopupThatNobodyExpectedOrThatNeverCameFails) {
  EXPECT_THROW(menus_.PopupMenu(L"mnuEdit"), std::logic_error);
  EXPECT_EQ(machine.user.TakeComplaints(), "a popup that nobody expected\n");
  machine.user.NextPopup(MenuPath{L"Cut"});
  EXPECT_THROW(menus_.PopupMenu(L"mnuEdit"), std::logic_error);
  EXPECT_EQ(machine.user.TakeComplaints(), "in a popup: the menu entry is disabled: Cut\n");
  machine.user.NextPopup(MenuPath{L"Cut"});
  EXPECT_EQ(machine.user.TakeComplaints(), "popups that never came: 1\n");
}

TEST_F(MenuGesturesTest, AFileDialogThatNobodyExpectedOrThatNeverCameFails) {
  CommonDialog dialog(app.platform.dialogs, form_);
  dialog.DialogTitle = L"Open";
  dialog.Filter = L"Texts (*.txt)|*.txt|All (*.*)|*.*";
  EXPECT_THROW(dialog.ShowOpen(), std::logic_error);
  machine.user.NextFile(L"Save", L"C:\\File");
  EXPECT_THROW(dialog.ShowOpen(), std::logic_error);
  EXPECT_EQ(machine.user.TakeComplaints(),
            "a file dialog that nobody expected: Open\na file dialog that nobody expected: Open\n"
            "a file dialog that never came: Save\n");
}

// The system on the other side only ever answers with the filter that stood there.
TEST_F(MenuGesturesTest, TheChosenFilterGivesTheExtension) {
  CommonDialog dialog(app.platform.dialogs, form_);
  dialog.Filter = L"Texts (*.txt)|*.txt|All (*.*)|*.*|Pages|*.htm;*.html";
  const struct {
    std::int32_t filter;
    const wchar_t* typed;
    const wchar_t* path;
  } cases[] = {{1, L"C:\\a.b\\File", L"C:\\a.b\\File.txt"},
               {1, L"C:\\File.doc", L"C:\\File.doc"},
               {2, L"C:\\File", L"C:\\File"},
               {3, L"C:\\File", L"C:\\File.htm"},
               {4, L"C:\\File", L"C:\\File"},
               {0, L"C:\\File", L"C:\\File"}};
  for (const auto& row : cases) {
    machine.user.NextFile(L"", row.typed, row.filter);
    ASSERT_TRUE(dialog.ShowSave());
    EXPECT_EQ(dialog.FileName, row.path);
    EXPECT_EQ(dialog.FilterIndex, row.filter);
  }
  const FileRequest& asked = machine.dialogs.FileDialogs.front().request;
  EXPECT_EQ(asked.owner, form_.Window());
  EXPECT_EQ(asked.filters, (std::vector<FileFilter>{
                               {L"Texts (*.txt)", L"*.txt"}, {L"All (*.*)", L"*.*"}, {L"Pages", L"*.htm;*.html"}}));
}

}  // namespace
}  // namespace burrowmark::test
