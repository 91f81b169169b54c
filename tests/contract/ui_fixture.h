// Forms to hold the control library to its contract: one of nothing but a few buttons, and one with every kind of
// control.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "tests/contract/system_under_test.h"
#include "ui/animation.h"
#include "ui/check_box.h"
#include "ui/combo_box.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/line.h"
#include "ui/list_view.h"
#include "ui/menu.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"
#include "ui/status_bar.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"
#include "ui/toolbar.h"
#include "ui/tree_view.h"

namespace burrowmark {

using Texts = std::vector<std::string>;
using Titles = ScreenUnderTest::Titles;

constexpr std::int32_t kSystemEntry = 555;

// Hears of its own events.
class HearingForm : public Form {
 public:
  HearingForm(WindowSystem& windows, const std::wstring& caption, const Size& client, Texts& heard)
      : Form(windows, L"frmHearing", client), heard_(heard) {
    SetCaption(caption);
  }

  void Say(const std::string& what) { heard_.push_back(what); }
  std::function<void()> Saying(const std::string& what) {
    return [this, what] { Say(what); };
  }

  std::function<void()> OnLoad;
  std::function<void()> OnResize;
  std::function<void()> OnDeactivate;
  std::function<bool(std::int32_t key, std::int32_t shift)> OnKey;
  bool Refuses = false;
  UnloadMode Asked = UnloadMode::kCode;
  int Resizes = 0;

 protected:
  void Form_Resize() override {
    ++Resizes;
    Raise(OnResize);
  }

 private:
  void Form_Load() override { Raise(OnLoad); }
  void Form_QueryUnload(bool& Cancel, UnloadMode mode) override {
    Asked = mode;
    Cancel = Refuses;
  }
  void Form_Unload(bool&) override { Say(ToUtf8(Caption()) + " unload"); }
  void Form_Deactivate() override { Raise(OnDeactivate); }
  void Form_MouseUp(const MouseEvent& event) override { Say("up at " + std::to_string(event.x)); }
  void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) override {
    if (OnKey && OnKey(KeyCode, Shift)) KeyCode = 0;
  }
  void Form_SystemCommand(std::int32_t id) override { Say("system " + std::to_string(id)); }

  Texts& heard_;
};

constexpr MenuRow kMenus[] = {
    {0, L"mnuFile", L"&File"},
    {1, L"mnuNew", L"&New", {L'N', kCtrlMask | kShiftMask}},
    {1, L"mnuLine", kMenuLine},
    {1, L"mnuQuit", L"&Quit"},
    {0, L"mnuEdit", L"&Edit"},
    {1, L"mnuCut", L"Cu&t", {L'Q', kCtrlMask}},
    {1, L"mnuDelete", L"&Delete", {kKeyCodeDelete}},
    {1, L"mnuArrange", L"&Arrange"},
    {2, L"mnuByName", L"by &Name && Size"},
    {2, L"mnuByDate", L"by &Date"},
    {0, L"mnuPopup", L""},
    {1, L"mnuLook", L"&Look"},
    {1, L"mnuPopupLine", kMenuLine},
    {1, L"mnuCutHere", L"Cu&t", {L'T', kCtrlMask}},
};

const std::vector<ToolbarButtonState> kButtons = {
    {L"up", ToolbarButtonStyle::kButton, L"Up", L"One up", 1, true, {}},
    {L"line", ToolbarButtonStyle::kSeparator, L"", L"", 0, true, {}},
    {L"new", ToolbarButtonStyle::kDropDown, L"New", L"A new one", 2, true, {{L"file", L"File"}, {L"group", L"Group"}}},
    {L"cut", ToolbarButtonStyle::kButton, L"Cut", L"Cut it", 1, false, {}},
};

