#include "core/keyed_items.h"

#include <algorithm>
#include <limits>

#include "core/failure.h"
#include "core/text.h"

namespace burrowmark {
namespace {

// Between the ranks of two neighbours when there is room.
constexpr std::uint64_t kRankStep = 1ULL << 40;

bool StandsAhead(const ListEntry* entry, std::uint64_t rank) { return entry->rank < rank; }

template <typename Index, typename Key>
void EraseEntry(Index& index, const Key& key, const ListEntry& entry) {
  auto [found, end] = index.equal_range(key);
  while (found != end && found->second != &entry) ++found;
  if (found != end) index.erase(found);
}

// The first of the entries that an index holds under a key, in the order of the list.
template <typename Index, typename Key>
const ListEntry* FirstOf(const Index& index, const Key& key) {
  const ListEntry* first = nullptr;
  for (auto [at, end] = index.equal_range(key); at != end; ++at) {
    if (first == nullptr || at->second->rank < first->rank) first = at->second;
  }
  return first;
}

}  // namespace

// --- entries

void ListEntry::BeforeChange(ItemAspect aspect) { list.Leave(*this, aspect); }
void ListEntry::AfterChange(ItemAspect aspect) { list.Enter(*this, aspect); }

std::size_t EntryRow::CountAhead(std::uint64_t rank) const {
  return static_cast<std::size_t>(
      std::distance(entries_.begin(), std::lower_bound(entries_.begin(), entries_.end(), rank, StandsAhead)));
}

void EntryRow::Insert(ListEntry& entry) {
  if (entries_.empty() || entries_.back()->rank < entry.rank) {
    entries_.push_back(&entry);
  } else {
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(CountAhead(entry.rank)), &entry);
  }
}

std::size_t EntryRow::Remove(const ListEntry& entry) {
  const std::size_t index = CountAhead(entry.rank);
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
  return index;
}

void EntryRow::RemoveRange(std::size_t first, std::size_t last) {
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(first),
                 entries_.begin() + static_cast<std::ptrdiff_t>(last));
}

// --- the list

std::size_t KeyedItems::PositionOf(const ListEntry& entry) const {
  return static_cast<std::size_t>(
      std::distance(order_.begin(), std::lower_bound(order_.begin(), order_.end(), entry.rank, StandsAhead)));
}

// A rank between those of the neighbours. Where there is none left all are spread out again.
std::uint64_t KeyedItems::RankAt(std::size_t position) {
  const std::uint64_t low = position == 0 ? 0 : order_[position - 1]->rank;
  const std::uint64_t high = position == order_.size() ? low + 2 * kRankStep : order_[position]->rank;
  if (high - low > 1) return low + (high - low) / 2;
  std::uint64_t rank = 0;
  for (ListEntry* entry : order_) entry->rank = rank += kRankStep;
  return RankAt(position);
}

void KeyedItems::Insert(std::size_t position, const ItemRef& item) {
  const auto [made, isNew] = byKey_.try_emplace(UpperCaseText(item->Name()), *this, item);
  if (!isNew) throw KeyFailure("a key that is there already");
  ListEntry& entry = made->second;
  entry.key = &made->first;
  entry.rank = RankAt(position);
  order_.insert(order_.begin() + static_cast<std::ptrdiff_t>(position), &entry);
  for (const ItemAspect aspect : kItemAspects) Enter(entry, aspect);
}

void KeyedItems::RemoveAt(std::size_t position) {
  ListEntry& entry = *order_[position];
  for (const ItemAspect aspect : kItemAspects) Leave(entry, aspect);
  order_.erase(order_.begin() + static_cast<std::ptrdiff_t>(position));
  byKey_.erase(byKey_.find(*entry.key));
}

// --- indexes

void KeyedItems::Enter(ListEntry& entry, ItemAspect aspect) const {
  const clsMenuItem& item = *entry.item;
  switch (aspect) {
    case ItemAspect::kName:
      byName_.emplace(item.Name(), &entry);
      break;
    case ItemAspect::kPlace:
      if (byOwner_) (*byOwner_)[item.OwnerName()].Insert(entry);
      break;
    case ItemAspect::kID:
      if (byID_ && item.ID() != 0) byID_->emplace(item.ID(), &entry);
      break;
  }
}

void KeyedItems::Leave(ListEntry& entry, ItemAspect aspect) const {
  const clsMenuItem& item = *entry.item;
  switch (aspect) {
    case ItemAspect::kName:
      EraseEntry(byName_, item.Name(), entry);
      break;
    case ItemAspect::kPlace:
      if (byOwner_) LeaveOwner(entry);
      break;
    case ItemAspect::kID:
      if (byID_) EraseEntry(*byID_, item.ID(), entry);
      break;
  }
}

void KeyedItems::LeaveOwner(const ListEntry& entry) const {
  const auto found = byOwner_->find(entry.item->OwnerName());
  found->second.Remove(entry);
  if (found->second.Empty()) byOwner_->erase(found);
}

const ListEntry* KeyedItems::WithKey(std::wstring_view key) const {
  const auto found = byKey_.find(UpperCaseText(key));
  return found == byKey_.end() ? nullptr : &found->second;
}

const ListEntry* KeyedItems::FirstNamed(const std::wstring& name) const { return FirstOf(byName_, name); }

const ListEntry* KeyedItems::LastNamed(const std::wstring& name, const ListEntry* behind) const {
  const std::uint64_t end = behind == nullptr ? std::numeric_limits<std::uint64_t>::max() : behind->rank;
  const ListEntry* last = nullptr;
  for (auto [at, to] = byName_.equal_range(name); at != to; ++at) {
    const std::uint64_t rank = at->second->rank;
    if (rank < end && (last == nullptr || rank > last->rank)) last = at->second;
  }
  return last;
}

// Makes an index that wasn't needed until now.
template <typename Index>
const Index& KeyedItems::Known(std::optional<Index>& index, ItemAspect aspect) const {
  if (!index) {
    index.emplace();
    for (ListEntry* entry : order_) Enter(*entry, aspect);
  }
  return *index;
}

const ListEntry* KeyedItems::FirstWithID(std::int32_t id) const {
  if (id == 0) {
    const auto found = std::find_if(order_.begin(), order_.end(), [](auto* entry) { return entry->item->ID() == 0; });
    return found == order_.end() ? nullptr : *found;
  }
  return FirstOf(Known(byID_, ItemAspect::kID), id);
}

const Siblings& KeyedItems::Under(const std::wstring& owner) const {
  static const Siblings none;
  const auto& byOwner = Known(byOwner_, ItemAspect::kPlace);
  const auto found = byOwner.find(owner);
  return found == byOwner.end() ? none : found->second;
}

}  // namespace burrowmark
