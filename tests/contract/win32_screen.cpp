#include "tests/contract/win32_screen.h"

#include <commctrl.h>
#include <dlgs.h>

#include <algorithm>

#include "platform/key_codes.h"
#include "platform/local/menus/menu_text.h"
#include "platform/peers/ui_bar_peers.h"
#include "platform/win32/windows/form_window.h"

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
  wchar_t text[kTextLength] = {};
  MENUITEMINFOW info = {};
  info.cbSize = sizeof(info);
  info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_STRING;
  info.dwTypeData = text;
  info.cch = kTextLength;
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
  entries.reserve(static_cast<std::size_t>(std::max(::GetMenuItemCount(menu), 0)));
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

}  // namespace

ScreenUnderTest::ScreenUnderTest(WindowSystem& windows) : side_(new Side{windows}) {}
ScreenUnderTest::~ScreenUnderTest() = default;

void ScreenUnderTest::Side::WhenThere(const std::function<WindowHandle()>& find,
                                      const std::function<void(WindowHandle)>& script) {
  ++waiting;
  Look(find, script, kTries);
}

void ScreenUnderTest::Side::Look(const std::function<WindowHandle()>& find,
                                 const std::function<void(WindowHandle)>& script, int tries) {
  windows.PostLater(kPause, [this, find, script, tries] {
    const WindowHandle window = find();
    if (window == 0) {
      if (tries > 0) Look(find, script, tries - 1);
      return;
    }
    --waiting;
    script(window);
  });
}

void ScreenUnderTest::Side::PressAt(HWND window, const POINT& at, std::int32_t button, std::int32_t shift) {
  const HeldModifiers held(shift);
  const bool left = button == kLeftButton;
  const WPARAM keys = ((shift & kShiftMask) != 0 ? MK_SHIFT : 0U) | ((shift & kCtrlMask) != 0 ? MK_CONTROL : 0U);
  PostMouse(window, left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, at, keys | (left ? MK_LBUTTON : MK_RBUTTON));
  PostMouse(window, left ? WM_LBUTTONUP : WM_RBUTTONUP, at, keys);
  windows.DoEvents();
}

void ScreenUnderTest::Side::PressTwiceAt(HWND window, const POINT& at) {
  PressAt(window, at);
  PostMouse(window, WM_LBUTTONDBLCLK, at, MK_LBUTTON);
  PostMouse(window, WM_LBUTTONUP, at, 0);
  windows.DoEvents();
}

bool ScreenUnderTest::Exists(WindowHandle window) { return ::IsWindow(ToHwnd(window)) != FALSE; }

std::wstring ScreenUnderTest::TextOf(WindowHandle window) {
  wchar_t text[kTextLength] = {};
  const int length = ::GetWindowTextW(ToHwnd(window), text, kTextLength);
  return {text, static_cast<std::size_t>(length)};
}

bool ScreenUnderTest::IsShown(WindowHandle window) {
  return (::GetWindowLongPtrW(ToHwnd(window), GWL_STYLE) & WS_VISIBLE) != 0;
}

bool ScreenUnderTest::IsEnabled(WindowHandle window) { return ::IsWindowEnabled(ToHwnd(window)) != FALSE; }

bool ScreenUnderTest::HasFocus(WindowHandle control) { return control != 0 && ::GetFocus() == ToHwnd(control); }

bool ScreenUnderTest::IsActive(WindowHandle form) { return form != 0 && ::GetActiveWindow() == ToHwnd(form); }

