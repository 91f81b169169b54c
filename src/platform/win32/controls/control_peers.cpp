#include "platform/win32/controls/control_peers.h"

#include <commctrl.h>

namespace burrowmark {
namespace {

// Pixels of the design to both sides of a button's text, and above and below it.
constexpr SIZE kAroundButtonText{10, 6};
constexpr DWORD kLabelStyles = SS_TYPEMASK | SS_NOPREFIX;

DWORD StyleOf(const LabelState& label) {
  const DWORD prefix = label.UseMnemonic() ? 0 : SS_NOPREFIX;
  switch (label.TextAlignment()) {
    case Alignment::kRight:
      return prefix | SS_RIGHT;
    case Alignment::kCenter:
      return prefix | SS_CENTER;
    case Alignment::kLeft:
      break;
  }
  return prefix | SS_LEFT;
}

DWORD StyleOf(const ButtonState& button) { return button.ShowsDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON; }

}  // namespace

Win32Label::Win32Label(const ChildPlace& place, LabelState& label)
    : ChildPeer(WC_STATICW, label.Caption(), StyleOf(label), place, label), label_(label) {
  HearMouse();
}

// Only a label that tells of clicks has the mouse over it; over another one it is the form's.
void Win32Label::HearMouse() const { SetStyle(SS_NOTIFY, !label_.ToolTipText().empty()); }

void Win32Label::ToolTipChanged() {
  HearMouse();
  ShowTip();
}

void Win32Label::StyleChanged() {
  SetStyle(kLabelStyles, false);
  SetStyle(StyleOf(label_), true);
  ::InvalidateRect(Handle(), nullptr, TRUE);
}

Size Win32Label::NeededSize() const {
  const UINT prefix = label_.UseMnemonic() ? 0 : DT_NOPREFIX;
  return NeededByText(label_.Caption(), DT_WORDBREAK | DT_EXPANDTABS | prefix, {});
}

Win32Button::Win32Button(const ChildPlace& place, ButtonState& button)
    : ChildPeer(WC_BUTTONW, button.Caption(), StyleOf(button), place, button), button_(button) {}

void Win32Button::DefaultChanged() { ::SendMessageW(Handle(), BM_SETSTYLE, StyleOf(button_), TRUE); }

Size Win32Button::NeededSize() const { return NeededByText(button_.Caption(), DT_SINGLELINE, kAroundButtonText); }

void Win32Button::Command(UINT notification) {
  if (notification == BN_CLICKED) button_.UserClick();
}

// Transparent: what has the colour of the film's first pixel lets the form through.
Win32Animation::Win32Animation(const ChildPlace& place, AnimationState& animation)
    : ChildPeer(ANIMATE_CLASSW, L"", ACS_CENTER | ACS_TRANSPARENT, place, animation), animation_(animation) {
  if (!animation.File().empty()) FileChanged();
  if (animation.Playing()) PlayingChanged();
}

void Win32Animation::FileChanged() {
  ::SendMessageW(Handle(), ACM_OPENW, 0, 0);
  if (animation_.File().empty()) return;
  ::SendMessageW(Handle(), ACM_OPENW, 0, reinterpret_cast<LPARAM>(animation_.File().c_str()));
}

void Win32Animation::PlayingChanged() {
  if (animation_.Playing()) {
    constexpr WORD kToTheEnd = 0xFFFF;
    ::SendMessageW(Handle(), ACM_PLAY, static_cast<WPARAM>(-1), MAKELPARAM(0, kToTheEnd));
  } else {
    ::SendMessageW(Handle(), ACM_STOP, 0, 0);
  }
}

Win32Line::Win32Line(const ChildPlace& place, LineState& line)
    : ChildPeer(WC_STATICW, L"", line.Place().width > line.Place().height ? SS_ETCHEDHORZ : SS_ETCHEDVERT, place,
                line) {}

}  // namespace burrowmark
