#include "platform/local/menus/menu_tree.h"

#include <algorithm>
#include <utility>

namespace burrowmark {
namespace {

bool Has(std::int32_t flags, std::int32_t flag) { return (flags & flag) != 0; }

// A negative position is past any end, as the system takes it for an unsigned number.
bool IsPlaceIn(const std::vector<LocalMenuEntry>& entries, std::int32_t position) {
  return position >= 0 && static_cast<std::size_t>(position) < entries.size();
}

}  // namespace

MenuHandle MenuTree::Create(bool held) {
  menus_[++lastHandle_].held = held;
  return lastHandle_;
}

void MenuTree::Destroy(MenuHandle menu) {
  const auto found = menus_.find(menu);
  if (found == menus_.end()) return;
  const std::vector<LocalMenuEntry> entries = std::move(found->second.entries);
  menus_.erase(found);
  for (const LocalMenuEntry& entry : entries) Destroy(entry.popup);
}

bool MenuTree::IsHeld(MenuHandle menu) const {
  const auto found = menus_.find(menu);
  return found != menus_.end() && found->second.held;
}

const std::vector<LocalMenuEntry>* MenuTree::Entries(MenuHandle menu) const {
  const auto found = menus_.find(menu);
  return found == menus_.end() ? nullptr : &found->second.entries;
}

const LocalMenuEntry* MenuTree::Entry(MenuHandle menu, std::int32_t position) const {
  const std::vector<LocalMenuEntry>* entries = Entries(menu);
  if (entries == nullptr || !IsPlaceIn(*entries, position)) return nullptr;
  return &(*entries)[static_cast<std::size_t>(position)];
}

LocalMenuEntry* MenuTree::Find(MenuHandle menu, std::int32_t position) {
  const auto found = menus_.find(menu);
  if (found == menus_.end() || !IsPlaceIn(found->second.entries, position)) return nullptr;
  return &found->second.entries[static_cast<std::size_t>(position)];
}

void MenuTree::SetMeasure(MenuHandle menu, std::int32_t position, std::int32_t dpi, std::int32_t width,
                          std::int32_t height) {
  LocalMenuEntry* entry = Find(menu, position);
  if (entry == nullptr) return;
  entry->measuredDpi = dpi;
  entry->width = std::max(width, 0);
  entry->height = std::max(height, 0);
}

bool MenuTree::HoldsBelow(MenuHandle menu, MenuHandle wanted) const {
  if (menu == wanted) return true;
  const std::vector<LocalMenuEntry>* entries = Entries(menu);
  return entries != nullptr && std::any_of(entries->begin(), entries->end(), [&](const LocalMenuEntry& entry) {
           return entry.popup != 0 && HoldsBelow(entry.popup, wanted);
         });
}

// `own` is the popup that the entry has already.
bool MenuTree::MayHold(MenuHandle menu, std::int32_t flags, std::int32_t id, MenuHandle own) const {
  if (!Has(flags, kMenuPopup)) return true;
  if (!Exists(id)) return false;
  return id == own || (!IsHeld(id) && !HoldsBelow(id, menu));
}

LocalMenuEntry MenuTree::MakeEntry(std::int32_t flags, std::int32_t id, const std::wstring& text) {
  LocalMenuEntry entry;
  entry.flags = flags;
  entry.id = id;
  entry.text = text;
  if (Has(flags, kMenuPopup)) {
    entry.popup = id;
    menus_[id].held = true;
  }
  return entry;
}

bool MenuTree::Insert(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                      const std::wstring& text) {
  if (!Exists(menu) || !MayHold(menu, flags, id, 0)) return false;
  std::vector<LocalMenuEntry>& entries = menus_[menu].entries;
  const auto place = IsPlaceIn(entries, position) ? entries.begin() + position : entries.end();
  entries.insert(place, MakeEntry(flags, id, text));
  return true;
}

bool MenuTree::Modify(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                      const std::wstring& text) {
  LocalMenuEntry* entry = Find(menu, position);
  if (entry == nullptr) return false;
  const MenuHandle old = entry->popup;
  if (!MayHold(menu, flags, id, old)) return false;
  *entry = MakeEntry(flags, id, text);
  if (!Has(flags, kMenuPopup) && Has(flags, kMenuOwnerDrawn)) entry->popup = old;
  if (old != entry->popup) Destroy(old);
  return true;
}

bool MenuTree::Delete(MenuHandle menu, std::int32_t position) {
  const LocalMenuEntry* entry = Find(menu, position);
  if (entry == nullptr) return false;
  Destroy(entry->popup);
  std::vector<LocalMenuEntry>& entries = menus_[menu].entries;
  entries.erase(entries.begin() + position);
  return true;
}

}  // namespace burrowmark
