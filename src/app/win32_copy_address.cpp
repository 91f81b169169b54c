// CopyAddress.exe: puts the path that stands behind its name on the clipboard. The file manager starts it with the path
// of what was clicked, as it is: without quotes, whatever blanks it has. 0 if the text is there, otherwise 1.
#include <windows.h>

namespace {

constexpr ULONGLONG kPatience = 500;  // milliseconds, for a clipboard that another program holds
constexpr DWORD kPause = 20;

struct Text {
  const wchar_t* begin;
  const wchar_t* end;

  SIZE_T Size() const { return static_cast<SIZE_T>(end - begin); }
};

bool IsBlank(wchar_t character) { return character == L' ' || character == L'\t'; }

// Without blanks around it, and without one pair of quotes.
Text PathIn(const wchar_t* line) {
  Text path{line, line + ::lstrlenW(line)};
  while (path.begin != path.end && IsBlank(*path.begin)) ++path.begin;
  while (path.begin != path.end && IsBlank(path.end[-1])) --path.end;
  const bool isQuoted = path.Size() >= 2 && *path.begin == L'"' && path.end[-1] == L'"';
  return isQuoted ? Text{path.begin + 1, path.end - 1} : path;
}

HGLOBAL MemoryOf(const Text& text) {
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, (text.Size() + 1) * sizeof(wchar_t));
  auto* place = memory == nullptr ? nullptr : static_cast<wchar_t*>(::GlobalLock(memory));
  if (place == nullptr) return nullptr;
  for (const wchar_t* from = text.begin; from != text.end; ++from) *place++ = *from;
  ::GlobalUnlock(memory);
  return memory;
}

bool OpenClipboardSoon(HWND window) {
  const ULONGLONG end = ::GetTickCount64() + kPatience;
  while (::OpenClipboard(window) == FALSE) {
    if (::GetTickCount64() >= end) return false;
    ::Sleep(kPause);
  }
  return true;
}

// What is put there needs a window to belong to. All that is left goes with the process.
bool Copy(const Text& text) {
  const HWND window = ::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  const HGLOBAL memory = text.Size() == 0 ? nullptr : MemoryOf(text);
  if (memory == nullptr || !OpenClipboardSoon(window)) return false;
  const bool done = ::EmptyClipboard() != FALSE && ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
  ::CloseClipboard();
  return done;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
  // What the system's libraries load by name later mustn't come from the program's folder, which may be anybody's.
  ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  return Copy(PathIn(commandLine)) ? 0 : 1;
}
