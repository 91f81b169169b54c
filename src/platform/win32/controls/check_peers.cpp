#include "platform/win32/controls/check_peers.h"

#include <commctrl.h>

namespace burrowmark {
namespace {

// The mark and the gap beside a text, and the frame that shows the focus around it; in pixels of the design.
constexpr SIZE kAroundText{20, 2};

}  // namespace

// Not one that turns itself: the state does.
Win32CheckBox::Win32CheckBox(const ChildPlace& place, CheckBoxState& box)
    : ChildPeer(WC_BUTTONW, box.Caption(), BS_3STATE, place, box), box_(box) {
  ValueChanged();
}

void Win32CheckBox::ValueChanged() { ::SendMessageW(Handle(), BM_SETCHECK, static_cast<WPARAM>(box_.Value()), 0); }

Size Win32CheckBox::NeededSize() const { return NeededByText(box_.Caption(), DT_SINGLELINE, kAroundText); }

void Win32CheckBox::Command(UINT notification) {
  if (notification == BN_CLICKED) box_.UserClick();
}

Win32Option::Win32Option(const ChildPlace& place, OptionState& option)
    : ChildPeer(WC_BUTTONW, option.Caption(), BS_RADIOBUTTON, place, option), option_(option) {
  ValueChanged();
}

void Win32Option::ValueChanged() {
  ::SendMessageW(Handle(), BM_SETCHECK, option_.Value() ? BST_CHECKED : BST_UNCHECKED, 0);
  // The system takes and gives the tab stop as it checks; the state says where it is.
  FollowTabStop();
}

Size Win32Option::NeededSize() const { return NeededByText(option_.Caption(), DT_SINGLELINE, kAroundText); }

void Win32Option::Command(UINT notification) {
  if (notification == BN_CLICKED || notification == BN_DOUBLECLICKED) option_.UserClick();
}

std::optional<LRESULT> Win32Option::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETDLGCODE) return ::DefSubclassProc(Handle(), message, wParam, lParam) | DLGC_WANTARROWS;
  if (message != WM_KEYDOWN || wParam < VK_LEFT || wParam > VK_DOWN) return std::nullopt;
  option_.UserArrow(wParam == VK_RIGHT || wParam == VK_DOWN);
  return 0;
}

}  // namespace burrowmark
