// Edits of a tree that can be taken back.
#pragma once

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/menu_collection.h"

namespace burrowmark {

// What happened to a tree, for those who show it. An item that went from one place to another is in `Out` and in `In`.
struct TreeChange {
  std::vector<ItemRef> Out;      // don't stand any more where they stood
  std::vector<ItemRef> In;       // stand where they didn't stand before; a group comes ahead of what it holds
  std::vector<ItemRef> Changed;  // look otherwise

  bool Empty() const { return Out.empty() && In.empty() && Changed.empty(); }
};

// What it takes to bring a tree back to where it was before an edit: the very same items, in their old order, with the
// values that they had.
struct TreeRecord {
  std::vector<ItemRef> Order;
  std::vector<std::pair<ItemRef, std::shared_ptr<const clsMenuItem>>> Values;  // of those that were changed
  TreeChange Change;                                                           // what the edit did

  bool Empty() const { return Change.Empty(); }
};

// One edit. All that the editor writes to its tree goes through this; what passes by it can't be taken back.
class TreeEdit {
 public:
  // Both must outlive the edit; the clock also the items that it makes.
  TreeEdit(const Clock& clock, clsMenuCollection& store);
  TreeEdit(const TreeEdit&) = delete;
  TreeEdit& operator=(const TreeEdit&) = delete;

  const Clock& Time() const { return clock_; }
  const clsMenuCollection& Store() const { return store_; }
  bool Has(const ItemRef& item) const { return store_.GetMenuItemFromName(item->Name()) == item; }
  // A name that no item has, nor gets from another call.
  std::wstring FreeName() { return store_.GetNextFreeMenuName(); }

  // Puts an item in at its sorted place.
  void Add(const ItemRef& item);
  ItemRef AddNew(const NewMenuItem& values);
  // Takes out one entry; what it holds is the caller's to take out first.
  void TakeOut(const ItemRef& item);
  // The item, to be written to. One that isn't of the tree yet is nobody's but the caller's.
  clsMenuItem& Change(const ItemRef& item);
  // Runs a function over the store that knows nothing of edits. What it puts in and takes out is found out; it must
  // change no item that stays.
  template <typename Function>
  void Around(Function function) {
    const std::vector<ItemRef> before = Items();
    function(store_);
    Compare(before);
  }

  // What happened since the last call.
  TreeChange TakeChange();
  TreeRecord Record() const;

 private:
  std::vector<ItemRef> Items() const;
  void Compare(const std::vector<ItemRef>& before);
  void CameIn(const ItemRef& item);
  void WentOut(const ItemRef& item);

  const Clock& clock_;
  clsMenuCollection& store_;
  std::vector<ItemRef> order_;
  std::vector<ItemRef> moved_;                             // came in or went out, each once
  std::unordered_map<const clsMenuItem*, bool> wasThere_;  // of these: whether it stood in the tree before the edit
  std::vector<std::pair<ItemRef, std::shared_ptr<const clsMenuItem>>> values_;
  std::unordered_set<const clsMenuItem*> changed_;
  TreeChange untold_;
};

// Takes an edit back, the last one that is still in force; gives what happened by that.
TreeChange TakeBack(clsMenuCollection& store, const TreeRecord& record);

}  // namespace burrowmark
