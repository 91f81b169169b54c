#include <algorithm>
#include <iterator>
#include <limits>

#include "core/form_state.h"
#include "organize/frm_organize.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kEdge = 20;          // twips around the panes
constexpr std::int32_t kSplitter = 60;      // between them
constexpr std::int32_t kMargin = 120;       // what a pane leaves free at its right
constexpr std::int32_t kNarrowest = 100;    // a kept width of the tree up to this is none
constexpr std::int32_t kAlwaysOnTop = 555;  // the command's number in the window's own menu
constexpr std::int32_t kSmallButton = 16;   // pixels at 96 dots per inch
constexpr std::int32_t kLargeButton = 24;

// Texts of the toolbar's buttons, separators not counted.
constexpr const wchar_t* kToolbarTexts[] = {L"New",  L"Change", L"Up",     L"Open",      L"Cut",
                                            L"Copy", L"Paste",  L"Delete", L"Properties"};

std::int32_t Positive(std::int32_t length) { return std::max(length, 0); }

}  // namespace

// --- layout

void frmOrganize::Form_Resize() {
  const Size area = Client();
  if (area.width <= 0 || area.height <= 0) return;
  tlbMain.AlignTop(area);
  stbMain.AlignBottom(area);
  Box tree = TreeView1.Place();
  tree.left = kEdge;
  tree.top = tlbMain.Place().height + kEdge;
  if (!TreeWidthSet_) tree.width = Positive(area.width * 2 / 7 - kMargin);
  tree.height = Positive(area.height - tree.top - (stbMain.Visible() ? stbMain.Place().height : 0));
  TreeView1.SetPlace(tree);
  ArrangeControls();
  SetSplitterBounds();
  Picture1.SetPlace({Picture1.Place().left, tree.top, SplitterRight_ - SplitterLeft_, tree.height});
}

void frmOrganize::ArrangeControls() {
  const Box& tree = TreeView1.Place();
  const std::int32_t strip = picInfoMain.Place().height;
  const std::int32_t left = tree.left + tree.width + kSplitter;
  const std::int32_t width = Positive(Client().width - left - kMargin);
  ListView1.SetPlace({left, tree.top + strip, width, Positive(tree.height - strip)});
  picInfoMain.SetPlace({left, tree.top, width, strip});
  const auto centred = [strip](Box box) {
    box.top = (strip - box.height) / 2;
    return box;
  };
  picInfo.SetPlace(centred(picInfo.Place()));
  Box label = centred(lblInfo.Place());
  label.width = width;
  lblInfo.SetPlace(label);
  txtInfoDrives.SetPlace(ListView1.Place());
}

void frmOrganize::SetSplitterBounds() {
  SplitterLeft_ = TreeView1.Place().left + TreeView1.Place().width;
  SplitterRight_ = ListView1.Place().left;
}

void frmOrganize::SetStatusBarVisible(bool visible) {
  layout_.StatusBar = visible;
  menus_[L"mnuViewStatBar"].SetChecked(visible);
  stbMain.SetVisible(visible);
  Form_Resize();
}

void frmOrganize::LoadLayout() {
  layout_ = LoadOrganizeLayout(app_, ListView1);
  SetStatusBarVisible(layout_.StatusBar);
  ApplyView(layout_.View);
  SetViewCheckMarks(layout_.View);
  menus_[L"mnuViewAllLeftPane"].SetChecked(layout_.AllLeftPane);
  if (layout_.TreeWidth > kNarrowest) {
    Box tree = TreeView1.Place();
    tree.width = layout_.TreeWidth;
    TreeView1.SetPlace(tree);
    TreeWidthSet_ = true;
  }
  SetToolbarText(layout_.ToolbarText);
  SetToolbarImages(layout_.ToolbarLarge);
}

