// What the verbs of the driver share: their arguments, one line of output, and how a verb fails.
#pragma once

#include <windows.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace driver {

// Ends the verb with this text.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

std::string Utf8(std::wstring_view text);

// The words behind the verb, taken one by one.
class Words {
 public:
  explicit Words(std::vector<std::wstring> words) : words_(std::move(words)) {}
  bool More() const { return next_ < words_.size(); }
  std::wstring Text();
  std::int64_t Number();  // decimal or 0x...
  int Int() { return static_cast<int>(Number()); }
  POINT Point();
  HWND Window();  // the number of a window that is there

 private:
  std::vector<std::wstring> words_;
  std::size_t next_ = 0;
};

// One line of output: a JSON object, printed when it goes.
class Line {
 public:
  Line() = default;
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;
  ~Line();
  Line& Add(const char* name, std::wstring_view text);
  Line& Add(const char* name, const wchar_t* text) { return Add(name, std::wstring_view(text)); }
  Line& Add(const char* name, std::int64_t number);
  Line& Add(const char* name, bool value);
  Line& Add(const char* name, const RECT& rectangle);  // [left, top, right, bottom]
  Line& AddHandle(const char* name, HWND window);

 private:
  Line& Raw(const char* name, const std::string& value);
  std::string text_;
};

std::wstring ClassOf(HWND window);

// The verbs, which main.cpp tells apart.
using Verb = void(Words& words);
Verb ListWindows, ListChildren, PressButton, CloseWindow, BringForward;  // windows.cpp
Verb ListTree, ListList;                                                 // contents.cpp
Verb ReadClipboard, HoldClipboard;                                       // clipboard.cpp
Verb ListMenu;                                                           // menus.cpp
Verb ShowCounters;                                                       // counters.cpp
Verb PressKeys, TimeClick;                                               // input.cpp
Verb AddDrive, RemoveDrive;                                              // drives.cpp
Verb ReadValue, WriteValue, DeleteKey;                                   // registry.cpp

}  // namespace driver
