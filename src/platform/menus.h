// Native popup menus.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/drawing.h"
#include "platform/window_handle.h"

namespace burrowmark {

// A menu's handle, in 32 bits as the system gives it; 0 is none.
using MenuHandle = std::int32_t;

// Flags of an entry (winuser.h). A position counts from 0.
inline constexpr std::int32_t kMenuByPosition = 0x400;
inline constexpr std::int32_t kMenuPopup = 0x10;
inline constexpr std::int32_t kMenuOwnerDrawn = 0x100;
inline constexpr std::int32_t kMenuSeparator = 0x800;

// A call that can't be carried out (a menu or a position that isn't there) changes nothing and gives false, 0 or -1.
class Menus {
 public:
  virtual ~Menus() = default;

  // The menu bar of a window, and the popup at a position of a menu; 0 where there is none.
  virtual MenuHandle GetMenu(WindowHandle window) = 0;
  virtual MenuHandle GetSubMenu(MenuHandle menu, std::int32_t position) = 0;
  // An empty popup. It belongs to the entry that it is put into, and goes with it.
  virtual MenuHandle CreatePopupMenu() = 0;
  // Frees a popup that no entry holds, with all below it.
  virtual bool DestroyMenu(MenuHandle menu) = 0;

  // Puts an entry in ahead of the one at `position`; at the end for -1 or a position past it. `id` is the command
  // number or, with the popup flag, the popup that the entry opens. In the text an ampersand marks the letter behind
  // it, and two are one that is seen. An owner-drawn entry keeps its text for typed letters and screen readers.
  virtual bool InsertMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                           const std::wstring& text) = 0;
  // Changes an entry to these flags, number and text. An entry with a popup that becomes owner-drawn keeps it; any
  // other popup that the entry had goes.
  virtual bool ModifyMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                           const std::wstring& text) = 0;
  // Takes an entry out; its popup goes with it. `flags` is kMenuByPosition.
  virtual bool DeleteMenu(MenuHandle menu, std::int32_t position, std::int32_t flags) = 0;

  virtual std::int32_t GetMenuItemCount(MenuHandle menu) = 0;
  // Command number of an entry; -1 for one with a popup.
  virtual std::int32_t GetMenuItemID(MenuHandle menu, std::int32_t position) = 0;

  // Shows a popup at the mouse, or beside a place on the screen, and returns when it is gone: the command number of
  // what was chosen, 0 for nothing. `background` is the colour behind its entries and those of all popups below it.
  virtual std::int32_t TrackPopupMenu(MenuHandle menu, WindowHandle window, Color background,
                                      const std::optional<Rect>& beside) = 0;
};

}  // namespace burrowmark
