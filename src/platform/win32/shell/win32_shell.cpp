#include "platform/win32/shell/win32_shell.h"

#include <windows.h>
// These want windows.h ahead of them.
#include <mmsystem.h>
#include <objbase.h>
#include <shellapi.h>

#include <algorithm>
#include <iterator>

#include "platform/drive_letter.h"
#include "platform/win32/files/quiet_drives.h"
#include "platform/win32/files/system_path.h"
#include "platform/win32/handles.h"
#include "platform/win32/shell/link_object.h"
#include "platform/window_system.h"

namespace burrowmark {
namespace {

static_assert(kMessageTrayKey == NIN_KEYSELECT);
static_assert(kTrayAdd == NIM_ADD && kTrayModify == NIM_MODIFY && kTrayDelete == NIM_DELETE);
static_assert(kTrayHasMessage == NIF_MESSAGE && kTrayHasIcon == NIF_ICON && kTrayHasTip == NIF_TIP);
static_assert(kShowNormal == SW_SHOWNORMAL);

constexpr std::size_t kLongestTip = 63;
constexpr UINT kMediaAnswer = 30;  // characters, which nobody reads
constexpr UINT kCloseAllHelp = 0x12;

using HtmlHelpCall = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

bool IsFolder(const std::wstring& path) {
  const std::optional<std::wstring> name = SystemPath(path);
  if (!name) return false;
  const QuietDrives quiet;
  const DWORD attributes = ::GetFileAttributesW(name->c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

const wchar_t* OrNone(const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); }

}  // namespace

// What the shell hands a file to may be a component that asks for this of the thread.
class Win32Shell::Apartment {
 public:
  Apartment() : entered_(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))) {}
  ~Apartment() {
    if (entered_) ::CoUninitialize();
  }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

 private:
  bool entered_;
};

// The help viewer, whose windows live in this process.
class Win32Shell::Help {
 public:
  Help() {
    // Never let go: a window of it may still be on its way out, on a thread of its own, when the program ends.
    static const auto& library = *new SystemLibrary(L"hhctrl.ocx");
    call_ = library.Find<HtmlHelpCall>("HtmlHelpW");
  }
  ~Help() {
    if (call_ != nullptr) call_(nullptr, nullptr, kCloseAllHelp, 0);
  }
  Help(const Help&) = delete;
  Help& operator=(const Help&) = delete;

