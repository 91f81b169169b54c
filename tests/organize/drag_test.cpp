// Dragging within the editor, and folders that come from other programs.
#include <gtest/gtest.h>

#include "organize/node_keys.h"
#include "platform/key_codes.h"
#include "platform/local/person/shown_drag.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark {
namespace {

// The tree: Personal [Alpha [Inner] Beta Gamma (Shift+Ctrl+5)], Drives.
class EditorDrag : public testing::Test {
 protected:
  EditorDrag() {
    scene_.Open();
    for (const wchar_t* folder : {L"C:\\One", L"C:\\Two"}) files_.CreateFolder(folder);
  }

  void Rest() { scene_.app.Requests.RunAtRest(); }
  // Drags a row over a node, and drops it there.
  std::uint32_t RowToNode(const wchar_t* row, const wchar_t* node, std::int32_t shift = 0) {
    std::uint32_t effect = kEffectNone;
    scene_.Window().DragRow(scene_.List(), scene_.RowOf(row), [&](ShownDrag& drag) {
      drag.OverNode(scene_.Window(), scene_.Tree(), node, shift);
      effect = drag.Effect;
      drag.Drop();
      EXPECT_EQ(drag.Effect, effect);
    });
    Rest();
    return effect;
  }
  // Folders and files of another program, dropped on a row, or below the rows for none.
  std::uint32_t Drop(std::vector<std::wstring> paths, const wchar_t* row, std::uint32_t allowed = kEffectCopy) {
    ShownDrag drag(allowed, std::move(paths));
    drag.OverRow(scene_.Window(), scene_.List(), row == nullptr ? -1 : scene_.RowOf(row));
    drag.Drop();
    Rest();
    return drag.GiveUp();
  }
  std::wstring Marked() {
    const auto& list = *scene_.Control(ShownKind::kListView).list;
    const ShownNode* node = scene_.Control(ShownKind::kTreeView).tree->drop;
    return (list.drop < 0 ? L"" : list.rows[static_cast<std::size_t>(list.drop)].texts.front()) + L"|" +
           (node == nullptr ? L"" : node->text);
  }

