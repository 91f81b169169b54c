#include "platform/win32/windows/form_window.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/from_system.h"
#include "platform/key_codes.h"
#include "platform/win32/handles.h"
#include "platform/win32/windows/window_class.h"

namespace burrowmark {
namespace {

using AdjustForDpiCall = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
constexpr UINT kKeepPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
constexpr UINT kKeepOrder = SWP_NOZORDER | SWP_NOACTIVATE;
constexpr DWORD kExtendedStyle = WS_EX_CONTROLPARENT;
constexpr int kSmallIcon = 16;
constexpr int kBigIcon = 32;
constexpr int kTipWidth = 320;  // pixels of the design

DWORD StyleOf(FormBorder border) {
  return WS_CLIPCHILDREN | (border == FormBorder::kSizable ? WS_OVERLAPPEDWINDOW : WS_POPUP | WS_CAPTION | WS_SYSMENU);
}

DWORD ExtendedStyleOf(FormBorder border) {
  return border == FormBorder::kSizable ? kExtendedStyle : kExtendedStyle | WS_EX_DLGMODALFRAME;
}

int ShowCommand(FormWindowState state) {
  if (state == FormWindowState::kMinimized) return SW_SHOWMINIMIZED;
  return state == FormWindowState::kMaximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
}

FormWindowState StateOf(HWND window) {
  if (::IsIconic(window) != FALSE) return FormWindowState::kMinimized;
  return ::IsZoomed(window) != FALSE ? FormWindowState::kMaximized : FormWindowState::kNormal;
}

MONITORINFO InfoOf(HMONITOR monitor) {
  MONITORINFO info = {};
  info.cbSize = sizeof(info);
  ::GetMonitorInfoW(monitor, &info);
  return info;
}

bool CanCentreOver(HWND owner) {
  return owner != nullptr && ::IsWindowVisible(owner) != FALSE && ::IsIconic(owner) == FALSE;
}

int Kept(int start, int size, int low, int high) { return std::max(low, std::min(start, high - size)); }

HCURSOR CursorOf(std::int32_t pointer) {
  switch (pointer) {
    case kPointerSizeWE:
      return ::LoadCursorW(nullptr, IDC_SIZEWE);
    case kPointerHourglass:
      return ::LoadCursorW(nullptr, IDC_WAIT);
    default:
      return nullptr;
  }
}

}  // namespace

std::optional<LRESULT> ReflectToControl(UINT message, WPARAM wParam, LPARAM lParam) {
  HWND control = nullptr;
  if (message == WM_COMMAND) control = reinterpret_cast<HWND>(lParam);
  if (message == WM_NOTIFY) {
    const NMHDR& record = *reinterpret_cast<const NMHDR*>(lParam);
    // Told of every row of a list, and of use to nobody.
    if (record.code == LVN_INSERTITEM || record.code == LVN_ITEMCHANGING) return 0;
    control = record.hwndFrom;
  }
  if (control == nullptr) return std::nullopt;
  return ::SendMessageW(control, kReflected + message, wParam, lParam);
}

std::optional<LRESULT> BackgroundOfControl(UINT message, WPARAM wParam) {
  if (message != WM_CTLCOLORSTATIC && message != WM_CTLCOLORBTN) return std::nullopt;
  const auto context = reinterpret_cast<HDC>(wParam);
  ::SetBkColor(context, ::GetSysColor(COLOR_BTNFACE));
  ::SetTextColor(context, ::GetSysColor(COLOR_BTNTEXT));
  return reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_BTNFACE));
}

FormWindow::FormWindow(FormState& form, const FormWindowParts& parts) : form_(&form), parts_(parts) {
  window_ =
      ::CreateWindowExW(ExtendedStyleOf(form.Border()), kClassName, form.Caption().c_str(), StyleOf(form.Border()), 0,
                        0, 0, 0, ToHwnd(form.OwnerWindow()), nullptr, WindowClass::Module(), this);
  if (window_ == nullptr) return;
  parts_.all[window_] = this;
  MenusChanged();
  SystemMenuChanged();
  PlaceChanged();
  IconChanged();
  if (form.TopMost()) TopMostChanged();
  if (!form.TakesInput()) TakesInputChanged();
  making_ = false;
  Report();
}

FormWindow::~FormWindow() {
  Retire();
  if (window_ != nullptr) ::DestroyWindow(window_);
}

void FormWindow::Retire() {
  if (form_ == nullptr) return;
  BlockOwner(false);
  form_ = nullptr;
  if (window_ != nullptr) ::ShowWindow(window_, SW_HIDE);
}

