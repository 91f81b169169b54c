// weigh.exe PROGRAM RUNS: starts a program of the tray that often within a desktop. For each run it prints the
// microseconds until the program's icon is seen, and "rests" after the start and after the first opening and closing of
// the menu; there it waits for a character. tools/weigh.py builds and runs it.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr DWORD kLimit = 20000;
constexpr DWORD kRest = 1500;
constexpr int kFromRight = 11;  // the middle of the first icon, counted from the task bar's right end and bottom
constexpr int kFromBottom = 11;

[[noreturn]] void Fail(const char* what) {
  std::fprintf(stderr, "weigh: %s\n", what);
  std::exit(1);
}

template <typename Condition>
void WaitFor(Condition condition, const char* what) {
  const DWORD start = GetTickCount();
  while (!condition()) {
    if (GetTickCount() - start > kLimit) Fail(what);
    Sleep(1);
  }
}

POINT IconPlace() {
  RECT bar = {};
  if (!GetWindowRect(FindWindowW(L"Shell_TrayWnd", nullptr), &bar)) Fail("no task bar");
  return {bar.right - kFromRight, bar.bottom - kFromBottom};
}

// A cross of pixels: no icon has the bar's colour in all of them.
DWORD Sum(POINT place) {
  const HDC screen = GetDC(nullptr);
  DWORD sum = 0;
  for (int step = -4; step <= 4; step += 4) {
    sum = sum * 31 + GetPixel(screen, place.x + step, place.y) + 7 * GetPixel(screen, place.x, place.y + step);
  }
  ReleaseDC(nullptr, screen);
  return sum;
}

PROCESS_INFORMATION Start(std::wstring command) {
  STARTUPINFOW how = {};
  how.cb = sizeof how;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process)) {
    Fail("the program doesn't start");
  }
  CloseHandle(process.hThread);
  return process;
}

// The script looks at the program's memory meanwhile, and says so by a line.
void Rest() {
  Sleep(kRest);
  std::printf("rests\n");
  std::fflush(stdout);
  if (std::getchar() == EOF) Fail("nobody listens");
}

void OpenAndCloseMenu(POINT place) {
  SetCursorPos(place.x, place.y);
  INPUT clicks[2] = {};
  clicks[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  clicks[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
  for (INPUT& click : clicks) click.type = INPUT_MOUSE;
  SendInput(2, clicks, sizeof(INPUT));
  WaitFor([] { return IsWindowVisible(FindWindowW(L"#32768", nullptr)); }, "no menu");
  Sleep(kRest);
  INPUT keys[2] = {};
  for (INPUT& key : keys) {
    key.type = INPUT_KEYBOARD;
    key.ki.wVk = VK_ESCAPE;
  }
  keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
  SendInput(2, keys, sizeof(INPUT));
  WaitFor([] { return !IsWindowVisible(FindWindowW(L"#32768", nullptr)); }, "the menu stays");
}

void Run(const std::wstring& program, POINT place) {
  WaitFor(
      [place, last = Sum(place), same = 0]() mutable {
        const DWORD now = Sum(place);
        same = now == last ? same + 1 : 0;
        last = now;
        return same > 100;
      },
      "the task bar doesn't rest");
  const DWORD without = Sum(place);
  LARGE_INTEGER start = {}, end = {}, frequency = {};
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&start);
  const PROCESS_INFORMATION process = Start(program);
  WaitFor([place, without] { return Sum(place) != without; }, "no icon in the task bar");
  QueryPerformanceCounter(&end);
  std::printf("%lld\n", (end.QuadPart - start.QuadPart) * 1000000 / frequency.QuadPart);
  Rest();
  OpenAndCloseMenu(place);
  Rest();
  CloseHandle(Start(program + L" /EXIT").hProcess);
  if (WaitForSingleObject(process.hProcess, kLimit) != WAIT_OBJECT_0) Fail("the program doesn't end");
  CloseHandle(process.hProcess);
  WaitFor([place, without] { return Sum(place) == without; }, "the icon stays");
}

}  // namespace

int wmain(int count, wchar_t** words) {
  if (count != 3) Fail("weigh.exe PROGRAM RUNS");
  const POINT place = IconPlace();
  for (int run = 0; run < _wtoi(words[2]); ++run) Run(words[1], place);
  return 0;
}
