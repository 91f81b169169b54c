// Keys that go with others, as the system knows them to be held.
#pragma once

#ifdef _WIN32

#include <windows.h>

#include <cstdint>

#include "platform/key_codes.h"

namespace burrowmark {

// Holds shift and control down while it lives.
class HeldModifiers {
 public:
  explicit HeldModifiers(std::int32_t shift) {
    ::GetKeyboardState(before_);
    BYTE now[256];
    ::GetKeyboardState(now);
    now[VK_SHIFT] = (shift & kShiftMask) != 0 ? kDown : kUp;
    now[VK_CONTROL] = (shift & kCtrlMask) != 0 ? kDown : kUp;
    ::SetKeyboardState(now);
  }
  ~HeldModifiers() { ::SetKeyboardState(before_); }
  HeldModifiers(const HeldModifiers&) = delete;
  HeldModifiers& operator=(const HeldModifiers&) = delete;

 private:
  static constexpr BYTE kDown = 0x80;
  static constexpr BYTE kUp = 0;
  BYTE before_[256] = {};
};

}  // namespace burrowmark

#endif