void frmOrganize::SaveLayout() {
  SaveFormState(app_, *this, false);
  constexpr std::int32_t kWidest = std::numeric_limits<std::int16_t>::max();
  layout_.TreeWidth = static_cast<std::int16_t>(std::min(TreeView1.Place().width, kWidest));
  SaveOrganizeLayout(app_, layout_, ListView1);
}

// --- the splitter

bool frmOrganize::IsOverSplitter(std::int32_t x) const { return x >= SplitterLeft_ && x <= SplitterRight_; }

void frmOrganize::Form_MouseDown(const MouseEvent& event) {
  if (!IsOverSplitter(event.x) || SplitterDragging_) return;
  Box bar = Picture1.Place();
  bar.left = event.x;
  Picture1.SetPlace(bar);
  Picture1.SetVisible(true);
  SplitterDragging_ = true;
}

void frmOrganize::Form_MouseMove(const MouseEvent& event) {
  if (IsOverSplitter(event.x)) {
    SetMousePointer(kPointerSizeWE);
    SplitterCursorSet_ = true;
  } else if (!SplitterDragging_) {
    ResetSplitterCursor();
  }
  if (!SplitterDragging_) return;
  Box bar = Picture1.Place();
  bar.left = event.x;
  Picture1.SetPlace(bar);
}

void frmOrganize::Form_MouseUp(const MouseEvent& event) {
  if (!SplitterDragging_) return;
  Picture1.SetVisible(false);
  SplitterDragging_ = false;
  TreeWidthSet_ = true;
  Box tree = TreeView1.Place();
  const std::int32_t room = Positive(Client().width - tree.left - kSplitter - kMargin);
  tree.width = std::clamp(event.x - tree.left, 0, room);
  TreeView1.SetPlace(tree);
  ArrangeControls();
  SetSplitterBounds();
}

void frmOrganize::ResetSplitterCursor() {
  if (std::exchange(SplitterCursorSet_, false)) SetMousePointer(kPointerDefault);
}

// --- toolbar

void frmOrganize::SetToolbarImages(bool large) {
  layout_.ToolbarLarge = large;
  menus_[L"mnuViewTlbButtons"].SetChecked(large);
  menus_[L"mnuToolbarButtons"].SetChecked(large);
  const std::int32_t size = large ? kLargeButton : kSmallButton;
  tlbMain.SetImages({size, {21, 22, 23, 24, 25, 26, 27, 28, 29}}, {size, {31, 32, 33, 34, 35, 36, 37, 38, 39}});
}

void frmOrganize::SetToolbarText(bool on) {
  layout_.ToolbarText = on;
  menus_[L"mnuViewTlbText"].SetChecked(on);
  menus_[L"mnuToolbarText"].SetChecked(on);
  std::size_t text = 0;
  for (std::size_t button = 0; button < tlbMain.Buttons().size(); ++button) {
    if (tlbMain.Buttons()[button].style == ToolbarButtonStyle::kSeparator) continue;
    if (text >= std::size(kToolbarTexts)) return;
    tlbMain.SetButtonText(button, on ? kToolbarTexts[text] : L"", on ? L"" : kToolbarTexts[text]);
    ++text;
  }
}

void frmOrganize::ToggleToolbarImages() {
  SetToolbarImages(!layout_.ToolbarLarge);
  Form_Resize();
}

void frmOrganize::ToggleToolbarText() {
  SetToolbarText(!layout_.ToolbarText);
  Form_Resize();
}

// --- the window's own menu

void frmOrganize::AddAlwaysOnTopItem() { AddSystemMenuEntry({kAlwaysOnTop, L"Always On Top", false}); }

void frmOrganize::StayOnTop(bool on) {
  app_.AlwaysOnTop = on;
  SetSystemMenuChecked(kAlwaysOnTop, on);
  SetTopMost(on);
}

void frmOrganize::Form_SystemCommand(std::int32_t id) {
  if (id == kAlwaysOnTop) StayOnTop(!app_.AlwaysOnTop);
}

}  // namespace burrowmark
