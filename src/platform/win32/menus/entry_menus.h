// A form's menus as the system has them.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <type_traits>
#include <vector>

#include "platform/peers/ui_bar_peers.h"

namespace burrowmark {

struct DestroyNativeMenu {
  void operator()(HMENU menu) const { ::DestroyMenu(menu); }
};
using NativeMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, DestroyNativeMenu>;

// Every popup is filled ahead of time, and again when it opens, since what hears of that may change its entries.
class EntryMenus {
 public:
  EntryMenus() = default;
  EntryMenus(const EntryMenus&) = delete;
  EntryMenus& operator=(const EntryMenus&) = delete;

  // Gives the window a bar of the entries that are visible, or none if there are none. The window keeps it.
  void ShowBar(HWND window, const std::vector<MenuEntryState*>& entries);
  // What is below an entry, at a point of the screen. None if nothing was chosen.
  MenuEntryState* Popup(HWND window, MenuEntryState& entry, const MenuEntryState* bold, const POINT& at);

  // The entry that a popup is below, or that a command's number means; none if it isn't one of these.
  MenuEntryState* EntryOf(HMENU menu) const;
  MenuEntryState* EntryOf(UINT command) const;
  // Makes its entries anew.
  void Fill(HMENU menu);

 private:
  void Append(HMENU menu, MenuEntryState& entry);
  void Forget(HMENU menu);
  UINT CommandOf(MenuEntryState& entry);

  HMENU bar_ = nullptr;  // the window has it
  std::vector<MenuEntryState*> onBar_;
  std::map<HMENU, MenuEntryState*> popups_;
  std::vector<MenuEntryState*> commands_;
  std::map<const MenuEntryState*, UINT> numbers_;
  const MenuEntryState* bold_ = nullptr;
};

}  // namespace burrowmark
