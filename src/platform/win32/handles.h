// Handles and rectangles as the seam has them, and as the system has them.
#pragma once

#include <windows.h>

#include "platform/drawing.h"
#include "platform/menus.h"
#include "platform/window_handle.h"

namespace burrowmark {

// The system keeps to 32 bits in the handles of windows and menus, with the sign carried on, in all its programs.
inline HWND ToHwnd(WindowHandle window) { return reinterpret_cast<HWND>(static_cast<INT_PTR>(window)); }
inline WindowHandle FromHwnd(HWND window) { return reinterpret_cast<INT_PTR>(window); }
inline HMENU ToHmenu(MenuHandle menu) { return static_cast<HMENU>(::LongToHandle(menu)); }
inline MenuHandle FromHmenu(HMENU menu) { return static_cast<MenuHandle>(::HandleToLong(menu)); }

inline HDC ToHdc(DeviceContext context) { return reinterpret_cast<HDC>(static_cast<INT_PTR>(context)); }
inline DeviceContext FromHdc(HDC context) { return reinterpret_cast<INT_PTR>(context); }
inline HICON ToHicon(IconHandle icon) { return reinterpret_cast<HICON>(static_cast<INT_PTR>(icon)); }
inline IconHandle FromHicon(HICON icon) { return reinterpret_cast<INT_PTR>(icon); }

// A window that is kept from the user by a box, or by another window over it, stands behind that.
inline HWND FrontOf(HWND window) { return ::IsWindowEnabled(window) != FALSE ? window : ::GetLastActivePopup(window); }

inline RECT ToRECT(const Rect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }
inline Rect FromRECT(const RECT& rect) {
  return {static_cast<std::int32_t>(rect.left), static_cast<std::int32_t>(rect.top),
          static_cast<std::int32_t>(rect.right), static_cast<std::int32_t>(rect.bottom)};
}

}  // namespace burrowmark
