#include "tests/contract/win32_screen.h"

#ifdef _WIN32

#include <windows.h>

#include "platform/key_codes.h"
#include "platform/win32/form_window.h"
#include "platform/win32/handles.h"
#include "tests/contract/held_modifiers.h"

namespace burrowmark {
namespace {

constexpr int kTries = 500;
constexpr std::int32_t kPause = 10;  // milliseconds
constexpr LPARAM kWithAlt = LPARAM{1} << 29;

// Where keys go: the control with the focus, or the form itself.
HWND KeyTarget(HWND form) {
  const HWND focus = ::GetFocus();
  return focus != nullptr && (focus == form || ::IsChild(form, focus) != FALSE) ? focus : form;
}

}  // namespace

bool Win32Screen::Exists(WindowHandle window) { return ::IsWindow(ToHwnd(window)) != FALSE; }

std::wstring Win32Screen::TextOf(WindowHandle window) {
  wchar_t text[256] = {};
  const int length = ::GetWindowTextW(ToHwnd(window), text, 256);
  return {text, static_cast<std::size_t>(length)};
}

bool Win32Screen::IsShown(WindowHandle window) {
  return (::GetWindowLongPtrW(ToHwnd(window), GWL_STYLE) & WS_VISIBLE) != 0;
}

bool Win32Screen::IsEnabled(WindowHandle window) { return ::IsWindowEnabled(ToHwnd(window)) != FALSE; }

bool Win32Screen::HasFocus(WindowHandle control) { return control != 0 && ::GetFocus() == ToHwnd(control); }

bool Win32Screen::IsActive(WindowHandle form) { return form != 0 && ::GetActiveWindow() == ToHwnd(form); }

bool Win32Screen::IsTopMost(WindowHandle form) {
  return (::GetWindowLongPtrW(ToHwnd(form), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

WindowHandle Win32Screen::OwnerOf(WindowHandle form) { return FromHwnd(::GetWindow(ToHwnd(form), GW_OWNER)); }

bool Win32Screen::IsDefault(WindowHandle button) {
  return (::SendMessageW(ToHwnd(button), WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
}

Rect Win32Screen::PlaceOf(WindowHandle form, WindowHandle control) {
  RECT rect = {};
  ::GetWindowRect(ToHwnd(control), &rect);
  ::MapWindowPoints(nullptr, ToHwnd(form), reinterpret_cast<POINT*>(&rect), 2);
  return FromRECT(rect);
}

Size Win32Screen::ClientOf(WindowHandle form) {
  RECT rect = {};
  ::GetClientRect(ToHwnd(form), &rect);
  return {rect.right, rect.bottom};
}

void Win32Screen::Click(WindowHandle, WindowHandle button) {
  ::PostMessageW(ToHwnd(button), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
  ::PostMessageW(ToHwnd(button), WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
  windows_.DoEvents();
}

void Win32Screen::Press(WindowHandle form, std::int32_t keyCode, std::int32_t shift) {
  const HeldModifiers held(shift);
  const HWND target = KeyTarget(ToHwnd(form));
  ::PostMessageW(target, keyCode == kKeyCodeF10 ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(keyCode), 1);
  ::PostMessageW(target, WM_KEYUP, static_cast<WPARAM>(keyCode), 1);
  // The system makes this one itself of what comes from a keyboard.
  if (keyCode == kKeyCodeApps) ::PostMessageW(target, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(target), -1);
  windows_.DoEvents();
}

void Win32Screen::PressAlt(WindowHandle form, wchar_t character) {
  ::PostMessageW(KeyTarget(ToHwnd(form)), WM_SYSCHAR, character, kWithAlt);
  windows_.DoEvents();
}

void Win32Screen::Close(WindowHandle form) {
  ::PostMessageW(ToHwnd(form), WM_SYSCOMMAND, SC_CLOSE, 0);
  windows_.DoEvents();
}

void Win32Screen::Resize(WindowHandle form, std::int32_t width, std::int32_t height) {
  ::SetWindowPos(ToHwnd(form), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  windows_.DoEvents();
}

void Win32Screen::ChangeScale(WindowHandle form, std::int32_t dpi) {
  scales_[form] = dpi;
  RECT rect = {};
  ::GetWindowRect(ToHwnd(form), &rect);
  ::SendMessageW(ToHwnd(form), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&rect));
  windows_.DoEvents();
}

void Win32Screen::NextWindow(const std::wstring& caption, std::function<void()> script) {
  ++waiting_;
  WaitForWindow(caption, script, kTries);
}

void Win32Screen::WaitForWindow(const std::wstring& caption, const std::function<void()>& script, int tries) {
  windows_.PostLater(kPause, [this, caption, script, tries] {
    const HWND window = ::FindWindowW(FormWindow::kClassName, caption.c_str());
    if (window == nullptr || ::IsWindowVisible(window) == FALSE || ::IsWindowEnabled(window) == FALSE) {
      if (tries > 0) WaitForWindow(caption, script, tries - 1);
      return;
    }
    --waiting_;
    script();
  });
}

std::string Win32Screen::Complaints() {
  return waiting_ == 0 ? "" : "windows that never came: " + std::to_string(waiting_);
}

}  // namespace burrowmark

#endif
