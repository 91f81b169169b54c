// Boxes that the system shows by itself.
#pragma once

#include <cstdint>
#include <string>

#include "platform/window_handle.h"

namespace burrowmark {

// Buttons and icons of a message box, added up, and its answers (winuser.h).
inline constexpr std::uint32_t kBoxOk = 0;
inline constexpr std::uint32_t kBoxYesNoCancel = 3;
inline constexpr std::uint32_t kBoxCritical = 16;
inline constexpr std::uint32_t kBoxQuestion = 32;
inline constexpr std::uint32_t kBoxWarning = 48;
inline constexpr std::uint32_t kBoxInformation = 64;

inline constexpr std::int32_t kAnswerOk = 1;
inline constexpr std::int32_t kAnswerCancel = 2;
inline constexpr std::int32_t kAnswerYes = 6;
inline constexpr std::int32_t kAnswerNo = 7;

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // Shows a box over a window (0: over none) and waits for the answer. The program's other windows go on running.
  virtual std::int32_t MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                   std::uint32_t style) = 0;
};

}  // namespace burrowmark