class FullForm final : public HearingForm {
 public:
  FullForm(WindowSystem& windows, Texts& heard) : HearingForm(windows, L"Full", {9000, 9000}, heard) {
    SetBorder(FormBorder::kSizable);
    AddSystemMenuEntry({kSystemEntry, L"Always Here"});
    menus[L"mnuPopup"].SetVisible(false);
    for (const MenuRow& row : kMenus) menus[row.name].Click = Saying(ToUtf8(row.name));
    tlbMain.SetImages({16, {2, 3}}, {16, {5, 6}});
    tlbMain.ButtonClick = [this](const std::wstring& key) { Say("button " + ToUtf8(key)); };
    tlbMain.ButtonMenuClick = [this](const std::wstring& key) { Say("entry " + ToUtf8(key)); };
    txtLines.SetMultiLine(true);
    cmdOk.SetDefault(true);
    for (TextBox* box : {&txtName, &txtLines, &txtIn}) {
      box->Change = [this, box] { Say(ToUtf8(box->Name()) + "=" + ToUtf8(box->Text())); };
    }
    Listen(chkOne, optA, optB, optC, optOther, cboList, tabAll, cmdIn, cmdOk);
    for (const wchar_t* item : {L"zero", L"one", L"two"}) cboList.AddItem(item);
    ListenToViews();
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

  FormMenus menus{*this, kMenus};
  Label lblName{*this, L"lblName", Box{150, 750, 1500, 255}, L"&Mark:"};
  TextBox txtName{*this, L"txtName", Box{1800, 720, 3000, 315}, L"abcdef"};
  TextBox txtLines{*this, L"txtLines", Box{1800, 1050, 3000, 600}};
  PictureBox picBox{*this, L"picBox", Box{300, 1800, 4500, 1200}};
  Label lblIn{picBox, L"lblIn", Box{150, 150, 900, 255}, L"&In:"};
  TextBox txtIn{picBox, L"txtIn", Box{1500, 150, 1500, 315}};
  CommandButton cmdIn{picBox, L"cmdIn", Box{1500, 600, 1215, 375}, L"&Press"};
  CheckBox chkOne{*this, L"chkOne", Box{300, 3000, 2400, 255}, L"&Check"};
  Line linUnder{*this, L"linUnder", Box{300, 3300, 2400, 30}};
  Frame fraGroup{*this, L"fraGroup", Box{300, 3450, 4500, 1500}, L"&Group"};
  OptionButton optA{fraGroup, L"optA", Box{150, 300, 2400, 255}, L"&A"};
  OptionButton optB{fraGroup, L"optB", Box{150, 600, 2400, 255}, L"&B"};
  OptionButton optC{fraGroup, L"optC", Box{150, 900, 2400, 255}, L"C"};
  OptionButton optOther{*this, L"optOther", Box{300, 5000, 2400, 255}, L"Other"};
  ComboBox cboList{*this, L"cboList", Box{300, 5400, 2400, 345}};
  TabStrip tabAll{*this, L"tabAll", Box{5000, 750, 3600, 2400}, {L"First", L"Second", L"Third"}};
  TreeView tree{*this, L"tree", Box{300, 5850, 3000, 2400}};
  ListView list{*this, L"list", Box{3450, 5250, 5400, 3000}};
  CommandButton cmdOk{*this, L"cmdOk", Box{5000, 4500, 1215, 375}, L"&OK"};
  Animation aniFilm{*this, L"aniFilm", Box{5000, 3300, 1500, 900}};
  Toolbar tlbMain{*this, L"tlbMain", kButtons};
  StatusBar stbMain{*this, L"stbMain", {{L"First", 0, 1500}, {L"Spring", 2, 0}, {L"Last", 0, 1500}}};

 private:
  template <typename... Kinds>
  void Listen(Kinds&... controls) {
    ((controls.Click = Saying(ToUtf8(controls.Name()))), ...);
  }
  void ListenToViews() {
    list.AddColumn(L"Name", 1500);
    list.AddColumn(L"Type", 1500);
    list.SetLabelEdit(true);
    tree.SetLabelEdit(true);
    list.ItemClick = [this](ListItem& item) { Say("item " + ToUtf8(item.Text())); };
    list.ItemCheck = [this](ListItem& item) { Say("check " + ToUtf8(item.Text())); };
    list.ColumnClick = [this](std::int32_t column) { Say("column " + std::to_string(column)); };
    tree.NodeClick = [this](TreeNode& node) { Say("node " + ToUtf8(node.Text())); };
    tree.NodeCheck = [this](TreeNode& node) { Say("check " + ToUtf8(node.Text())); };
    tree.Expand = [this](TreeNode& node) { Say("expand " + ToUtf8(node.Text())); };
    tree.Collapse = [this](TreeNode& node) { Say("collapse " + ToUtf8(node.Text())); };
    list.Click = tree.Click = Saying("click");
    list.DblClick = tree.DblClick = Saying("double click");
    list.MouseDown = tree.MouseDown = [this](const MouseEvent& event) { Say("down " + std::to_string(event.button)); };
    list.MouseUp = tree.MouseUp = [this](const MouseEvent& event) { Say("up " + std::to_string(event.button)); };
  }
  void Form_Resize() override {
    tlbMain.AlignTop(Client());
    stbMain.AlignBottom(Client());
    HearingForm::Form_Resize();
  }
};

class UiTest : public ContractTest {
 protected:
  ~UiTest() override {
    EXPECT_EQ(screen_.Complaints(), "");
    windows_.DoEvents();
  }
  // Takes what was heard so far.
  Texts Heard() { return std::exchange(heard_, {}); }

  // A key, or a character with Alt: what it raises, and what has the focus then.
  struct KeyCase {
    std::int32_t key;
    std::int32_t shift;
    Texts heard;
    const Control* focus;
  };
  void CheckKeys(const Form& form, const std::vector<KeyCase>& cases) {
    for (const KeyCase& row : cases) {
      SCOPED_TRACE(&row - cases.data());
      if (row.shift == kAltMask) {
        screen_.PressAlt(form.Window(), static_cast<wchar_t>(row.key));
      } else {
        screen_.Press(form.Window(), row.key, row.shift);
      }
      EXPECT_EQ(Heard(), row.heard);
      EXPECT_EQ(form.ActiveControl(), row.focus);
    }
  }

  ScreenUnderTest& screen_ = system_->screen();
  WindowSystem& windows_ = platform_.windows;
  Texts heard_;
};

// With one form of everything.
class FullFormTest : public UiTest {
 protected:
  void Press(std::int32_t key, std::int32_t shift = 0) { screen_.Press(form_.Window(), key, shift); }
  void Type(const std::wstring& text) { screen_.Type(form_.Window(), text); }
  void Click(const Control& control) { screen_.Click(control.Window()); }
  std::wstring Rows() { return screen_.RowsOf(list_.Window()); }
  std::wstring Nodes() { return screen_.NodesOf(tree_.Window()); }
  void ClickRow(std::int32_t row, std::int32_t button = kLeftButton, std::int32_t shift = 0) {
    screen_.ClickRow(list_.Window(), row, button, shift);
  }
  void ClickNode(const std::wstring& text, std::int32_t button = kLeftButton) {
    screen_.ClickNode(tree_.Window(), text, button);
  }

  FullForm form_{windows_, heard_};
  ListView& list_ = form_.list;
  TreeView& tree_ = form_.tree;
};

}  // namespace burrowmark
