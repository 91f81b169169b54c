// What was cut or copied in the editor.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "core/menu_collection.h"

namespace burrowmark {

enum class PasteMode : std::int16_t { kCopy, kMove };

// A copy of an item and all that it holds, as they were then, and the item itself: a move takes that out of its place
// if it still stands in the tree.
struct CopiedTree {
  ItemRef Origin;
  std::vector<ItemRef> Items;  // a group ahead of what it holds

  const ItemRef& Top() const { return Items.front(); }
};

class ItemClipboard {
 public:
  PasteMode Mode = PasteMode::kCopy;
  std::wstring SourceOwner;        // of what was cut or copied; empty when that is another tree
  std::vector<CopiedTree> Trees;   // in the order in which they were taken
  bool Ghosted = false;            // a cut makes its rows and nodes grey
  std::set<std::wstring> CutKeys;  // of those that are

  bool Empty() const { return Trees.empty(); }
  // Something was cut, and still stands where it can be taken from.
  bool Moves(const clsMenuCollection& store) const;
  // An item of this name is among them, at the top or below it.
  bool Holds(const std::wstring& name) const;
  void Take(const Clock& clock, const clsMenuCollection& store, const ItemRef& item);
  void Clear();
  // Makes `CutKeys` anew from what is still to be moved.
  void FindCutKeys();
  // Another tree is edited now: what was cut is pasted there as a copy.
  void LeaveTree();
};

}  // namespace burrowmark
