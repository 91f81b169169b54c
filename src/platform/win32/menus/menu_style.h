// The style that all popups of the program have.
#pragma once

#include <windows.h>

namespace burrowmark {

// No room for check marks, so that an entry's rectangle is the whole line, and the background that entries are filled
// with: separators don't fill theirs, and a system with themes would show another colour between them.
inline void StylePopup(HMENU popup) {
  MENUINFO info = {};
  info.cbSize = sizeof(info);
  info.fMask = MIM_STYLE | MIM_BACKGROUND;
  info.dwStyle = MNS_NOCHECK;
  info.hbrBack = ::GetSysColorBrush(COLOR_MENU);  // the system's, not to be freed
  ::SetMenuInfo(popup, &info);
}

}  // namespace burrowmark
