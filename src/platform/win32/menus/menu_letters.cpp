#include "platform/win32/menus/menu_letters.h"

#include <string>

#include "platform/characters.h"

namespace burrowmark {
namespace {

struct EntryFacts {
  bool highlighted = false;
  bool separator = false;
  std::wstring text;
};

std::optional<EntryFacts> FactsOf(HMENU menu, UINT position) {
  MENUITEMINFOW info = {};
  info.cbSize = sizeof(info);
  info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_STRING;
  if (::GetMenuItemInfoW(menu, position, TRUE, &info) == FALSE) return std::nullopt;
  EntryFacts facts;
  facts.highlighted = (info.fState & MFS_HILITE) != 0;
  facts.separator = (info.fType & MFT_SEPARATOR) != 0;
  facts.text.resize(info.cch);
  info.dwTypeData = facts.text.data();
  ++info.cch;  // with the NUL, which the text has room for
  if (::GetMenuItemInfoW(menu, position, TRUE, &info) == FALSE) facts.text.clear();
  return facts;
}

UINT CountOf(HMENU menu) {
  const int count = ::GetMenuItemCount(menu);
  return count > 0 ? static_cast<UINT>(count) : 0;
}

// Position behind the highlighted entry; the first one where none is highlighted.
UINT AfterHighlighted(HMENU menu, UINT count) {
  for (UINT i = 0; i < count; ++i) {
    if ((::GetMenuState(menu, i, MF_BYPOSITION) & MF_HILITE) != 0) return i + 1;
  }
  return 0;
}

// The first character that is seen: a single ampersand only marks the one behind it.
wchar_t FirstLetter(const std::wstring& text) {
  const std::size_t at = !text.empty() && text.front() == L'&' ? 1 : 0;
  return at < text.size() ? UpperCase(text[at]) : L'\0';
}

}  // namespace

std::optional<UINT> EntryOfLetter(HMENU menu, wchar_t letter) {
  const UINT count = CountOf(menu);
  const UINT start = AfterHighlighted(menu, count);
  for (UINT i = 0; i < count; ++i) {
    const UINT position = (start + i) % count;
    const std::optional<EntryFacts> facts = FactsOf(menu, position);
    if (facts && !facts->separator && FirstLetter(facts->text) == UpperCase(letter)) return position;
  }
  return std::nullopt;
}

void GoToEntryByKeys(HWND window, HMENU menu, UINT position) {
  const std::optional<EntryFacts> target = FactsOf(menu, position);
  if (!target || target->highlighted) return;
  const UINT count = CountOf(menu);
  const UINT start = AfterHighlighted(menu, count);
  for (UINT i = 0; i < count; ++i) {
    const UINT passed = (start + i) % count;
    const std::optional<EntryFacts> facts = FactsOf(menu, passed);
    if (facts && !facts->separator) ::PostMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
    if (passed == position) return;
  }
}

}  // namespace burrowmark
