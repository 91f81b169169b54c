// Lists and trees: what they show, and what the user does in them.
#include <chrono>
#include <vector>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "tests/contract/system_under_test.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/list_view.h"
#include "ui/tree_view.h"

namespace burrowmark {
namespace {

using Texts = std::vector<std::string>;

class ViewsForm final : public Form {
 public:
  ViewsForm(WindowSystem& windows, Texts& heard) : Form(windows, L"frmViews", {9000, 6000}), heard_(heard) {
    SetCaption(L"Views");
    list.AddColumn(L"Name", 1500);
    list.AddColumn(L"Type", 1500);
    list.SetLabelEdit(true);
    tree.SetLabelEdit(true);
    cmdOk.SetDefault(true);
    cmdCancel.SetCancel(true);
    cmdOk.Click = Noting("ok");
    cmdCancel.Click = Noting("cancel");
    list.ItemClick = [this](ListItem& item) { Say("item " + ToUtf8(item.Text())); };
    list.ItemCheck = [this](ListItem& item) { Say("check " + ToUtf8(item.Text())); };
    list.Click = Noting("click");
    list.DblClick = Noting("double click");
    list.ColumnClick = [this](std::int32_t column) { Say("column " + std::to_string(column)); };
    tree.NodeClick = [this](TreeNode& node) { Say("node " + ToUtf8(node.Text())); };
    tree.NodeCheck = [this](TreeNode& node) { Say("check " + ToUtf8(node.Text())); };
    tree.Expand = [this](TreeNode& node) { Say("expand " + ToUtf8(node.Text())); };
    tree.Collapse = [this](TreeNode& node) { Say("collapse " + ToUtf8(node.Text())); };
    tree.Click = Noting("click");
    tree.DblClick = Noting("double click");
    for (Control* control : {static_cast<Control*>(&list), static_cast<Control*>(&tree)}) {
      control->MouseDown = [this](const MouseEvent& event) { Say("down " + std::to_string(event.button)); };
      control->MouseUp = [this](const MouseEvent& event) { Say("up " + std::to_string(event.button)); };
    }
  }

  void Fill(const std::vector<std::wstring>& texts) {
    for (const std::wstring& text : texts) list.Add(L"C" + text, text, 1, 2);
  }
  // A with A1 and A2, of which A2 holds A2a; and B.
  void Plant() {
    TreeNode* a = tree.Add(nullptr, TreeRelation::kChild, L"A", L"A", 1);
    tree.Add(a, TreeRelation::kChild, L"A1", L"A1", 2);
    TreeNode* a2 = tree.Add(a, TreeRelation::kChild, L"A2", L"A2", 2);
    tree.Add(a2, TreeRelation::kChild, L"A2a", L"A2a");
    tree.Add(nullptr, TreeRelation::kChild, L"B", L"B", 1);
  }
  std::function<void()> Noting(const std::string& what) {
    return [this, what] { Say(what); };
  }
  void Say(const std::string& what) { heard_.push_back(what); }

  CommandButton cmdOk{*this, L"cmdOk", Box{150, 5400, 1200, 375}, L"OK"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{1500, 5400, 1200, 375}, L"Cancel"};
  TreeView tree{*this, L"tree", Box{150, 150, 3000, 5100}};
  ListView list{*this, L"list", Box{3300, 150, 5400, 5100}};

 private:
  Texts& heard_;
};

class ViewsContract : public ContractTest {
 protected:
  ~ViewsContract() override {
    EXPECT_EQ(screen_.Complaints(), "");
    windows_.DoEvents();
  }
  std::wstring Rows() { return screen_.RowsOf(list_.Window()); }
  std::wstring Nodes() { return screen_.NodesOf(tree_.Window()); }
  void ClickRow(std::int32_t row, std::int32_t button = kLeftButton, std::int32_t shift = 0) {
    screen_.ClickRow(form_.Window(), list_.Window(), row, button, shift);
  }
  void ClickNode(const std::wstring& text, std::int32_t button = kLeftButton) {
    screen_.ClickNode(form_.Window(), tree_.Window(), text, button);
  }
  void Press(std::int32_t key, std::int32_t shift = 0) { screen_.Press(form_.Window(), key, shift); }
  void Type(const Control& control, const std::wstring& text, std::int32_t key) {
    screen_.TypeLabel(form_.Window(), control.Window(), text);
    Press(key);
  }
  // Takes what was heard so far.
  Texts Heard() { return std::exchange(heard_, {}); }

