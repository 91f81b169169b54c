#include "config/config_repair.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "core/numbers.h"
#include "core/text.h"

namespace burrowmark {
namespace {

class Repairer {
 public:
  explicit Repairer(std::vector<ItemRef>& items) : items_(items), owners_(items.size(), kTop) {}

  Repair Run() {
    FindNames();
    const auto found = byName_.find(MIT_GROUP_USER);
    if (found == byName_.end()) return Repair::kHopeless;
    personal_ = found->second;
    NameTheNameless();
    for (const wchar_t* group : {MIT_GROUP_USER, MIT_PATHS_SYSTEM}) PutAtTheTop(group);
    for (std::size_t i = 0; i < items_.size(); ++i) FindOwner(i);
    CutCircles();
    PutBehindOwners();
    return repaired_ ? Repair::kDone : Repair::kNotNeeded;
  }

 private:
  static constexpr std::size_t kTop = static_cast<std::size_t>(-1);

  // The first item of a name has it; keys match without regard to case.
  void FindNames() {
    for (std::size_t i = 0; i < items_.size(); ++i) {
      const std::wstring& name = items_[i]->Name();
      if (name.empty()) {
        nameless_.push_back(i);
      } else if (name == kRootOwner || !byName_.try_emplace(UpperCaseText(name), i).second) {
        nameless_.push_back(i);
        repaired_ = true;
      }
    }
  }

  void NameTheNameless() {
    std::int32_t number = 0;
    for (const std::size_t i : nameless_) {
      std::wstring name;
      do name = L"N" + DecimalText(++number);
      while (!byName_.try_emplace(name, i).second);
      items_[i]->SetName(name);
    }
  }

  void PutAtTheTop(const wchar_t* name) {
    const auto found = byName_.find(name);
    if (found == byName_.end()) return;
    clsMenuItem& group = *items_[found->second];
    if (group.Name() == name && group.OwnerName() == kRootOwner && group.SubMenu()) return;
    group.SetName(name);
    group.SetOwnerName(kRootOwner);
    group.SetSubMenu(true);
    repaired_ = true;
  }

  void FindOwner(std::size_t item) {
    const std::wstring& name = items_[item]->Name();
    if (name == MIT_GROUP_USER || name == MIT_PATHS_SYSTEM) return;
    const auto found = byName_.find(UpperCaseText(items_[item]->OwnerName()));
    const bool owned = found != byName_.end() && items_[found->second]->SubMenu();
    SetOwner(item, owned ? found->second : personal_);
  }

  void SetOwner(std::size_t item, std::size_t owner) {
    owners_[item] = owner;
    if (items_[item]->OwnerName() == items_[owner]->Name()) return;
    items_[item]->SetOwnerName(items_[owner]->Name());
    repaired_ = true;
  }

  // Goes up from each item until it meets one that it has met before; met on the same way, that one is in a circle.
  void CutCircles() {
    std::vector<std::size_t> metFrom(items_.size(), kTop);
    for (std::size_t start = 0; start < items_.size(); ++start) {
      std::size_t item = start;
      while (item != kTop && metFrom[item] == kTop) {
        metFrom[item] = start;
        item = owners_[item];
      }
      if (item != kTop && metFrom[item] == start) SetOwner(FirstInCircle(item), personal_);
    }
  }

  std::size_t FirstInCircle(std::size_t item) const {
    std::size_t first = item;
    for (std::size_t next = owners_[item]; next != item; next = owners_[next]) first = std::min(first, next);
    return first;
  }

  // An item waits until its owner has its place, and follows it then with what waits for itself.
  void PutBehindOwners() {
    std::vector<ItemRef> ordered;
    ordered.reserve(items_.size());
    std::vector<bool> placed(items_.size());
    std::vector<std::vector<std::size_t>> waiting(items_.size());
    for (std::size_t i = 0; i < items_.size(); ++i) {
      if (owners_[i] != kTop && !placed[owners_[i]]) {
        waiting[owners_[i]].push_back(i);
        repaired_ = true;
        continue;
      }
      for (std::vector<std::size_t> next{i}; !next.empty();) {
        const std::size_t item = next.back();
        next.pop_back();
        ordered.push_back(items_[item]);
        placed[item] = true;
        next.insert(next.end(), waiting[item].rbegin(), waiting[item].rend());
      }
    }
    items_ = std::move(ordered);
  }

  std::vector<ItemRef>& items_;
  std::vector<std::size_t> owners_;  // by the item's place in the file
  std::vector<std::size_t> nameless_;
  std::unordered_map<std::wstring, std::size_t> byName_;  // in upper case
  std::size_t personal_ = 0;
  bool repaired_ = false;
};

}  // namespace

Repair RepairItems(std::vector<ItemRef>& items) { return Repairer(items).Run(); }

}  // namespace burrowmark