WindowHandle FormWindow::Window() const { return FromHwnd(window_); }

// --- state

void FormWindow::CaptionChanged() { ::SetWindowTextW(window_, form_->Caption().c_str()); }

void FormWindow::OwnerChanged() {
  ::SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(ToHwnd(form_->OwnerWindow())));
  if (IsCentred() && !form_->Visible()) PlaceChanged();
}

void FormWindow::VisibleChanged() {
  ::ShowWindow(window_, form_->Visible() ? ShowCommand(form_->WindowState()) : SW_HIDE);
}

void FormWindow::TakesInputChanged() { ::EnableWindow(window_, form_->TakesInput() ? TRUE : FALSE); }

void FormWindow::WindowStateChanged() {
  if (form_->Visible()) ::ShowWindow(window_, ShowCommand(form_->WindowState()));
}

void FormWindow::TopMostChanged() {
  ::SetWindowPos(window_, form_->TopMost() ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, kKeepPlace);
}

void FormWindow::MousePointerChanged() {
  POINT mouse = {};
  if (::GetCursorPos(&mouse) == FALSE || ::GetAncestor(::WindowFromPoint(mouse), GA_ROOT) != window_) return;
  if (!ShowPointer()) ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
}

bool FormWindow::ShowPointer() const {
  const HCURSOR cursor = form_ == nullptr ? nullptr : CursorOf(form_->MousePointer());
  if (cursor != nullptr) ::SetCursor(cursor);
  return cursor != nullptr;
}

void FormWindow::IconChanged() {
  IconImage big = IconOfSize(kBigIcon);
  IconImage small = IconOfSize(kSmallIcon);
  ::SendMessageW(window_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(big.get()));
  ::SendMessageW(window_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small.get()));
  bigIcon_ = std::move(big);
  smallIcon_ = std::move(small);
}

IconImage FormWindow::IconOfSize(int designSize) const {
  return LoadIconImage(form_->Icon(), Scaled(designSize, dpi_, kDesignDpi));
}

void FormWindow::BringToFront() {
  const HWND front = FrontOf(window_);
  ::BringWindowToTop(front);
  ::SetForegroundWindow(front);
}

void FormWindow::BlockOwner(bool block) {
  if (!block) {
    if (blockedOwner_ != nullptr) ::EnableWindow(blockedOwner_, TRUE);
    blockedOwner_ = nullptr;
    return;
  }
  const HWND owner = ToHwnd(form_->OwnerWindow());
  // One that is disabled already is somebody else's to give back.
  if (::IsWindowEnabled(owner) == FALSE) return;
  ::EnableWindow(owner, FALSE);
  blockedOwner_ = owner;
}

// --- controls

void FormWindow::RemoveControl(HWND control) {
  controls_.erase(control);
  if (openList_ == control) openList_ = nullptr;
  tips_.Show(window_, control, {});
}

void FormWindow::ShowTip(HWND control, const std::wstring& text) {
  tips_.Show(window_, control, text);
  ScaleTips();
}

void FormWindow::ScaleTips() const { tips_.SetLook(Font(), Scaled(kTipWidth, dpi_, kDesignDpi)); }

// --- menus

void FormWindow::MenusChanged() { menus_.ShowBar(window_, form_->MenuEntries()); }

void FormWindow::SystemMenuChanged() {
  const HMENU menu = ::GetSystemMenu(window_, FALSE);
  bool isFirst = true;
  for (const SystemMenuEntry& entry : form_->SystemMenuEntries()) {
    const auto id = static_cast<UINT>(entry.id);
    if (::GetMenuState(menu, id, MF_BYCOMMAND) == static_cast<UINT>(-1)) {
      if (isFirst) ::AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
      ::AppendMenuW(menu, MF_STRING, id, entry.text.c_str());
    }
    ::CheckMenuItem(menu, id, MF_BYCOMMAND | (entry.checked ? MF_CHECKED : MF_UNCHECKED));
    isFirst = false;
  }
}

void FormWindow::PopupMenu(MenuEntryState& popup, const MenuEntryState* defaultEntry) {
  if (form_ == nullptr) return;
  MenuEntryState* chosen = menus_.Popup(window_, popup, defaultEntry, PopupPoint());
  if (chosen != nullptr && form_ != nullptr) form_->UserChooseMenu(*chosen);
}

