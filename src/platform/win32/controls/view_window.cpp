#include "platform/win32/controls/view_window.h"

#include <commctrl.h>

#include <utility>

#include "platform/key_codes.h"
#include "platform/win32/windows/drag_source.h"

namespace burrowmark {

ViewWindow::ViewWindow(const wchar_t* className, DWORD style, const ChildPlace& place, ControlState& control)
    : ChildWindow(className, L"", style, place, control, WS_EX_CLIENTEDGE), state_(control) {}

// --- updates

void ViewWindow::StartUpdate() {
  if (updates_++ == 0) ::SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
}

bool ViewWindow::StopUpdate() {
  if (updates_ == 0 || --updates_ > 0) return false;
  ::SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  // To draw again may also mean to show.
  if (!state_.Visible()) ShowOrHide();
  ::InvalidateRect(Handle(), nullptr, TRUE);
  return true;
}

// --- mouse

std::optional<LRESULT> ViewWindow::Mouse(const MouseMessage& mouse, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (mouse.action) {
    case MouseAction::kDown:
      return Press(mouse.event, message, wParam, lParam);
    case MouseAction::kUp:
      return LetGo(mouse.event, message, wParam, lParam);
    case MouseAction::kMove:
      break;
  }
  return ChildWindow::Mouse(mouse, message, wParam, lParam);
}

LRESULT ViewWindow::RunNative(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool before = std::exchange(inGesture_, true);
  const LRESULT result = ::DefSubclassProc(Handle(), message, wParam, lParam);
  inGesture_ = before;
  return result;
}

LRESULT ViewWindow::Press(const MouseEvent& event, UINT message, WPARAM wParam, LPARAM lParam) {
  // What the focus does by itself shall be over before.
  if (::GetFocus() != Handle()) ::SetFocus(Handle());
  if (IsRetired()) return 0;
  held_ = event.button;
  clicked_ = false;
  doubleClicked_ = false;
  dragged_ = false;
  if (message != WM_LBUTTONDBLCLK) state_.UserMouse(MouseAction::kDown, event);
  if (IsRetired()) return 0;
  const LRESULT result = RunNative(message == WM_RBUTTONDBLCLK ? WM_RBUTTONDOWN : message, wParam, lParam);
  if (dragged_) return result;
  if (!IsRetired()) Pressed(event);
  if (!IsRetired() && std::exchange(doubleClicked_, false)) {
    clicked_ = false;
    DoubleClicked();
  }
  if (!IsRetired() && held_ != 0 && !IsHeldStill()) Finish(event);
  return result;
}

LRESULT ViewWindow::LetGo(const MouseEvent& event, UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = RunNative(message, wParam, lParam);
  if (!IsRetired() && held_ == event.button) Finish(event);
  return result;
}

void ViewWindow::Drag() {
  state_.UserStartDrag([this](std::uint32_t allowed) {
    dragged_ = true;
    held_ = 0;
    clicked_ = false;
    return RunDrag(Handle(), allowed);
  });
}

void ViewWindow::Finish(MouseEvent event) {
  event.button = std::exchange(held_, 0);
  if (std::exchange(clicked_, false) && event.button == kLeftButton) Clicked(event);
  if (!IsRetired()) state_.UserMouse(MouseAction::kUp, event);
}

// The release either waits to be handled still, or is yet to come; otherwise the control has swallowed it.
bool ViewWindow::IsHeldStill() const {
  const bool left = held_ == kLeftButton;
  const UINT release = left ? WM_LBUTTONUP : WM_RBUTTONUP;
  MSG message = {};
  return ::PeekMessageW(&message, Handle(), release, release, PM_NOREMOVE) != FALSE ||
         ::GetKeyState(left ? VK_LBUTTON : VK_RBUTTON) < 0;
}

// --- keys

std::optional<LRESULT> ViewWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_CHAR: {
      const LRESULT result = RunNative(message, wParam, lParam);
      if (!IsRetired()) KeyHandled();
      return result;
    }
    // The system makes a context menu of this too, but may open the window's own menu behind it.
    case WM_SYSKEYDOWN:
      if (wParam != VK_F10 || HeldKeys() != kShiftMask) break;
      ContextKey();
      return 0;
    case WM_CONTEXTMENU:
      if (lParam == -1) ContextKey();
      return 0;
    case WM_COMMAND:
      if (HIWORD(wParam) == EN_KILLFOCUS) return EditTold(wParam, lParam);
      break;
    default:
      break;
  }
  return std::nullopt;
}

void ViewWindow::ContextKey() {
  MouseEvent event{kRightButton};
  const std::optional<std::intptr_t> current = Current();
  if (current) {
    const RECT rect = RectOf(*current);
    event.x = ToTwips(rect.left, Dpi());
    event.y = ToTwips((rect.top + rect.bottom) / 2, Dpi());
  }
  state_.UserMouse(MouseAction::kDown, event);
  if (!IsRetired() && current) PressAgain(*current);
  if (!IsRetired()) state_.UserMouse(MouseAction::kUp, event);
}

// --- labels

void ViewWindow::EditLabel(UINT message, WPARAM wParam, LPARAM lParam) {
  ::SetFocus(Handle());
  if (IsRetired()) return;
  editAsked_ = true;
  ::SendMessageW(Handle(), message, wParam, lParam);
  editAsked_ = false;
}

void ViewWindow::LabelEditBegins(UINT getEdit) {
  TheForm().LeaveKeysTo(reinterpret_cast<HWND>(::SendMessageW(Handle(), getEdit, 0, 0)));
}

// The focus has left the label; it may have gone past the control that hasn't had it.
LRESULT ViewWindow::EditTold(WPARAM wParam, LPARAM lParam) {
  const LRESULT result = ::DefSubclassProc(Handle(), WM_COMMAND, wParam, lParam);
  LabelEditEnds();
  const HWND focus = ::GetFocus();
  if (!IsRetired() && focus != Handle() && ::IsChild(Handle(), focus) == FALSE) state_.UserFocus(false);
  return result;
}

}  // namespace burrowmark
