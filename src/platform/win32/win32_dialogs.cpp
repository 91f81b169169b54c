#include "platform/win32/win32_dialogs.h"

#include <windows.h>

#include "platform/win32/handles.h"

namespace burrowmark {
namespace {

static_assert(kBoxOk == MB_OK && kBoxYesNoCancel == MB_YESNOCANCEL && kBoxCritical == MB_ICONERROR);
static_assert(kBoxQuestion == MB_ICONQUESTION && kBoxWarning == MB_ICONWARNING);
static_assert(kBoxInformation == MB_ICONINFORMATION);
static_assert(kAnswerOk == IDOK && kAnswerCancel == IDCANCEL && kAnswerYes == IDYES && kAnswerNo == IDNO);

}  // namespace

std::int32_t Win32Dialogs::MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                       std::uint32_t style) {
  const HWND window = ToHwnd(owner);
  // Over a window that isn't seen the box would come up behind the other programs.
  const UINT front = window != nullptr && ::IsWindowVisible(window) != FALSE ? 0 : MB_SETFOREGROUND;
  return ::MessageBoxW(window, text.c_str(), title.c_str(), style | front);
}

}  // namespace burrowmark