POINT FormWindow::PopupPoint() const {
  POINT point = {};
  const HWND focus = ::GetFocus();
  if (keyCameLast_ && ::IsChild(window_, focus) != FALSE) {
    ::ClientToScreen(focus, &point);
  } else {
    ::GetCursorPos(&point);
  }
  return point;
}

// True if it is one of the form's own.
bool FormWindow::OpenMenu(HMENU menu) {
  MenuEntryState* entry = menus_.EntryOf(menu);
  if (entry == nullptr) return false;
  form_->UserOpenMenu(*entry);
  if (form_ != nullptr) menus_.Fill(menu);
  return true;
}

void FormWindow::RunCommand(UINT command) {
  if (command == IDCANCEL) return form_->UserEscape();
  if (MenuEntryState* entry = menus_.EntryOf(command)) form_->UserChooseMenu(*entry);
}

// The system keeps the low four bits of its own commands to itself; a form's number is compared as it is.
bool FormWindow::RunSystemCommand(WPARAM command) const {
  const auto& entries = form_->SystemMenuEntries();
  const bool isOwn = std::any_of(entries.begin(), entries.end(), [command](const SystemMenuEntry& entry) {
    return static_cast<WPARAM>(entry.id) == command;
  });
  if (isOwn) form_->UserSystemCommand(static_cast<std::int32_t>(command));
  return isOwn;
}

// --- place

bool FormWindow::IsCentred() const { return form_->StartUp() == StartUpPosition::kCenterOwner; }

SIZE FormWindow::OuterSize() const {
  const Box& place = form_->Place();
  if (place.width > 0) return {ToPixels(place.width, dpi_), ToPixels(place.height, dpi_)};
  const Size design = form_->DesignClient();
  RECT rect = {0, 0, ToPixels(design.width, dpi_), ToPixels(design.height, dpi_)};
  const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window_, GWL_STYLE));
  const auto extended = static_cast<DWORD>(::GetWindowLongPtrW(window_, GWL_EXSTYLE));
  const BOOL menu = ::GetMenu(window_) != nullptr ? TRUE : FALSE;
  const auto forDpi = user_.Find<AdjustForDpiCall>("AdjustWindowRectExForDpi");
  if (forDpi == nullptr || forDpi(&rect, style, menu, extended, static_cast<UINT>(dpi_)) == FALSE) {
    ::AdjustWindowRectEx(&rect, style, menu, extended);
  }
  return {rect.right - rect.left, rect.bottom - rect.top};
}

RECT FormWindow::CentredRect() {
  const HWND owner = ToHwnd(form_->OwnerWindow());
  POINT mouse = {};
  ::GetCursorPos(&mouse);
  const HMONITOR monitor = CanCentreOver(owner) ? ::MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST)
                                                : ::MonitorFromPoint(mouse, MONITOR_DEFAULTTONEAREST);
  dpi_ = parts_.dpi.OfMonitor(monitor);
  const RECT work = InfoOf(monitor).rcWork;
  RECT around = work;
  if (CanCentreOver(owner)) ::GetWindowRect(owner, &around);
  const SIZE size = OuterSize();
  const int left = Kept((around.left + around.right - size.cx) / 2, size.cx, work.left, work.right);
  const int top = Kept((around.top + around.bottom - size.cy) / 2, size.cy, work.top, work.bottom);
  return {left, top, left + size.cx, top + size.cy};
}

RECT FormWindow::PlacedRect() const {
  const SIZE size = OuterSize();
  const int left = ToPixels(form_->Place().left, ScreenDpi::OfSystem());
  const int top = ToPixels(form_->Place().top, ScreenDpi::OfSystem());
  return {left, top, left + size.cx, top + size.cy};
}

void FormWindow::PlaceChanged() {
  if (IsCentred()) return Put(CentredRect());
  const RECT rect = PlacedRect();
  if (making_) dpi_ = parts_.dpi.OfMonitor(::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST));
  Put(PlacedRect());
}

void FormWindow::Put(const RECT& rect) {
  if (StateOf(window_) != FormWindowState::kNormal) return PutUnderneath(rect);
  ::SetWindowPos(window_, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, kKeepOrder);
}

// The place that a minimised or maximised window goes back to counts from the corner of the area without task bars.
void FormWindow::PutUnderneath(const RECT& rect) {
  const MONITORINFO info = InfoOf(::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST));
  WINDOWPLACEMENT placement = {};
  placement.length = sizeof(placement);
  ::GetWindowPlacement(window_, &placement);
  placement.rcNormalPosition = rect;
  ::OffsetRect(&placement.rcNormalPosition, info.rcMonitor.left - info.rcWork.left,
               info.rcMonitor.top - info.rcWork.top);
  ::SetWindowPlacement(window_, &placement);
}

