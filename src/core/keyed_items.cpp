#include "core/keyed_items.h"

#include <algorithm>

#include "core/failure.h"
#include "core/text.h"

namespace burrowmark {

KeyedItems::~KeyedItems() {
  for (const auto& entry : entries_) entry->item->RemoveWatcher(*this);
}

void KeyedItems::Insert(std::size_t position, const ItemRef& item) {
  auto entry = std::make_unique<Entry>(Entry{item, UpperCaseText(item->Name()), position});
  if (!byKey_.try_emplace(entry->upperKey, entry.get()).second) throw KeyFailure("a key that is there already");
  byName_[item->Name()].push_back(entry.get());
  item->AddWatcher(*this);
  if (position == entries_.size() && numbered_ == position) {
    ++numbered_;
  } else {
    numbered_ = std::min(numbered_, position);
  }
  entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(position), std::move(entry));
}

void KeyedItems::RemoveAt(std::size_t position) {
  const std::unique_ptr<Entry> entry = std::move(entries_[position]);
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
  numbered_ = std::min(numbered_, position);
  entry->item->RemoveWatcher(*this);
  ForgetName(entry->item->Name(), entry.get());
  byKey_.erase(entry->upperKey);
}

std::size_t KeyedItems::PositionOfKey(std::wstring_view key) const {
  const auto found = byKey_.find(UpperCaseText(key));
  if (found == byKey_.end()) throw KeyFailure("a key that isn't there");
  return PositionOf(*found->second);
}

std::size_t KeyedItems::FirstWithName(const std::wstring& name) const {
  const auto found = byName_.find(name);
  std::size_t first = kNone;
  if (found == byName_.end()) return first;
  for (const Entry* entry : found->second) first = std::min(first, PositionOf(*entry));
  return first;
}

std::size_t KeyedItems::LastWithName(const std::wstring& name, std::size_t below) const {
  const auto found = byName_.find(name);
  std::size_t last = kNone;
  if (found == byName_.end()) return last;
  for (const Entry* entry : found->second) {
    const std::size_t position = PositionOf(*entry);
    if (position < below && (last == kNone || position > last)) last = position;
  }
  return last;
}

void KeyedItems::NameChanged(const clsMenuItem& item, const std::wstring& oldName) {
  const auto found = byName_.find(oldName);
  if (found == byName_.end()) return;
  const auto mine = std::find_if(found->second.begin(), found->second.end(),
                                 [&item](const Entry* entry) { return entry->item.get() == &item; });
  if (mine == found->second.end()) return;
  Entry* const entry = *mine;
  ForgetName(oldName, entry);
  byName_[item.Name()].push_back(entry);
}

void KeyedItems::ForgetName(const std::wstring& name, const Entry* entry) {
  const auto found = byName_.find(name);
  std::erase(found->second, entry);
  if (found->second.empty()) byName_.erase(found);
}

std::size_t KeyedItems::PositionOf(const Entry& entry) const {
  if (entry.position >= numbered_) {
    for (std::size_t i = numbered_; i < entries_.size(); ++i) entries_[i]->position = i;
    numbered_ = entries_.size();
  }
  return entry.position;
}

}  // namespace burrowmark