  // A window that is open already is shown again: it comes forward, also over one that stays above others.
  bool Show(const std::wstring& path, std::int32_t command) const {
    const bool above = (::GetWindowLongPtrW(::GetForegroundWindow(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    const HWND window = call_ == nullptr ? nullptr : call_(nullptr, path.c_str(), static_cast<UINT>(command), 0);
    if (window == nullptr) return false;
    if (::IsIconic(window) != FALSE) ::ShowWindow(window, SW_RESTORE);
    ::SetWindowPos(window, above ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    ::SetForegroundWindow(window);
    return true;
  }

 private:
  HtmlHelpCall call_ = nullptr;
};

Win32Shell::Win32Shell() : apartment_(std::make_unique<Apartment>()) {}

Win32Shell::~Win32Shell() = default;

std::int32_t Win32Shell::ShellExecuteA(const std::wstring& verb, const std::wstring& file,
                                       const std::wstring& parameters, const std::wstring& directory,
                                       std::int32_t show) {
  SHELLEXECUTEINFOW launch = {};
  launch.cbSize = sizeof(launch);
  launch.fMask = SEE_MASK_FLAG_NO_UI;
  launch.lpVerb = OrNone(verb);
  launch.lpFile = file.c_str();
  launch.lpParameters = OrNone(parameters);
  launch.lpDirectory = IsFolder(directory) ? directory.c_str() : nullptr;
  launch.nShow = show;
  const bool worked = ::ShellExecuteExW(&launch) != FALSE;
  const auto result = static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(launch.hInstApp));
  // The two results need not agree; the first one is the one that counts.
  return worked ? std::max(result, kLastShellError + 1) : std::min(result, kLastShellError);
}

bool Win32Shell::Shell_NotifyIconA(std::uint32_t message, const TrayIcon& icon) {
  NOTIFYICONDATAW data = {};
  data.cbSize = sizeof(data);
  data.hWnd = ToHwnd(icon.window);
  data.uID = icon.id;
  data.uFlags = icon.flags & (NIF_MESSAGE | NIF_ICON | NIF_TIP);
  data.uCallbackMessage = icon.callbackMessage;
  data.hIcon = ToHicon(icon.icon);
  std::copy_n(icon.tip.begin(), std::min(icon.tip.size(), kLongestTip), std::begin(data.szTip));
  if (::Shell_NotifyIconW(message, &data) == FALSE) return false;
  if (message == NIM_ADD) {
    data.uVersion = NOTIFYICON_VERSION;  // so that it is told of keys
    ::Shell_NotifyIconW(NIM_SETVERSION, &data);
  }
  return true;
}

std::optional<Rect> Win32Shell::Shell_NotifyIconGetRect(WindowHandle window, std::uint32_t id) {
  NOTIFYICONIDENTIFIER icon = {};
  icon.cbSize = sizeof(icon);
  icon.hWnd = ToHwnd(window);
  icon.uID = id;
  RECT rect = {};
  if (FAILED(::Shell_NotifyIconGetRect(&icon, &rect))) return std::nullopt;
  return Rect{rect.left, rect.top, rect.right, rect.bottom};
}

bool Win32Shell::HtmlHelpA(const std::wstring& path, std::int32_t command) {
  if (help_ == nullptr) help_ = std::make_unique<Help>();
  return help_->Show(path, command);
}

bool Win32Shell::ReadShellLink(const std::wstring& path, ShellLink& link) { return LoadLink(path, link); }

bool Win32Shell::WriteShellLink(const std::wstring& path, const ShellLink& link) { return SaveLink(path, link); }

// The shell's call takes plain paths alone, and where a drive has no bin it would delete for good.
bool Win32Shell::RecycleFile(const std::wstring& path) {
  SHQUERYRBINFO bin = {};
  bin.cbSize = sizeof(bin);
  const std::wstring root = path.substr(0, 3);
  if (!DriveLetter(root) || ::GetDriveTypeW(root.c_str()) != DRIVE_FIXED) return false;
  if (FAILED(::SHQueryRecycleBinW(root.c_str(), &bin))) return false;
  const std::wstring list = path + L'\0';  // a list ends in two NULs
  SHFILEOPSTRUCTW removal = {};
  removal.wFunc = FO_DELETE;
  removal.pFrom = list.c_str();
  removal.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT | FOF_WANTNUKEWARNING;
  return ::SHFileOperationW(&removal) == 0 && removal.fAnyOperationsAborted == FALSE;
}

// The verb is one of the file's own menu, not one that is registered for its kind.
bool Win32Shell::ShowProperties(WindowHandle owner, const std::wstring& path) {
  SHELLEXECUTEINFOW sheet = {};
  sheet.cbSize = sizeof(sheet);
  sheet.fMask = SEE_MASK_INVOKEIDLIST | SEE_MASK_FLAG_NO_UI;
  sheet.hwnd = ToHwnd(owner);
  sheet.lpVerb = L"properties";
  sheet.lpFile = path.c_str();
  sheet.nShow = SW_SHOWNORMAL;
  return ::ShellExecuteExW(&sheet) != FALSE;
}

std::int32_t Win32Shell::mciSendStringA(const std::wstring& command) {
  // Loaded with the first command: a program at rest has no use for it.
  static const SystemLibrary library(L"winmm.dll");
  const auto send = library.Find<decltype(&::mciSendStringW)>("mciSendStringW");
  if (send == nullptr) return MCIERR_CANNOT_LOAD_DRIVER;
  wchar_t answer[kMediaAnswer] = {};
  return static_cast<std::int32_t>(send(command.c_str(), answer, kMediaAnswer, nullptr));
}

}  // namespace burrowmark
