#include "platform/win32/windows/win32_windows.h"

#include <utility>

#include "platform/from_system.h"
#include "platform/win32/handles.h"
#include "platform/win32/windows/drag_source.h"

namespace burrowmark {
namespace {

constexpr UINT kLongestWait = 5000;  // milliseconds for an answer of another process
constexpr std::uint32_t kVersionWithCues = 5;

std::int64_t SendAndWait(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR result = 0;
  const LRESULT answered =
      ::SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kLongestWait, &result);
  return answered == 0 ? 0 : static_cast<std::int64_t>(result);
}

Box InTwips(const RECT& pixels) {
  const auto twips = [](LONG length) { return ToTwips(static_cast<std::int32_t>(length), ScreenDpi::OfSystem()); };
  return {twips(pixels.left), twips(pixels.top), twips(pixels.right - pixels.left), twips(pixels.bottom - pixels.top)};
}

BOOL CALLBACK AddScreen(HMONITOR monitor, HDC, RECT*, LPARAM data) {
  return FromSystem(
      [&] {
        auto& screens = *reinterpret_cast<std::vector<Box>*>(data);
        MONITORINFO info = {};
        info.cbSize = sizeof(info);
        if (::GetMonitorInfoW(monitor, &info) == FALSE) return TRUE;
        const bool isMain = (info.dwFlags & MONITORINFOF_PRIMARY) != 0;
        screens.insert(isMain ? screens.begin() : screens.end(), InTwips(info.rcWork));
        return TRUE;
      },
      FALSE);
}

}  // namespace

// A name that all processes of the user's session see as long as this one holds it.
class Win32Windows::Claim {
 public:
  explicit Claim(const std::wstring& name) : mutex_(::CreateMutexW(nullptr, FALSE, (L"Local\\" + name).c_str())) {
    first_ = mutex_ != nullptr && ::GetLastError() != ERROR_ALREADY_EXISTS;
  }
  ~Claim() {
    if (mutex_ != nullptr) ::CloseHandle(mutex_);
  }
  Claim(const Claim&) = delete;
  Claim& operator=(const Claim&) = delete;

  bool IsFirst() const { return first_; }

 private:
  HANDLE mutex_;
  bool first_ = false;
};

Win32Windows::Win32Windows(MenuFont& font, const ScreenDpi& dpi, std::uint32_t majorVersion)
    : font_(font),
      dpi_(dpi),
      selectedState_(majorVersion >= kVersionWithCues ? ODS_SELECTED | ODS_NOACCEL : ODS_SELECTED),
      peers_(dpi) {}

Win32Windows::~Win32Windows() = default;

WindowHandle Win32Windows::CreateMainWindow(const std::wstring& title, MainWindowEvents& events) {
  if (AnyWindow()) return 0;
  main_ = std::make_unique<MainWindow>(title, events, MainWindowParts{font_, dpi_, work_, selectedState_});
  return FromHwnd(main_->Handle());
}

void Win32Windows::DestroyMainWindow(WindowHandle window) {
  if (IsMainWindow(window)) main_->Destroy();
}

void Win32Windows::SetWindowHook(WindowHandle window, std::function<MessageResult(WindowMessage&)> hook) {
  if (IsMainWindow(window)) main_->SetHook(std::move(hook));
}

std::int32_t Win32Windows::MouseScreenDpi() { return dpi_.AtMouse(); }

std::int32_t Win32Windows::MainScreenDpi() { return dpi_.OfMonitor(::MonitorFromPoint({}, MONITOR_DEFAULTTOPRIMARY)); }

std::vector<Box> Win32Windows::Screens() {
  std::vector<Box> screens;
  ::EnumDisplayMonitors(nullptr, nullptr, AddScreen, reinterpret_cast<LPARAM>(&screens));
  return screens;
}

std::uint32_t Win32Windows::RegisterWindowMessageA(const std::wstring& name) {
  return ::RegisterWindowMessageW(name.c_str());
}

bool Win32Windows::PostMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam, std::int64_t lParam) {
  // Without a window the message would go to this thread, and nobody would ever see it.
  return window != 0 && ::PostMessageW(ToHwnd(window), message, static_cast<WPARAM>(wParam), lParam) != FALSE;
}

std::int64_t Win32Windows::SendMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam,
                                        std::int64_t lParam) {
  return SendAndWait(ToHwnd(window), message, static_cast<WPARAM>(wParam), lParam);
}

std::int64_t Win32Windows::SendText(WindowHandle window, std::uint32_t number, const std::wstring& text) {
  DWORD process = 0;
  if (::GetWindowThreadProcessId(ToHwnd(window), &process) != 0) ::AllowSetForegroundWindow(process);
  std::wstring copy = text;
  COPYDATASTRUCT data = {};
  data.dwData = number;
  data.cbData = static_cast<DWORD>(copy.size() * sizeof(wchar_t));
  data.lpData = copy.data();
  return SendAndWait(ToHwnd(window), WM_COPYDATA, static_cast<WPARAM>(ProcessNumber()),
                     reinterpret_cast<LPARAM>(&data));
}

std::int64_t Win32Windows::ProcessNumber() { return ::GetCurrentProcessId(); }

void Win32Windows::SetForegroundWindow(WindowHandle window) { ::SetForegroundWindow(FrontOf(ToHwnd(window))); }

void Win32Windows::CancelModes() {
  CancelDrag();
  GUITHREADINFO thread = {};
  thread.cbSize = sizeof(thread);
  if (::GetGUIThreadInfo(::GetCurrentThreadId(), &thread) == FALSE) return;
  for (const HWND window : {thread.hwndMenuOwner, thread.hwndMoveSize, thread.hwndCapture}) {
    if (window != nullptr) ::SendMessageW(window, WM_CANCELMODE, 0, 0);
  }
}

bool Win32Windows::ClaimInstance(const std::wstring& name) {
  if (claims_.contains(name)) return true;
  auto claim = std::make_unique<Claim>(name);
  if (!claim->IsFirst()) return false;
  claims_[name] = std::move(claim);
  return true;
}

void Win32Windows::Dispatch(MSG& message) {
  if (peers_.Translate(message)) return;
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
}

void Win32Windows::DoEvents() {
  MSG message = {};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      ::PostQuitMessage(static_cast<int>(message.wParam));  // it is meant for the loop
      return;
    }
    Dispatch(message);
  }
}

void Win32Windows::RunLoop() {
  MSG message = {};
  if (AnyWindow()) main_->TellAtRest();
  while (AnyWindow() && ::GetMessageW(&message, nullptr, 0, 0) > 0) {
    Dispatch(message);
    if (AnyWindow()) main_->TellAtRest();
  }
}

void Win32Windows::RunModal(WindowHandle, const std::function<bool()>& open) {
  MSG message = {};
  while (open()) {
    if (::GetMessageW(&message, nullptr, 0, 0) <= 0) {
      ::PostQuitMessage(static_cast<int>(message.wParam));  // it is meant for the program's own loop
      return;
    }
    Dispatch(message);
  }
}

void Win32Windows::Post(std::function<void()> work) { work_.Post(std::move(work)); }

void Win32Windows::PostLater(std::int32_t milliseconds, std::function<void()> work) {
  work_.PostLater(milliseconds, std::move(work));
}

void Win32Windows::Beep() { ::MessageBeep(MB_OK); }

bool Win32Windows::IsMainWindow(WindowHandle window) const {
  return AnyWindow() && FromHwnd(main_->Handle()) == window;
}

}  // namespace burrowmark
