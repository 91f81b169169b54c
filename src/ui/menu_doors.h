// What a form asks of its menus.
#pragma once

#include <vector>

#include "platform/peers/ui_bar_peers.h"

namespace burrowmark {

class MenuDoors {
 public:
  // The entries of level 0.
  virtual const std::vector<MenuEntryState*>& Entries() const = 0;
  // An entry that is disabled or hidden, or in one that is, isn't opened or chosen.
  virtual void UserOpen(MenuEntryState& entry) = 0;
  virtual void UserChoose(MenuEntryState& entry) = 0;
  // True if an entry that shows has this shortcut; those above it hear that they open before it is chosen. A disabled
  // one keeps it from everybody else and does nothing.
  virtual bool UserShortcut(const MenuShortcut& shortcut) = 0;

 protected:
  MenuDoors() = default;
  MenuDoors(const MenuDoors&) = default;
  MenuDoors& operator=(const MenuDoors&) = default;
  ~MenuDoors() = default;
};

}  // namespace burrowmark
