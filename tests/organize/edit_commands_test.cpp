// Cut, copy, paste, delete, change and new as a person does them, and Ctrl+Z behind each.
#include <gtest/gtest.h>

#include "groups/system_folders.h"
#include "organize/node_keys.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark {
namespace {

// The tree: Personal [Alpha [Inner] Beta Gamma (Shift+Ctrl+5)], Drives.
constexpr wchar_t kNodes[] = L"0 Organized Folders|1 Personal|2 Alpha|3 Inner|2 Beta|2 Gamma|1 Drives";

class EditCommands : public testing::Test {
 protected:
  EditCommands() { scene_.Open(); }

  void Press(wchar_t letter) { scene_.Window().Press(letter, kCtrlMask); }
  void Node(const wchar_t* text) { scene_.Window().ClickNode(scene_.Tree(), text); }
  // Cuts or copies a row and pastes it on a node.
  void Carry(wchar_t letter, const wchar_t* row, const wchar_t* node) {
    scene_.ClickRow(row);
    Press(letter);
    Node(node);
    Press(L'V');
  }
  std::wstring Selected() {
    std::wstring texts;
    for (const auto& row : scene_.Control(ShownKind::kListView).list->rows) {
      if (row.selected) texts += row.texts.front() + L" ";
    }
    return texts;
  }
  std::wstring Grey() {
    std::wstring texts;
    for (const auto& row : scene_.Control(ShownKind::kListView).list->rows) {
      if (row.ghosted) texts += row.texts.front() + L" ";
    }
    return texts;
  }
  // The last edit was the only one.
  void ExpectTakenBack() {
    Press(L'Z');
    EXPECT_EQ(scene_.Nodes(), kNodes);
    EXPECT_TRUE(scene_.Window().MenuTexts({L"Edit"}).front().ends_with(L"(disabled)"));
  }
  ItemRef Item(const wchar_t* name) { return scene_.form().WorkCollection()->GetMenuItemFromName(name); }

