#include "organize/tree_edit.h"

#include <algorithm>

#include "core/store_copy.h"

namespace burrowmark {
namespace {

using ItemSet = std::unordered_set<const clsMenuItem*>;

ItemSet SetOf(const std::vector<ItemRef>& items) {
  ItemSet set;
  set.reserve(items.size());
  for (const ItemRef& item : items) set.insert(item.get());
  return set;
}

}  // namespace

TreeEdit::TreeEdit(const Clock& clock, clsMenuCollection& store) : clock_(clock), store_(store), order_(Items()) {}

std::vector<ItemRef> TreeEdit::Items() const {
  std::vector<ItemRef> items;
  items.reserve(static_cast<std::size_t>(store_.Count()));
  for (std::int32_t i = 1; i <= store_.Count(); ++i) items.push_back(store_.Item(i));
  return items;
}

void TreeEdit::CameIn(const ItemRef& item) {
  if (wasThere_.try_emplace(item.get(), false).second) moved_.push_back(item);
  untold_.In.push_back(item);
}

void TreeEdit::WentOut(const ItemRef& item) {
  if (wasThere_.try_emplace(item.get(), true).second) moved_.push_back(item);
  untold_.Out.push_back(item);
}

void TreeEdit::Add(const ItemRef& item) {
  store_.AddOne(item, false, true);
  if (Has(item)) CameIn(item);
}

ItemRef TreeEdit::AddNew(const NewMenuItem& values) {
  const ItemRef item = store_.AddNewMenuItem(values);
  CameIn(item);
  return item;
}

void TreeEdit::TakeOut(const ItemRef& item) {
  if (!Has(item)) return;
  store_.Remove(item->Name());
  WentOut(item);
}

clsMenuItem& TreeEdit::Change(const ItemRef& item) {
  const auto moved = wasThere_.find(item.get());
  const bool fresh = moved == wasThere_.end() ? !Has(item) : !moved->second;
  if (fresh) return *item;
  if (changed_.insert(item.get()).second) {
    auto before = std::make_shared<clsMenuItem>(clock_);
    CloneMenuItem(*item, *before);
    values_.emplace_back(item, std::move(before));
  }
  untold_.Changed.push_back(item);
  return *item;
}

void TreeEdit::Compare(const std::vector<ItemRef>& before) {
  const std::vector<ItemRef> after = Items();
  const ItemSet stood = SetOf(before);
  const ItemSet stands = SetOf(after);
  for (const ItemRef& item : before) {
    if (!stands.contains(item.get())) WentOut(item);
  }
  for (const ItemRef& item : after) {
    if (!stood.contains(item.get())) CameIn(item);
  }
}

TreeChange TreeEdit::TakeChange() {
  TreeChange change = std::exchange(untold_, {});
  std::erase_if(change.In, [this](const ItemRef& item) { return !Has(item); });
  return change;
}

TreeRecord TreeEdit::Record() const {
  TreeRecord record;
  if (!moved_.empty()) record.Order = order_;
  record.Values = values_;
  for (const ItemRef& item : moved_) {
    if (wasThere_.at(item.get())) record.Change.Out.push_back(item);
    if (Has(item)) record.Change.In.push_back(item);
  }
  for (const auto& [item, before] : values_) record.Change.Changed.push_back(item);
  return record;
}

TreeChange TakeBack(clsMenuCollection& store, const TreeRecord& record) {
  TreeChange change{.Out = record.Change.In, .In = {}, .Changed = record.Change.Changed};
  for (const ItemRef& item : change.Out) store.Remove(item->Name());
  for (const auto& [item, before] : record.Values) CloneMenuItem(*before, *item);
  const ItemSet returning = SetOf(record.Change.Out);
  std::wstring next;  // the name of the one that stands behind
  for (auto item = record.Order.rbegin(); item != record.Order.rend(); ++item) {
    if (returning.contains(item->get())) {
      store.AddBefore(*item, next, false);
      change.In.push_back(*item);
    }
    next = (*item)->Name();
  }
  std::reverse(change.In.begin(), change.In.end());
  return change;
}

}  // namespace burrowmark
