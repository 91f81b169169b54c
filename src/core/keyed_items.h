// An ordered list of items with a text key per entry.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/menu_item.h"

namespace burrowmark {

// Positions count from 0 here. Keys match without regard to letter case, are fixed when an entry goes in (a later write
// of the item's `Name` doesn't move them), and no two are equal. Look-ups by the current `Name` are exact and see such
// a write. Items are shared: one can stand in several lists.
class KeyedItems final : private ItemWatcher {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  KeyedItems() = default;
  ~KeyedItems() override;
  KeyedItems(const KeyedItems&) = delete;
  KeyedItems& operator=(const KeyedItems&) = delete;

  std::size_t Size() const { return entries_.size(); }
  const ItemRef& At(std::size_t position) const { return entries_[position]->item; }

  // Puts an item in under its `Name`, so that it stands at `position`; the size is the end. Throws KeyFailure if an
  // equal key is there.
  void Insert(std::size_t position, const ItemRef& item);
  void Append(const ItemRef& item) { Insert(entries_.size(), item); }
  void RemoveAt(std::size_t position);

  // Position of the entry with this key; throws KeyFailure without one.
  std::size_t PositionOfKey(std::wstring_view key) const;
  // Exact look-ups by the items' current names; kNone where there is none. `below` leaves out later positions.
  bool HasName(const std::wstring& name) const { return byName_.contains(name); }
  std::size_t FirstWithName(const std::wstring& name) const;
  std::size_t LastWithName(const std::wstring& name, std::size_t below) const;

 private:
  struct Entry {
    ItemRef item;
    std::wstring upperKey;
    std::size_t position;  // right for the entries ahead of `numbered_`, otherwise not smaller than that
  };

  void NameChanged(const clsMenuItem& item, const std::wstring& oldName) override;
  void ForgetName(const std::wstring& name, const Entry* entry);
  std::size_t PositionOf(const Entry& entry) const;

  std::vector<std::unique_ptr<Entry>> entries_;
  mutable std::size_t numbered_ = 0;
  std::unordered_map<std::wstring, Entry*> byKey_;
  std::unordered_map<std::wstring, std::vector<Entry*>> byName_;
};

}  // namespace burrowmark
