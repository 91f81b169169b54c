#include "platform/win32/tree_view_peer.h"

#include <commctrl.h>

namespace burrowmark {

Win32TreeView::Win32TreeView(const ChildPlace& place, TreeViewState& tree)
    : ChildPeer(WC_TREEVIEWW, L"", TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS, place, tree,
                WS_EX_CLIENTEDGE),
      tree_(tree) {
  for (TreeNodeState* root : tree_.Roots()) Add(*root);
}

void Win32TreeView::NodeRemoved(TreeNodeState& node) { ::SendMessageW(Handle(), TVM_DELETEITEM, 0, node.native); }

void Win32TreeView::NodesCleared() { ::SendMessageW(Handle(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)); }

void Win32TreeView::Add(TreeNodeState& node) {
  TVINSERTSTRUCTW insert = {};
  insert.hParent = node.parent == nullptr ? TVI_ROOT : reinterpret_cast<HTREEITEM>(node.parent->native);
  insert.hInsertAfter = TVI_LAST;
  insert.itemex.mask = TVIF_TEXT;
  insert.itemex.pszText = const_cast<wchar_t*>(node.text.c_str());
  node.native = ::SendMessageW(Handle(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert));
  for (TreeNodeState* child : node.children) Add(*child);
}

}  // namespace burrowmark
