// Verbs that look at windows and talk to them by messages.
#include "driver.h"

namespace driver {
namespace {

// By message, so that the text of another process's edit control comes too; a hanging window gives none.
std::wstring TextOf(HWND window) {
  DWORD_PTR length = 0;
  if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 1000, &length) || length == 0) return {};
  std::wstring text(length + 1, L'\0');
  DWORD_PTR copied = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG, 1000,
                      &copied);
  text.resize(copied);
  return text;
}

RECT RectangleOf(HWND window) {
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  return rectangle;
}

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

HWND FocusOf(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) ? info.hwndFocus : nullptr;
}

BOOL CALLBACK PrintWindowLine(HWND window, LPARAM) {
  Line()
      .AddHandle("handle", window)
      .Add("class", ClassOf(window))
      .Add("title", TextOf(window))
      .Add("rectangle", RectangleOf(window))
      .Add("visible", IsWindowVisible(window) != 0)
      .Add("enabled", IsWindowEnabled(window) != 0)
      .AddHandle("owner", GetWindow(window, GW_OWNER))
      .Add("pid", static_cast<std::int64_t>(ProcessOf(window)));
  return TRUE;
}

BOOL CALLBACK PrintChildLine(HWND window, LPARAM focus) {
  Line()
      .AddHandle("handle", window)
      .AddHandle("parent", GetParent(window))
      .Add("id", static_cast<std::int64_t>(GetDlgCtrlID(window)))
      .Add("class", ClassOf(window))
      .Add("text", TextOf(window))
      .Add("rectangle", RectangleOf(window))
      .Add("enabled", IsWindowEnabled(window) != 0)
      .Add("visible", IsWindowVisible(window) != 0)
      .Add("focus", window == reinterpret_cast<HWND>(focus));
  return TRUE;
}

}  // namespace

std::wstring ClassOf(HWND window) {
  wchar_t name[257] = {};
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 257))};
}

void ListWindows(Words& words) {
  words.End();
  EnumWindows(PrintWindowLine, 0);
}

void ListChildren(Words& words) {
  const HWND window = words.Window();
  words.End();
  EnumChildWindows(window, PrintChildLine, reinterpret_cast<LPARAM>(FocusOf(window)));
}

void PressButton(Words& words) {
  const HWND window = words.Window();
  const int id = words.Int();
  words.End();
  const HWND button = GetDlgItem(window, id);
  if (button == nullptr || !IsWindowVisible(button)) throw Failure("no such button");
  if (!IsWindowEnabled(button)) throw Failure("the button is disabled");
  // Posted: a button that opens a modal window would hold a sender until that closes.
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void CloseWindow(Words& words) {
  const HWND window = words.Window();
  words.End();
  PostMessageW(window, WM_CLOSE, 0, 0);
}

void SendOrPost(Words& words, bool post) {
  const HWND window = words.Window();
  const auto message = static_cast<UINT>(words.Number());
  const auto wParam = static_cast<WPARAM>(words.Number());
  const auto lParam = static_cast<LPARAM>(words.Number());
  words.End();
  if (post) {
    if (!PostMessageW(window, message, wParam, lParam)) throw Failure("the message wasn't posted");
    return;
  }
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, 5000, &result)) {
    throw Failure("the window didn't answer");
  }
  Line().Add("result", static_cast<std::int64_t>(result));
}

void SetText(Words& words) {
  const HWND window = words.Window();
  const std::wstring text = words.Text();
  words.End();
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()), SMTO_NORMAL, 5000, &result)) {
    throw Failure("the window didn't answer");
  }
}

void ShowForeground(Words& words) {
  words.End();
  const HWND window = GetForegroundWindow();
  Line()
      .AddHandle("handle", window)
      .Add("class", window ? ClassOf(window) : std::wstring())
      .Add("title", window ? TextOf(window) : std::wstring())
      .AddHandle("focus", window ? FocusOf(window) : nullptr);
}

void BringForward(Words& words) {
  const HWND window = words.Window();
  words.End();
  if (!SetForegroundWindow(window)) throw Failure("the window didn't come to the front");
}

}  // namespace driver
