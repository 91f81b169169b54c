// acceptance_driver.exe VERB WORDS...: does one thing inside the desktop of the program under test, prints JSON lines
// and ends. Exit code 0: done; 1: couldn't be done; 2: a call that makes no sense.
#include <cstdio>
#include <cwchar>

#include "driver.h"

namespace driver {
namespace {

constexpr Verb kVerbs[] = {
    {L"windows", L"  all top-level windows, front to back", ListWindows},
    {L"children", L"WINDOW  all windows within a window", ListChildren},
    {L"press", L"WINDOW ID  presses a button of a dialog", PressButton},
    {L"close", L"WINDOW  asks a window to close", CloseWindow},
    {L"post", L"WINDOW MESSAGE WPARAM LPARAM", [](Words& words) { SendOrPost(words, true); }},
    {L"send", L"WINDOW MESSAGE WPARAM LPARAM  waits 5 s at most", [](Words& words) { SendOrPost(words, false); }},
    {L"text", L"WINDOW TEXT  sets the text of a control", SetText},
    {L"foreground", L"  the window in front and the one with the focus", ShowForeground},
    {L"activate", L"WINDOW  brings a window to the front", BringForward},
    {L"tree", L"WINDOW  the nodes of a tree view", ListTree},
    {L"list", L"WINDOW  the rows of a list view", ListList},
    {L"move", L"X Y", MovePointer},
    {L"click", L"X Y [left|right|double]", Click},
    {L"drag", L"X Y X2 Y2 [left|right]", Drag},
    {L"keys", L"KEY...  as Down, ctrl+shift+F2, a, or text:Any text", PressKeys},
    {L"time-click", L"X Y BUTTON PX PY RRGGBB LIMIT_MS  from button-up to that colour within a popup menu", TimeClick},
    {L"add-drive", L"LETTER FOLDER  a fixed drive at a folder of the host", AddDrive},
    {L"remove-drive", L"LETTER", RemoveDrive},
    {L"colours", L"  the system colours", ShowColours},
    {L"menu-text", L"TEXT  the picture of a text in the menu's font", ShowMenuText},
    {L"metrics", L"  screen, work area, dots per inch", ShowMetrics},
    {L"read-value", L"KEY NAME  a value below the current user's key", ReadValue},
    {L"write-value", L"KEY NAME TEXT", WriteValue},
    {L"hold-desktop", L"  keeps the desktop alive until its input ends", HoldDesktop},
    {L"delete-key", L"KEY  with all below it; none there is fine", DeleteKey},
};

int Usage() {
  for (const Verb& verb : kVerbs) std::fprintf(stderr, "%s %s\n", Utf8(verb.name).c_str(), Utf8(verb.usage).c_str());
  return 2;
}

int Run(const std::wstring& name, Words words) {
  for (const Verb& verb : kVerbs) {
    if (name != verb.name) continue;
    // Ahead of all a verb does: a caller that saw no such line knows that nothing was done.
    Line().Add("verb", name);
    std::fflush(stdout);
    verb.run(words);
    return 0;
  }
  return Usage();
}

}  // namespace

std::string Utf8(std::wstring_view text) {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

std::wstring Words::Text() {
  if (!More()) throw BadCall("a word is missing");
  return words_[next_++];
}

std::int64_t Words::Number() {
  const std::wstring word = Text();
  std::size_t used = 0;
  try {
    const std::int64_t number = std::stoll(word, &used, 0);
    if (used == word.size()) return number;
  } catch (const std::logic_error&) {
    used = 0;
  }
  throw BadCall("no number: " + Utf8(word));
}

HWND Words::Window() {
  const auto window = reinterpret_cast<HWND>(static_cast<std::intptr_t>(Number()));
  if (!IsWindow(window)) throw Failure("no such window");
  return window;
}

void Words::End() const {
  if (More()) throw BadCall("a word too many: " + Utf8(words_[next_]));
}

Line::~Line() { std::printf("{%s}\n", text_.c_str()); }

Line& Line::Raw(const char* name, const std::string& value) {
  if (!text_.empty()) text_ += ", ";
  text_ += std::string("\"") + name + "\": " + value;
  return *this;
}

Line& Line::Add(const char* name, std::wstring_view text) {
  std::string value = "\"";
  for (const char character : Utf8(text)) {
    const auto code = static_cast<unsigned char>(character);
    if (code < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", code);
      value += escape;
      continue;
    }
    if (character == '"' || character == '\\') value += '\\';
    value += character;
  }
  return Raw(name, value + '"');
}

Line& Line::Add(const char* name, std::int64_t number) { return Raw(name, std::to_string(number)); }

Line& Line::Add(const char* name, bool value) { return Raw(name, value ? "true" : "false"); }

Line& Line::Add(const char* name, const RECT& rectangle) {
  return Raw(name, '[' + std::to_string(rectangle.left) + ", " + std::to_string(rectangle.top) + ", " +
                       std::to_string(rectangle.right) + ", " + std::to_string(rectangle.bottom) + ']');
}

Line& Line::AddHandle(const char* name, HWND window) {
  return Add(name, static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(window)));
}

}  // namespace driver

int wmain(int count, wchar_t** words) {
  // Without this the system would answer in scaled pixels on a screen of more than 96 dots per inch.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  if (count < 2) return driver::Usage();
  try {
    return driver::Run(words[1], driver::Words({words + 2, words + count}));
  } catch (const driver::BadCall& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 2;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
