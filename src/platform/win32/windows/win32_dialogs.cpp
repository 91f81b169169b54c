#include "platform/win32/windows/win32_dialogs.h"

#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <string_view>

#include "platform/win32/handles.h"
#include "platform/win32/system_library.h"

namespace burrowmark {
namespace {

static_assert(kBoxOk == MB_OK && kBoxYesNoCancel == MB_YESNOCANCEL && kBoxYesNo == MB_YESNO &&
              kBoxCritical == MB_ICONERROR);
static_assert(kBoxQuestion == MB_ICONQUESTION && kBoxWarning == MB_ICONWARNING);
static_assert(kBoxInformation == MB_ICONINFORMATION);
static_assert(kAnswerOk == IDOK && kAnswerCancel == IDCANCEL && kAnswerYes == IDYES && kAnswerNo == IDNO);

constexpr std::size_t kLongestPath = 32768;

// Texts and patterns, each with a zero behind it, and one more at the end.
std::wstring FilterList(const std::vector<FileFilter>& filters) {
  std::wstring list;
  for (const FileFilter& filter : filters) list += filter.text + L'\0' + filter.pattern + L'\0';
  return list + L'\0';
}

// The topmost of the system's own dialogs on this thread.
BOOL CALLBACK FindDialog(HWND window, LPARAM found) {
  wchar_t name[8] = {};
  ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
  if (std::wstring_view(name) != L"#32770" || ::IsWindowVisible(window) == FALSE) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

// Loaded with the first dialog: a program at rest has no use for it and for all that it loads in turn.
struct CommonDialogs {
  SystemLibrary library{L"comdlg32.dll"};
  decltype(&::GetSaveFileNameW) save = library.Find<decltype(save)>("GetSaveFileNameW");
  decltype(&::GetOpenFileNameW) open = library.Find<decltype(open)>("GetOpenFileNameW");
  decltype(&::CommDlgExtendedError) error = library.Find<decltype(error)>("CommDlgExtendedError");
};

bool Ask(bool save, OPENFILENAMEW& dialog) {
  static const CommonDialogs dialogs;
  const auto call = save ? dialogs.save : dialogs.open;
  if (call == nullptr) return false;
  if (call(&dialog) != FALSE) return true;
  if (dialogs.error == nullptr || dialogs.error() != FNERR_INVALIDFILENAME) return false;
  dialog.lpstrFile[0] = L'\0';  // a name that can't be one doesn't keep the dialog away
  return call(&dialog) != FALSE;
}

}  // namespace

std::int32_t Win32Dialogs::MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                       std::uint32_t style) {
  const HWND window = ToHwnd(owner);
  // Over a window that isn't seen the box would come up behind the other programs.
  const UINT front = window != nullptr && ::IsWindowVisible(window) != FALSE ? 0 : MB_SETFOREGROUND;
  return ::MessageBoxW(window, text.c_str(), title.c_str(), style | front);
}

std::optional<FileAnswer> Win32Dialogs::FileDialog(const FileRequest& request) {
  const std::wstring filters = FilterList(request.filters);
  std::wstring path(kLongestPath, L'\0');
  std::copy_n(request.fileName.begin(), std::min(request.fileName.size(), kLongestPath - 1), path.begin());
  OPENFILENAMEW dialog = {};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = ToHwnd(request.owner);
  dialog.lpstrFilter = filters.c_str();
  dialog.nFilterIndex = static_cast<DWORD>(request.filterIndex);
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(kLongestPath);
  dialog.lpstrTitle = request.title.c_str();
  dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  if (!Ask(request.save, dialog)) return std::nullopt;
  path.resize(path.find(L'\0'));
  return FileAnswer{path, static_cast<std::int32_t>(dialog.nFilterIndex)};
}

void Win32Dialogs::CancelBox() {
  HWND dialog = nullptr;
  ::EnumThreadWindows(::GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&dialog));
  for (const int button : {IDCANCEL, IDNO, IDOK}) {
    if (::GetDlgItem(dialog, button) == nullptr) continue;
    ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    return;
  }
}

}  // namespace burrowmark
