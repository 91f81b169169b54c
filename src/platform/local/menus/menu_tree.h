// The menus of the local machine as the system keeps them: trees of entries.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/menus.h"

namespace burrowmark {

struct LocalMenuEntry {
  std::int32_t flags = 0;  // as they were given
  std::int32_t id = 0;     // as it was given: the number of its command, or its popup
  std::wstring text;
  MenuHandle popup = 0;  // what it opens; 0 for none
  // What the last measuring said, and for which scale; 0 if the entry has changed since.
  std::int32_t measuredDpi = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;

  bool IsSeparator() const { return (flags & kMenuSeparator) != 0; }
  bool IsOwnerDrawn() const { return (flags & kMenuOwnerDrawn) != 0; }
};

// A popup stands in one place at most. Calls that can't be carried out change nothing.
class MenuTree {
 public:
  MenuHandle CreatePopup() { return Create(false); }
  // A menu that belongs to a window: it can't be put into another one.
  MenuHandle CreateBar() { return Create(true); }
  // Frees a menu with all below it, and takes it away from nobody: the caller sees to that.
  void Destroy(MenuHandle menu);

  bool Exists(MenuHandle menu) const { return menus_.contains(menu); }
  // True for a popup of an entry and for a bar.
  bool IsHeld(MenuHandle menu) const;
  // Nothing if there is no such menu.
  const std::vector<LocalMenuEntry>* Entries(MenuHandle menu) const;
  // Nothing if there is no such menu or it has no such position.
  const LocalMenuEntry* Entry(MenuHandle menu, std::int32_t position) const;
  void SetMeasure(MenuHandle menu, std::int32_t position, std::int32_t dpi, std::int32_t width, std::int32_t height);
  std::size_t Count() const { return menus_.size(); }

  // A position is a place in this menu, whatever the flags say.
  bool Insert(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id, const std::wstring& text);
  bool Modify(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id, const std::wstring& text);
  bool Delete(MenuHandle menu, std::int32_t position);

 private:
  struct Menu {
    bool held = false;
    std::vector<LocalMenuEntry> entries;
  };
  MenuHandle Create(bool held);
  LocalMenuEntry* Find(MenuHandle menu, std::int32_t position);
  bool HoldsBelow(MenuHandle menu, MenuHandle wanted) const;
  bool MayHold(MenuHandle menu, std::int32_t flags, std::int32_t id, MenuHandle own) const;
  LocalMenuEntry MakeEntry(std::int32_t flags, std::int32_t id, const std::wstring& text);

  std::map<MenuHandle, Menu> menus_;
  MenuHandle lastHandle_ = 0x20000;  // command numbers have 16 bits
};

}  // namespace burrowmark
