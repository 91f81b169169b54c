// Right clicks on entries of an open menu.
#pragma once

#include <windows.h>

#include <optional>

namespace burrowmark {

// Posted to the window of the menu when the right button was let go in it, with the screen position as lParam.
inline constexpr UINT kMenuRightClick = WM_APP + 1;

// Menu loops are to tell the window of a right click on an entry, but not every system's does. While one of these
// lives, the window hears kMenuRightClick as well and can make up for it.
class RightClickWatch {
 public:
  RightClickWatch();
  ~RightClickWatch();
  RightClickWatch(const RightClickWatch&) = delete;
  RightClickWatch& operator=(const RightClickWatch&) = delete;

 private:
  HHOOK hook_;
};

// Position of a popup's entry at a place on the screen.
std::optional<UINT> EntryAt(HMENU popup, POINT place);

}  // namespace burrowmark
