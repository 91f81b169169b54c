#include "platform/win32/controls/combo_box_peer.h"

#include <commctrl.h>

#include <algorithm>

namespace burrowmark {
namespace {

constexpr int kEntries = 12;  // that the open list shows at a time
constexpr WPARAM kField = static_cast<WPARAM>(-1);

int HeightOf(HWND window, WPARAM part) {
  return std::max(static_cast<int>(::SendMessageW(window, CB_GETITEMHEIGHT, part, 0)), 1);
}

}  // namespace

Win32ComboBox::Win32ComboBox(const ChildPlace& place, ComboBoxState& box)
    : ChildPeer(WC_COMBOBOXW, L"", CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL, place, box), box_(box) {
  ::SendMessageW(Handle(), CB_SETMINVISIBLE, kEntries, 0);
  ItemsChanged();
}

void Win32ComboBox::ItemAdded() {
  ::SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(box_.Items().back().c_str()));
  PlaceChanged();
}

void Win32ComboBox::ItemsChanged() {
  ::SendMessageW(Handle(), CB_RESETCONTENT, 0, 0);
  for (const std::wstring& item : box_.Items()) {
    ::SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
  }
  IndexChanged();
  PlaceChanged();
}

void Win32ComboBox::IndexChanged() { ::SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(box_.ListIndex()), 0); }

// What is passed in the open list, the system tells as it tells of a choice.
void Win32ComboBox::Command(UINT notification) {
  switch (notification) {
    case CBN_DROPDOWN:
      givenUp_ = false;
      return TheForm().LeaveKeysToList(Handle());
    case CBN_SELENDOK:
    case CBN_SELENDCANCEL:
      givenUp_ = notification == CBN_SELENDCANCEL;
      return;
    case CBN_CLOSEUP:
      return Closed();
    case CBN_SELCHANGE:
      if (::SendMessageW(Handle(), CB_GETDROPPEDSTATE, 0, 0) == FALSE) Choose();
      return;
    default:
      return;
  }
}

void Win32ComboBox::Closed() {
  TheForm().LeaveKeysToList(nullptr);
  givenUp_ ? IndexChanged() : Choose();
}

void Win32ComboBox::Choose() {
  box_.UserChoose(static_cast<std::int32_t>(::SendMessageW(Handle(), CB_GETCURSEL, 0, 0)));
}

// It is as high itself as its font needs; what counts is the height with the open list.
int Win32ComboBox::NativeHeight(int) const {
  const int count = std::clamp(static_cast<int>(box_.Items().size()), 1, kEntries);
  const int edges = 4 * ::GetSystemMetrics(SM_CYEDGE) + 2 * ::GetSystemMetrics(SM_CYBORDER);
  return HeightOf(Handle(), kField) + edges + count * HeightOf(Handle(), 0);
}

}  // namespace burrowmark
