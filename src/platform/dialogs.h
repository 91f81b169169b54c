// Boxes that the system shows by itself.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/window_handle.h"

namespace burrowmark {

// Buttons and icons of a message box, added up, and its answers (winuser.h).
inline constexpr std::uint32_t kBoxOk = 0;
inline constexpr std::uint32_t kBoxYesNoCancel = 3;
inline constexpr std::uint32_t kBoxYesNo = 4;
inline constexpr std::uint32_t kBoxCritical = 16;
inline constexpr std::uint32_t kBoxQuestion = 32;
inline constexpr std::uint32_t kBoxWarning = 48;
inline constexpr std::uint32_t kBoxInformation = 64;

inline constexpr std::int32_t kAnswerOk = 1;
inline constexpr std::int32_t kAnswerCancel = 2;
inline constexpr std::int32_t kAnswerYes = 6;
inline constexpr std::int32_t kAnswerNo = 7;

// What answers a box that nobody waits for.
constexpr std::int32_t CancelAnswer(std::uint32_t style) {
  constexpr std::uint32_t kButtons = 0xF;
  if ((style & kButtons) == kBoxOk) return kAnswerOk;
  return (style & kButtons) == kBoxYesNo ? kAnswerNo : kAnswerCancel;
}

// Files that a file dialog offers to see: what they are called, and their names with wildcards.
struct FileFilter {
  std::wstring text;
  std::wstring pattern;
  friend bool operator==(const FileFilter&, const FileFilter&) = default;
};

struct FileRequest {
  bool save = false;
  WindowHandle owner = 0;
  std::wstring title;
  std::vector<FileFilter> filters;
  std::int32_t filterIndex = 1;  // of the filter that is in use, counted from 1
  std::wstring fileName;         // that stands in the dialog at first
};

struct FileAnswer {
  std::wstring path;
  std::int32_t filterIndex = 1;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // Shows a box over a window (0: over none) and waits for the answer. The program's other windows go on running.
  virtual std::int32_t MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                   std::uint32_t style) = 0;

  // Asks for the path of a file; none if the user cancelled. A file that isn't there can be named, and one that is
  // there can be named to save over: asking about that is left to the program.
  virtual std::optional<FileAnswer> FileDialog(const FileRequest& request) = 0;

  // Answers the box or file dialog that came up last, if one is up: Cancel, else No, else OK. It goes when the loop
  // runs that it waits in.
  virtual void CancelBox() = 0;
};

}  // namespace burrowmark
