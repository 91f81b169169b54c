// What holds for every kind of control: its window shows its state whenever it is made, and a form may go in any event.
#include <algorithm>

#include "tests/contract/ui_fixture.h"

namespace burrowmark {
namespace {

using Screen = ScreenUnderTest;
using Look = std::function<std::wstring(Screen&, FullForm&)>;
using Do = std::function<void()>;
using Hook = std::function<void(FullForm&, const Do& unload)>;
using Act = std::function<void(Screen&, FullForm&)>;

std::wstring Joined(const Titles& texts) {
  std::wstring all;
  for (const std::wstring& text : texts) all += (all.empty() ? L"" : L"|") + text;
  return all;
}

std::wstring Numbers(std::initializer_list<std::int32_t> numbers) {
  std::wstring all;
  for (const std::int32_t number : numbers) all += (all.empty() ? L"" : L" ") + std::to_wstring(number);
  return all;
}

// --- what shows of a control, by a question that its window alone answers

template <typename Kind>
Look Text(Kind FullForm::*control) {
  return [control](Screen& screen, FullForm& form) { return screen.TextOf((form.*control).Window()); };
}
template <typename Kind, typename Answer>
Look Number(Kind FullForm::*control, Answer (Screen::*question)(WindowHandle)) {
  return [=](Screen& screen, FullForm& form) {
    return Numbers({static_cast<std::int32_t>((screen.*question)((form.*control).Window()))});
  };
}
template <typename Kind>
Look Place(Kind FullForm::*control) {
  return [control](Screen& screen, FullForm& form) {
    const Rect place = screen.PlaceOf((form.*control).Window());
    return Numbers({place.left, place.top, place.right, place.bottom});
  };
}
// Of the name's text box, once a text was typed into it.
Look Typed(const wchar_t* text) {
  return [text](Screen& screen, FullForm& form) {
    form.txtName.SetFocus();
    form.txtName.SetSelection(0, 0);
    screen.Type(form.Window(), text);
    return screen.TextOf(form.txtName.Window());
  };
}
Look Menu(const Titles& path) {
  return [path](Screen& screen, FullForm& form) { return Joined(screen.MenuTexts(form.Window(), path)); };
}
const Look kCaption = [](Screen& s, FullForm& f) { return s.TextOf(f.Window()); };
const Look kSystemMenu = [](Screen& s, FullForm& f) { return Joined(s.SystemMenuTexts(f.Window())); };
const Look kRows = [](Screen& s, FullForm& f) { return s.RowsOf(f.list.Window()); };
const Look kNodes = [](Screen& s, FullForm& f) { return s.NodesOf(f.tree.Window()); };
const Look kColumns = [](Screen& s, FullForm& f) { return s.ColumnsOf(f.list.Window()); };
const Look kCells = [](Screen& s, FullForm& f) {
  return s.CellOf(f.list.Window(), 0, 1) + s.CellOf(f.list.Window(), 3, 1);
};
const Look kButtonTexts = [](Screen& s, FullForm& f) { return Joined(s.ButtonTexts(f.tlbMain.Window())); };
const Look kPanels = [](Screen& s, FullForm& f) { return Joined(s.PanelTexts(f.stbMain.Window())); };
const Look kSelected = [](Screen& s, FullForm& f) {
  const auto [start, end] = s.SelectedIn(f.txtName.Window());
  return Numbers({start, end, f.txtName.SelLength()});
};
const Look kSecondEntry = [](Screen& s, FullForm& f) {
  s.ChooseEntry(f.cboList.Window(), 1);
  return s.TextOf(f.cboList.Window());
};

// Code makes the change, and the screen shows it. `heard` is all that it raises: the same value again does nothing.
struct Change {
  std::function<void(FullForm&)> make;
  Look look;
  std::wstring shows;
  Texts heard = {};
};

const std::vector<Change> kChanges = {
    {[](FullForm& f) { f.SetCaption(L"Now"); }, kCaption, L"Now"},
    {[](FullForm& f) { f.SetBorder(FormBorder::kFixedDialog); }, kCaption, L"Full"},
    {[](FullForm& f) { f.SetSystemMenuChecked(kSystemEntry, true), f.SetSystemMenuChecked(1, true); }, kSystemMenu,
     L"[x] Always Here"},
    {[](FullForm& f) {
       f.AddSystemMenuEntry({560, L"Another"});
     },
     kSystemMenu, L"Always Here|Another"},
    {[](FullForm& f) { f.lblName.SetCaption(L"&Later"); }, Text(&FullForm::lblName), L"&Later"},
    {[](FullForm& f) { f.cmdOk.SetCaption(L"&Go"); }, Text(&FullForm::cmdOk), L"&Go"},
    {[](FullForm& f) { f.cmdOk.SetEnabled(false); }, Number(&FullForm::cmdOk, &Screen::IsEnabled), L"0"},
    {[](FullForm& f) { f.cmdOk.SetVisible(false); }, Number(&FullForm::cmdOk, &Screen::IsShown), L"0"},
    {[](FullForm& f) {
       f.cmdOk.SetPlace({1500, 1800, 1500, 450});
     },
     Place(&FullForm::cmdOk), L"100 120 200 150"},
    {[](FullForm& f) { f.cmdIn.SetDefault(true); }, Number(&FullForm::cmdIn, &Screen::IsDefault), L"1"},
    {[](FullForm& f) { f.txtName.SetText(L"one"), f.txtName.SetText(L"one"); },
     Text(&FullForm::txtName),
     L"one",
     {"txtName=one"}},
    {[](FullForm& f) { f.txtLines.SetText(L"a\nb\r\nc\rd"), f.txtLines.SetText(L"a\nb\nc\nd"); },
     Text(&FullForm::txtLines),
     L"a\r\nb\r\nc\r\nd",
     {"txtLines=a\r\nb\r\nc\r\nd"}},
    {[](FullForm& f) { f.txtName.SetSelection(2, 99); }, kSelected, L"2 6 4"},
    {[](FullForm& f) { f.txtName.SetReadOnly(true); }, Typed(L"9"), L"abcdef"},
    {[](FullForm& f) { f.txtName.SetMaxLength(7); }, Typed(L"xyz"), L"xabcdef"},
    {[](FullForm& f) { f.picBox.SetEnabled(false); }, Number(&FullForm::picBox, &Screen::IsEnabled), L"0"},
    {[](FullForm& f) { f.chkOne.SetValue(kGrayed), f.chkOne.SetValue(kGrayed); },
     Number(&FullForm::chkOne, &Screen::CheckOf),
     L"2",
     {"chkOne"}},
    {[](FullForm& f) { f.optA.SetValue(true), f.optC.SetValue(true), f.optC.SetValue(true); },
     Number(&FullForm::optC, &Screen::CheckOf),
     L"1",
     {"optA", "optC"}},
    {[](FullForm& f) { f.optA.SetValue(true), f.optC.SetValue(true); },
     Number(&FullForm::optA, &Screen::CheckOf),
     L"0",
     {"optA", "optC"}},
    {[](FullForm& f) { f.optA.SetValue(true), f.optA.SetValue(false); },
     Number(&FullForm::optA, &Screen::CheckOf),
     L"0",
     {"optA"}},
    {[](FullForm& f) { f.cboList.SetListIndex(2), f.cboList.SetListIndex(2), f.cboList.SetListIndex(7); },
     Text(&FullForm::cboList),
     L"two",
     {"cboList"}},
    {[](FullForm& f) { f.cboList.Clear(), f.cboList.AddItem(L"new"), f.cboList.AddItem(L"more"); }, kSecondEntry,
     L"more"},
    {[](FullForm& f) { f.tabAll.SetSelectedTab(3), f.tabAll.SetSelectedTab(3), f.tabAll.SetSelectedTab(4); },
     Number(&FullForm::tabAll, &Screen::TabOf),
     L"2",
     {"tabAll"}},
    {[](FullForm& f) { f.fraGroup.SetCaption(L"Other"); }, Text(&FullForm::fraGroup), L"Other"},
    {[](FullForm& f) {
       f.fraGroup.SetPlace({600, 3450, 4500, 1500});
     },
     Place(&FullForm::optA), L"50 250 210 267"},
    {[](FullForm& f) { f.aniFilm.Open(L"C:\\missing.avi"), f.aniFilm.Play(); },
     Number(&FullForm::aniFilm, &Screen::IsShown), L"1"},
    // lists and trees
    {[](FullForm& f) {
       f.list.Item(1).SetText(L"ONE");
       f.list.Item(1).SetSelected(true);
       f.list.Item(2).SetGhosted(true);
       f.list.SetSelectedItem(&f.list.Item(3));
       f.list.SetDropHighlight(&f.list.Item(2));
       EXPECT_EQ(f.list.Add(L"Ctwo", L"again"), nullptr);
       f.list.Add(L"Cfour", L"four")->SetChecked(true);
     },
     kRows, L"ONE+ two~< three+* fourv"},
    {[](FullForm& f) {
       f.list.SetSelectedItem(&f.list.Item(2));
       f.list.SetAllSelected(true);
       EXPECT_TRUE(f.list.Remove(L"Ctwo"));
       EXPECT_FALSE(f.list.Remove(L"Ctwo"));
       EXPECT_EQ(f.list.SelectedItem(), nullptr) << "the current row goes to nobody";
     },
     kRows, L"one+ three+"},
    {[](FullForm& f) { f.list.SetSelectedItem(&f.list.Item(1)), f.list.SetSelectedItem(nullptr); }, kRows,
     L"one+ two three"},
    {[](FullForm& f) { f.list.SetSelectedItem(&f.list.Item(1)), f.list.SetSorted(true); }, kRows, L"one+* three two"},
    {[](FullForm& f) { f.list.Clear(); }, kRows, L""},
    {[](FullForm& f) {
       f.list.Item(1).SetSubItem(1, L"1st");
       f.list.Add(L"Cfour", L"four")->SetSubItem(1, L"4th");
     },
     kCells, L"1st4th"},
    {[](FullForm& f) {
       f.list.SetColumnText(1, L"Name+"), f.list.SetColumnWidth(2, 3000), f.list.AddColumn(L"C", 750);
     },
     kColumns, L"Name+:100 Type:200 C:50"},
    {[](FullForm& f) {
       EXPECT_EQ(f.tree.Add(nullptr, TreeRelation::kChild, L"B", L"again"), nullptr);
       f.tree.Add(f.tree.Find(L"A2"), TreeRelation::kPrevious, L"P", L"P");
       f.tree.Add(f.tree.Find(L"A2"), TreeRelation::kNext, L"N", L"N")->SetChecked(true);
       f.tree.Add(f.tree.Find(L"A"), TreeRelation::kPrevious, L"0", L"0");
       f.tree.Find(L"A1")->SetGhosted(true);
       f.tree.Find(L"B")->SetText(L"BB");
       f.tree.SetSelectedItem(f.tree.Find(L"B"));
       f.tree.SetDropHighlight(f.tree.Find(L"P"));
       f.tree.Find(L"A2a")->EnsureVisible();
       EXPECT_EQ(f.tree.Item(6)->Key(), L"A2a");
     },
     kNodes, L"0 A .A1~ .P< .A2 ..A2a .Nv BB*"},
    {[](FullForm& f) { f.tree.SetSelectedItem(f.tree.Find(L"A2a")); }, kNodes, L"A .A1 .A2 ..A2a* B"},
    {[](FullForm& f) { f.tree.SetSelectedItem(f.tree.Find(L"A2a")), f.tree.Find(L"A")->SetExpanded(false); }, kNodes,
     L"A* B"},
    {[](FullForm& f) {
       f.tree.Clear();
       TreeNode* root = f.tree.Add(nullptr, TreeRelation::kChild, L"R", L"R");
       root->SetExpanded(true);  // before it holds anything
       f.tree.Add(root, TreeRelation::kChild, L"C", L"C");
     },
     kNodes, L"R .C"},
    // menus and bars
    {[](FullForm& f) {
       f.menus[L"mnuFile"].SetVisible(false);
       f.menus[L"mnuEdit"].SetCaption(L"&Change");
       f.menus[L"mnuEdit"].SetEnabled(false);
     },
     Menu({}), L"Change (disabled)"},
    {[](FullForm& f) { f.menus[L"mnuCut"].SetEnabled(false), f.menus[L"mnuDelete"].SetVisible(false); },
     Menu({L"Edit"}), L"Cut\tCtrl+Q (disabled)|Arrange"},
    {[](FullForm& f) {
       f.menus[L"mnuByName"].SetChecked(true);
       f.menus[L"mnuByDate"].SetRadio(true);
       f.menus[L"mnuByDate"].SetChecked(true);
     },
     Menu({L"Edit", L"Arrange"}), L"[x] by Name & Size|(o) by Date"},
    {[](FullForm& f) {
       f.tlbMain.SetButtonEnabled(L"cut", true);
       f.tlbMain.SetButtonEnabled(L"up", false);
       f.tlbMain.SetButtonEnabled(L"missing", true);
       f.tlbMain.SetButtonText(0, L"Upwards", L"Tip");
     },
     kButtonTexts, L"Upwards (disabled)||New|Cut"},
    {[](FullForm& f) { f.stbMain.SetPanelText(2, L"Middle"), f.stbMain.SetPanelText(4, L"None"); }, kPanels,
     L"First|Middle|Last"},
};

class KindsContract : public UiTest {};

TEST_F(KindsContract, AWindowShowsTheStateAndSoDoesOneThatIsMadeAnew) {
  for (std::size_t row = 0; row < kChanges.size(); ++row) {
    SCOPED_TRACE(row);
    const auto& [make, look, shows, heard] = kChanges[row];
    for (const bool shown : {false, true}) {
      FullForm form(windows_, heard_);
      form.list.SetCheckBoxes(true);
      form.tree.SetCheckBoxes(true);
      form.Fill({L"one", L"two", L"three"});
      form.Plant();
      if (shown) form.Show();
      make(form);
      EXPECT_EQ(Heard(), heard);
      if (!shown) continue;
      EXPECT_EQ(look(screen_, form), shows);
      Heard();
      form.Realise();
      EXPECT_EQ(Heard(), Texts()) << "a window raises nothing by being made";
      EXPECT_EQ(look(screen_, form), shows);
      Heard();
    }
  }
}

// --- unloading

// The form goes in an event of one of its controls.
template <typename Kind, typename Owner, typename... Arguments>
Hook In(Kind FullForm::*control, std::function<void(Arguments...)> Owner::*event) {
  return [=](FullForm& form, const Do& unload) { (form.*control).*event = [unload](Arguments...) { unload(); }; };
}
Hook InMenu(const wchar_t* name) {
  return [name](FullForm& form, const Do& unload) { form.menus[name].Click = unload; };
}
template <typename Kind>
Act Click(Kind FullForm::*control) {
  return [control](Screen& screen, FullForm& form) { screen.Click((form.*control).Window()); };
}
// With the focus on that control.
template <typename Kind>
Act Press(Kind FullForm::*control, std::int32_t key, std::int32_t shift = 0) {
  return [=](Screen& screen, FullForm& form) {
    (form.*control).SetFocus();
    screen.Press(form.Window(), key, shift);
  };
}

const struct {
  Hook hook;
  Act act;
} kUnloads[] = {
    {[](FullForm& f, const Do& unload) { f.OnLoad = unload; }, [](Screen&, FullForm&) {}},
    {[](FullForm& f, const Do& unload) { f.OnResize = [&f, unload] { f.Visible() ? unload() : void(); }; },
     [](Screen& s, FullForm& f) { s.Resize(f.Window(), 333, 222); }},
    {[](FullForm& f, const Do& unload) {
       f.SetKeyPreview(true);
       f.OnKey = [unload](std::int32_t, std::int32_t) { return unload(), true; };
     },
     Press(&FullForm::cmdOk, kKeyCodeTab)},
    {In(&FullForm::cmdOk, &CommandButton::Click), Click(&FullForm::cmdOk)},
    {In(&FullForm::cmdOk, &CommandButton::Click), Press(&FullForm::cmdOk, kKeyCodeSpace)},
    {In(&FullForm::cmdOk, &CommandButton::Click), Press(&FullForm::txtName, kKeyCodeReturn)},
    {[](FullForm& f, const Do& unload) { f.cmdIn.SetCancel(true), f.cmdIn.Click = unload; },
     Press(&FullForm::txtName, kKeyCodeEscape)},
    {In(&FullForm::cmdIn, &CommandButton::Click), [](Screen& s, FullForm& f) { s.PressAlt(f.Window(), L'p'); }},
    {In(&FullForm::txtLines, &Control::GotFocus), Press(&FullForm::txtName, kKeyCodeTab)},
    {In(&FullForm::txtName, &TextBox::Change), [](Screen& s, FullForm& f) { s.Type(f.Window(), L"x"); }},
    {In(&FullForm::chkOne, &CheckBox::Click), Click(&FullForm::chkOne)},
    {In(&FullForm::optB, &OptionButton::Click), Click(&FullForm::optB)},
    {In(&FullForm::optB, &OptionButton::Click), Press(&FullForm::optA, kKeyCodeDown)},
    {In(&FullForm::cboList, &ComboBox::Click), [](Screen& s, FullForm& f) { s.ChooseEntry(f.cboList.Window(), 1); }},
    {In(&FullForm::tabAll, &TabStrip::Click), [](Screen& s, FullForm& f) { s.ChooseTab(f.tabAll.Window(), 1); }},
    {In(&FullForm::tabAll, &TabStrip::Click), Press(&FullForm::cmdOk, kKeyCodeTab, kCtrlMask)},
    {In(&FullForm::list, &ListView::ItemClick), [](Screen& s, FullForm& f) { s.ClickRow(f.list.Window(), 1); }},
    {In(&FullForm::list, &Control::MouseDown),
     [](Screen& s, FullForm& f) { s.ClickRow(f.list.Window(), 0, kRightButton); }},
    {In(&FullForm::list, &ListView::DblClick), [](Screen& s, FullForm& f) { s.DoubleClickRow(f.list.Window(), 1); }},
    {In(&FullForm::tree, &TreeView::NodeClick), [](Screen& s, FullForm& f) { s.ClickNode(f.tree.Window(), L"B"); }},
    {In(&FullForm::tree, &TreeView::Expand), [](Screen& s, FullForm& f) { s.ToggleNode(f.tree.Window(), L"A"); }},
    {In(&FullForm::tree, &TreeView::AfterLabelEdit),
     [](Screen& s, FullForm& f) {
       f.tree.SetSelectedItem(f.tree.Find(L"B"));
       f.tree.StartLabelEdit();
       s.TypeLabel(f.tree.Window(), L"last");
       s.Press(f.Window(), kKeyCodeReturn);
     }},
    {InMenu(L"mnuQuit"),
     [](Screen& s, FullForm& f) {
       s.ChooseMenu(f.Window(), {L"File", L"Quit"});
     }},
    {InMenu(L"mnuEdit"), [](Screen& s, FullForm& f) { s.MenuTexts(f.Window(), {L"Edit"}); }},
    {InMenu(L"mnuLook"),
     [](Screen& s, FullForm& f) {
       Titles seen;
       s.NextPopup(L"Look", seen);
       f.menus.PopupMenu(L"mnuPopup");
     }},
    {In(&FullForm::tlbMain, &Toolbar::ButtonClick),
     [](Screen& s, FullForm& f) { s.ClickButton(f.tlbMain.Window(), 0); }},
};

TEST_F(KindsContract, AFormMayGoInAnyOfItsEvents) {
  int number = 0;
  for (const auto& row : kUnloads) {
    SCOPED_TRACE(number++);
    FullForm form(windows_, heard_);
    form.Fill({L"one", L"two"});
    form.Plant();
    row.hook(form, [&form] { form.Unload(); });
    form.Show();
    const WindowHandle window = form.Window();
    row.act(screen_, form);
    windows_.DoEvents();
    EXPECT_FALSE(form.Loaded() || form.Visible());
    EXPECT_FALSE(window != 0 && screen_.Exists(window));
    const Texts heard = Heard();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "Full unload"), 1);
    EXPECT_EQ(heard.back(), "Full unload") << "nothing comes of a form that has gone";
  }
}

}  // namespace
}  // namespace burrowmark
