#include "ui/control.h"

#include "platform/key_codes.h"

namespace burrowmark {

Control::Control(ControlParent& parent, const wchar_t* name, const Box& place)
    : parent_(parent), form_(parent.Site()), name_(name), place_(place) {
  form_.Enter(*this);
}

void Control::LeaveForm() { form_.Leave(*this); }

WindowHandle Control::Window() const {
  const ControlPeer* peer = ThePeer();
  return peer == nullptr ? 0 : peer->Window();
}

void Control::SetPlace(const Box& place) {
  if (!Assign(place_, place)) return;
  if (ControlPeer* peer = ThePeer()) peer->PlaceChanged();
}

void Control::SetVisible(bool visible) {
  if (!Assign(visible_, visible)) return;
  if (ControlPeer* peer = ThePeer()) peer->VisibleChanged();
}

void Control::SetEnabled(bool enabled) {
  if (!Assign(enabled_, enabled)) return;
  if (!enabled) form_.HandFocusOn();  // the system leaves it on a window that is disabled, and keys go nowhere
  if (ControlPeer* peer = ThePeer()) peer->EnabledChanged();
}

void Control::SetTabStop(bool tabStop) {
  if (!Assign(tabStop_, tabStop)) return;
  if (ControlPeer* peer = ThePeer()) peer->TabStopChanged();
}

void Control::SetToolTipText(std::wstring_view text) {
  if (!Assign(toolTip_, std::wstring(text))) return;
  if (ControlPeer* peer = ThePeer()) peer->ToolTipChanged();
}

bool Control::HasFocus() const { return form_.ActiveControl() == this; }

void Control::SetFocus() {
  if (ControlPeer* peer = ThePeer(); peer != nullptr && IsReachable()) peer->TakeFocus();
}

void Control::UserFocus(bool has) {
  if (has == HasFocus()) return;
  const ControlSite::Running running(form_);
  form_.MoveFocus(has ? this : nullptr);
}

void Control::UserMouse(MouseAction action, const MouseEvent& event) {
  // What went down here may go up while the control can't be reached any more: nobody shall wait for that for ever.
  if (action != MouseAction::kUp && !IsReachable()) return;
  const ControlSite::Running running(form_);
  switch (action) {
    case MouseAction::kDown:
      return Raise(MouseDown, event);
    case MouseAction::kMove:
      return Raise(MouseMove, event);
    case MouseAction::kUp:
      return Raise(MouseUp, event);
  }
}

bool Control::UserKeyDown(std::int32_t keyCode, std::int32_t shift) {
  if ((!KeyDown && !KeyPress) || !IsReachable()) return false;
  const ControlSite::Running running(form_);
  Raise(KeyDown, keyCode, shift);
  if (keyCode == 0 || !IsReachable()) return true;
  // A form presses its buttons with these two keys, and no character comes of them.
  const bool forForm = keyCode == kKeyCodeReturn || keyCode == kKeyCodeEscape;
  return forForm && (shift & (kCtrlMask | kAltMask)) == 0 && UserKeyPress(keyCode) == 0;
}

std::int32_t Control::UserKeyPress(std::int32_t character) {
  if (!KeyPress || !IsReachable()) return character;
  const ControlSite::Running running(form_);
  Raise(KeyPress, character);
  return IsReachable() ? character : 0;
}

bool Control::IsReachable() const { return visible_ && enabled_ && parent_.IsReachable(); }

// --- drag and drop

void Control::UserStartDrag(const std::function<std::uint32_t(std::uint32_t allowed)>& run) {
  if (!OLEStartDrag || !IsReachable()) return;
  const ControlSite::Running running(form_);
  std::uint32_t allowed = kEffectNone;
  Raise(OLEStartDrag, allowed);
  const std::uint32_t effect = allowed == kEffectNone ? kEffectNone : run(allowed);
  Raise(OLECompleteDrag, effect);
}

std::uint32_t Control::UserDragOver(const DragEvent& event, DragState state) {
  const bool leaves = state == DragState::kLeave || !IsReachable();
  if (leaves && !dragIn_) return kEffectNone;
  const ControlSite::Running running(form_);
  if (leaves) {
    state = DragState::kLeave;
  } else if (!dragIn_) {
    state = DragState::kEnter;
  }
  dragIn_ = !leaves;
  std::uint32_t effect = kEffectNone;
  Raise(OLEDragOver, event, state, effect);
  return leaves ? kEffectNone : effect & event.allowed;
}

std::uint32_t Control::UserDragDrop(const DragEvent& event, const std::vector<std::wstring>& files) {
  if (!dragIn_ || !IsReachable()) return UserDragOver(event, DragState::kLeave);
  const ControlSite::Running running(form_);
  dragIn_ = false;
  std::uint32_t effect = kEffectNone;
  Raise(OLEDragDrop, event, files, effect);
  return effect & event.allowed;
}

}  // namespace burrowmark
