#include "platform/win32/windows/main_window.h"

#include <windowsx.h>

#include <utility>

#include "platform/from_system.h"
#include "platform/win32/menus/menu_letters.h"
#include "platform/win32/menus/menu_right_click.h"
#include "platform/win32/menus/menu_style.h"
#include "platform/win32/system_library.h"
#include "platform/win32/windows/message_records.h"

namespace burrowmark {
namespace {

constexpr wchar_t kClassName[] = L"BurrowmarkMain";
constexpr UINT kTrayCallback = kMessageMouseMove;  // a hidden window hears of no other mouse
constexpr UINT_PTR kDummyId = 50;

using AllowMessageCall = BOOL(WINAPI*)(HWND, UINT, DWORD, void*);

// A menu that goes unless a window takes it over.
class FreeMenu {
 public:
  explicit FreeMenu(HMENU menu) : menu_(menu) {}
  ~FreeMenu() {
    if (menu_ != nullptr) ::DestroyMenu(menu_);
  }
  FreeMenu(const FreeMenu&) = delete;
  FreeMenu& operator=(const FreeMenu&) = delete;

  HMENU Get() const { return menu_; }
  void Release() { menu_ = nullptr; }

 private:
  HMENU menu_;
};

// The menu bar: its one popup is the root of the program's menu, and is never empty.
HMENU CreateMenuBar() {
  FreeMenu bar(::CreateMenu());
  FreeMenu popup(::CreatePopupMenu());
  if (bar.Get() == nullptr || popup.Get() == nullptr) return nullptr;
  StylePopup(popup.Get());
  ::AppendMenuW(popup.Get(), MF_STRING, kDummyId, L"Dummy");
  if (::AppendMenuW(bar.Get(), MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Get()), L"File") == FALSE) return nullptr;
  popup.Release();
  const HMENU menu = bar.Get();
  bar.Release();
  return menu;
}

template <typename Event, typename... Values>
void Tell(const Event& event, Values... values) {
  const Event copy = event;  // it may be replaced while it runs
  if (copy) copy(values...);
}

}  // namespace

MainWindow::MainWindow(const std::wstring& title, MainWindowEvents& events, const MainWindowParts& parts)
    : events_(&events),
      parts_(parts),
      taskbarCreated_(::RegisterWindowMessageW(L"TaskbarCreated")),
      class_(kClassName, Procedure) {
  FreeMenu bar(CreateMenuBar());
  if (bar.Get() == nullptr) return;
  // Never shown; as the window of a tool it isn't among those that the user switches between either.
  window_ = ::CreateWindowExW(WS_EX_TOOLWINDOW, kClassName, title.c_str(), WS_POPUP, 0, 0, 0, 0, nullptr, bar.Get(),
                              WindowClass::Module(), this);
  if (window_ == nullptr) return;
  bar.Release();
  lastDpi_ = parts_.dpi.OfWindow(window_);
  LetTaskbarThrough();
}

MainWindow::~MainWindow() {
  events_ = nullptr;
  hook_ = nullptr;
  Destroy();
}

void MainWindow::SetHook(Hook hook) { hook_ = hook ? std::make_shared<const Hook>(std::move(hook)) : nullptr; }

void MainWindow::Destroy() {
  if (window_ != nullptr && !going_) ::DestroyWindow(window_);
}

void MainWindow::TellAtRest() const {
  FromSystem(
      [this] {
        if (events_ != nullptr) Tell(events_->AtRest);
        return true;
      },
      false);
}

LRESULT CALLBACK MainWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = ObjectOfWindow<MainWindow>(window, message, lParam);
  if (self == nullptr) return ::DefWindowProcW(window, message, wParam, lParam);
  self->window_ = window;  // some messages come before CreateWindowEx returns
  return FromSystem([&] { return self->Receive(message, wParam, lParam); }, LRESULT{0});
}

LRESULT MainWindow::Receive(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = window_;
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    hook_ = nullptr;
    window_ = nullptr;
    return ::DefWindowProcW(window, message, wParam, lParam);
  }
  FollowMenu(message, lParam);
  // A hook that fails hasn't handled the message.
  const auto result = FromSystem([&] { return AskHook(message, wParam, lParam); }, std::optional<LRESULT>());
  return result ? *result : Answer(message, wParam, lParam);
}

