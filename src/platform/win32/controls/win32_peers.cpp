#include "platform/win32/controls/win32_peers.h"

#include <commctrl.h>

#include <stdexcept>

#include "platform/win32/controls/bar_peers.h"
#include "platform/win32/controls/check_peers.h"
#include "platform/win32/controls/combo_box_peer.h"
#include "platform/win32/controls/control_peers.h"
#include "platform/win32/controls/list_view_peer.h"
#include "platform/win32/controls/tab_strip_peer.h"
#include "platform/win32/controls/text_box_peer.h"
#include "platform/win32/controls/tree_view_peer.h"
#include "platform/win32/handles.h"

namespace burrowmark {
namespace {

HBRUSH BackgroundOfForms() { return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1)); }

}  // namespace

Win32Peers::Win32Peers(const ScreenDpi& dpi)
    : dpi_(dpi),
      class_(FormWindow::kClassName, FormWindow::Procedure, BackgroundOfForms(), ::LoadCursorW(nullptr, IDC_ARROW)) {
  INITCOMMONCONTROLSEX classes = {};
  classes.dwSize = sizeof(classes);
  classes.dwICC = ICC_STANDARD_CLASSES | ICC_ANIMATE_CLASS | ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES |
                  ICC_TREEVIEW_CLASSES | ICC_TAB_CLASSES;
  ::InitCommonControlsEx(&classes);
}

bool Win32Peers::Translate(MSG& message) {
  if (message.hwnd == nullptr) return false;
  const auto form = forms_.find(::GetAncestor(message.hwnd, GA_ROOT));
  return form != forms_.end() && form->second->Translate(message);
}

ChildPlace Win32Peers::PlaceIn(WindowHandle parent) const {
  const auto form = forms_.find(::GetAncestor(ToHwnd(parent), GA_ROOT));
  if (form == forms_.end()) throw std::runtime_error("a control without a form's window");
  return {*form->second, ToHwnd(parent)};
}

std::unique_ptr<FormPeer> Win32Peers::MakePeer(FormState& form) {
  return std::make_unique<FormWindow>(form, FormWindowParts{dpi_, fonts_, forms_});
}

std::unique_ptr<LabelPeer> Win32Peers::MakePeer(WindowHandle parent, LabelState& label) {
  return std::make_unique<Win32Label>(PlaceIn(parent), label);
}

std::unique_ptr<ButtonPeer> Win32Peers::MakePeer(WindowHandle parent, ButtonState& button) {
  return std::make_unique<Win32Button>(PlaceIn(parent), button);
}

std::unique_ptr<AnimationPeer> Win32Peers::MakePeer(WindowHandle parent, AnimationState& animation) {
  return std::make_unique<Win32Animation>(PlaceIn(parent), animation);
}

std::unique_ptr<ToolbarPeer> Win32Peers::MakePeer(WindowHandle parent, ToolbarState& toolbar) {
  return std::make_unique<Win32Toolbar>(PlaceIn(parent), toolbar);
}

std::unique_ptr<StatusBarPeer> Win32Peers::MakePeer(WindowHandle parent, StatusBarState& bar) {
  return std::make_unique<Win32StatusBar>(PlaceIn(parent), bar);
}

std::unique_ptr<TextBoxPeer> Win32Peers::MakePeer(WindowHandle parent, TextBoxState& box) {
  return std::make_unique<Win32TextBox>(PlaceIn(parent), box);
}

std::unique_ptr<PicturePeer> Win32Peers::MakePeer(WindowHandle parent, PictureState& picture) {
  return std::make_unique<Win32Picture>(PlaceIn(parent), picture);
}

std::unique_ptr<ListViewPeer> Win32Peers::MakePeer(WindowHandle parent, ListViewState& list) {
  return std::make_unique<Win32ListView>(PlaceIn(parent), list);
}

std::unique_ptr<TreeViewPeer> Win32Peers::MakePeer(WindowHandle parent, TreeViewState& tree) {
  return std::make_unique<Win32TreeView>(PlaceIn(parent), tree);
}

std::unique_ptr<LinePeer> Win32Peers::MakePeer(WindowHandle parent, LineState& line) {
  return std::make_unique<Win32Line>(PlaceIn(parent), line);
}

std::unique_ptr<CheckBoxPeer> Win32Peers::MakePeer(WindowHandle parent, CheckBoxState& box) {
  return std::make_unique<Win32CheckBox>(PlaceIn(parent), box);
}

std::unique_ptr<OptionPeer> Win32Peers::MakePeer(WindowHandle parent, OptionState& option) {
  return std::make_unique<Win32Option>(PlaceIn(parent), option);
}

std::unique_ptr<ComboBoxPeer> Win32Peers::MakePeer(WindowHandle parent, ComboBoxState& box) {
  return std::make_unique<Win32ComboBox>(PlaceIn(parent), box);
}

std::unique_ptr<FramePeer> Win32Peers::MakePeer(WindowHandle parent, FrameState& frame) {
  return std::make_unique<Win32Frame>(PlaceIn(parent), frame);
}

std::unique_ptr<TabStripPeer> Win32Peers::MakePeer(WindowHandle parent, TabStripState& strip) {
  return std::make_unique<Win32TabStrip>(PlaceIn(parent), strip);
}

}  // namespace burrowmark
