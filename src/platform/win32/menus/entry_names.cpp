#include "platform/win32/menus/entry_names.h"

#include <oleacc.h>

#include <utility>

namespace burrowmark {
namespace {

MENUITEMINFOW DataAndPopup(HMENU menu, UINT position) {
  MENUITEMINFOW info = {};
  info.cbSize = sizeof(info);
  info.fMask = MIIM_DATA | MIIM_SUBMENU;
  ::GetMenuItemInfoW(menu, position, TRUE, &info);
  return info;
}

}  // namespace

// The data of the entry point at the system's record in it.
struct EntryNames::Record {
  explicit Record(const std::wstring& name)
      : text(name), info{static_cast<DWORD>(MSAA_MENU_SIG), static_cast<DWORD>(text.size()), text.data()} {}
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;

  std::wstring text;
  MSAAMENUINFO info;
};

EntryNames::EntryNames() = default;

EntryNames::~EntryNames() = default;

ULONG_PTR EntryNames::Add(const std::wstring& text) {
  auto record = std::make_unique<Record>(text);
  const auto data = reinterpret_cast<ULONG_PTR>(&record->info);
  records_[data] = std::move(record);
  return data;
}

void EntryNames::Remove(const std::vector<ULONG_PTR>& data) {
  for (const ULONG_PTR one : data) records_.erase(one);
}

ULONG_PTR DataOfEntry(HMENU menu, UINT position) { return DataAndPopup(menu, position).dwItemData; }

std::vector<ULONG_PTR> DataOfMenu(HMENU menu) {
  std::vector<ULONG_PTR> all;
  const int count = ::GetMenuItemCount(menu);
  for (int i = 0; i < count; ++i) {
    const MENUITEMINFOW info = DataAndPopup(menu, static_cast<UINT>(i));
    all.push_back(info.dwItemData);
    if (info.hSubMenu == nullptr) continue;
    const std::vector<ULONG_PTR> below = DataOfMenu(info.hSubMenu);
    all.insert(all.end(), below.begin(), below.end());
  }
  return all;
}

}  // namespace burrowmark
