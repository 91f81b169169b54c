#include <algorithm>
#include <iterator>
#include <limits>

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
  strip_.stbMain.AlignBottom(area);
  Box tree = tree_.View.Place();
  tree.left = kEdge;
  tree.top = tlbMain.Place().height + kEdge;
  if (!TreeWidthSet_) tree.width = Positive(area.width * 2 / 7 - kMargin);
  tree.height = Positive(area.height - tree.top - (strip_.stbMain.Visible() ? strip_.stbMain.Place().height : 0));
  tree_.View.SetPlace(tree);
  ArrangeControls();
}

// All but the tree stand where the tree leaves room.
void frmOrganize::ArrangeControls() {
  const Box& tree = tree_.View.Place();
  const std::int32_t strip = strip_.picInfoMain.Place().height;
  const std::int32_t left = tree.left + tree.width + kSplitter;
  const std::int32_t width = Positive(Client().width - left - kMargin);
  list_.SetPlace({left, tree.top + strip, width, Positive(tree.height - strip)});
  strip_.SetPlace(left, tree.top, width);
  splitter_.SetBounds(tree.left + tree.width, left, tree.top, tree.height);
}

void frmOrganize::SetTreeWidth(std::int32_t width) {
  Box tree = tree_.View.Place();
  tree.width = width;
  tree_.View.SetPlace(tree);
  TreeWidthSet_ = true;
}

void frmOrganize::Form_MouseUp(const MouseEvent& event) {
  const std::optional<std::int32_t> x = splitter_.MouseUp(event);
  if (!x) return;
  const std::int32_t left = tree_.View.Place().left;
  SetTreeWidth(std::clamp(*x - left, 0, Positive(Client().width - left - kSplitter - kMargin)));
  ArrangeControls();
}

void frmOrganize::SetStatusBarVisible(bool visible) {
  layout_.StatusBar = visible;
  menus_[L"mnuViewStatBar"].SetChecked(visible);
  strip_.stbMain.SetVisible(visible);
  Form_Resize();
}

void frmOrganize::LoadLayout() {
  layout_ = LoadOrganizeLayout(app_, list_.View);
  tree_.AllLeft = layout_.AllLeftPane;
  SetStatusBarVisible(layout_.StatusBar);
  ApplyView(layout_.View);
  SetViewCheckMarks(layout_.View);
  menus_[L"mnuViewAllLeftPane"].SetChecked(tree_.AllLeft);
  if (layout_.TreeWidth > kNarrowest) SetTreeWidth(layout_.TreeWidth);
  SetToolbarText(layout_.ToolbarText);
  SetToolbarImages(layout_.ToolbarLarge);
}

void frmOrganize::SaveLayout() {
  constexpr std::int32_t kWidest = std::numeric_limits<std::int16_t>::max();
  layout_.TreeWidth = static_cast<std::int16_t>(std::min(tree_.View.Place().width, kWidest));
  layout_.AllLeftPane = tree_.AllLeft;
  SaveOrganizeLayout(app_, layout_, list_.View);
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
