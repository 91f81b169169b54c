// What the verbs of the driver share: their arguments, one line of output, and how a verb fails.
#pragma once

#include <windows.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace driver {

// Ends the verb with exit code 1 and this text on the error output.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};
// The same with exit code 2: the words of the call make no sense.
struct BadCall : std::runtime_error {
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
  HWND Window();  // the number of a window that is there
  void End() const;

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

using VerbFunction = void (*)(Words& words);
struct Verb {
  const wchar_t* name;
  const wchar_t* usage;
  VerbFunction run;
};

// windows.cpp
void ListWindows(Words& words);
void ListChildren(Words& words);
void PressButton(Words& words);
void CloseWindow(Words& words);
void SendOrPost(Words& words, bool post);
void SetText(Words& words);
void ShowForeground(Words& words);
void BringForward(Words& words);

// contents.cpp
void ListTree(Words& words);
void ListList(Words& words);

// input.cpp
void MovePointer(Words& words);
void Click(Words& words);
void Drag(Words& words);
void PressKeys(Words& words);
void TimeClick(Words& words);

// drives.cpp
void AddDrive(Words& words);
void RemoveDrive(Words& words);

// facts.cpp
void ShowColours(Words& words);
void ShowMenuText(Words& words);
void ShowMetrics(Words& words);
void ReadValue(Words& words);
void WriteValue(Words& words);
void DeleteKey(Words& words);
void HoldDesktop(Words& words);

}  // namespace driver
