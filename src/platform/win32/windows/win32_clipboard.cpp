#include "platform/win32/windows/win32_clipboard.h"

#include <windows.h>

#include <cstring>

namespace burrowmark {
namespace {

constexpr DWORD kPatience = 500;  // milliseconds
constexpr DWORD kPause = 20;

// The clipboard as long as it lives. What is put there needs a window to belong to.
class OpenClipboard {
 public:
  OpenClipboard()
      : window_(::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
    const ULONGLONG end = ::GetTickCount64() + kPatience;
    for (open_ = ::OpenClipboard(window_) != FALSE; !open_ && ::GetTickCount64() < end;) {
      ::Sleep(kPause);
      open_ = ::OpenClipboard(window_) != FALSE;
    }
  }
  ~OpenClipboard() {
    if (open_) ::CloseClipboard();
    if (window_ != nullptr) ::DestroyWindow(window_);
  }
  OpenClipboard(const OpenClipboard&) = delete;
  OpenClipboard& operator=(const OpenClipboard&) = delete;

  bool IsOpen() const { return open_; }

 private:
  HWND window_;
  bool open_ = false;
};

// Memory with the text and a zero behind it; the clipboard sees all of it.
HGLOBAL MemoryOf(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
  void* const place = memory == nullptr ? nullptr : ::GlobalLock(memory);
  if (place == nullptr) return memory;
  std::memcpy(place, text.c_str(), bytes);
  ::GlobalUnlock(memory);
  return memory;
}

}  // namespace

bool Win32Clipboard::SetText(const std::wstring& text) {
  const OpenClipboard clipboard;
  const HGLOBAL memory = clipboard.IsOpen() ? MemoryOf(text) : nullptr;
  if (memory == nullptr) return false;
  // From then on it is the system's.
  if (::EmptyClipboard() != FALSE && ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr) return true;
  ::GlobalFree(memory);
  return false;
}

std::optional<std::wstring> Win32Clipboard::GetText() {
  const OpenClipboard clipboard;
  const HANDLE memory = clipboard.IsOpen() ? ::GetClipboardData(CF_UNICODETEXT) : nullptr;
  const auto* const text = memory == nullptr ? nullptr : static_cast<const wchar_t*>(::GlobalLock(memory));
  if (text == nullptr) return std::nullopt;
  const std::size_t room = ::GlobalSize(memory) / sizeof(wchar_t);
  std::wstring copy(text, ::wcsnlen(text, room));
  ::GlobalUnlock(memory);
  return copy;
}

}  // namespace burrowmark
