// Verbs that look at windows and talk to them by messages.
#include "remote.h"

namespace driver {
namespace {

// By message, so that the text of another process's edit control comes too; a hanging window gives none.
std::wstring TextOf(HWND window) {
  wchar_t text[4096] = {};
  DWORD_PTR copied = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, 4096, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 1000, &copied);
  return {text, copied};
}

BOOL CALLBACK PrintWindowLine(HWND window, LPARAM) {
  // First, as it waits for the window's process: what is read after it is of one moment.
  const std::wstring title = TextOf(window);
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread);
  Line()
      .AddHandle("handle", window)
      .Add("id", std::int64_t{GetDlgCtrlID(window)})
      .Add("class_name", ClassOf(window))
      .Add("title", title)
      .Add("rectangle", rectangle)
      .Add("visible", IsWindowVisible(window) != 0)
      .Add("focus", window == thread.hwndFocus);
  return TRUE;
}

}  // namespace

std::wstring ClassOf(HWND window) {
  wchar_t name[257] = {};
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 257))};
}

void ListWindows(Words&) { EnumWindows(PrintWindowLine, 0); }

void ListChildren(Words& words) { EnumChildWindows(words.Window(), PrintWindowLine, 0); }

void PressButton(Words& words) {
  const HWND window = words.Window();
  const int id = words.Int();
  const HWND button = GetDlgItem(window, id);
  if (button == nullptr || !IsWindowVisible(button) || !IsWindowEnabled(button))
    throw Failure("no such button to press");
  // Posted: a button that opens a modal window would hold a sender until that closes.
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void CloseWindow(Words& words) { PostMessageW(words.Window(), WM_CLOSE, 0, 0); }

void BringForward(Words& words) {
  if (!SetForegroundWindow(words.Window())) throw Failure("the window didn't come to the front");
}

}  // namespace driver
