// What the user does in lists and trees.
#include "tests/contract/ui_fixture.h"

namespace burrowmark {
namespace {

class ViewsContract : public FullFormTest {
 protected:
  ViewsContract() {
    form_.Fill({L"one", L"two", L"three"});
    form_.Plant();
  }
  void Type(const Control& control, const std::wstring& text, std::int32_t key) {
    screen_.TypeLabel(control.Window(), text);
    Press(key);
  }
};

TEST_F(ViewsContract, AListSortsByWhatItShows) {
  form_.Show();
  list_.Clear();
  form_.Fill({L"beta", L"Alpha", L"alpha", L"\u00e9clair", L"\u00c9tude"});
  list_.SetSelectedItem(&list_.Item(1));
  list_.Item(4).SetGhosted(true);
  for (const std::int32_t item : {1, 3}) list_.Item(item).SetSubItem(1, L"2");
  list_.SetSorted(true);
  EXPECT_EQ(Rows(), L"Alpha alpha beta+* \u00e9clair~ \u00c9tude") << "equal ones keep their order";
  list_.SetOrder(SortOrder::kDescending);
  EXPECT_EQ(Rows(), L"\u00c9tude \u00e9clair~ beta+* Alpha alpha");
  list_.SetSortKey(1);
  EXPECT_EQ(Rows(), L"beta+* alpha \u00c9tude \u00e9clair~ Alpha");
  EXPECT_EQ(screen_.CellOf(list_.Window(), 1, 1), L"2");
  list_.SetSortKey(0);
  list_.SetOrder(SortOrder::kAscending);
  list_.Add(L"C", L"delta");
  EXPECT_EQ(list_.Find(L"C")->Index(), 4) << "a row goes to its place when it comes";
  list_.SetSorted(false);
  list_.Add(L"last", L"aaa");
  EXPECT_EQ(Rows(), L"alpha Alpha beta+* delta \u00e9clair~ \u00c9tude aaa");
  ClickRow(3);
  EXPECT_EQ(list_.SelectedItem()->Text(), L"delta");
}

TEST_F(ViewsContract, AColumnIsDraggedAndClicked) {
  form_.Show();
  screen_.DragColumn(list_.Window(), 0, 2250);
  EXPECT_EQ(list_.Columns()[0].width, 2250);
  screen_.ChangeScale(form_.Window(), 192);
  EXPECT_EQ(screen_.ColumnsOf(list_.Window()), L"Name:300 Type:200");
  screen_.ClickColumn(list_.Window(), 1);
  EXPECT_EQ(Heard(), Texts({"column 2"}));
}

TEST_F(ViewsContract, APressInAListTellsInOrder) {
  form_.Show();
  const struct {
    std::int32_t row, button, shift;
    Texts heard;
    std::wstring rows;
  } cases[] = {
      {1, kLeftButton, 0, {"down 1", "item two", "click", "up 1"}, L"one two+* three"},
      {1, kLeftButton, 0, {"down 1", "click", "up 1"}, L"one two+* three"},
      {2, kRightButton, 0, {"down 2", "item three", "up 2"}, L"one two three+*"},
      {2, kRightButton, 0, {"down 2", "up 2"}, L"one two three+*"},
      {-1, kRightButton, 0, {"down 2", "up 2"}, L"one two three*"},
      {-1, kLeftButton, 0, {"down 1", "click", "up 1"}, L"one two three*"},
      {2, kLeftButton, 0, {"down 1", "item three", "click", "up 1"}, L"one two three+*"},
      {0, kLeftButton, kShiftMask, {"down 1", "item one", "click", "up 1"}, L"one+* two+ three+"},
      {1, kLeftButton, 0, {"down 1", "item two", "click", "up 1"}, L"one two+* three"},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(&row - cases);
    ClickRow(row.row, row.button, row.shift);
    EXPECT_EQ(Heard(), row.heard);
    EXPECT_EQ(Rows(), row.rows);
    const std::wstring current = list_.SelectedItem()->Text();
    EXPECT_NE(row.rows.find(L'*', row.rows.find(current)), std::wstring::npos);
  }
  ClickRow(0, kLeftButton, kCtrlMask);
  ClickRow(1, kLeftButton, kCtrlMask);
  EXPECT_EQ(Rows(), L"one+ two* three");
}

TEST_F(ViewsContract, ARowThatCeasedToBeCurrentAtThePressIsClickedAgain) {
  list_.Clear();
  form_.Fill({L"one", L"two"});
  form_.Show();
  list_.MouseDown = [this](const MouseEvent&) { list_.SetSelectedItem(nullptr); };
  list_.Click = [this] { form_.Say(list_.SelectedItem() == nullptr ? "click on nothing" : "click on a row"); };
  for (int time = 0; time < 2; ++time) {
    ClickRow(1);
    EXPECT_EQ(Heard(), Texts({"item two", "click on a row", "up 1"}));
    EXPECT_EQ(Rows(), L"one two+*");
  }
  ClickRow(1, kRightButton);
  EXPECT_EQ(Heard(), Texts({"item two", "up 2"}));
  ClickRow(-1);
  EXPECT_EQ(Heard(), Texts({"click on nothing", "up 1"}));
  EXPECT_EQ(Rows(), L"one two");
}

TEST_F(ViewsContract, ADoubleClickComesOnce) {
  list_.Clear();
  form_.Fill({L"one", L"two"});
  form_.Show();
  screen_.DoubleClickRow(list_.Window(), 1);
  EXPECT_EQ(Heard(), Texts({"down 1", "item two", "click", "up 1", "double click", "up 1"}));
  screen_.DoubleClickNode(tree_.Window(), L"B");
  EXPECT_EQ(Heard(), Texts({"down 1", "node B", "click", "up 1", "double click", "up 1"}));
  screen_.DoubleClickNode(tree_.Window(), L"A");
  EXPECT_EQ(Heard(), Texts({"down 1", "node A", "click", "up 1", "expand A", "double click", "up 1"}));
  EXPECT_TRUE(tree_.Find(L"A")->Expanded());
}

TEST_F(ViewsContract, KeysMoveInAList) {
  list_.Clear();
  form_.Fill({L"a", L"b", L"c", L"d"});
  form_.Show();
  list_.SetFocus();
  EXPECT_EQ(list_.SelectedItem(), nullptr) << "the focus alone selects nothing";
  ClickRow(1);
  Heard();
  const struct {
    std::int32_t key;
    std::int32_t shift;
    std::wstring rows;
    Texts heard;
  } cases[] = {{kKeyCodeDown, 0, L"a b c+* d", {"item c"}},
               {kKeyCodeUp, 0, L"a b+* c d", {"item b"}},
               {kKeyCodeEnd, 0, L"a b c d+*", {"item d"}},
               {kKeyCodeHome, 0, L"a+* b c d", {"item a"}},
               {kKeyCodeDown, kShiftMask, L"a+ b+* c d", {"item b"}},
               {kKeyCodeDown, kCtrlMask, L"a+ b+ c* d", {}},
               {kKeyCodeSpace, kCtrlMask, L"a+ b+ c+* d", {"item c"}},
               {kKeyCodeReturn, 0, L"a+ b+ c+* d", {"cmdOk"}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.key);
    Press(row.key, row.shift);
    EXPECT_EQ(Rows(), row.rows);
    EXPECT_EQ(Heard(), row.heard);
  }
}

TEST_F(ViewsContract, TheKeyForContextMenusIsARightPressOnWhatIsCurrent) {
  list_.Clear();
  form_.Fill({L"a", L"b"});
  form_.Show();
  list_.MouseDown = [this](const MouseEvent& event) {
    form_.Say("down " + std::to_string(event.button));
    list_.SetSelectedItem(nullptr);
    ListItem* under = list_.HitTest(event.x, event.y);
    form_.Say("at " + (under == nullptr ? "nothing" : ToUtf8(under->Text())));
  };
  ClickRow(1);
  Heard();
  for (const auto& [key, shift] : {std::pair(kKeyCodeApps, 0), std::pair(kKeyCodeF10, kShiftMask)}) {
    Press(key, shift);
    EXPECT_EQ(Heard(), Texts({"down 2", "at b", "item b", "up 2"}));
    EXPECT_EQ(Rows(), L"a b+*");
  }
  ClickNode(L"B");
  Heard();
  Press(kKeyCodeApps);
  EXPECT_EQ(Heard(), Texts({"down 2", "node B", "up 2"}));
}

TEST_F(ViewsContract, ACheckBoxIsTurnedByTheUser) {
  list_.SetCheckBoxes(true);
  tree_.SetCheckBoxes(true);
  list_.Item(1).SetChecked(true);
  list_.Click = tree_.Click = nullptr;
  list_.MouseDown = list_.MouseUp = tree_.MouseDown = tree_.MouseUp = nullptr;
  form_.Show();
  screen_.CheckRow(list_.Window(), 0);
  screen_.CheckNode(tree_.Window(), L"B");
  EXPECT_EQ(Heard(), Texts({"check one", "check B"}));
  EXPECT_FALSE(list_.Item(1).Checked());
  EXPECT_TRUE(tree_.Find(L"B")->Checked());
}

TEST_F(ViewsContract, AListTellsThatItIsGoingToBeDrawn) {
  int paints = 0;
  list_.Paint = [&paints] { ++paints; };
  form_.Show();
  windows_.DoEvents();
  const int shown = paints;
  EXPECT_GT(shown, 0);
  windows_.DoEvents();
  EXPECT_EQ(paints, shown);
  list_.Item(1).SetSelected(true);
  windows_.DoEvents();
  EXPECT_GT(paints, shown);
}

TEST_F(ViewsContract, RowsAndNodesAreFoundWhereTheMouseIs) {
  EXPECT_EQ(list_.HitTest(300, 600), nullptr);
  const ListItem* row = nullptr;
  const TreeNode* node = nullptr;
  list_.MouseDown = [&](const MouseEvent& event) { row = list_.HitTest(event.x, event.y); };
  tree_.MouseDown = [&](const MouseEvent& event) { node = tree_.HitTest(event.x, event.y); };
  form_.Show();
  for (const std::int32_t dpi : {96, 144}) {
    SCOPED_TRACE(dpi);
    screen_.ChangeScale(form_.Window(), dpi);
    ClickRow(1);
    EXPECT_EQ(row, &list_.Item(2));
    ClickRow(-1);
    EXPECT_EQ(row, nullptr);
    ClickNode(L"B");
    EXPECT_EQ(node, tree_.Find(L"B"));
    ClickNode(L"");
    EXPECT_EQ(node, nullptr);
  }
}

TEST_F(ViewsContract, TheSelectionLeavesANodeThatGoesOrCloses) {
  form_.Show();
  const struct {
    std::wstring selected;
    std::wstring removed;
    std::wstring next;
  } cases[] = {{L"A2a", L"A2a", L"A2"}, {L"A1", L"A1", L"A2"}, {L"A2", L"A2", L"A"}, {L"B", L"B", L"A"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(ToUtf8(row.removed));
    tree_.SetSelectedItem(tree_.Find(row.selected));
    tree_.Remove(*tree_.Find(row.removed));
    EXPECT_EQ(tree_.Find(row.removed), nullptr);
    EXPECT_EQ(tree_.SelectedItem(), tree_.Find(row.next));
    EXPECT_NE(Nodes().find(row.next + L"*"), std::wstring::npos);
  }
  tree_.Clear();
  form_.Plant();
  tree_.SetSelectedItem(tree_.Find(L"A2a"));
  screen_.ToggleNode(tree_.Window(), L"A");
  EXPECT_EQ(Heard(), Texts({"down 1", "collapse A", "node A", "click", "up 1"}));
  EXPECT_EQ(Nodes(), L"A* B");
}

TEST_F(ViewsContract, APressInATreeTellsInOrder) {
  form_.Show();
  const struct {
    std::wstring node;
    std::int32_t button;
    Texts heard;
  } cases[] = {{L"B", kLeftButton, {"down 1", "node B", "click", "up 1"}},
               {L"B", kLeftButton, {"down 1", "node B", "click", "up 1"}},
               {L"A", kRightButton, {"down 2", "node A", "up 2"}},
               {L"A", kRightButton, {"down 2", "node A", "up 2"}},
               {L"", kLeftButton, {"down 1", "click", "up 1"}},
               {L"", kRightButton, {"down 2", "up 2"}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(ToUtf8(row.node));
    ClickNode(row.node, row.button);
    EXPECT_EQ(Heard(), row.heard);
    EXPECT_TRUE(row.node.empty() || tree_.SelectedItem() == tree_.Find(row.node));
  }
  EXPECT_EQ(Nodes(), L"A* B");
}

TEST_F(ViewsContract, KeysMoveInATree) {
  form_.Show();
  tree_.SetFocus();
  EXPECT_EQ(tree_.SelectedItem(), tree_.Find(L"A")) << "the focus selects a node, without a click";
  EXPECT_EQ(Heard(), Texts());
  const struct {
    std::int32_t key;
    std::wstring nodes;
    Texts heard;
  } cases[] = {{kKeyCodeRight, L"A* .A1 .A2 B", {"expand A"}}, {kKeyCodeRight, L"A .A1* .A2 B", {"node A1"}},
               {kKeyCodeDown, L"A .A1 .A2* B", {"node A2"}},   {kKeyCodeEnd, L"A .A1 .A2 B*", {"node B"}},
               {kKeyCodeUp, L"A .A1 .A2* B", {"node A2"}},     {kKeyCodeLeft, L"A* .A1 .A2 B", {"node A"}},
               {kKeyCodeLeft, L"A* B", {"collapse A"}},        {kKeyCodeReturn, L"A* B", {"cmdOk"}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.key);
    Press(row.key);
    EXPECT_EQ(Nodes(), row.nodes);
    EXPECT_EQ(Heard(), row.heard);
  }
}

TEST_F(ViewsContract, ALabelIsEditedOnCommandAlone) {
  form_.Show();
  for (int time = 0; time < 2; ++time) {
    ClickRow(1);
    ClickNode(L"B");
  }
  EXPECT_FALSE(screen_.EditsLabel(list_.Window()) || screen_.EditsLabel(tree_.Window())) << "a click is no command";
  Heard();
  std::wstring answer;
  bool refuse = false;
  list_.AfterLabelEdit = tree_.AfterLabelEdit = [&](bool& Cancel, std::wstring& NewString) {
    Cancel = refuse;
    if (!answer.empty()) NewString = answer;
  };
  const struct {
    std::wstring typed;
    std::int32_t key;
    std::wstring answer;
    bool refuse;
    std::wstring text;
  } cases[] = {{L"taken", kKeyCodeReturn, L"", false, L"taken"},
               {L"given up", kKeyCodeEscape, L"", false, L"taken"},
               {L"refused", kKeyCodeReturn, L"", true, L"taken"},
               {L"changed", kKeyCodeReturn, L"otherwise", false, L"otherwise"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(ToUtf8(row.typed));
    answer = row.answer;
    refuse = row.refuse;
    list_.StartLabelEdit();
    ASSERT_TRUE(screen_.EditsLabel(list_.Window()) && list_.HasFocus());
    Type(list_, row.typed, row.key);
    EXPECT_FALSE(screen_.EditsLabel(list_.Window()));
    EXPECT_EQ(list_.Item(2).Text(), row.text);
    EXPECT_EQ(Rows(), L"one " + row.text + L"+* three");
    tree_.StartLabelEdit();
    ASSERT_TRUE(screen_.EditsLabel(tree_.Window()));
    Type(tree_, row.typed, row.key);
    EXPECT_EQ(tree_.Find(L"B")->Text(), row.text);
    EXPECT_EQ(Nodes(), L"A " + row.text + L"*");
  }
  list_.BeforeLabelEdit = [](bool& Cancel) { Cancel = true; };
  list_.StartLabelEdit();
  EXPECT_FALSE(screen_.EditsLabel(list_.Window()));
  EXPECT_EQ(Heard(), Texts()) << "Enter and Esc were the label's own";
  list_.BeforeLabelEdit = {};
  list_.AfterLabelEdit =
      tree_.AfterLabelEdit = [](bool&, std::wstring&) { ADD_FAILURE() << "a row that goes ends it"; };
  list_.StartLabelEdit();
  ASSERT_TRUE(screen_.EditsLabel(list_.Window()));
  list_.Clear();
  EXPECT_FALSE(screen_.EditsLabel(list_.Window()));
  tree_.AfterLabelEdit = [](bool&, std::wstring&) { ADD_FAILURE() << "a node that goes takes its edit along"; };
  tree_.StartLabelEdit();
  ASSERT_TRUE(screen_.EditsLabel(tree_.Window()));
  tree_.Remove(*tree_.Find(L"B"));
  EXPECT_FALSE(screen_.EditsLabel(tree_.Window()));
}

}  // namespace
}  // namespace burrowmark
