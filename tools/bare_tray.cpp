// The least that a program on the tray can be: an icon, a menu of ten entries, nothing else. What burrowmark.exe costs
// above it is ours. Not part of the build; tools/weigh.py builds it and compares the two. By hand:
//
//   x86_64-w64-mingw32-g++-posix -std=c++20 -Os -s -static -mwindows -municode tools/bare_tray.cpp -o bare_tray.exe
//
// "bare_tray.exe /EXIT" ends the one that runs.
#include <windows.h>

#include <shellapi.h>

#include <cwchar>
#include <string>

namespace {

constexpr wchar_t kClass[] = L"BareTray";
constexpr UINT kTrayMessage = WM_APP + 1;
constexpr int kEntries = 10;

void ShowMenu(HWND window) {
  const HMENU menu = CreatePopupMenu();
  for (int i = 1; i <= kEntries; ++i) {
    AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(i), (L"Entry " + std::to_wstring(i)).c_str());
  }
  POINT place = {};
  GetCursorPos(&place);
  SetForegroundWindow(window);
  TrackPopupMenu(menu, TPM_RIGHTBUTTON, place.x, place.y, 0, window, nullptr);
  DestroyMenu(menu);
}

NOTIFYICONDATAW TrayIcon(HWND window) {
  NOTIFYICONDATAW data = {};
  data.cbSize = sizeof data;
  data.hWnd = window;
  data.uID = 1;
  data.uFlags = NIF_ICON | NIF_MESSAGE | NIF_TIP;
  data.uCallbackMessage = kTrayMessage;
  data.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
  std::wcscpy(data.szTip, L"Bare");
  return data;
}

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM first, LPARAM second) {
  NOTIFYICONDATAW icon = TrayIcon(window);
  if (message == WM_CREATE) Shell_NotifyIconW(NIM_ADD, &icon);
  if (message == kTrayMessage && second == WM_LBUTTONUP) ShowMenu(window);
  if (message == WM_DESTROY) {
    Shell_NotifyIconW(NIM_DELETE, &icon);
    PostQuitMessage(0);
  }
  return DefWindowProcW(window, message, first, second);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR commandLine, int) {
  if (std::wcscmp(commandLine, L"/EXIT") == 0) {
    PostMessageW(FindWindowW(kClass, nullptr), WM_CLOSE, 0, 0);
    return 0;
  }
  WNDCLASSW description = {};
  description.lpfnWndProc = Handle;
  description.hInstance = instance;
  description.lpszClassName = kClass;
  RegisterClassW(&description);
  CreateWindowExW(0, kClass, L"", WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr, instance, nullptr);
  MSG message = {};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
