// Looks and acts inside the desktop of the program under test, until its input ends. Each line of input is a verb and
// its words with tabs between them; what comes back are JSON lines, and behind them one that says how it went.
#include <cstdio>
#include <iostream>
#include <map>
#include <sstream>
#include <thread>

#include "driver.h"

namespace driver {
namespace {

const std::map<std::wstring, Verb*> kVerbs = {
    {L"windows", ListWindows},           // all top-level windows, front to back
    {L"children", ListChildren},         // WINDOW: all windows within it
    {L"press", PressButton},             // WINDOW ID: a button of a dialog
    {L"close", CloseWindow},             // WINDOW
    {L"activate", BringForward},         // WINDOW: brings it to the front
    {L"tree", ListTree},                 // WINDOW: the nodes of a tree view
    {L"list", ListList},                 // WINDOW: the rows of a list view
    {L"clipboard", ReadClipboard},       // the text on it
    {L"hold-clipboard", HoldClipboard},  // MILLISECONDS: keeps it from everybody else
    {L"menu", ListMenu},                 // WINDOW: the entries of an open popup menu
    {L"counters", ShowCounters},         // WINDOW: what its process holds of the system
    {L"keys", PressKeys},                // KEY...: as Down, ctrl+shift+F2, a, or text:Any text
    {L"time-click", TimeClick},      // X Y PX PY RED GREEN BLUE LIMIT_MS: button-up to that colour within a popup menu
    {L"add-drive", AddDrive},        // LETTER FOLDER: a fixed drive at a folder of the host
    {L"remove-drive", RemoveDrive},  // LETTER
    {L"read-value", ReadValue},      // KEY NAME, below the current user's key
    {L"write-value", WriteValue},    // KEY NAME TEXT
    {L"delete-key", DeleteKey},      // KEY: with all below it; none there is fine
};

std::wstring Wide(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  const int size = static_cast<int>(text.size());
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
  return wide;
}

void Answer(const std::string& line) {
  std::vector<std::wstring> words;
  std::istringstream stream(line);
  for (std::string word; std::getline(stream, word, '\t');) words.push_back(Wide(word));
  if (line.ends_with('\t')) words.emplace_back();  // the name of a key's own value is empty
  std::wstring failure;
  try {
    Verb* const verb = kVerbs.at(words.at(0));
    words.erase(words.begin());
    Words rest(std::move(words));
    verb(rest);
    if (rest.More()) throw Failure("a word too many");
  } catch (const std::exception& thrown) {
    failure = Wide(thrown.what());
  }
  Line().Add("done", failure.empty()).Add("failure", failure);
  std::fflush(stdout);
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
  if (!More()) throw Failure("a word is missing");
  return words_[next_++];
}

std::int64_t Words::Number() { return std::stoll(Text()); }

POINT Words::Point() {
  const int x = Int();
  return {x, Int()};
}

HWND Words::Window() {
  const auto window = reinterpret_cast<HWND>(static_cast<std::intptr_t>(Number()));
  if (!IsWindow(window)) throw Failure("no such window");
  return window;
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

int main() {
  // Without this the system would answer in scaled pixels on a screen of more than 96 dots per inch.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  // The first thread that asks makes the desktop. More of them at once would each make one, and on a busy machine none
  // of these is ready in its time.
  while (GetDesktopWindow() == nullptr) Sleep(100);
  // The system takes a desktop down, task bar and all, a second after its last thread went, and it counts one too few
  // after a program with a keyboard hook. So there are some to spare.
  constexpr int kHolders = 16;
  for (int i = 0; i < kHolders; ++i) {
    std::thread([] {
      GetDesktopWindow();
      Sleep(INFINITE);
    }).detach();
  }
  for (std::string line; std::getline(std::cin, line);) driver::Answer(line);
}
