// What the sources of the real system's screen share. The user's gestures are the messages that the mouse and the
// keyboard make.
#pragma once

#include <windows.h>

#include "platform/key_codes.h"
#include "platform/win32/handles.h"
#include "platform/window_system.h"
#include "tests/contract/screen_under_test.h"

namespace burrowmark {

constexpr int kTextLength = 256;

struct ScreenUnderTest::Side {
  // Runs the script once there is such a window.
  void WhenThere(const std::function<WindowHandle()>& find, const std::function<void(WindowHandle)>& script);
  void Look(const std::function<WindowHandle()>& find, const std::function<void(WindowHandle)>& script, int tries);
  void PressAt(HWND window, const POINT& at, std::int32_t button = kLeftButton, std::int32_t shift = 0);
  void PressTwiceAt(HWND window, const POINT& at);

  WindowSystem& windows;
  int waiting = 0;
};

// Holds shift and control down, as the system knows them to be held, while it lives.
class HeldModifiers {
 public:
  explicit HeldModifiers(std::int32_t shift) {
    ::GetKeyboardState(before_);
    BYTE now[256];
    ::GetKeyboardState(now);
    now[VK_SHIFT] = (shift & kShiftMask) != 0 ? kDown : BYTE{};
    now[VK_CONTROL] = (shift & kCtrlMask) != 0 ? kDown : BYTE{};
    ::SetKeyboardState(now);
  }
  ~HeldModifiers() { ::SetKeyboardState(before_); }
  HeldModifiers(const HeldModifiers&) = delete;
  HeldModifiers& operator=(const HeldModifiers&) = delete;

 private:
  static constexpr BYTE kDown = 0x80;
  BYTE before_[256] = {};
};

inline LRESULT Send(WindowHandle window, UINT message, WPARAM wParam = 0, const void* record = nullptr) {
  return ::SendMessageW(ToHwnd(window), message, wParam, reinterpret_cast<LPARAM>(record));
}

inline void PostMouse(HWND window, UINT message, const POINT& at, WPARAM held) {
  ::PostMessageW(window, message, held, MAKELPARAM(at.x, at.y));
}

// The place of a control's part, which it tells by that message.
inline RECT PartOf(WindowHandle control, UINT message, std::int32_t index) {
  RECT rect = {};
  Send(control, message, static_cast<WPARAM>(index), &rect);
  return rect;
}

inline POINT MiddleOf(const RECT& rect) { return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}; }

}  // namespace burrowmark