void FormWindow::Report() {
  if (form_ != nullptr && !making_) form_->UserMove(Measure());
}

FormGeometry FormWindow::Measure() const {
  FormGeometry geometry{form_->Place(), {}, StateOf(window_)};
  RECT client = {};
  ::GetClientRect(window_, &client);
  if (geometry.state != FormWindowState::kMinimized) {
    geometry.client = {ToTwips(client.right, dpi_), ToTwips(client.bottom, dpi_)};
  }
  RECT now = {};
  ::GetWindowRect(window_, &now);
  const RECT known = PlacedRect();
  // What was set in twips stays as it was set, as long as it comes to the pixels that are there.
  if (geometry.state == FormWindowState::kNormal && (geometry.place.width <= 0 || ::EqualRect(&now, &known) == FALSE)) {
    geometry.place = {ToTwips(now.left, ScreenDpi::OfSystem()), ToTwips(now.top, ScreenDpi::OfSystem()),
                      ToTwips(now.right - now.left, dpi_), ToTwips(now.bottom - now.top, dpi_)};
  }
  // A hidden window takes on its state when it shows.
  if (!form_->Visible()) geometry.state = form_->WindowState();
  return geometry;
}

void FormWindow::FollowScale(std::int32_t dpi, const RECT& suggested) {
  if (form_ == nullptr || making_ || dpi == dpi_) return;
  dpi_ = dpi;
  IconChanged();
  ScaleTips();
  const SIZE size = OuterSize();
  ::SetWindowPos(window_, nullptr, suggested.left, suggested.top, size.cx, size.cy, kKeepOrder);
  if (form_ == nullptr) return;
  form_->UserScale();
  // Controls that lie on others were moved one by one, and took what was on the screen along with them.
  ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// --- messages

bool FormWindow::Translate(MSG& message) {
  NoteInput(message.message);
  if (AreKeysLeftTo(message)) return false;
  const bool key = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  if (key && FromSystem([&] { return PreviewKey(message); }, false)) return true;
  return form_ != nullptr && ::IsDialogMessageW(window_, &message) != FALSE;
}

void FormWindow::NoteInput(UINT message) {
  if (message >= WM_KEYFIRST && message <= WM_KEYLAST) keyCameLast_ = true;
  if (message > WM_MOUSEMOVE && message <= WM_MOUSELAST) keyCameLast_ = false;
}

bool FormWindow::AreKeysLeftTo(const MSG& message) const {
  if (message.hwnd == nullptr || message.hwnd != openList_) return message.hwnd == labelEdit_;
  return message.message != WM_KEYDOWN || message.wParam != VK_TAB;
}

// The form sees a key first, then the control with the focus, and then the system.
bool FormWindow::PreviewKey(const MSG& message) const {
  const bool atControl = controls_.contains(message.hwnd);
  if (form_ == nullptr || (message.hwnd != window_ && !atControl)) return false;
  const auto code = static_cast<std::int32_t>(message.wParam);
  if (form_->UserKey(code, HeldKeys())) return true;
  return atControl && ::SendMessageW(message.hwnd, kReflected + WM_KEYDOWN, message.wParam, message.lParam) != 0;
}

void FormWindow::Mouse(const MouseMessage& mouse) {
  if (mouse.action == MouseAction::kDown) ::SetCapture(window_);
  const bool anyHeld = ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0;
  if (mouse.action == MouseAction::kUp && !anyHeld && ::GetCapture() == window_) {
    releasing_ = true;
    ::ReleaseCapture();
    releasing_ = false;
  }
  form_->UserMouse(mouse.action, mouse.event);
}

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = ObjectOfWindow<FormWindow>(window, message, lParam);
  if (self == nullptr) return ::DefWindowProcW(window, message, wParam, lParam);
  self->window_ = window;  // some messages come before CreateWindowEx returns
  return FromSystem([&] { return self->Receive(message, wParam, lParam); }, LRESULT{0});
}

LRESULT FormWindow::Receive(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCDESTROY) {
    const HWND window = window_;
    Lost();
    return ::DefWindowProcW(window, message, wParam, lParam);
  }
  if (form_ == nullptr || making_) return ::DefWindowProcW(window_, message, wParam, lParam);
  return Answer(message, wParam, lParam);
}

