#include "platform/win32/menus/entry_menus.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "platform/menu_shortcut.h"

namespace burrowmark {
namespace {

constexpr UINT kFirstCommand = 1000;

// What an entry looks like; the text must stay as long as this is used.
MENUITEMINFOW LookOf(const MenuEntryState& entry, std::wstring& text) {
  MENUITEMINFOW info = {};
  info.cbSize = sizeof(info);
  info.fMask = MIIM_FTYPE | MIIM_STATE;
  if (!IsNotDash(entry.caption)) {
    info.fType = MFT_SEPARATOR;
    return info;
  }
  const std::wstring keys = ShortcutText(entry.shortcut);
  text = keys.empty() ? entry.caption : entry.caption + L'\t' + keys;
  info.fMask |= MIIM_STRING;
  info.fType = entry.radio ? MFT_RADIOCHECK : MFT_STRING;
  info.fState = (entry.enabled ? MFS_ENABLED : MFS_DISABLED) | (entry.checked ? MFS_CHECKED : MFS_UNCHECKED);
  info.dwTypeData = text.data();
  return info;
}

}  // namespace

void EntryMenus::ShowBar(HWND window, const std::vector<MenuEntryState*>& entries) {
  std::vector<MenuEntryState*> visible;
  std::copy_if(entries.begin(), entries.end(), std::back_inserter(visible),
               [](const MenuEntryState* entry) { return entry->visible; });
  if (visible == onBar_) {
    // In its place: one of its menus may be open.
    for (std::size_t i = 0; i < visible.size(); ++i) {
      std::wstring text;
      const MENUITEMINFOW look = LookOf(*visible[i], text);
      ::SetMenuItemInfoW(bar_, static_cast<UINT>(i), TRUE, &look);
    }
  } else {
    NativeMenu bar(visible.empty() ? nullptr : ::CreateMenu());
    for (MenuEntryState* entry : visible) Append(bar.get(), *entry);
    ::SetMenu(window, bar.get());
    Forget(bar_);
    if (bar_ != nullptr) ::DestroyMenu(bar_);
    bar_ = bar.release();
    onBar_ = std::move(visible);
  }
  ::DrawMenuBar(window);
}

MenuEntryState* EntryMenus::Popup(HWND window, MenuEntryState& entry, const MenuEntryState* bold, const POINT& at) {
  const NativeMenu menu(::CreatePopupMenu());
  popups_[menu.get()] = &entry;
  bold_ = bold;
  Fill(menu.get());
  const BOOL command = ::TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, window, nullptr);
  bold_ = nullptr;
  Forget(menu.get());
  return EntryOf(static_cast<UINT>(command));
}

MenuEntryState* EntryMenus::EntryOf(HMENU menu) const {
  const auto found = popups_.find(menu);
  return found == popups_.end() ? nullptr : found->second;
}

MenuEntryState* EntryMenus::EntryOf(UINT command) const {
  const UINT index = command - kFirstCommand;
  return index < commands_.size() ? commands_[index] : nullptr;
}

void EntryMenus::Fill(HMENU menu) {
  const auto popup = popups_.find(menu);
  if (popup == popups_.end()) return;
  const MenuEntryState& entry = *popup->second;
  for (int i = 0; i < ::GetMenuItemCount(menu); ++i) Forget(::GetSubMenu(menu, i));
  while (::DeleteMenu(menu, 0, MF_BYPOSITION) != FALSE) {
  }
  for (MenuEntryState* child : entry.children) {
    if (child->visible) Append(menu, *child);
  }
  if (bold_ != nullptr && bold_->parent == &entry) ::SetMenuDefaultItem(menu, numbers_[bold_], FALSE);
}

void EntryMenus::Append(HMENU menu, MenuEntryState& entry) {
  std::wstring text;
  MENUITEMINFOW info = LookOf(entry, text);
  info.fMask |= MIIM_ID;
  info.wID = CommandOf(entry);
  if (!entry.children.empty()) {
    info.fMask |= MIIM_SUBMENU;
    info.hSubMenu = ::CreatePopupMenu();  // goes with the menu that it is in
    popups_[info.hSubMenu] = &entry;
    Fill(info.hSubMenu);
  }
  ::InsertMenuItemW(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &info);
}

void EntryMenus::Forget(HMENU menu) {
  if (menu == nullptr) return;
  for (int i = 0; i < ::GetMenuItemCount(menu); ++i) Forget(::GetSubMenu(menu, i));
  popups_.erase(menu);
}

UINT EntryMenus::CommandOf(MenuEntryState& entry) {
  const auto [place, isNew] = numbers_.try_emplace(&entry, kFirstCommand + static_cast<UINT>(commands_.size()));
  if (isNew) commands_.push_back(&entry);
  return place->second;
}

}  // namespace burrowmark