  test::OrganizeScene scene_;
  LocalUser& user_ = scene_.machine.user;
  Application& app_ = scene_.app;
};

TEST_F(EditCommands, WhatIsCutIsGreyAndGoesWithItsHotKey) {
  scene_.ClickRow(L"Gamma");
  Press(L'X');
  EXPECT_EQ(Grey(), L"Gamma ");
  Node(L"Alpha");
  Press(L'V');
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|3 Gamma|3 Inner|2 Beta|1 Drives");
  EXPECT_EQ(scene_.Rows(), L"Inner|Gamma");
  EXPECT_EQ(Selected() + Grey(), L"Gamma ");
  EXPECT_EQ(Item(L"G")->KeyboardCode, 53);
  EXPECT_EQ(app_.HotKeyItems.Items.size(), 1U);
  EXPECT_EQ(scene_.Window().MenuTexts({L"Edit"}).front(), L"Undo Paste\tCtrl+Z");
  Press(L'V');  // nothing is left to paste
  EXPECT_EQ(scene_.Rows(), L"Inner|Gamma");
  ExpectTakenBack();
  EXPECT_EQ(scene_.Rows(), L"Inner");
}

TEST_F(EditCommands, CopiesHaveTitlesOfTheirOwnAndNoHotKey) {
  scene_.ClickRow(L"Gamma");
  scene_.ClickRow(L"Alpha", kLeftButton, kCtrlMask);
  Press(L'C');
  for (int i = 0; i < 2; ++i) Press(L'V');
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma|Copy of Gamma|Copy of Alpha|Copy (1) of Gamma|Copy (1) of Alpha");
  EXPECT_EQ(scene_.Column(2), L"||Shift+Ctrl+5||||");
  EXPECT_EQ(scene_.Nodes(),
            L"0 Organized Folders|1 Personal|2 Alpha|3 Inner|2 Copy (1) of Alpha|3 Inner|2 Copy of Alpha|3 Inner|2 "
            L"Beta|2 Copy (1) of Gamma|2 Copy of Gamma|2 Gamma|1 Drives");
  Press(L'Z');
  ExpectTakenBack();
}

TEST_F(EditCommands, ATitleThatIsTakenIsAskedAbout) {
  scene_.form().EditTree(L"New", [](TreeEdit& edit) {
    edit.AddNew({.Caption = L"Beta", .OwnerName = L"A", .Name = L"B2", .FolderPath = L"C:\\Other"});
  });
  const std::wstring before = scene_.Nodes();
  const auto paste = [this](const wchar_t* button) {
    user_.NextWindow(L"Replace or Rename Existing Item", [button](ShownWindow& window) {
      EXPECT_NE(window.LabelTexts().find(L"This group already contains an item named Beta."), std::wstring::npos);
      button == nullptr ? window.Close() : window.Click(button);
    });
    Node(L"Personal");
    Carry(L'X', L"Beta", L"Alpha");
  };
  paste(nullptr);
  EXPECT_EQ(scene_.Nodes(), before);
  paste(L"Rename");
  EXPECT_EQ(scene_.Rows(), L"Beta|Inner|Beta2");
  Press(L'Z');
  paste(L"Replace");
  EXPECT_EQ(scene_.Rows(), L"Inner|Beta");
  EXPECT_EQ(scene_.Column(3), L"C:\\Inner|C:\\Beta");
  Press(L'Z');
  EXPECT_EQ(scene_.Nodes(), before);
}

TEST_F(EditCommands, APasteThatMakesNoSenseSaysSo) {
  struct Case {
    const wchar_t* node;
    const wchar_t* text;
  };
  scene_.ClickRow(L"Alpha");
  Press(L'X');
  for (const Case& row : {Case{L"Organized Folders", L""}, Case{L"Drives", L"Content of Drives group"},
                          Case{L"Personal", L"Cannot move : The source is the same as the destination."}}) {
    if (*row.text != L'\0') user_.NextBox(row.text, kAnswerOk);
    Node(row.node);
    Press(L'V');
  }
  // The last one emptied the clipboard. Onto itself, or below, it goes beside itself.
  scene_.Window().DoubleClickNode(scene_.Tree(), L"Alpha");
  for (const wchar_t* node : {L"Alpha", L"Inner"}) {
    Node(L"Personal");
    Carry(L'X', L"Alpha", node);
    EXPECT_EQ(scene_.Nodes(), kNodes);
  }
}

TEST_F(EditCommands, WhatIsGoneOrOfAnotherTreeIsPastedAsACopy) {
  app_.GC[General::kAskBeforeDeleting] = false;
  scene_.ClickRow(L"Gamma");
  Press(L'X');
  scene_.Window().Press(kKeyCodeDelete);
  Press(L'V');
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  EXPECT_EQ(scene_.Column(2), L"||");
  EXPECT_EQ(Item(L"G"), nullptr);
  scene_.form().Edited.Changed = false;
  scene_.ClickRow(L"Beta");
  Press(L'X');
  scene_.form().OpenConfigFile(L"C:\\default.bwmk");
  EXPECT_EQ(Grey(), L"");
  Node(L"Alpha");
  Press(L'V');
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|3 Beta|3 Inner|2 Beta|2 Gamma|1 Drives");
  ExpectTakenBack();
}

TEST_F(EditCommands, DeletingAsksAndTheSelectionGoesOn) {
  scene_.ClickRow(L"Beta");
  user_.NextBox(L"Are you sure you want to delete 'Beta'?", kAnswerNo);
  scene_.Window().Press(kKeyCodeDelete);
  EXPECT_EQ(scene_.Nodes(), kNodes);
  user_.NextBox(L"Are you sure you want to delete 'Beta'?", kAnswerYes);
  scene_.Window().Press(kKeyCodeDelete);
  EXPECT_EQ(scene_.Rows() + L" " + Selected(), L"Alpha|Gamma Gamma ");
  EXPECT_EQ(scene_.Window().Focused()->window, scene_.List());
  user_.NextBox(L"Are you sure you want to delete 'Gamma'?", kAnswerYes);
  scene_.Window().Press(kKeyCodeDelete);
  EXPECT_EQ(Selected(), L"Alpha ");
  EXPECT_TRUE(app_.HotKeyItems.Items.empty());
  Node(L"Alpha");
  user_.NextBox(L"Are you sure you want to delete 'Alpha'?", kAnswerYes);
  scene_.Window().Press(kKeyCodeDelete);
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|1 Drives");
  EXPECT_EQ(scene_.Rows(), L"");
  for (int i = 0; i < 2; ++i) Press(L'Z');
  EXPECT_EQ(app_.HotKeyItems.Items.size(), 1U);
  ExpectTakenBack();
  EXPECT_EQ(Selected(), L"Beta ");
  EXPECT_EQ(scene_.Window().Focused()->window, scene_.List());
}

// The personal group stays, a generated one takes its option along, and discarding gives that back.
TEST_F(EditCommands, DeletingAllAtTheTopAsksForEveryGeneratedGroup) {
  const auto option = [this] { return scene_.Registered(L"Software\\Kestrelan\\Burrowmark\\Settings", L"AC1"); };
  Node(L"Organized Folders");
  scene_.Window().Press(kKeyCodeF6);
  for (const std::int32_t answer : {kAnswerCancel, kAnswerNo, kAnswerYes}) {
    scene_.Window().Press(L'A', kCtrlMask);
    user_.NextBox(L"Are you sure you want to delete these selected items?", kAnswerYes);
    user_.NextBox(L"Do you want to delete Drives group?", answer);
    scene_.Window().Press(kKeyCodeDelete);
    EXPECT_EQ(scene_.Rows(), answer == kAnswerYes ? L"Personal" : L"Personal|Drives");
  }
  EXPECT_EQ(option(), L"0");
  ExpectTakenBack();
  EXPECT_EQ(option(), L"-1");
  scene_.Window().Press(L'A', kCtrlMask);
  user_.NextBox(L"Are you sure you want to delete these selected items?", kAnswerYes);
  user_.NextBox(L"Do you want to delete Drives group?", kAnswerYes);
  scene_.Window().Press(kKeyCodeDelete);
  user_.NextBox(L"Are you sure you want to exit and lose any changes", kAnswerYes);
  scene_.Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_EQ(option(), L"-1");
}

TEST_F(EditCommands, EscapeForgetsWhatWasCutAndThenWhatIsSelected) {
  scene_.ClickRow(L"Beta");
  Press(L'X');
  scene_.Window().Press(kKeyCodeEscape);
  EXPECT_EQ(Grey() + Selected(), L"Beta ");
  scene_.Window().Press(kKeyCodeEscape);
  EXPECT_EQ(Selected(), L"");
  EXPECT_TRUE(scene_.Window().MenuTexts({L"Edit"})[4].ends_with(L"(disabled)"));
}

TEST_F(EditCommands, TwentyEditsCanBeTakenBack) {
  for (int i = 0; i < 25; ++i) {
    scene_.form().EditTree(L"New", [i](TreeEdit& edit) {
      edit.AddNew({.Caption = L"N" + std::to_wstring(i), .OwnerName = L"A", .FolderPath = L"C:\\Beta"});
    });
  }
  for (int i = 0; i < 30; ++i) Press(L'Z');
  Node(L"Alpha");
  EXPECT_EQ(scene_.Rows(), L"Inner|N0|N1|N2|N3|N4");
}

}  // namespace
}  // namespace burrowmark