bool ScreenUnderTest::IsTopMost(WindowHandle form) {
  return (::GetWindowLongPtrW(ToHwnd(form), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

WindowHandle ScreenUnderTest::OwnerOf(WindowHandle form) { return FromHwnd(::GetWindow(ToHwnd(form), GW_OWNER)); }

bool ScreenUnderTest::IsDefault(WindowHandle button) { return (Send(button, WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON) != 0; }

std::wstring ScreenUnderTest::ToolTipOf(WindowHandle control) {
  const HWND form = ::GetAncestor(ToHwnd(control), GA_ROOT);
  wchar_t text[kTextLength] = {};
  TTTOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = form;
  tool.uId = static_cast<UINT_PTR>(control);
  tool.lpszText = text;
  for (HWND tips = nullptr; (tips = ::FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
    if (::GetWindow(tips, GW_OWNER) == form) Send(FromHwnd(tips), TTM_GETTEXTW, kTextLength, &tool);
  }
  return text;
}

Rect ScreenUnderTest::PlaceOf(WindowHandle control) {
  RECT rect = {};
  ::GetWindowRect(ToHwnd(control), &rect);
  ::MapWindowPoints(nullptr, ::GetAncestor(ToHwnd(control), GA_ROOT), reinterpret_cast<POINT*>(&rect), 2);
  return FromRECT(rect);
}

Size ScreenUnderTest::ClientOf(WindowHandle form) {
  RECT rect = {};
  ::GetClientRect(ToHwnd(form), &rect);
  return {rect.right, rect.bottom};
}

void ScreenUnderTest::Click(WindowHandle control) { side_->PressAt(ToHwnd(control), {2, 2}); }

void ScreenUnderTest::Mouse(WindowHandle form, MouseAction action, const MouseEvent& event) {
  const UINT messages[] = {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP};
  const std::size_t which = action == MouseAction::kDown ? 0 : action == MouseAction::kMove ? 1 : 2;
  const LPARAM place = MAKELPARAM(ToPixels(event.x, kDesignDpi), ToPixels(event.y, kDesignDpi));
  ::PostMessageW(ToHwnd(form), messages[which], 0, place);
  side_->windows.DoEvents();
}

void ScreenUnderTest::LoseMouse(WindowHandle) {
  ::ReleaseCapture();
  side_->windows.DoEvents();
}

void ScreenUnderTest::Press(WindowHandle form, std::int32_t keyCode, std::int32_t shift) {
  const HeldModifiers held(shift);
  const HWND target = KeyTarget(ToHwnd(form));
  ::PostMessageW(target, keyCode == kKeyCodeF10 ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(keyCode), 1);
  ::PostMessageW(target, WM_KEYUP, static_cast<WPARAM>(keyCode), 1);
  // The system makes this one itself of what comes from a keyboard.
  if (keyCode == kKeyCodeApps) ::PostMessageW(target, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(target), -1);
  side_->windows.DoEvents();
}

void ScreenUnderTest::PressAlt(WindowHandle form, wchar_t character) {
  ::PostMessageW(KeyTarget(ToHwnd(form)), WM_SYSCHAR, character, kWithAlt);
  side_->windows.DoEvents();
}

void ScreenUnderTest::Close(WindowHandle form) {
  ::PostMessageW(ToHwnd(form), WM_SYSCOMMAND, SC_CLOSE, 0);
  side_->windows.DoEvents();
}

void ScreenUnderTest::Resize(WindowHandle form, std::int32_t width, std::int32_t height) {
  ::SetWindowPos(ToHwnd(form), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  side_->windows.DoEvents();
}

void ScreenUnderTest::ChangeScale(WindowHandle form, std::int32_t dpi) {
  RECT rect = {};
  ::GetWindowRect(ToHwnd(form), &rect);
  ::SendMessageW(ToHwnd(form), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&rect));
  side_->windows.DoEvents();
}

void ScreenUnderTest::Type(WindowHandle form, const std::wstring& text) {
  for (const wchar_t character : text) ::PostMessageW(KeyTarget(ToHwnd(form)), WM_CHAR, character, 1);
  side_->windows.DoEvents();
}

std::pair<std::int32_t, std::int32_t> ScreenUnderTest::SelectedIn(WindowHandle box) {
  DWORD start = 0;
  DWORD end = 0;
  Send(box, EM_GETSEL, reinterpret_cast<WPARAM>(&start), &end);
  return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end)};
}

std::int32_t ScreenUnderTest::CheckOf(WindowHandle box) { return static_cast<std::int32_t>(Send(box, BM_GETCHECK)); }

void ScreenUnderTest::ChooseEntry(WindowHandle combo, std::int32_t index) {
  Click(combo);
  COMBOBOXINFO info = {};
  info.cbSize = sizeof(info);
  ::GetComboBoxInfo(ToHwnd(combo), &info);
  side_->PressAt(info.hwndList, MiddleOf(PartOf(FromHwnd(info.hwndList), LB_GETITEMRECT, index)));
}

void ScreenUnderTest::ChooseTab(WindowHandle strip, std::int32_t index) {
  side_->PressAt(ToHwnd(strip), MiddleOf(PartOf(strip, TCM_GETITEMRECT, index)));
}

std::int32_t ScreenUnderTest::TabOf(WindowHandle strip) {
  return static_cast<std::int32_t>(Send(strip, TCM_GETCURSEL));
}

// --- menus and bars

ScreenUnderTest::Titles ScreenUnderTest::MenuTexts(WindowHandle form, const Titles& path) {
  Titles texts;
  for (const NativeEntry& entry : EntriesOf(OpenMenus(ToHwnd(form), path))) texts.push_back(entry.look);
  return texts;
}

bool ScreenUnderTest::ChooseMenu(WindowHandle form, const Titles& path) {
  const HMENU menu = OpenMenus(ToHwnd(form), Titles(path.begin(), path.end() - 1));
  const int position = PositionOf(menu, path.back());
  if (position < 0) return false;
  ::PostMessageW(ToHwnd(form), WM_COMMAND, ::GetMenuItemID(menu, position), 0);
  side_->windows.DoEvents();
  return true;
}

void ScreenUnderTest::OpenMenuByLetter(WindowHandle form, wchar_t character) {
  side_->WhenThere(PopupWindow, [](WindowHandle) { ::EndMenu(); });
  PressAlt(form, character);
}

ScreenUnderTest::Titles ScreenUnderTest::SystemMenuTexts(WindowHandle form) {
  constexpr UINT kFirstOfSystem = 0xF000;
  const HMENU menu = ::GetSystemMenu(ToHwnd(form), FALSE);
  Titles texts;
  for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
    if (const UINT id = ::GetMenuItemID(menu, i); id > 0 && id < kFirstOfSystem) texts.push_back(EntryAt(menu, i).look);
  }
  return texts;
}

void ScreenUnderTest::ChooseSystemMenu(WindowHandle form, const std::wstring& text) {
  const HMENU menu = ::GetSystemMenu(ToHwnd(form), FALSE);
  ::PostMessageW(ToHwnd(form), WM_SYSCOMMAND, ::GetMenuItemID(menu, PositionOf(menu, text)), 0);
  side_->windows.DoEvents();
}

void ScreenUnderTest::NextPopup(const std::wstring& title, Titles& seen) {
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
  side_->WhenThere(PopupWindow, script);
}

ScreenUnderTest::Titles ScreenUnderTest::ButtonTexts(WindowHandle toolbar) {
  Titles texts;
  TBBUTTON button = {};
  for (WPARAM i = 0; Send(toolbar, TB_GETBUTTON, i, &button) != FALSE; ++i) {
    wchar_t text[kTextLength] = {};
    Send(toolbar, TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand), text);
    texts.emplace_back(text);
    if ((button.fsState & TBSTATE_ENABLED) == 0) texts.back() += L" (disabled)";
  }
  return texts;
}

void ScreenUnderTest::ClickButton(WindowHandle toolbar, std::size_t button) {
  const RECT rect = PartOf(toolbar, TB_GETITEMRECT, static_cast<std::int32_t>(button));
  side_->PressAt(ToHwnd(toolbar), {rect.left + 4, MiddleOf(rect).y});
}

void ScreenUnderTest::ChooseButtonMenu(WindowHandle toolbar, std::size_t button, const std::wstring& text) {
  Titles seen;
  NextPopup(text, seen);
  const RECT rect = PartOf(toolbar, TB_GETITEMRECT, static_cast<std::int32_t>(button));
  PostMouse(ToHwnd(toolbar), WM_LBUTTONDOWN, {rect.right - 4, MiddleOf(rect).y}, MK_LBUTTON);
  side_->windows.DoEvents();
}

ScreenUnderTest::Titles ScreenUnderTest::PanelTexts(WindowHandle statusBar) {
  Titles texts(static_cast<std::size_t>(Send(statusBar, SB_GETPARTS)));
  for (std::size_t i = 0; i < texts.size(); ++i) {
    wchar_t text[kTextLength] = {};
    Send(statusBar, SB_GETTEXTW, i, text);
    texts[i] = text;
  }
  return texts;
}

void ScreenUnderTest::NextFile(const std::wstring& title, const std::wstring& path) {
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
  side_->WhenThere(find, script);
}

void ScreenUnderTest::NextWindow(const std::wstring& caption, std::function<void()> script) {
  const auto find = [caption] {
    const HWND window = ::FindWindowW(FormWindow::kClassName, caption.c_str());
    const bool ready = window != nullptr && ::IsWindowVisible(window) != FALSE && ::IsWindowEnabled(window) != FALSE;
    return ready ? FromHwnd(window) : WindowHandle{0};
  };
  side_->WhenThere(find, [script = std::move(script)](WindowHandle) { script(); });
}

std::string ScreenUnderTest::Complaints() {
  return side_->waiting == 0 ? "" : "windows that never came: " + std::to_string(side_->waiting);
}

}  // namespace burrowmark
