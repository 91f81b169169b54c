// One place in an ordered list of items, and lists of such places.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/menu_item.h"

namespace burrowmark {

class KeyedItems;

// Entries of one list stand in the order of their ranks, whatever else is known of their positions.
struct ListEntry final : private ItemWatcher {
  ListEntry(KeyedItems& owningList, ItemRef listed) : list(owningList), item(std::move(listed)) {
    item->AddWatcher(*this);
  }
  ~ListEntry() override { item->RemoveWatcher(*this); }
  ListEntry(const ListEntry&) = delete;
  ListEntry& operator=(const ListEntry&) = delete;

  KeyedItems& list;
  ItemRef item;
  std::uint64_t rank = 0;
  const std::wstring* key = nullptr;  // under which the list holds it

 private:
  void BeforeChange(ItemAspect aspect) override;
  void AfterChange(ItemAspect aspect) override;
};

// Some entries of a list, in its order.
class EntryRow {
 public:
  bool Empty() const { return entries_.empty(); }
  std::size_t Size() const { return entries_.size(); }
  ListEntry* At(std::size_t index) const { return entries_[index]; }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

  // How many of them stand ahead of a rank.
  std::size_t CountAhead(std::uint64_t rank) const;
  void Insert(ListEntry& entry);
  // Gives the index that the entry had.
  std::size_t Remove(const ListEntry& entry);
  void RemoveRange(std::size_t first, std::size_t last);
  void Clear() { entries_.clear(); }

 private:
  std::vector<ListEntry*> entries_;
};

}  // namespace burrowmark
