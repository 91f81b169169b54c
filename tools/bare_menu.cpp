// What the system itself takes for a menu of many entries, made call for call as the program makes its own: the
// entries with their text, then all of them as owner-drawn. Prints the milliseconds.
//
//   x86_64-w64-mingw32-g++ -std=c++20 -O2 -municode -static tools/bare_menu.cpp -o build/bare_menu.exe
//   wine build/bare_menu.exe ENTRIES [ENTRIES A GROUP]
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Place {
  HMENU menu;
  UINT position;
  UINT number;
  std::wstring text;
};

MENUITEMINFOW Entry(const Place& place, UINT type) {
  MENUITEMINFOW entry = {};
  entry.cbSize = sizeof(entry);
  entry.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STRING;
  entry.fType = type;
  entry.wID = place.number;
  entry.dwTypeData = const_cast<wchar_t*>(place.text.c_str());
  return entry;
}

void Insert(std::vector<Place>& places, HMENU menu, HMENU popup, std::size_t number, const std::wstring& title) {
  const int count = GetMenuItemCount(menu);
  places.push_back({menu, static_cast<UINT>(count), static_cast<UINT>(number), title + std::to_wstring(number)});
  MENUITEMINFOW entry = Entry(places.back(), MFT_STRING);
  if (popup != nullptr) {
    entry.fMask |= MIIM_SUBMENU;
    entry.hSubMenu = popup;
  }
  InsertMenuItemW(menu, static_cast<UINT>(count), TRUE, &entry);
}

HMENU InsertPopup(std::vector<Place>& places, HMENU menu, std::size_t number) {
  const HMENU popup = CreatePopupMenu();
  MENUINFO style = {};
  style.cbSize = sizeof(style);
  style.fMask = MIM_STYLE;
  SetMenuInfo(popup, &style);
  Insert(places, menu, popup, number, L"Group ");
  return popup;
}

void MakeOwnerDrawn(const std::vector<Place>& places) {
  for (const Place& place : places) {
    if (static_cast<int>(place.position) >= GetMenuItemCount(place.menu)) continue;
    GetSubMenu(place.menu, static_cast<int>(place.position));
    MENUITEMINFOW entry = Entry(place, MFT_OWNERDRAW);
    SetMenuItemInfoW(place.menu, place.position, TRUE, &entry);
  }
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  const std::size_t entries = argc > 1 ? std::wcstoul(argv[1], nullptr, 10) : 32000;
  const std::size_t perGroup = argc > 2 ? std::wcstoul(argv[2], nullptr, 10) : entries;
  const ULONGLONG start = GetTickCount64();
  std::vector<Place> places;
  const HMENU personal = InsertPopup(places, CreatePopupMenu(), 49);
  HMENU group = personal;
  for (std::size_t i = 1; i < entries; ++i) {
    if (perGroup < entries && i % perGroup == 1) {
      group = InsertPopup(places, personal, 49 + i);
    } else {
      Insert(places, group, nullptr, 49 + i, L"Shortcut ");
    }
  }
  const ULONGLONG inserted = GetTickCount64();
  MakeOwnerDrawn(places);
  std::printf("inserted %llu ms, owner-drawn %llu ms\n", inserted - start, GetTickCount64() - inserted);
  return 0;
}