// Only windows of the first level are told, and controls of the system rely on theirs.
void FormWindow::FollowColors() const {
  const auto tell = [](HWND control, LPARAM) {
    ::SendMessageW(control, WM_SYSCOLORCHANGE, 0, 0);
    return TRUE;
  };
  ::EnumChildWindows(window_, tell, 0);
  ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

LRESULT FormWindow::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = ReflectToControl(message, wParam, lParam)) return *result;
  if (const auto brush = BackgroundOfControl(message, wParam)) return *brush;
  if (const auto mouse = DecodeMouse(message, wParam, lParam, dpi_)) {
    Mouse(*mouse);
    return 0;
  }
  switch (message) {
    case WM_CAPTURECHANGED:
      // A box or another window over this one takes it, for instance.
      if (!releasing_ && reinterpret_cast<HWND>(lParam) != window_) form_->UserLoseMouse();
      return 0;
    case WM_CLOSE:
      form_->UserClose();
      return 0;
    case WM_DESTROY:
      form_->WindowLost();
      return 0;
    case WM_WINDOWPOSCHANGED:
      Report();
      break;
    case WM_ACTIVATE:
      Activate(LOWORD(wParam) != WA_INACTIVE);
      return 0;
    case WM_SETFOCUS:
      FocusSomething();
      return 0;
    case WM_NEXTDLGCTL:
      MoveToControl(wParam, lParam);
      return 0;
    case DM_GETDEFID:
      return EnterButtonId();
    case WM_COMMAND:
      RunCommand(LOWORD(wParam));
      return 0;
    case WM_INITMENUPOPUP:
      if (OpenMenu(reinterpret_cast<HMENU>(wParam))) return 0;
      break;
    case WM_SYSCOMMAND:
      if (RunSystemCommand(wParam)) return 0;
      break;
    case WM_SETCURSOR:
      if (LOWORD(lParam) == HTCLIENT && ShowPointer()) return TRUE;
      break;
    case WM_SYSCOLORCHANGE:
      FollowColors();
      return 0;
    case WM_DPICHANGED:
      FollowScale(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    default:
      break;
  }
  return ::DefWindowProcW(window_, message, wParam, lParam);
}

void FormWindow::Lost() {
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  parts_.all.erase(window_);
  window_ = nullptr;
}

LRESULT FormWindow::EnterButtonId() const {
  const HWND button = ToHwnd(form_->EnterButton());
  return button == nullptr ? 0 : MAKELRESULT(::GetDlgCtrlID(button), DC_HASDEFID);
}

// --- focus

void FormWindow::Activate(bool active) {
  if (!active) {
    const HWND focus = ::GetFocus();
    // A label edit won't be there any more: the control that it is in.
    if (::IsChild(window_, focus) != FALSE) focusBefore_ = controls_.contains(focus) ? focus : ::GetParent(focus);
  } else if (::IsIconic(window_) == FALSE) {
    ::SetFocus(window_);
  }
  if (form_ != nullptr) form_->UserActivate(active);
}

void FormWindow::FocusSomething() {
  const bool back = ::IsChild(window_, focusBefore_) != FALSE && ::IsWindowVisible(focusBefore_) != FALSE &&
                    ::IsWindowEnabled(focusBefore_) != FALSE;
  const HWND next = back ? focusBefore_ : ::GetNextDlgTabItem(window_, nullptr, FALSE);
  if (next != nullptr && next != window_) ::SetFocus(next);
}

HWND FormWindow::NextControl(bool backwards) const {
  const HWND focus = ::GetFocus();
  // The mnemonic of a frame brings the focus to the frame itself, from where it goes on to what is in it.
  const bool holdsOthers =
      focus != window_ && (::GetWindowLongPtrW(focus, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0 && !backwards;
  const HWND inside = holdsOthers ? ::GetNextDlgTabItem(focus, nullptr, FALSE) : nullptr;
  return inside != nullptr && inside != focus ? inside : ::GetNextDlgTabItem(window_, focus, backwards ? TRUE : FALSE);
}

void FormWindow::MoveToControl(WPARAM wParam, LPARAM lParam) {
  const HWND next = LOWORD(lParam) != 0 ? reinterpret_cast<HWND>(wParam) : NextControl(wParam != 0);
  if (next == nullptr) return;
  ::SetFocus(next);
  // A text box is left with all of its text selected, as where the Tab key comes to it.
  if ((::SendMessageW(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) ::SendMessageW(next, EM_SETSEL, 0, -1);
}

}  // namespace burrowmark