  ScreenUnderTest& screen_ = system_->screen();
  WindowSystem& windows_ = platform_.windows;
  Texts heard_;
  ViewsForm form_{windows_, heard_};
  ListView& list_ = form_.list;
  TreeView& tree_ = form_.tree;
};
INSTANTIATE_TEST_SUITE_P(Systems, ViewsContract, ::testing::ValuesIn(Systems()), KindName);

// --- list: state

TEST_P(ViewsContract, AListShowsWhatItHeldBeforeAndWhatComesLater) {
  form_.Fill({L"one", L"two", L"three"});
  list_.Item(1).SetSubItem(1, L"first");
  list_.Item(2).SetGhosted(true);
  list_.SetSelectedItem(&list_.Item(3));
  form_.Show();
  EXPECT_EQ(Rows(), L"one two~ three+*");
  EXPECT_EQ(screen_.CellOf(list_.Window(), 0, 1), L"first");
  EXPECT_EQ(list_.Add(L"Ctwo", L"again"), nullptr);
  list_.Add(L"Cfour", L"four")->SetSubItem(1, L"fourth");
  list_.Item(1).SetText(L"ONE");
  list_.Item(1).SetSubItem(1, L"1st");
  list_.Item(1).SetSelected(true);
  list_.Item(2).SetGhosted(false);
  list_.SetDropHighlight(&list_.Item(2));
  EXPECT_EQ(Rows(), L"ONE+ two< three+* four");
  EXPECT_EQ(screen_.CellOf(list_.Window(), 0, 1), L"1st");
  EXPECT_EQ(screen_.CellOf(list_.Window(), 3, 1), L"fourth");
  EXPECT_TRUE(list_.Remove(L"Cone"));
  EXPECT_FALSE(list_.Remove(L"Cone"));
  EXPECT_EQ(Rows(), L"two< three+* four");
  EXPECT_EQ(list_.Find(L"Cfour")->Index(), 3);
  list_.SetAllSelected(true);
  EXPECT_EQ(list_.SelectedCount(), 3);
  list_.SetSelectedItem(nullptr);
  EXPECT_EQ(Rows(), L"two+< three+ four+") << "only the current row goes";
  form_.Realise();
  EXPECT_EQ(Rows(), L"two+< three+ four+");
  list_.SetSelectedItem(&list_.Item(1));
  list_.Remove(L"Ctwo");
  EXPECT_EQ(Rows(), L"three+ four+") << "the current row goes to nobody";
  list_.Clear();
  EXPECT_EQ(Rows(), L"");
  EXPECT_EQ(Heard(), Texts()) << "code raises nothing";
}

TEST_P(ViewsContract, AListSortsByWhatItShows) {
  form_.Show();
  form_.Fill({L"beta", L"Alpha", L"alpha", L"Gamma", L"\u00e9clair", L"\u00c9tude"});
  list_.SetSelectedItem(&list_.Item(1));
  list_.Item(4).SetGhosted(true);
  const auto second = [this](std::int32_t item, const wchar_t* text) { list_.Item(item).SetSubItem(1, text); };
  second(1, L"2");
  second(2, L"1");
  second(3, L"2");
  const std::wstring eclair = L"\u00e9clair";
  const std::wstring etude = L"\u00c9tude";
  list_.SetSorted(true);
  EXPECT_EQ(Rows(), L"Alpha alpha beta+* Gamma~ " + eclair + L" " + etude) << "equal ones keep their order";
  list_.SetOrder(SortOrder::kDescending);
  EXPECT_EQ(Rows(), etude + L" " + eclair + L" Gamma~ beta+* Alpha alpha");
  list_.SetSortKey(1);
  EXPECT_EQ(Rows(), L"beta+* alpha Alpha " + etude + L" " + eclair + L" Gamma~");
  EXPECT_EQ(screen_.CellOf(list_.Window(), 2, 1), L"1");
  list_.Add(L"new", L"new")->SetSubItem(1, L"9");
  EXPECT_EQ(list_.Find(L"new")->Index(), 7) << "a row goes to its place when it comes";
  list_.SetSortKey(0);
  list_.SetOrder(SortOrder::kAscending);
  list_.Add(L"C", L"delta");
  EXPECT_EQ(list_.Find(L"C")->Index(), 4);
  list_.SetSorted(false);
  list_.Add(L"last", L"aaa");
  EXPECT_EQ(Rows(), L"alpha Alpha beta+* delta Gamma~ new " + eclair + L" " + etude + L" aaa");
  ClickRow(3);
  EXPECT_EQ(list_.SelectedItem()->Text(), L"delta");
}

TEST_P(ViewsContract, ColumnsHaveTextsAndWidthsThatTheUserDrags) {
  form_.Show();
  EXPECT_EQ(screen_.ColumnWidth(list_.Window(), 0), 100);
  list_.SetColumnText(1, L"Name+");
  list_.SetColumnWidth(2, 3000);
  list_.AddColumn(L"More", 750);
  EXPECT_EQ(screen_.ColumnText(list_.Window(), 0), L"Name+");
  EXPECT_EQ(screen_.ColumnWidth(list_.Window(), 1), 200);
  EXPECT_EQ(screen_.ColumnWidth(list_.Window(), 2), 50);
  screen_.DragColumn(form_.Window(), list_.Window(), 0, 2250);
  EXPECT_EQ(list_.Columns()[0].width, 2250);
  screen_.ChangeScale(form_.Window(), 192);
  EXPECT_EQ(screen_.ColumnWidth(list_.Window(), 0), 300);
  EXPECT_EQ(screen_.ColumnWidth(list_.Window(), 1), 400);
  EXPECT_EQ(list_.Columns()[1].width, 3000);
  screen_.ClickColumn(form_.Window(), list_.Window(), 1);
  EXPECT_EQ(Heard(), Texts({"column 2"}));
}

// --- list: the user

TEST_P(ViewsContract, APressInAListTellsInOrder) {
  form_.Fill({L"one", L"two", L"three"});
  form_.Show();
  const struct {
    std::int32_t row;
    std::int32_t button;
    Texts heard;
    std::wstring rows;
  } cases[] = {
      {1, kLeftButton, {"down 1", "item two", "click", "up 1"}, L"one two+* three"},
      {1, kLeftButton, {"down 1", "click", "up 1"}, L"one two+* three"},
      {2, kRightButton, {"down 2", "item three", "up 2"}, L"one two three+*"},
      {2, kRightButton, {"down 2", "up 2"}, L"one two three+*"},
      {-1, kRightButton, {"down 2", "up 2"}, L"one two three*"},
      {-1, kLeftButton, {"down 1", "click", "up 1"}, L"one two three*"},
      {2, kLeftButton, {"down 1", "item three", "click", "up 1"}, L"one two three+*"},
  };
  int step = 0;
  for (const auto& row : cases) {
    SCOPED_TRACE(++step);
    ClickRow(row.row, row.button);
    EXPECT_EQ(Heard(), row.heard);
    EXPECT_EQ(Rows(), row.rows);
    EXPECT_EQ(list_.SelectedItem() == nullptr ? L"" : list_.SelectedItem()->Text(),
              row.rows.find(L'*') == std::wstring::npos ? L"" : list_.Item(row.row < 0 ? 3 : row.row + 1).Text());
  }
}

TEST_P(ViewsContract, ARowThatCeasedToBeCurrentAtThePressIsClickedAgain) {
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

TEST_P(ViewsContract, ADoubleClickComesOnce) {
  form_.Fill({L"one", L"two"});
  form_.Plant();
  form_.Show();
  screen_.DoubleClickRow(form_.Window(), list_.Window(), 1);
  EXPECT_EQ(Heard(), Texts({"down 1", "item two", "click", "up 1", "double click", "up 1"}));
  screen_.DoubleClickNode(form_.Window(), tree_.Window(), L"B");
  EXPECT_EQ(Heard(), Texts({"down 1", "node B", "click", "up 1", "double click", "up 1"}));
  screen_.DoubleClickNode(form_.Window(), tree_.Window(), L"A");
  EXPECT_EQ(Heard(), Texts({"down 1", "node A", "click", "up 1", "expand A", "double click", "up 1"}));
  EXPECT_TRUE(tree_.Find(L"A")->Expanded());
}

TEST_P(ViewsContract, ShiftAndCtrlSelectMoreRows) {
  form_.Fill({L"a", L"b", L"c", L"d"});
  form_.Show();
  const struct {
    std::int32_t row;
    std::int32_t shift;
    std::wstring rows;
  } cases[] = {{1, 0, L"a b+* c d"},
               {3, kShiftMask, L"a b+ c+ d+*"},
               {2, kCtrlMask, L"a b+ c* d+"},
               {0, kCtrlMask, L"a+* b+ c d+"},
               {2, 0, L"a b c+* d"}};
  for (const auto& row : cases) {
    ClickRow(row.row, kLeftButton, row.shift);
    EXPECT_EQ(Rows(), row.rows);
  }
  EXPECT_EQ(list_.SelectedCount(), 1);
}

TEST_P(ViewsContract, KeysMoveInAList) {
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
               {kKeyCodeReturn, 0, L"a+ b+ c+* d", {"ok"}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.key);
    Press(row.key, row.shift);
    EXPECT_EQ(Rows(), row.rows);
    EXPECT_EQ(Heard(), row.heard);
  }
}

TEST_P(ViewsContract, TheKeyForContextMenusIsARightPressOnWhatIsCurrent) {
  form_.Fill({L"a", L"b"});
  form_.Plant();
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

TEST_P(ViewsContract, CheckBoxesFollowTheUserAndTheCode) {
  list_.SetCheckBoxes(true);
  tree_.SetCheckBoxes(true);
  form_.Fill({L"a", L"b"});
  form_.Plant();
  list_.Item(1).SetChecked(true);
  tree_.Find(L"B")->SetChecked(true);
  form_.Show();
  EXPECT_EQ(Rows(), L"av b");
  list_.Item(2).SetChecked(true);
  tree_.Find(L"A")->SetChecked(true);
  EXPECT_EQ(Rows(), L"av bv");
  EXPECT_EQ(Nodes(), L"Av Bv");
  EXPECT_EQ(Heard(), Texts());
  list_.MouseDown = tree_.MouseDown = nullptr;
  list_.MouseUp = tree_.MouseUp = nullptr;
  list_.Click = tree_.Click = nullptr;
  list_.ItemClick = nullptr;
  screen_.CheckRow(form_.Window(), list_.Window(), 0);
  screen_.CheckNode(form_.Window(), tree_.Window(), L"B");
  EXPECT_EQ(Heard(), Texts({"check a", "check B"}));
  EXPECT_FALSE(list_.Item(1).Checked());
  EXPECT_FALSE(tree_.Find(L"B")->Checked());
}

TEST_P(ViewsContract, AListTellsThatItIsGoingToBeDrawn) {
  int paints = 0;
  list_.Paint = [&paints] { ++paints; };
  form_.Fill({L"a", L"b"});
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

TEST_P(ViewsContract, RowsAndNodesAreFoundAtPoints) {
  form_.Fill({L"a", L"b"});
  form_.Plant();
  EXPECT_EQ(list_.HitTest(300, 600), nullptr);
  form_.Show();
  for (const std::int32_t dpi : {96, 144}) {
    SCOPED_TRACE(dpi);
    screen_.ChangeScale(form_.Window(), dpi);
    const auto rowAt = [this](std::int32_t row) {
      const MouseEvent point = screen_.PointOfRow(form_.Window(), list_.Window(), row);
      return list_.HitTest(point.x, point.y);
    };
    const auto nodeAt = [this](const std::wstring& text) {
      const MouseEvent point = screen_.PointOfNode(form_.Window(), tree_.Window(), text);
      return tree_.HitTest(point.x, point.y);
    };
    EXPECT_EQ(rowAt(1), &list_.Item(2));
    EXPECT_EQ(rowAt(-1), nullptr);
    EXPECT_EQ(nodeAt(L"B"), tree_.Find(L"B"));
    EXPECT_EQ(nodeAt(L""), nullptr);
  }
}

// --- tree

TEST_P(ViewsContract, ATreeShowsWhatItHeldBeforeAndWhatComesLater) {
  form_.Plant();
  tree_.Find(L"A")->SetExpanded(true);
  tree_.Find(L"A1")->SetGhosted(true);
  tree_.SetSelectedItem(tree_.Find(L"B"));
  form_.Show();
  EXPECT_EQ(Nodes(), L"A .A1~ .A2 B*");
  EXPECT_EQ(tree_.Add(nullptr, TreeRelation::kChild, L"B", L"again"), nullptr);
  tree_.Add(tree_.Find(L"A2"), TreeRelation::kPrevious, L"P", L"P");
  tree_.Add(tree_.Find(L"A2"), TreeRelation::kNext, L"N", L"N");
  tree_.Add(tree_.Find(L"A"), TreeRelation::kPrevious, L"0", L"0");
  tree_.Find(L"B")->SetText(L"BB");
  tree_.SetDropHighlight(tree_.Find(L"P"));
  EXPECT_EQ(Nodes(), L"0 A .A1~ .P< .A2 .N BB*");
  tree_.Find(L"A2a")->EnsureVisible();
  EXPECT_EQ(Nodes(), L"0 A .A1~ .P< .A2 ..A2a .N BB*");
  EXPECT_EQ(tree_.Item(6)->Key(), L"A2a");
  EXPECT_EQ(tree_.Item(9), nullptr);
  form_.Realise();
  EXPECT_EQ(Nodes(), L"0 A .A1~ .P< .A2 ..A2a .N BB*");
  tree_.Clear();
  EXPECT_EQ(Nodes(), L"");
  EXPECT_EQ(tree_.Count(), 0);
  TreeNode* root = tree_.Add(nullptr, TreeRelation::kChild, L"R", L"R");
  root->SetExpanded(true);
  tree_.Add(root, TreeRelation::kChild, L"C", L"C");
  EXPECT_EQ(Nodes(), L"R .C") << "opened before it held anything";
  EXPECT_EQ(Heard(), Texts()) << "code raises nothing";
}

TEST_P(ViewsContract, TheSelectionLeavesANodeThatGoesOrCloses) {
  form_.Plant();
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
    EXPECT_EQ(tree_.SelectedItem(), tree_.Find(row.next));
    EXPECT_NE(Nodes().find(row.next + L"*"), std::wstring::npos);
  }
  tree_.Clear();
  form_.Plant();
  tree_.SetSelectedItem(tree_.Find(L"A2a"));
  tree_.Find(L"A")->SetExpanded(false);
  EXPECT_EQ(tree_.SelectedItem(), tree_.Find(L"A"));
  EXPECT_EQ(Nodes(), L"A* B");
  EXPECT_EQ(Heard(), Texts());
  tree_.SetSelectedItem(tree_.Find(L"A2a"));
  screen_.ToggleNode(form_.Window(), tree_.Window(), L"A");
  EXPECT_EQ(Heard(), Texts({"down 1", "collapse A", "node A", "click", "up 1"}));
  EXPECT_EQ(Nodes(), L"A* B");
}

TEST_P(ViewsContract, APressInATreeTellsInOrder) {
  form_.Plant();
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

TEST_P(ViewsContract, TheFocusSelectsANodeWithoutAClick) {
  form_.Plant();
  form_.Show();
  EXPECT_EQ(tree_.SelectedItem(), nullptr);
  tree_.SetFocus();
  EXPECT_EQ(tree_.SelectedItem(), tree_.Find(L"A"));
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(ViewsContract, KeysMoveInATree) {
  form_.Plant();
  form_.Show();
  tree_.SetFocus();
  const struct {
    std::int32_t key;
    std::wstring nodes;
    Texts heard;
  } cases[] = {{kKeyCodeRight, L"A* .A1 .A2 B", {"expand A"}}, {kKeyCodeRight, L"A .A1* .A2 B", {"node A1"}},
               {kKeyCodeDown, L"A .A1 .A2* B", {"node A2"}},   {kKeyCodeEnd, L"A .A1 .A2 B*", {"node B"}},
               {kKeyCodeUp, L"A .A1 .A2* B", {"node A2"}},     {kKeyCodeLeft, L"A* .A1 .A2 B", {"node A"}},
               {kKeyCodeLeft, L"A* B", {"collapse A"}},        {kKeyCodeReturn, L"A* B", {"ok"}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.key);
    Press(row.key);
    EXPECT_EQ(Nodes(), row.nodes);
    EXPECT_EQ(Heard(), row.heard);
  }
}

// --- labels

TEST_P(ViewsContract, ALabelIsEditedOnCommandAlone) {
  form_.Fill({L"one", L"two"});
  form_.Show();
  ClickRow(1);
  ClickRow(1);
  EXPECT_FALSE(screen_.EditsLabel(list_.Window())) << "a second click is no command";
  Heard();
  std::wstring answer;
  bool refuse = false;
  list_.AfterLabelEdit = [&answer, &refuse](bool& Cancel, std::wstring& NewString) {
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
    ASSERT_TRUE(screen_.EditsLabel(list_.Window()));
    EXPECT_TRUE(list_.HasFocus());
    Type(list_, row.typed, row.key);
    EXPECT_FALSE(screen_.EditsLabel(list_.Window()));
    EXPECT_EQ(list_.Item(2).Text(), row.text);
    EXPECT_EQ(screen_.CellOf(list_.Window(), 1, 0), row.text);
  }
  list_.BeforeLabelEdit = [](bool& Cancel) { Cancel = true; };
  list_.StartLabelEdit();
  EXPECT_FALSE(screen_.EditsLabel(list_.Window()));
  EXPECT_EQ(Heard(), Texts()) << "Enter and Esc were the label's own";
  list_.BeforeLabelEdit = {};
  list_.AfterLabelEdit = [](bool&, std::wstring&) { ADD_FAILURE() << "a row that goes takes its edit along"; };
  list_.StartLabelEdit();
  ASSERT_TRUE(screen_.EditsLabel(list_.Window()));
  list_.Clear();
  EXPECT_FALSE(screen_.EditsLabel(list_.Window()));
}

TEST_P(ViewsContract, ALabelOfATreeIsEditedAlike) {
  form_.Plant();
  form_.Show();
  ClickNode(L"B");
  ClickNode(L"B");
  EXPECT_FALSE(screen_.EditsLabel(tree_.Window()));
  Heard();
  for (const bool refuse : {true, false}) {
    tree_.AfterLabelEdit = [refuse](bool& Cancel, std::wstring&) { Cancel = refuse; };
    tree_.StartLabelEdit();
    ASSERT_TRUE(screen_.EditsLabel(tree_.Window()));
    Type(tree_, L"new", kKeyCodeReturn);
    EXPECT_EQ(Nodes(), refuse ? L"A B*" : L"A new*");
  }
  tree_.StartLabelEdit();
  Type(tree_, L"never", kKeyCodeEscape);
  EXPECT_EQ(tree_.Find(L"B")->Text(), L"new");
  EXPECT_EQ(Nodes(), L"A new*");
  tree_.AfterLabelEdit = [](bool&, std::wstring&) { ADD_FAILURE() << "a node that goes takes its edit along"; };
  tree_.StartLabelEdit();
  ASSERT_TRUE(screen_.EditsLabel(tree_.Window()));
  tree_.Remove(*tree_.Find(L"B"));
  EXPECT_FALSE(screen_.EditsLabel(tree_.Window()));
  tree_.AfterLabelEdit = [this](bool&, std::wstring&) { form_.Unload(); };
  tree_.StartLabelEdit();
  Type(tree_, L"last", kKeyCodeReturn);
  EXPECT_FALSE(form_.Loaded());
  EXPECT_EQ(Heard(), Texts());
}

// --- both

TEST_P(ViewsContract, AnEventMayUnloadTheForm) {
  const std::function<void()> unload = [this] { form_.Unload(); };
  const struct {
    std::string what;
    std::function<void()> prepare;
    std::function<void()> act;
  } cases[] = {
      {"item click", [this, unload] { list_.ItemClick = [unload](ListItem&) { unload(); }; }, [this] { ClickRow(1); }},
      {"mouse down", [this, unload] { list_.MouseDown = [unload](const MouseEvent&) { unload(); }; },
       [this] { ClickRow(0, kRightButton); }},
      {"double click", [this, unload] { list_.DblClick = unload; },
       [this] { screen_.DoubleClickRow(form_.Window(), list_.Window(), 1); }},
      {"node click", [this, unload] { tree_.NodeClick = [unload](TreeNode&) { unload(); }; },
       [this] { ClickNode(L"B"); }},
      {"expand", [this, unload] { tree_.Expand = [unload](TreeNode&) { unload(); }; },
       [this] { screen_.ToggleNode(form_.Window(), tree_.Window(), L"A"); }},
  };
  form_.Fill({L"one", L"two"});
  form_.Plant();
  for (const auto& row : cases) {
    SCOPED_TRACE(row.what);
    list_.MouseDown = nullptr;
    list_.ItemClick = nullptr;
    row.prepare();
    form_.Show();
    row.act();
    windows_.DoEvents();
    EXPECT_FALSE(form_.Loaded());
  }
}

TEST_P(ViewsContract, ALongListFillsSortsAndDrawsAtOnce) {
  using Clock = std::chrono::steady_clock;
  constexpr std::int32_t kRows = 5000;
  for (std::int32_t column = 3; column <= 7; ++column) list_.AddColumn(L"More", 1000);
  form_.Show();
  windows_.DoEvents();
  const auto start = Clock::now();
  {
    const ListView::Update update(list_);
    for (std::int32_t row = 0; row < kRows; ++row) {
      const std::wstring number = std::to_wstring(row * 7919 % kRows);
      ListItem* item = list_.Add(L"C" + number, L"Shortcut " + number, 1, 1);
      for (std::size_t column = 1; column < 7; ++column) item->SetSubItem(column, L"C:\\Some folder\\" + number);
    }
  }
  list_.SetSorted(true);
  windows_.DoEvents();
  const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
  RecordProperty("milliseconds", static_cast<int>(took));
  EXPECT_EQ(screen_.CellOf(list_.Window(), kRows - 1, 0), L"Shortcut 999");
  EXPECT_LT(took, 5000) << "a fifth of a second on a machine that has nothing else to do";
}

}  // namespace
}  // namespace burrowmark
