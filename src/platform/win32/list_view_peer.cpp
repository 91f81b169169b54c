#include "platform/win32/list_view_peer.h"

#include <commctrl.h>

namespace burrowmark {

Win32ListView::Win32ListView(const ChildPlace& place, ListViewState& list)
    : ChildPeer(WC_LISTVIEWW, L"", LVS_REPORT | LVS_SHOWSELALWAYS, place, list, WS_EX_CLIENTEDGE), list_(list) {
  ShowAll();
}

void Win32ListView::ShowAll() {
  ::SendMessageW(Handle(), LVM_DELETEALLITEMS, 0, 0);
  while (::SendMessageW(Handle(), LVM_DELETECOLUMN, 0, 0) != FALSE) {
  }
  int at = 0;
  for (const ListColumn& column : list_.Columns()) {
    LVCOLUMNW native = {};
    native.mask = LVCF_TEXT | LVCF_WIDTH;
    native.cx = ToPixels(column.width, Dpi());
    native.pszText = const_cast<wchar_t*>(column.text.c_str());
    ::SendMessageW(Handle(), LVM_INSERTCOLUMNW, static_cast<WPARAM>(at++), reinterpret_cast<LPARAM>(&native));
  }
  for (std::int32_t row = 0; row < list_.RowCount(); ++row) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    for (const std::wstring& text : list_.Row(row).texts) {
      item.pszText = const_cast<wchar_t*>(text.c_str());
      ::SendMessageW(Handle(), item.iSubItem == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
      ++item.iSubItem;
    }
  }
}

}  // namespace burrowmark
