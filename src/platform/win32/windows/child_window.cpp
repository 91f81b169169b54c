#include "platform/win32/windows/child_window.h"

#include <commctrl.h>

#include "platform/from_system.h"
#include "platform/win32/windows/window_class.h"

namespace burrowmark {
namespace {

constexpr UINT_PTR kSubclass = 1;

}  // namespace

ChildWindow::ChildWindow(const wchar_t* className, const std::wstring& text, DWORD style, const ChildPlace& place,
                         ControlState& control, DWORD extendedStyle)
    : form_(place.form), control_(&control) {
  const DWORD state = (control.Visible() ? WS_VISIBLE : 0) | (control.Enabled() ? 0 : WS_DISABLED) |
                      (control.TabStop() ? WS_TABSTOP : 0);
  const Rect at = ToPixels(control.Place(), Dpi());
  window_ =
      ::CreateWindowExW(extendedStyle, className, text.c_str(), WS_CHILD | style | state, at.left, at.top,
                        at.right - at.left, at.bottom - at.top, place.parent,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(form_.NextId())), WindowClass::Module(), nullptr);
  if (window_ == nullptr) return;
  native_ = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window_, GWLP_WNDPROC));
  form_.AddControl(window_);
  ::SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(form_.Font()), FALSE);
  ::SetWindowSubclass(window_, Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  if (!control.ToolTipText().empty()) ShowTip();
  if (control.OLEDrop()) drop_ = std::make_unique<DropRegistration>(window_, control, form_);
}

void ChildWindow::Retire() {
  control_ = nullptr;
  if (drop_) drop_->Retire();
}

ChildWindow::~ChildWindow() {
  Retire();
  drop_ = nullptr;
  if (window_ != nullptr) ::DestroyWindow(window_);
}

void ChildWindow::Command(UINT) {}
void ChildWindow::CommandFrom(UINT, UINT notification) { Command(notification); }
void ChildWindow::Rescaled() {}
LRESULT ChildWindow::Notify(NMHDR&) { return 0; }
std::optional<LRESULT> ChildWindow::Mouse(const MouseMessage& mouse, UINT, WPARAM, LPARAM) {
  control_->UserMouse(mouse.action, mouse.event);
  return std::nullopt;
}
std::optional<LRESULT> ChildWindow::Handle(UINT, WPARAM, LPARAM) { return std::nullopt; }

void ChildWindow::Place() const {
  const Rect at = ToPixels(control_->Place(), form_.Dpi());
  ::SetWindowPos(window_, nullptr, at.left, at.top, at.right - at.left, NativeHeight(at.bottom - at.top),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

void ChildWindow::ShowOrHide() const { ::ShowWindow(window_, control_->Visible() ? SW_SHOWNA : SW_HIDE); }

void ChildWindow::EnableOrDisable() const { ::EnableWindow(window_, control_->Enabled() ? TRUE : FALSE); }

void ChildWindow::SetStyle(DWORD bits, bool on) const {
  const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window_, GWL_STYLE));
  ::SetWindowLongPtrW(window_, GWL_STYLE, static_cast<LONG_PTR>(on ? style | bits : style & ~bits));
}

void ChildWindow::FollowScale() {
  ::SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(form_.Font()), TRUE);
  Place();
  Rescaled();
}

Size ChildWindow::NeededByText(const std::wstring& text, UINT format, SIZE around) const {
  const HDC context = ::GetDC(window_);
  const HGDIOBJ before = ::SelectObject(context, form_.Font());
  RECT rect = {};
  ::GetClientRect(window_, &rect);
  ::DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &rect, format | DT_CALCRECT);
  ::SelectObject(context, before);
  ::ReleaseDC(window_, context);
  const int width = rect.right - rect.left + Scaled(around.cx, Dpi(), kDesignDpi);
  const int height = rect.bottom - rect.top + Scaled(around.cy, Dpi(), kDesignDpi);
  return {ToTwips(width, Dpi()), ToTwips(height, Dpi())};
}

LRESULT CALLBACK ChildWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR data) {
  auto* self = reinterpret_cast<ChildWindow*>(data);
  if (message == WM_NCDESTROY) {
    ::RemoveWindowSubclass(window, Procedure, kSubclass);
    self->form_.RemoveControl(window);
    self->drop_ = nullptr;
    self->window_ = nullptr;
  } else if (!self->IsRetired()) {
    const auto result = FromSystem([&] { return self->Receive(message, wParam, lParam); }, std::optional<LRESULT>());
    if (result) return *result;
  }
  return ::DefSubclassProc(window, message, wParam, lParam);
}

std::optional<LRESULT> ChildWindow::Receive(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case kReflected + WM_COMMAND:
      CommandFrom(LOWORD(wParam), HIWORD(wParam));
      return 0;
    case kReflected + WM_NOTIFY:
      return Notify(*reinterpret_cast<NMHDR*>(lParam));
    case kReflected + WM_KEYDOWN:
      return control_->UserKeyDown(static_cast<std::int32_t>(wParam), HeldKeys()) ? 1 : 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
      // The control draws itself first: what hears of the focus may unload the form. Its own label edit is a part of
      // it.
      const bool within = ::IsChild(window_, reinterpret_cast<HWND>(wParam)) != FALSE;
      const LRESULT result = ::DefSubclassProc(window_, message, wParam, lParam);
      if (control_ != nullptr && !within) control_->UserFocus(message == WM_SETFOCUS);
      return result;
    }
    case WM_CHAR:
      if (const auto result = Character(wParam, lParam)) return result;
      break;
    default:
      break;
  }
  if (const auto mouse = DecodeMouse(message, wParam, lParam, Dpi())) {
    if (const auto result = Mouse(*mouse, message, wParam, lParam)) return result;
  }
  return IsRetired() ? std::nullopt : Handle(message, wParam, lParam);
}

// Enter and Esc were told ahead of their keys. Another character than was typed comes as if it had been typed.
std::optional<LRESULT> ChildWindow::Character(WPARAM character, LPARAM lParam) {
  if (character == VK_RETURN || character == VK_ESCAPE) return std::nullopt;
  const auto left = static_cast<WPARAM>(control_->UserKeyPress(static_cast<std::int32_t>(character)));
  if (left == character) return std::nullopt;
  if (left == 0 || IsRetired()) return 0;
  const std::optional<LRESULT> own = Handle(WM_CHAR, left, lParam);
  return own ? own : ::DefSubclassProc(window_, WM_CHAR, left, lParam);
}

}  // namespace burrowmark
