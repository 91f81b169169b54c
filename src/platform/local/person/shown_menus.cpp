#include "platform/local/person/shown_menus.h"

#include <algorithm>
#include <stdexcept>

#include "platform/characters.h"
#include "platform/local/menus/menu_text.h"
#include "platform/menu_shortcut.h"

namespace burrowmark {
namespace {

MenuEntryState& FindShown(const std::vector<MenuEntryState*>& entries, const std::wstring& title) {
  const auto found = std::find_if(entries.begin(), entries.end(), [&title](const MenuEntryState* entry) {
    return entry->visible && (WithoutPrefixes(entry->caption) == title || entry->caption == title);
  });
  if (found == entries.end()) throw std::logic_error("there is no menu entry " + ToUtf8(title));
  if (!(*found)->enabled) throw std::logic_error("the menu entry is disabled: " + ToUtf8(title));
  return **found;
}

}  // namespace

std::wstring LookOf(const MenuEntryState& entry) {
  if (!IsNotDash(entry.caption)) return kMenuLine;
  std::wstring look = WithoutPrefixes(entry.caption);
  if (const std::wstring keys = ShortcutText(entry.shortcut); !keys.empty()) look += L'\t' + keys;
  if (entry.checked) look = (entry.radio ? L"(o) " : L"[x] ") + look;
  return entry.enabled ? look : look + L" (disabled)";
}

std::vector<std::wstring> LooksOf(const std::vector<MenuEntryState*>& entries) {
  std::vector<std::wstring> looks;
  for (const MenuEntryState* entry : entries) {
    if (entry->visible) looks.push_back(LookOf(*entry));
  }
  return looks;
}

MenuEntryState& WalkMenus(FormState& form, const std::vector<MenuEntryState*>& entries, const MenuPath& path,
                          bool open) {
  if (path.empty()) throw std::logic_error("a way through menus without a title");
  const std::vector<MenuEntryState*>* level = &entries;
  MenuEntryState* entry = nullptr;
  for (std::size_t i = 0; i < path.size(); ++i) {
    entry = &FindShown(*level, path[i]);
    const bool into = open || i + 1 < path.size();
    if (into == entry->children.empty()) throw std::logic_error("the way through menus is too long or too short");
    if (into) form.UserOpenMenu(*entry);
    level = &entry->children;
  }
  return *entry;
}

std::vector<std::wstring> ShownPopup::Texts(const MenuPath& path) {
  return LooksOf(path.empty() ? popup_.children : WalkMenus(form_, popup_.children, path, true).children);
}

std::wstring ShownPopup::Default() const { return default_ == nullptr ? L"" : LookOf(*default_); }

void ShownPopup::Choose(const MenuPath& path) { chosen_ = &WalkMenus(form_, popup_.children, path, false); }

}  // namespace burrowmark
