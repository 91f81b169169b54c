#include "platform/win32/controls/tab_strip_peer.h"

#include <commctrl.h>

namespace burrowmark {

Win32TabStrip::Win32TabStrip(const ChildPlace& place, TabStripState& strip)
    : ChildPeer(WC_TABCONTROLW, L"", 0, place, strip), strip_(strip) {
  for (std::size_t tab = 0; tab < strip.Tabs().size(); ++tab) {
    std::wstring caption = strip.Tabs()[tab];
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    ::SendMessageW(Handle(), TCM_INSERTITEMW, tab, reinterpret_cast<LPARAM>(&item));
  }
  SelectedTabChanged();
}

void Win32TabStrip::SelectedTabChanged() {
  ::SendMessageW(Handle(), TCM_SETCURSEL, static_cast<WPARAM>(strip_.SelectedTab() - 1), 0);
}

Box Win32TabStrip::AreaBelow() const {
  RECT area = {};
  ::GetClientRect(Handle(), &area);
  ::SendMessageW(Handle(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
  ::MapWindowPoints(Handle(), ::GetParent(Handle()), reinterpret_cast<POINT*>(&area), 2);
  return {ToTwips(area.left, Dpi()), ToTwips(area.top, Dpi()), ToTwips(area.right - area.left, Dpi()),
          ToTwips(area.bottom - area.top, Dpi())};
}

LRESULT Win32TabStrip::Notify(NMHDR& record) {
  if (record.code != static_cast<UINT>(TCN_SELCHANGE)) return 0;
  strip_.UserSelect(static_cast<std::int32_t>(::SendMessageW(Handle(), TCM_GETCURSEL, 0, 0)) + 1);
  return 0;
}

std::optional<LRESULT> Win32TabStrip::Handle(UINT message, WPARAM, LPARAM) {
  if (message == WM_PAINT) SpareOthers();
  return std::nullopt;
}

// What stands on a tab is made later, and so lies beneath the strip, which would draw over it.
void Win32TabStrip::SpareOthers() const {
  for (HWND other = ::GetWindow(Handle(), GW_HWNDNEXT); other != nullptr; other = ::GetWindow(other, GW_HWNDNEXT)) {
    if (::IsWindowVisible(other) == FALSE) continue;
    RECT place = {};
    ::GetWindowRect(other, &place);
    ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&place), 2);
    ::ValidateRect(Handle(), &place);
  }
}

}  // namespace burrowmark
