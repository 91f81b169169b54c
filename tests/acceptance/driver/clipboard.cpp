// The text on the clipboard, as another program finds it.
#include <future>
#include <thread>
#include <utility>

#include "driver.h"

namespace driver {

// Keeps it from everybody else for so long, from now on.
void HoldClipboard(Words& words) {
  const auto milliseconds = static_cast<DWORD>(words.Int());
  std::promise<bool> held;
  std::future<bool> answer = held.get_future();
  std::thread([milliseconds, held = std::move(held)]() mutable {
    const bool open = OpenClipboard(nullptr) != 0;
    held.set_value(open);
    Sleep(milliseconds);
    if (open) CloseClipboard();
  }).detach();
  if (!answer.get()) throw Failure("another program holds the clipboard");
}

// Whoever is just writing to it has a second.
void ReadClipboard(Words&) {
  const ULONGLONG end = GetTickCount64() + 1000;
  while (OpenClipboard(nullptr) == 0) {
    if (GetTickCount64() > end) throw Failure("another program holds the clipboard");
    Sleep(20);
  }
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  const auto* text = data == nullptr ? nullptr : static_cast<const wchar_t*>(GlobalLock(data));
  Line().Add("text", text == nullptr ? L"" : text);
  if (text != nullptr) GlobalUnlock(data);
  CloseClipboard();
}

}  // namespace driver
