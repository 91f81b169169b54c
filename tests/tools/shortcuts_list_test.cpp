// The list of all shortcuts, as the editor's Tools menu opens it over its tree.
#include "tools/frm_shortcuts_list.h"

#include <gtest/gtest.h>

#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"
#include "tests/tools/list_window.h"

namespace burrowmark::test {
namespace {

constexpr wchar_t kAsk[] = L"Do you want to delete all folder shortcuts with invalid target locations?";
constexpr wchar_t kDeleted[] = L"All folder shortcuts with invalid target locations have been deleted.";

// The shortcuts: Inner in Alpha, Beta, Gamma with a hot key; Far on a live server, Dead 1 and Dead 2 on a dead one.
class ShortcutsList : public ListWindowTest {
 protected:
  ShortcutsList() {
    machine_.AddFolders(L"\\\\live\\share\\far");
    Add(L"F", L"Far", L"\\\\live\\share\\far");
    Add(L"D1", L"Dead 1", L"\\\\dead\\a");
    Add(L"D2", L"Dead 2", L"\\\\Dead\\b\\c");
    machine_.faults.SilentPlaces = {L"\\\\DEAD"};
    machine_.files.DeleteFolder(L"C:\\Beta");
  }
  void Add(const wchar_t* name, const wchar_t* caption, const wchar_t* path) {
    scene_.app.MainStore().AddNewMenuItem(
        {.Caption = caption, .OwnerName = MIT_GROUP_USER, .Name = name, .FolderPath = path, .ItemType = MIT_PATH});
  }
  // Opens the editor and the list, and closes the list after `script`.
  void Show(const std::function<void()>& script) {
    if (!opened_) scene_.Open();
    opened_ = true;
    machine_.user.NextWindow(L"Folder Shortcuts List", [&](ShownWindow& window) {
      window_ = &window;
      script();
      if (window.IsOpen()) window.Press(kKeyCodeEscape);
    });
    scene_.Window().ChooseMenu({L"Tools", L"Verify Shortcuts..."});
  }
  void ClickHeader(std::int32_t column) { window_->ClickColumn(Get(ShownKind::kListView).window, column); }
  std::wstring Header(std::size_t column) { return Get(ShownKind::kListView).list->columns[column].text; }
  void Wait(std::int64_t milliseconds = 0) {
    machine_.windows.DoEvents();
    machine_.windows.Advance(milliseconds);
  }
  ItemRef Item(const wchar_t* name) { return scene_.form().WorkCollection()->GetMenuItemFromName(name); }
  void Undo() { scene_.Window().Press(L'Z', kCtrlMask); }

  OrganizeScene scene_;
  LocalMachine& machine_ = scene_.machine;
  LocalUser& user_ = machine_.user;
  bool opened_ = false;
};

TEST_F(ShortcutsList, ShowsRowsAtOnceCountsUpWhileADeadServerIsWaitedForAndSorts) {
  scene_.app.ADVC[Advanced::kHotKeys] = false;
  scene_.app.MainStore().GetMenuItemFromName(L"G")->TimeModified = 0;
  Show([this] {
    EXPECT_EQ(Column(0), L"Beta|Dead 1|Dead 2|Far|Gamma|Inner|");
    Wait();
    EXPECT_EQ(Column(1), L"Invalid|||Valid|Valid|Valid|");
    EXPECT_EQ(Panels(),
              L"6 shortcut(s)|1 with hot keys     |3 valid|1 invalid|Some shortcuts have invalid target locations|");
    Wait(2900);
    EXPECT_EQ(Column(1), L"Invalid|||Valid|Valid|Valid|");
    Wait(200);
    EXPECT_EQ(Column(1), L"Invalid|Invalid|Invalid|Valid|Valid|Valid|");
    const ListItemState& gamma = Rows()[4];
    EXPECT_EQ(gamma.texts[2] + gamma.texts[3] + gamma.texts[4], L"\\\\PersonalShift+Ctrl+5C:\\Gamma");
    EXPECT_EQ(gamma.texts[6], L"Never");
    EXPECT_EQ(gamma.texts[7], L"11/5/2003 2:07:09 PM");
    EXPECT_EQ(gamma.colors.at(2), 0x808080U);
    EXPECT_EQ(gamma.colors.size(), 3U) << "the key's own cell keeps its colour";
    ClickHeader(0);
    EXPECT_EQ(Header(0) + Column(0), L"Name-Inner|Gamma|Far|Dead 2|Dead 1|Beta|");
    ClickHeader(4);
    EXPECT_EQ(Header(0) + Header(4) + Column(0), L"NameTarget Location+Beta|Gamma|Inner|Dead 1|Dead 2|Far|");
    window_->Press(kKeyCodeF5);
    EXPECT_EQ(Header(4) + Column(0), L"Target Location+Beta|Dead 1|Dead 2|Far|Gamma|Inner|");
  });
}

TEST_F(ShortcutsList, RenamesInPlaceAndClearsHotKeysOfWhichItTellsUntilItIsFilledAgain) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"a:b", L"An item's name cannot contain any of the following characters: \r\n\t\\ / : * ? \" < > |"},
      {L"Beta", L"Cannot rename Gamma: An item with the name you specified already exists."},
      {L" ", nullptr},
      {L"Gamma", nullptr},
      {L"New", nullptr}};
  Show([&] {
    for (const auto& [title, box] : cases) {
      if (box != nullptr) user_.NextBox(box, kAnswerOk);
      Click(L"Gamma");
      window_->Press(kKeyCodeF2);
      window_->TypeLabel(title);
      window_->Press(kKeyCodeReturn);
      EXPECT_EQ(Item(L"G")->Caption(), std::wstring(title) == L"New" ? L"New" : L"Gamma");
    }
    EXPECT_EQ(Column(0), L"Beta|Dead 1|Dead 2|Far|New|Inner|");
    EXPECT_NE(scene_.Nodes().find(L"New"), std::wstring::npos);
    EXPECT_EQ(scene_.app.HotKeyItems.Items.size(), 1U);
    user_.NextBox(L"Do you want to delete hot keys of all folder shortcuts?", kAnswerYes);
    user_.NextBox(L"Hot keys of all folder shortcuts have been deleted.", kAnswerOk);
    window_->Press(L'K', kCtrlMask);
    EXPECT_TRUE(scene_.app.HotKeyItems.Items.empty());
    EXPECT_EQ(Column(3), L"||||Shift+Ctrl+5||");
    window_->Press(kKeyCodeF5);
    EXPECT_EQ(Column(3), L"||||||");
  });
}

