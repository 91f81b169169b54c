#include "ui/menu.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/characters.h"
#include "ui/form.h"

namespace burrowmark {
namespace {

std::vector<MenuEntryState*> WayTo(MenuEntryState& entry) {
  std::vector<MenuEntryState*> way;
  for (MenuEntryState* above = entry.parent; above != nullptr; above = above->parent) way.push_back(above);
  std::reverse(way.begin(), way.end());
  return way;
}

bool IsShown(const MenuEntryState& entry) {
  return entry.visible && (entry.parent == nullptr || IsShown(*entry.parent));
}

}  // namespace

FormMenuEntry::FormMenuEntry(FormMenus& menus, std::wstring name) : menus_(menus), name_(std::move(name)) {}

void FormMenuEntry::SetCaption(std::wstring newCaption) {
  if (Assign(caption, std::move(newCaption))) menus_.Changed(*this);
}

void FormMenuEntry::SetVisible(bool on) {
  if (Assign(visible, on)) menus_.Changed(*this);
}

void FormMenuEntry::SetEnabled(bool on) {
  if (Assign(enabled, on)) menus_.Changed(*this);
}

void FormMenuEntry::SetChecked(bool on) {
  if (Assign(checked, on)) menus_.Changed(*this);
}

void FormMenuEntry::SetRadio(bool on) {
  if (Assign(radio, on)) menus_.Changed(*this);
}

FormMenus::FormMenus(Form& form, std::span<const MenuRow> rows) : form_(form) {
  std::vector<std::pair<std::int32_t, MenuEntryState*>> above;
  for (const MenuRow& row : rows) {
    entries_.push_back(std::make_unique<FormMenuEntry>(*this, row.name));
    byName_.emplace(row.name, entries_.back().get());
    MenuEntryState& entry = *entries_.back();
    entry.caption = row.caption;
    entry.shortcut = row.shortcut;
    while (!above.empty() && above.back().first >= row.level) above.pop_back();
    entry.parent = above.empty() ? nullptr : above.back().second;
    (above.empty() ? root_ : *entry.parent).children.push_back(&entry);
    above.emplace_back(row.level, &entry);
  }
  form_.EnterMenus(*this);
}

FormMenus::~FormMenus() { form_.LeaveMenus(); }

FormMenuEntry& FormMenus::operator[](const std::wstring& name) const {
  const auto found = byName_.find(name);
  if (found == byName_.end()) throw std::out_of_range("there is no menu entry " + ToUtf8(name));
  return *found->second;
}

// The system shows the others as they are when their menu opens.
void FormMenus::Changed(const FormMenuEntry& entry) {
  if (entry.parent == nullptr) form_.Tell(&FormPeer::MenusChanged);
}

void FormMenus::PopupMenu(const std::wstring& name, const std::wstring& defaultEntry) {
  MenuEntryState& popup = (*this)[name];
  const MenuEntryState* bold = defaultEntry.empty() ? nullptr : &(*this)[defaultEntry];
  if (!form_.Loaded()) return;
  const ControlSite::Running running(form_);
  const Popping popping(*this, &popup);
  form_.peer_->PopupMenu(popup, bold);
}

bool FormMenus::CanBeChosen(const MenuEntryState& entry) const {
  if (!form_.IsReachable() || !entry.enabled) return false;
  if (&entry == popup_) return true;
  return entry.visible && (entry.parent == nullptr || CanBeChosen(*entry.parent));
}

void FormMenus::RaiseClick(MenuEntryState& entry) {
  const ControlSite::Running running(form_);
  Raise(static_cast<FormMenuEntry&>(entry).Click);
}

void FormMenus::UserOpen(MenuEntryState& entry) {
  if (!entry.children.empty() && CanBeChosen(entry)) RaiseClick(entry);
}

void FormMenus::UserChoose(MenuEntryState& entry) {
  if (entry.children.empty() && CanBeChosen(entry)) RaiseClick(entry);
}

bool FormMenus::UserShortcut(const MenuShortcut& shortcut) {
  const auto found = std::find_if(entries_.begin(), entries_.end(), [&shortcut](const auto& entry) {
    return shortcut.key != 0 && entry->shortcut == shortcut && IsShown(*entry);
  });
  if (found == entries_.end()) return false;
  const ControlSite::Running running(form_);
  // What hears that it opens makes those below it fit to be chosen, or unfit.
  for (MenuEntryState* above : WayTo(**found)) UserOpen(*above);
  UserChoose(**found);
  return true;
}

}  // namespace burrowmark
