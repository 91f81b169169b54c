// An ordered list of items with a text key per entry.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/list_entry.h"
#include "core/menu_item.h"
#include "core/siblings.h"

namespace burrowmark {

// Positions count from 0 here. Keys match without regard to letter case, are fixed when an entry goes in (a later write
// of the item's `Name` doesn't move them), and no two are equal. Every other look-up goes by what the items say now.
// Items are shared: one can stand in several lists.
//
// No look-up walks over the list. The indexes that a list of records just read doesn't need (by owner, by number) are
// made when they are first asked for.
class KeyedItems final {
 public:
  KeyedItems() = default;
  ~KeyedItems() = default;
  KeyedItems(const KeyedItems&) = delete;
  KeyedItems& operator=(const KeyedItems&) = delete;

  std::size_t Size() const { return order_.size(); }
  const ItemRef& At(std::size_t position) const { return order_[position]->item; }
  std::size_t PositionOf(const ListEntry& entry) const;

  // Puts an item in under its `Name`, so that it stands at `position`; the size is the end. Throws KeyFailure if an
  // equal key is there.
  void Insert(std::size_t position, const ItemRef& item);
  void RemoveAt(std::size_t position);

  // Where there is none, the result of these is null.
  const ListEntry* WithKey(std::wstring_view key) const;
  const ListEntry* FirstNamed(const std::wstring& name) const;
  // `behind` and what follows it are left out; null leaves out nothing.
  const ListEntry* LastNamed(const std::wstring& name, const ListEntry* behind) const;
  // The number 0, which entries have that were never in a menu, is looked for entry by entry.
  const ListEntry* FirstWithID(std::int32_t id) const;

  bool HasName(const std::wstring& name) const { return byName_.contains(name); }
  const Siblings& Under(const std::wstring& owner) const;

  // An entry's item is going to change, or has changed, in one respect.
  void Leave(ListEntry& entry, ItemAspect aspect) const;
  void Enter(ListEntry& entry, ItemAspect aspect) const;

 private:
  std::uint64_t RankAt(std::size_t position);
  void LeaveOwner(const ListEntry& entry) const;
  template <typename Index>
  const Index& Known(std::optional<Index>& index, ItemAspect aspect) const;

  std::unordered_map<std::wstring, ListEntry> byKey_;
  std::vector<ListEntry*> order_;
  // The indexes. The names' texts are the items' own.
  mutable std::unordered_multimap<std::wstring_view, ListEntry*> byName_;
  mutable std::optional<std::unordered_map<std::wstring, Siblings>> byOwner_;
  mutable std::optional<std::unordered_multimap<std::int32_t, ListEntry*>> byID_;  // without 0
};

}  // namespace burrowmark