TEST_F(ShortcutsList, DeletesAndChangesOneAtATimeAndAllIsOneStepBack) {
  const std::wstring before = (scene_.Open(), opened_ = true, scene_.Nodes());
  Show([this] {
    Click(L"Far", kLeftButton);
    for (const auto& [answer, rows] : {std::pair{kAnswerNo, 6}, {kAnswerYes, 5}}) {
      user_.NextBox(L"Are you sure you want to delete 'Far'?", answer);
      window_->Press(kKeyCodeDelete);
      EXPECT_EQ(Rows().size(), static_cast<std::size_t>(rows));
    }
    EXPECT_EQ(scene_.Nodes().find(L"Far"), std::wstring::npos) << "the editor shows it at once";
    user_.NextWindow(L"Change Shortcut Inner", [](ShownWindow& change) {
      change.PressAlt(L'p');
      change.Type(L"C:\\Beta");
      change.Click(L"OK");
    });
    user_.NextBox(L"doesn't exist.", kAnswerYes);
    Click(L"Inner");
    window_->Press(kKeyCodeF4);
    Wait();
    EXPECT_EQ(Column(1), L"Invalid|||Valid|Invalid|") << "the changed one is tested again";
    // Meanwhile a dead hot key's question is answered with Yes.
    scene_.form().DeleteShortcut(Item(L"G"));
    Click(L"Gamma");
    window_->Press(kKeyCodeF4);  // of one that has gone nothing comes
  });
  Undo();
  EXPECT_EQ(scene_.Nodes(), before);
  EXPECT_EQ(Item(L"I")->FolderPath, L"C:\\Inner");
  EXPECT_EQ(scene_.app.HotKeyItems.Items.size(), 1U);
}

TEST_F(ShortcutsList, DeletesTheDeadAfterAnotherTestAndAsksAboutServersThatDoNotAnswer) {
  const auto run = [this](std::int32_t answer) {
    user_.NextBox(kAsk, kAnswerYes);
    user_.NextBox(L"\\\\dead doesn't answer. Delete its 2 shortcuts as well?", answer);
    if (answer == kAnswerNo) user_.NextBox(L"have been deleted, except for 2 whose location", kAnswerOk);
    if (answer == kAnswerYes) user_.NextBox(kDeleted, kAnswerOk);
    window_->Press(L'F', kCtrlMask);
    window_->Press(L'K', kCtrlMask);  // is kept off until that has an end
    Wait(3200);
  };
  Show([&] {
    user_.NextBox(kAsk, kAnswerNo);
    window_->Press(L'F', kCtrlMask);
    run(kAnswerCancel);
    EXPECT_EQ(Column(0), L"Beta|Dead 1|Dead 2|Far|Gamma|Inner|");
    machine_.AddFolders(L"C:\\Beta");  // the target comes back between the check and the deletion
    run(kAnswerNo);
    EXPECT_EQ(Column(0), L"Beta|Dead 1|Dead 2|Far|Gamma|Inner|");
    EXPECT_EQ(Column(1), L"Valid|Invalid|Invalid|Valid|Valid|Valid|");
    machine_.files.DeleteFolder(L"C:\\Gamma");
    window_->Press(kKeyCodeF5);
    run(kAnswerYes);
    EXPECT_EQ(Column(0), L"Beta|Far|Inner|");
    EXPECT_EQ(Panels(), L"3 shortcut(s)|0 with hot keys     |3 valid|0 invalid|All target locations are valid|");
    EXPECT_TRUE(scene_.app.HotKeyItems.Items.empty());
    user_.NextBox(kAsk, kAnswerYes);
    user_.NextBox(kDeleted, kAnswerOk);
    window_->ClickButton(Get(ShownKind::kToolbar).window, L"keyClean");
  });
  Undo();
  EXPECT_EQ(scene_.app.HotKeyItems.Items.size(), 1U);
}

TEST_F(ShortcutsList, StopsTheDeletionAtAShortcutThatHasGoneAndClosesWhileItIsUnderWay) {
  Show([this] {
    Wait(3200);
    scene_.form().DeleteShortcut(Item(L"D1"));
    user_.NextBox(kAsk, kAnswerYes);
    user_.NextBox(L"Delete its 2 shortcuts", kAnswerYes);
    user_.NextBox(L"Error deleting folder shortcuts with invalid target locations.", kAnswerOk);
    window_->Press(L'F', kCtrlMask);
    Wait(3200);
    EXPECT_EQ(Column(0), L"Dead 1|Dead 2|Far|Gamma|Inner|") << "Beta, ahead of it, has gone";
    user_.NextBox(kAsk, kAnswerYes);
    window_->Press(L'F', kCtrlMask);
  });
  Wait(4000);
}

}  // namespace
}  // namespace burrowmark::test
