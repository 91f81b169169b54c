#include "tests/contract/win32_screen.h"

#ifdef _WIN32

#include <windows.h>

#include <commctrl.h>
#include <dlgs.h>

#include <algorithm>

#include "platform/key_codes.h"
#include "platform/local/menu_text.h"
#include "platform/ui_bar_peers.h"
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

// --- menus

struct NativeEntry {
  std::wstring title;  // without ampersands and keys
  std::wstring look;
  bool isLine = false;
  bool isEnabled = true;
  bool isBold = false;
};

NativeEntry EntryAt(HMENU menu, int position) {
  wchar_t text[256] = {};
  MENUITEMINFOW info = {};
  info.cbSize = sizeof(info);
  info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_STRING;
  info.dwTypeData = text;
  info.cch = 256;
  ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
  if ((info.fType & MFT_SEPARATOR) != 0) return {kMenuLine, kMenuLine, true};
  NativeEntry entry{WithoutPrefixes(text), WithoutPrefixes(text)};
  entry.title.resize(std::min(entry.title.find(L'\t'), entry.title.size()));
  entry.isEnabled = (info.fState & MFS_DISABLED) == 0;
  entry.isBold = (info.fState & MFS_DEFAULT) != 0;
  if ((info.fState & MFS_CHECKED) != 0) entry.look.insert(0, (info.fType & MFT_RADIOCHECK) != 0 ? L"(o) " : L"[x] ");
  if (!entry.isEnabled) entry.look += L" (disabled)";
  return entry;
}

std::vector<NativeEntry> EntriesOf(HMENU menu) {
  std::vector<NativeEntry> entries;
  for (int i = 0; i < ::GetMenuItemCount(menu); ++i) entries.push_back(EntryAt(menu, i));
  return entries;
}

// -1 if it isn't there or can't be chosen.
int PositionOf(HMENU menu, const std::wstring& title) {
  const auto entries = EntriesOf(menu);
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&title](const NativeEntry& e) { return e.title == title && e.isEnabled; });
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

// The menu that opens at the end of the way; each on it hears of its opening, as when the mouse goes there.
HMENU OpenMenus(HWND form, const std::vector<std::wstring>& path) {
  HMENU menu = ::GetMenu(form);
  for (const std::wstring& title : path) {
    const int position = PositionOf(menu, title);
    menu = position < 0 ? nullptr : ::GetSubMenu(menu, position);
    if (menu == nullptr) return nullptr;
    ::SendMessageW(form, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(position, FALSE));
  }
  return menu;
}

// The window of a popup, with any owner.
WindowHandle PopupWindow() {
  const HWND popup = ::FindWindowW(L"#32768", nullptr);
  return popup != nullptr && ::IsWindowVisible(popup) != FALSE ? FromHwnd(popup) : 0;
}

void PressInMenu(HWND popup, int key) { ::PostMessageW(popup, WM_KEYDOWN, static_cast<WPARAM>(key), 1); }

void ClickAt(HWND window, const POINT& point) {
  ::PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
  ::PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
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
  ClickAt(ToHwnd(button), {2, 2});
  windows_.DoEvents();
}

void Win32Screen::Mouse(WindowHandle form, MouseAction action, const MouseEvent& event) {
  const bool left = event.button == kLeftButton;
  const UINT down = left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN;
  const UINT up = left ? WM_LBUTTONUP : WM_RBUTTONUP;
  const UINT message = action == MouseAction::kMove ? WM_MOUSEMOVE : action == MouseAction::kDown ? down : up;
  const auto dpi = scales_.contains(form) ? scales_[form] : kDesignDpi;
  ::PostMessageW(ToHwnd(form), message, 0, MAKELPARAM(ToPixels(event.x, dpi), ToPixels(event.y, dpi)));
  windows_.DoEvents();
}

void Win32Screen::LoseMouse(WindowHandle) {
  ::ReleaseCapture();
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

void Win32Screen::Type(WindowHandle form, const std::wstring& text) {
  for (const wchar_t character : text) ::PostMessageW(KeyTarget(ToHwnd(form)), WM_CHAR, character, 1);
  windows_.DoEvents();
}

std::pair<std::int32_t, std::int32_t> Win32Screen::SelectedIn(WindowHandle box) {
  DWORD start = 0;
  DWORD end = 0;
  ::SendMessageW(ToHwnd(box), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end)};
}

