#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "platform/key_codes.h"

namespace burrowmark {

void frmOrganize::ConnectPanes() {
  TreeView1.GotFocus = [this] { EnterTree(); };
  TreeView1.MouseDown = [this](const MouseEvent& event) { TreeMouseDown(event); };
  TreeView1.MouseUp = [this](const MouseEvent&) { TreeMouseUp(); };
  TreeView1.MouseMove = [this](const MouseEvent&) { ResetSplitterCursor(); };
  TreeView1.NodeClick = [this](TreeNode&) { TreeNodeClick(); };
  TreeView1.DblClick = [this] { TreeDblClick(); };
  TreeView1.KeyDown = [this](std::int32_t& KeyCode, std::int32_t) { TreeKeyDown(KeyCode); };

  ListView1.GotFocus = [this] { EnterList(); };
  ListView1.MouseDown = [this](const MouseEvent& event) { ListMouseDown(event); };
  ListView1.MouseUp = [this](const MouseEvent&) { ListMouseUp(); };
  ListView1.MouseMove = [this](const MouseEvent&) { ResetSplitterCursor(); };
  ListView1.ItemClick = [this](ListItem& row) { ListItemClick(row); };
  ListView1.Click = [this] { ListClick(); };
  ListView1.DblClick = [this] { OpenSelectedListItem(false); };
  ListView1.ColumnClick = [this](std::int32_t column) { ArrangeBy(column); };
  ListView1.Paint = [this] { SetStatusBarSelected(); };
  ListView1.KeyDown = [this](std::int32_t& KeyCode, std::int32_t) { ListKeyDown(KeyCode); };
  txtInfoDrives.MouseMove = [this](const MouseEvent&) { ResetSplitterCursor(); };
}

// --- the tree

void frmOrganize::EnterTree() {
  ActivePane_ = 0;
  TreeActive_ = true;
  ListActive_ = false;
}

void frmOrganize::TreeMouseDown(const MouseEvent& event) {
  TreeView1.SetDropHighlight(nullptr);
  NodeClicked_ = false;
  TreeRightButton_ = event.button == kRightButton;
  ActivePane_ = 0;
}

void frmOrganize::TreeMouseUp() {
  const TreeNode* node = TreeView1.SelectedItem();
  if (!TreeRightButton_ || node == nullptr) return;
  TreeActive_ = true;
  SetMenuState(MenuKind::kPopup, node->Key(), node->Image(), node->Expanded());
  TreeActive_ = false;
}

void frmOrganize::TreeNodeClick() {
  NodeClicked_ = true;
  if (!TreeRightButton_) ShowSelectedNode(false);
}

void frmOrganize::TreeDblClick() {
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr || !NodeClicked_) return;
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(node->Key()));
  if (item && !item->SubMenu()) PopupWindowsExplorer();
}

void frmOrganize::TreeKeyDown(std::int32_t& KeyCode) {
  TreeRightButton_ = false;
  if (KeyCode != kKeyCodeBackspace) return;
  KeyCode = 0;
  GoUp();
}

// --- the list

void frmOrganize::EnterList() {
  ActivePane_ = 1;
  ListActive_ = true;
  TreeActive_ = false;
}

void frmOrganize::ListMouseDown(const MouseEvent& event) {
  ListView1.SetSelectedItem(nullptr);
  ListView1.SetDropHighlight(nullptr);
  ListItemClicked_ = false;
  ListRightButton_ = event.button == kRightButton;
  ActivePane_ = 1;
}

void frmOrganize::ListMouseUp() {
  if (!ListRightButton_) return;
  const bool before = std::exchange(ListActive_, true);
  if (HasSelection()) {
    EnsureCurrentListItem();
    const ListItem* row = ListView1.SelectedItem();
    SetMenuState(MenuKind::kPopup, row->Key(), row->Icon(), false);
  } else if (const TreeNode* node = TreeView1.SelectedItem()) {
    SetMenuState(MenuKind::kPopup2, node->Key(), node->Image(), false);
  }
  ListActive_ = before;
}

void frmOrganize::ListItemClick(const ListItem& row) {
  ListItemClicked_ = true;
  SetToolbarState(row.Key());
}

// A click where no row is: toolbar and status bar tell of the group again.
void frmOrganize::ListClick() {
  if (ListView1.SelectedItem() != nullptr) return;
  TreeNode* group = TreeView1.Find(CurrentGroup_ == kRootOwner ? MIT_HF_ROOT : KeyOfName(CurrentGroup_));
  if (group == nullptr) return;
  TreeView1.SetSelectedItem(group);
  ShowSelectedNode(true);
}

void frmOrganize::ListKeyDown(std::int32_t& KeyCode) {
  ListRightButton_ = false;
  if (KeyCode == kKeyCodeBackspace) {
    KeyCode = 0;
    GoUp();
  } else if (KeyCode == kKeyCodeReturn) {
    KeyCode = 0;
    OpenSelectedListItem(false);
  }
}

}  // namespace burrowmark
