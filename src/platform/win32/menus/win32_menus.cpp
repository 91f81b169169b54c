#include "platform/win32/menus/win32_menus.h"

#include <windows.h>

#include <utility>
#include <vector>

#include "platform/win32/handles.h"
#include "platform/win32/menus/menu_right_click.h"
#include "platform/win32/menus/menu_style.h"

namespace burrowmark {
namespace {

static_assert(kMenuByPosition == MF_BYPOSITION && kMenuPopup == MF_POPUP);
static_assert(kMenuOwnerDrawn == MFT_OWNERDRAW && kMenuSeparator == MFT_SEPARATOR);

bool HasPosition(HMENU menu, std::int32_t position) {
  return position >= 0 && position < ::GetMenuItemCount(menu);  // -1 for what isn't a menu
}

// An entry without its popup and name. Its text is kept beside the mark of owner drawing, which the older calls can't
// do.
MENUITEMINFOW Entry(std::int32_t flags, std::int32_t id, const std::wstring& text) {
  MENUITEMINFOW entry = {};
  entry.cbSize = sizeof(entry);
  entry.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STRING | MIIM_DATA;
  entry.fType = static_cast<UINT>(flags) & (MFT_OWNERDRAW | MFT_SEPARATOR);
  entry.wID = static_cast<UINT>(id);
  entry.dwTypeData = const_cast<wchar_t*>(text.c_str());
  return entry;
}

bool IsDrawn(std::int32_t flags) { return (flags & kMenuOwnerDrawn) != 0; }

void AddTo(std::vector<ULONG_PTR>& all, const std::vector<ULONG_PTR>& more) {
  all.insert(all.end(), more.begin(), more.end());
}

// A popup that can be put into a menu.
bool IsFreePopup(HMENU popup, HMENU menu) { return popup != menu && ::IsMenu(popup) != FALSE; }

// The system measures an entry once; setting its type again makes it ask anew.
void ForgetSizes(HMENU menu) {
  const int count = ::GetMenuItemCount(menu);
  for (int i = 0; i < count; ++i) {
    MENUITEMINFOW entry = {};
    entry.cbSize = sizeof(entry);
    entry.fMask = MIIM_FTYPE | MIIM_SUBMENU;
    if (::GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &entry) == FALSE) continue;
    if (entry.hSubMenu != nullptr) ForgetSizes(entry.hSubMenu);
    entry.fMask = MIIM_FTYPE;
    ::SetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &entry);
  }
}

}  // namespace

MenuHandle Win32Menus::GetMenu(WindowHandle window) { return FromHmenu(::GetMenu(ToHwnd(window))); }

MenuHandle Win32Menus::GetSubMenu(MenuHandle menu, std::int32_t position) {
  return HasPosition(ToHmenu(menu), position) ? FromHmenu(::GetSubMenu(ToHmenu(menu), position)) : 0;
}

MenuHandle Win32Menus::CreatePopupMenu() {
  const HMENU popup = ::CreatePopupMenu();
  if (popup != nullptr) StylePopup(popup);
  return FromHmenu(popup);
}

bool Win32Menus::DestroyMenu(MenuHandle menu) {
  const std::vector<ULONG_PTR> names = DataOfMenu(ToHmenu(menu));
  if (::DestroyMenu(ToHmenu(menu)) == FALSE) return false;
  names_.Remove(names);
  return true;
}

bool Win32Menus::InsertMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                             const std::wstring& text) {
  const HMENU handle = ToHmenu(menu);
  const int count = ::GetMenuItemCount(handle);
  if (count < 0) return false;
  MENUITEMINFOW entry = Entry(flags, id, text);
  if ((flags & kMenuPopup) != 0) {
    entry.fMask |= MIIM_SUBMENU;
    entry.hSubMenu = ToHmenu(id);
    if (!IsFreePopup(entry.hSubMenu, handle)) return false;
  }
  const int place = position < 0 || position > count ? count : position;
  if (IsDrawn(flags)) entry.dwItemData = names_.Add(text);
  if (::InsertMenuItemW(handle, static_cast<UINT>(place), TRUE, &entry) != FALSE) return true;
  names_.Remove({entry.dwItemData});
  return false;
}