std::optional<LRESULT> MainWindow::AskHook(UINT message, WPARAM wParam, LPARAM lParam) {
  const std::shared_ptr<const Hook> hook = hook_;
  if (!hook) return std::nullopt;
  DecodedMessage decoded(window_, message, wParam, lParam, parts_.selectedState, parts_.font);
  if (!decoded.IsWhole()) return 0;
  const MessageResult result = (*hook)(decoded.Message());
  decoded.WriteBack();
  if (!result.handled) return std::nullopt;
  return static_cast<LRESULT>(result.value);
}

LRESULT MainWindow::Answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == taskbarCreated_ && events_ != nullptr) Tell(events_->TaskbarCreated);
  switch (message) {
    case kTrayCallback:
      if (events_ != nullptr) Tell(events_->TrayMouse, static_cast<std::uint32_t>(lParam));
      return 0;
    case WM_DPICHANGED:
      FollowDpi(HIWORD(wParam));
      return 0;
    case WM_DISPLAYCHANGE:
      FollowDpi(parts_.dpi.OfWindow(window_));
      break;
    case WM_SETTINGCHANGE:
      if (wParam == SPI_SETNONCLIENTMETRICS) parts_.font.Forget();
      break;
    case WM_MENUCHAR:
      return AnswerLetter(static_cast<wchar_t>(LOWORD(wParam)), reinterpret_cast<HMENU>(lParam));
    case kMenuRightClick:
      MakeUpForRightClick({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_CLOSE:
      if (events_ != nullptr) Tell(events_->Close);
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (wParam != 0 && events_ != nullptr) Tell(events_->SessionEnding);
      return 0;
    case WM_DESTROY:
      Unload();
      break;
    default:
      break;
  }
  return ::DefWindowProcW(window_, message, wParam, lParam);
}

LRESULT MainWindow::AnswerLetter(wchar_t letter, HMENU menu) {
  const std::optional<UINT> entry = EntryOfLetter(menu, letter);
  if (!entry) return MAKELRESULT(0, MNC_IGNORE);
  parts_.work.Post([window = window_, menu, position = *entry] { GoToEntryByKeys(window, menu, position); });
  return MAKELRESULT(*entry, MNC_SELECT);
}

void MainWindow::FollowMenu(UINT message, LPARAM lParam) {
  if (message == WM_ENTERMENULOOP) toldOfRightClick_ = false;
  if (message == WM_MENUSELECT) selectedMenu_ = reinterpret_cast<HMENU>(lParam);
  if (message == WM_MENURBUTTONUP) toldOfRightClick_ = true;
}

void MainWindow::MakeUpForRightClick(POINT place) {
  // By the time that this work runs, a system that tells of right clicks by itself has done so.
  parts_.work.Post([this, window = window_, place] {
    if (::IsWindow(window) == FALSE || std::exchange(toldOfRightClick_, false)) return;
    const std::optional<UINT> entry = EntryAt(selectedMenu_, place);
    if (entry) ::SendMessageW(window, WM_MENURBUTTONUP, *entry, reinterpret_cast<LPARAM>(selectedMenu_));
    toldOfRightClick_ = false;
  });
}

void MainWindow::FollowDpi(std::int32_t dpi) {
  if (dpi == lastDpi_) return;
  lastDpi_ = dpi;
  if (events_ != nullptr) Tell(events_->DpiChanged, dpi);
}

void MainWindow::Unload() {
  going_ = true;
  MainWindowEvents* events = std::exchange(events_, nullptr);
  if (events != nullptr) Tell(events->Unload);
}

void MainWindow::LetTaskbarThrough() const {
  // The task bar runs with fewer rights than a program that was started as administrator.
  const SystemLibrary user(L"user32.dll");
  const auto allow = user.Find<AllowMessageCall>("ChangeWindowMessageFilterEx");
  if (allow != nullptr) allow(window_, taskbarCreated_, MSGFLT_ALLOW, nullptr);
}

}  // namespace burrowmark