std::int32_t Win32Screen::CheckOf(WindowHandle box) {
  return static_cast<std::int32_t>(::SendMessageW(ToHwnd(box), BM_GETCHECK, 0, 0));
}

std::int32_t Win32Screen::EntryCountOf(WindowHandle combo) {
  return static_cast<std::int32_t>(::SendMessageW(ToHwnd(combo), CB_GETCOUNT, 0, 0));
}

void Win32Screen::ChooseEntry(WindowHandle, WindowHandle combo, std::int32_t index) {
  ClickAt(ToHwnd(combo), {2, 2});
  windows_.DoEvents();
  COMBOBOXINFO info = {};
  info.cbSize = sizeof(info);
  ::GetComboBoxInfo(ToHwnd(combo), &info);
  RECT entry = {};
  ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&entry));
  ClickAt(info.hwndList, {(entry.left + entry.right) / 2, (entry.top + entry.bottom) / 2});
  windows_.DoEvents();
}

void Win32Screen::ChooseTab(WindowHandle, WindowHandle strip, std::int32_t index) {
  RECT tab = {};
  ::SendMessageW(ToHwnd(strip), TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
  ClickAt(ToHwnd(strip), {(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2});
  windows_.DoEvents();
}

std::int32_t Win32Screen::TabOf(WindowHandle strip) {
  return static_cast<std::int32_t>(::SendMessageW(ToHwnd(strip), TCM_GETCURSEL, 0, 0));
}

// --- menus and bars

Win32Screen::Titles Win32Screen::MenuTexts(WindowHandle form, const Titles& path) {
  Titles texts;
  for (const NativeEntry& entry : EntriesOf(OpenMenus(ToHwnd(form), path))) texts.push_back(entry.look);
  return texts;
}

bool Win32Screen::ChooseMenu(WindowHandle form, const Titles& path) {
  const HMENU menu = OpenMenus(ToHwnd(form), Titles(path.begin(), path.end() - 1));
  const int position = PositionOf(menu, path.back());
  if (position < 0) return false;
  ::PostMessageW(ToHwnd(form), WM_COMMAND, ::GetMenuItemID(menu, position), 0);
  windows_.DoEvents();
  return true;
}

void Win32Screen::OpenMenuByLetter(WindowHandle form, wchar_t character) {
  ++waiting_;
  WhenThereIs(
      PopupWindow, [](WindowHandle) { ::EndMenu(); }, kTries);
  PressAlt(form, character);
}

Win32Screen::Titles Win32Screen::SystemMenuTexts(WindowHandle form) {
  constexpr UINT kFirstOfSystem = 0xF000;
  const HMENU menu = ::GetSystemMenu(ToHwnd(form), FALSE);
  Titles texts;
  for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
    if (const UINT id = ::GetMenuItemID(menu, i); id > 0 && id < kFirstOfSystem) texts.push_back(EntryAt(menu, i).look);
  }
  return texts;
}

void Win32Screen::ChooseSystemMenu(WindowHandle form, const std::wstring& text) {
  const HMENU menu = ::GetSystemMenu(ToHwnd(form), FALSE);
  ::PostMessageW(ToHwnd(form), WM_SYSCOMMAND, ::GetMenuItemID(menu, PositionOf(menu, text)), 0);
  windows_.DoEvents();
}

void Win32Screen::NextPopup(const std::wstring& title, Titles& seen) {
  const auto script = [title, &seen](WindowHandle popup) {
    constexpr UINT kGetMenu = 0x01E1;  // MN_GETHMENU
    const auto menu = reinterpret_cast<HMENU>(::SendMessageW(ToHwnd(popup), kGetMenu, 0, 0));
    bool done = title.empty();
    seen.clear();
    for (const NativeEntry& entry : EntriesOf(menu)) {
      seen.push_back(entry.isBold ? L"* " + entry.look : entry.look);
      if (!done && !entry.isLine) PressInMenu(ToHwnd(popup), VK_DOWN);
      done = done || entry.title == title;
    }
    PressInMenu(ToHwnd(popup), title.empty() ? VK_ESCAPE : VK_RETURN);
  };
  ++waiting_;
  WhenThereIs(PopupWindow, script, kTries);
}

Win32Screen::Titles Win32Screen::ButtonTexts(WindowHandle toolbar) {
  const HWND bar = ToHwnd(toolbar);
  Titles texts;
  for (LRESULT i = 0; i < ::SendMessageW(bar, TB_BUTTONCOUNT, 0, 0); ++i) {
    TBBUTTON button = {};
    ::SendMessageW(bar, TB_GETBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button));
    wchar_t text[256] = {};
    ::SendMessageW(bar, TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand), reinterpret_cast<LPARAM>(text));
    texts.emplace_back(text);
    if ((button.fsState & TBSTATE_ENABLED) == 0) texts.back() += L" (disabled)";
  }
  return texts;
}

