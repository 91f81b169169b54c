// The menus of a form on the screen of the local machine.
#pragma once

#include <string>
#include <vector>

#include "platform/peers/ui_peers.h"

namespace burrowmark {

// Titles from one level of menus to the next, without the ampersands in them.
using MenuPath = std::vector<std::wstring>;

// How an entry looks: its text without ampersands, with a tab and its keys behind it; "[x] " ahead of a checked one,
// "(o) " where the check is a dot, and " (disabled)" at the end. A line is kMenuLine.
std::wstring LookOf(const MenuEntryState& entry);

// What shows of a menu's entries.
std::vector<std::wstring> LooksOf(const std::vector<MenuEntryState*>& entries);

// Goes from entry to entry, as a person does, and opens each that the way leads into. The last one too if `open` says
// so. Throws std::logic_error for one that is hidden, disabled or missing.
MenuEntryState& WalkMenus(FormState& form, const std::vector<MenuEntryState*>& entries, const MenuPath& path,
                          bool open);

// A menu that popped up, as long as it is there.
class ShownPopup {
 public:
  ShownPopup(FormState& form, const MenuEntryState& popup, const MenuEntryState* defaultEntry)
      : form_(form), popup_(popup), default_(defaultEntry) {}
  ShownPopup(const ShownPopup&) = delete;
  ShownPopup& operator=(const ShownPopup&) = delete;

  // What shows, of it or of what opens in it.
  std::vector<std::wstring> Texts(const MenuPath& path = {});
  // The look of the one drawn bold; empty for none.
  std::wstring Default() const;
  // It goes with that. Without this it is cancelled.
  void Choose(const MenuPath& path);
  MenuEntryState* Chosen() const { return chosen_; }

 private:
  FormState& form_;
  const MenuEntryState& popup_;
  const MenuEntryState* default_;
  MenuEntryState* chosen_ = nullptr;
};

}  // namespace burrowmark