bool Win32Menus::ModifyMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                             const std::wstring& text) {
  const HMENU handle = ToHmenu(menu);
  if (!HasPosition(handle, position)) return false;
  const HMENU popupBefore = ::GetSubMenu(handle, position);
  const bool hasNewPopup = (flags & kMenuPopup) != 0;
  const bool keepsPopup = !hasNewPopup && (flags & kMenuOwnerDrawn) != 0;
  MENUITEMINFOW entry = Entry(flags, id, text);
  if (!keepsPopup) {
    entry.fMask |= MIIM_SUBMENU;
    entry.hSubMenu = hasNewPopup ? ToHmenu(id) : nullptr;
    if (hasNewPopup && !IsFreePopup(entry.hSubMenu, handle)) return false;
  }
  std::vector<ULONG_PTR> going = {DataOfEntry(handle, static_cast<UINT>(position))};
  const bool losesPopup = !keepsPopup && popupBefore != nullptr && popupBefore != entry.hSubMenu;
  if (losesPopup) AddTo(going, DataOfMenu(popupBefore));
  if (IsDrawn(flags)) entry.dwItemData = names_.Add(text);
  if (::SetMenuItemInfoW(handle, static_cast<UINT>(position), TRUE, &entry) == FALSE) {
    names_.Remove({entry.dwItemData});
    return false;
  }
  // Not every system frees a popup that has lost its entry.
  if (losesPopup && ::IsMenu(popupBefore) != FALSE) ::DestroyMenu(popupBefore);
  names_.Remove(going);
  return true;
}

bool Win32Menus::DeleteMenu(MenuHandle menu, std::int32_t position, std::int32_t flags) {
  if ((flags & kMenuByPosition) == 0 || !HasPosition(ToHmenu(menu), position)) return false;
  const auto place = static_cast<UINT>(position);
  std::vector<ULONG_PTR> going = {DataOfEntry(ToHmenu(menu), place)};
  AddTo(going, DataOfMenu(::GetSubMenu(ToHmenu(menu), position)));
  if (::DeleteMenu(ToHmenu(menu), place, MF_BYPOSITION) == FALSE) return false;
  names_.Remove(going);
  return true;
}

std::int32_t Win32Menus::GetMenuItemCount(MenuHandle menu) { return ::GetMenuItemCount(ToHmenu(menu)); }

std::int32_t Win32Menus::GetMenuItemID(MenuHandle menu, std::int32_t position) {
  if (!HasPosition(ToHmenu(menu), position)) return -1;
  return static_cast<std::int32_t>(::GetMenuItemID(ToHmenu(menu), position));
}

std::int32_t Win32Menus::TrackPopupMenu(MenuHandle menu, WindowHandle window, Color background,
                                        const std::optional<Rect>& beside) {
  TPMPARAMS kept = {};
  kept.cbSize = sizeof(kept);
  POINT at = {};
  ::GetCursorPos(&at);
  if (beside) {
    kept.rcExclude = ToRECT(*beside);
    at = {beside->left, beside->top};
  }
  const std::int32_t dpi = dpi_.OfMonitor(::MonitorFromPoint(at, MONITOR_DEFAULTTONEAREST));
  if (!IsMeasuredFor(dpi)) ForgetSizes(ToHmenu(menu));
  measuredDpi_ = dpi;
  measuredChanges_ = font_.Changes();
  ShowBackground(ToHmenu(menu), background);
  const RightClickWatch watch;
  // The left button alone chooses: a right click is told to the window and chooses nothing.
  constexpr UINT kHow = TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RETURNCMD;
  return ::TrackPopupMenuEx(ToHmenu(menu), kHow, at.x, at.y, ToHwnd(window), beside ? &kept : nullptr);
}

// The brush before stays until the popups have the new one.
void Win32Menus::ShowBackground(HMENU menu, Color background) {
  Brush brush(::CreateSolidBrush(background));
  MENUINFO info = {};
  info.cbSize = sizeof(info);
  info.fMask = MIM_BACKGROUND | MIM_APPLYTOSUBMENUS;
  info.hbrBack = brush.get();
  ::SetMenuInfo(menu, &info);
  background_ = std::move(brush);
}

}  // namespace burrowmark