void Win32Screen::ClickButton(WindowHandle, WindowHandle toolbar, std::size_t button) {
  RECT rect = {};
  ::SendMessageW(ToHwnd(toolbar), TB_GETITEMRECT, button, reinterpret_cast<LPARAM>(&rect));
  const LPARAM point = MAKELPARAM(rect.left + 4, (rect.top + rect.bottom) / 2);
  ::PostMessageW(ToHwnd(toolbar), WM_LBUTTONDOWN, MK_LBUTTON, point);
  ::PostMessageW(ToHwnd(toolbar), WM_LBUTTONUP, 0, point);
  windows_.DoEvents();
}

void Win32Screen::ChooseButtonMenu(WindowHandle, WindowHandle toolbar, std::size_t button, const std::wstring& text) {
  Titles seen;
  NextPopup(text, seen);
  RECT rect = {};
  ::SendMessageW(ToHwnd(toolbar), TB_GETITEMRECT, button, reinterpret_cast<LPARAM>(&rect));
  ::PostMessageW(ToHwnd(toolbar), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(rect.right - 4, rect.bottom / 2));
  windows_.DoEvents();
}

Win32Screen::Titles Win32Screen::PanelTexts(WindowHandle, WindowHandle statusBar) {
  Titles texts;
  for (LRESULT i = 0; i < ::SendMessageW(ToHwnd(statusBar), SB_GETPARTS, 0, 0); ++i) {
    wchar_t text[256] = {};
    ::SendMessageW(ToHwnd(statusBar), SB_GETTEXTW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
    texts.emplace_back(text);
  }
  return texts;
}

void Win32Screen::NextFile(const std::wstring& title, const std::wstring& path) {
  const auto find = [title] {
    const HWND dialog = ::FindWindowW(L"#32770", title.c_str());
    return dialog != nullptr && ::IsWindowVisible(dialog) != FALSE ? FromHwnd(dialog) : WindowHandle{0};
  };
  const auto script = [path](WindowHandle window) {
    const HWND dialog = ToHwnd(window);
    const HWND combo = ::GetDlgItem(dialog, cmb13);
    const HWND name = combo != nullptr ? combo : ::GetDlgItem(dialog, edt1);
    ::SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    ::PostMessageW(dialog, WM_COMMAND, path.empty() ? IDCANCEL : IDOK, 0);
  };
  ++waiting_;
  WhenThereIs(find, script, kTries);
}

void Win32Screen::WhenThereIs(std::function<WindowHandle()> find, std::function<void(WindowHandle)> script, int tries) {
  windows_.PostLater(kPause, [this, find = std::move(find), script = std::move(script), tries] {
    const WindowHandle window = find();
    if (window == 0) {
      if (tries > 0) WhenThereIs(find, script, tries - 1);
      return;
    }
    --waiting_;
    script(window);
  });
}

void Win32Screen::NextWindow(const std::wstring& caption, std::function<void()> script) {
  ++waiting_;
  const auto find = [caption] {
    const HWND window = ::FindWindowW(FormWindow::kClassName, caption.c_str());
    const bool ready = window != nullptr && ::IsWindowVisible(window) != FALSE && ::IsWindowEnabled(window) != FALSE;
    return ready ? FromHwnd(window) : WindowHandle{0};
  };
  WhenThereIs(
      find, [script = std::move(script)](WindowHandle) { script(); }, kTries);
}

std::string Win32Screen::Complaints() {
  return waiting_ == 0 ? "" : "windows that never came: " + std::to_string(waiting_);
}

}  // namespace burrowmark

#endif