  test::OrganizeScene scene_;
  LocalUser& user_ = scene_.machine.user;
  FileSystem& files_ = scene_.machine.files;
};

TEST_F(EditorDrag, KeysDecideBetweenMoveAndCopyAndBothCanBeTakenBack) {
  struct Case {
    std::int32_t shift;
    std::uint32_t effect;
    const wchar_t* nodes;
    const wchar_t* undo;
  };
  const Case cases[] = {
      {0, kEffectMove, L"0 Organized Folders|1 Personal|2 Alpha|3 Gamma|3 Inner|2 Beta|1 Drives", L"Undo Move\tCtrl+Z"},
      {kCtrlMask, kEffectCopy, L"0 Organized Folders|1 Personal|2 Alpha|3 Gamma|3 Inner|2 Beta|2 Gamma|1 Drives",
       L"Undo Copy\tCtrl+Z"},
      {kCtrlMask | kShiftMask, kEffectMove, cases[0].nodes, cases[0].undo},
  };
  const std::wstring before = scene_.Nodes();
  for (const Case& row : cases) {
    EXPECT_EQ(RowToNode(L"Gamma", L"Alpha", row.shift), row.effect);
    EXPECT_EQ(scene_.Nodes(), row.nodes);
    EXPECT_EQ(scene_.Window().MenuTexts({L"Edit"}).front(), row.undo);
    EXPECT_EQ(scene_.app.HotKeyItems.Items.size(), 1U);
    EXPECT_EQ(Marked(), L"|");
    scene_.Window().Press(L'Z', kCtrlMask);
    EXPECT_EQ(scene_.Nodes(), before);
  }
}

TEST_F(EditorDrag, WhatCannotTakeADropOffersNothing) {
  EXPECT_EQ(RowToNode(L"Gamma", L"Organized Folders"), kEffectNone);
  EXPECT_EQ(RowToNode(L"Gamma", L"Beta"), kEffectNone);   // a shortcut
  EXPECT_EQ(RowToNode(L"Alpha", L"Alpha"), kEffectNone);  // itself
  user_.NextBox(L"Cannot move : The source is the same", kAnswerOk);
  EXPECT_EQ(RowToNode(L"Gamma", L"Personal"), kEffectMove);  // where it is
  user_.NextBox(L"Content of Drives group is automatically", kAnswerOk);
  EXPECT_EQ(RowToNode(L"Gamma", L"Drives"), kEffectMove);
  bool dragged = false;
  for (const wchar_t* node : {L"Personal", L"Organized Folders"}) {
    scene_.Window().DragNode(scene_.Tree(), node, [&](ShownDrag&) { dragged = true; });
  }
  EXPECT_FALSE(dragged);
  EXPECT_FALSE(scene_.form().InGesture());
}

TEST_F(EditorDrag, AGroupNeverComesBelowItself) {
  scene_.form().EditTree(L"New", [](TreeEdit& edit) {
    edit.AddNew({.Caption = L"Nested", .OwnerName = L"A", .ItemType = MIT_GROUP_GENERAL, .SubMenu = true});
  });
  scene_.Window().ToggleNode(scene_.Tree(), L"Alpha");
  const std::wstring before = scene_.Nodes();
  user_.NextBox(L"Cannot move Nested: The source is the same as the destination.", kAnswerOk);
  EXPECT_EQ(RowToNode(L"Alpha", L"Nested"), kEffectMove);
  EXPECT_EQ(scene_.Nodes(), before);
}

TEST_F(EditorDrag, AClosedNodeOpensUnderARestingMouseOnly) {
  const auto open = [this] { return scene_.Control(ShownKind::kTreeView).tree->Find(L"Inner") != nullptr; };
  ShownDrag drag(kEffectCopy, {L"C:\\One"});
  const bool was = open();
  if (was) scene_.Window().ToggleNode(scene_.Tree(), L"Alpha");
  drag.OverNode(scene_.Window(), scene_.Tree(), L"Alpha");
  scene_.machine.windows.Advance(1000);
  drag.Leave();
  scene_.machine.windows.Advance(1000);
  EXPECT_FALSE(open());
  drag.OverNode(scene_.Window(), scene_.Tree(), L"Alpha");
  scene_.machine.windows.Advance(1250);
  EXPECT_TRUE(open());
  drag.GiveUp();
  EXPECT_EQ(Marked(), L"|");
}

TEST_F(EditorDrag, FoldersComeInAndNothingElse) {
  EXPECT_EQ(Drop({L"C:\\One", L"C:\\Two", L"C:\\One", L"C:\\"}, nullptr), kEffectCopy);
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma|One|Two|One2|C");
  scene_.Window().Press(L'Z', kCtrlMask);
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  user_.NextBox(L"Cannot add none.txt.\r\nOnly folders can be added to Burrowmark.", kAnswerOk);
  Drop({L"C:\\One", L"C:\\none.txt"}, L"Alpha");
  EXPECT_EQ(Drop({L"C:\\One"}, L"Beta"), kEffectNone);
  EXPECT_EQ(Drop({L"C:\\One"}, L"Alpha", kEffectMove), kEffectNone);  // nobody's folder is moved
  user_.NextWindow(L"New Item", [](ShownWindow& window) { window.Click(L"OK"); });
  EXPECT_EQ(Drop({L"C:\\One"}, L"Alpha", kEffectLink | kEffectMove), kEffectLink);
  scene_.Window().ClickNode(scene_.Tree(), L"Alpha");
  EXPECT_EQ(scene_.Rows(), L"Inner|One");
  scene_.app.GC[General::kDialogForOneDroppedPath] = false;
  Drop({L"C:\\Two"}, nullptr);
  EXPECT_EQ(scene_.Rows(), L"Inner|One|Two");
}

TEST_F(EditorDrag, ADropWaitsForRestAndIsForgottenWithItsTree) {
  {
    const Busy busy(scene_.app.Requests, BusyWith::kWork);
    Drop({L"C:\\One", L"C:\\Two"}, nullptr);
    EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma");
  }
  Rest();
  EXPECT_EQ(scene_.Rows(), L"Alpha|Beta|Gamma|One|Two");
  {
    const Busy busy(scene_.app.Requests, BusyWith::kWork);
    Drop({L"C:\\One", L"C:\\Two"}, L"Alpha");
    RowToNode(L"Gamma", L"Alpha");
  }
  scene_.form().Edited.Changed = false;
  scene_.form().FuncConfigFileLoad(L"C:\\default.bwmk");
  Rest();
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|3 Inner|2 Beta|2 Gamma|1 Drives");
  // What a dialog stands over can't be reached.
  user_.NextWindow(L"New Item", [this](ShownWindow& window) {
    ShownDrag drag(kEffectCopy, {L"C:\\One"});
    drag.OverRow(scene_.Window(), scene_.List(), -1);
    EXPECT_EQ(drag.Effect, kEffectNone);
    window.Press(kKeyCodeEscape);
  });
  scene_.Window().Press(L'N', kCtrlMask);
}

}  // namespace
}  // namespace burrowmark
