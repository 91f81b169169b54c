#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "platform/key_codes.h"

namespace burrowmark {

void frmOrganize::ConnectPanes() {
  ConnectDrags();
  tree_.View.GotFocus = [this] { EnterTree(); };
  tree_.View.MouseDown = [this](const MouseEvent& event) { TreeMouseDown(event); };
  tree_.View.MouseUp = [this](const MouseEvent&) { TreeMouseUp(); };
  tree_.View.MouseMove = [this](const MouseEvent&) { splitter_.ResetCursor(); };
  tree_.View.NodeClick = [this](TreeNode&) { TreeNodeClick(); };
  tree_.View.DblClick = [this] { TreeDblClick(); };
  // Letters don't look for a node.
  tree_.View.KeyPress = [](std::int32_t& KeyAscii) { KeyAscii = 0; };
  tree_.View.KeyDown = [this](std::int32_t& KeyCode, std::int32_t Shift) { TreeKeyDown(KeyCode, Shift); };

  list_.View.GotFocus = [this] { EnterList(); };
  list_.View.MouseDown = [this](const MouseEvent& event) { ListMouseDown(event); };
  list_.View.MouseUp = [this](const MouseEvent&) { ListMouseUp(); };
  list_.View.MouseMove = [this](const MouseEvent&) { splitter_.ResetCursor(); };
  list_.View.ItemClick = [this](ListItem& row) { ListItemClick(row); };
  list_.View.Click = [this] { ListClick(); };
  list_.View.DblClick = [this] { OpenSelectedListItem(false); };
  list_.View.ColumnClick = [this](std::int32_t column) { ArrangeBy(column); };
  list_.View.Paint = [this] { SetStatusBarSelected(); };
  list_.View.KeyDown = [this](std::int32_t& KeyCode, std::int32_t Shift) { ListKeyDown(KeyCode, Shift); };
  list_.txtInfoDrives.MouseMove = [this](const MouseEvent&) { splitter_.ResetCursor(); };
}

// --- the tree

void frmOrganize::EnterTree() {
  ActivePane_ = 0;
  TreeActive_ = true;
  ListActive_ = false;
}

void frmOrganize::TreeMouseDown(const MouseEvent& event) {
  tree_.View.SetDropHighlight(nullptr);
  NodeClicked_ = false;
  const TreeNode* node = tree_.View.HitTest(event.x, event.y);
  HitKey_ = node == nullptr ? std::wstring() : node->Key();
  TreeRightButton_ = event.button == kRightButton;
  if (event.button == kLeftButton) ListRightButton_ = false;
  ActivePane_ = 0;
}

void frmOrganize::TreeMouseUp() {
  const TreeNode* node = tree_.View.SelectedItem();
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
  const TreeNode* node = tree_.View.SelectedItem();
  if (node == nullptr || !NodeClicked_) return;
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(node->Key()));
  if (item && !item->SubMenu()) PopupWindowsExplorer();
}

void frmOrganize::TreeKeyDown(std::int32_t& KeyCode, std::int32_t Shift) {
  TreeRightButton_ = false;
  if (KeyCode == kKeyCodeEscape) {
    ClearClipboard();
  } else if (!PaneKeyDown(KeyCode, Shift)) {
    return;
  }
  KeyCode = 0;
}

// Keys that do the same in both panes.
bool frmOrganize::PaneKeyDown(std::int32_t KeyCode, std::int32_t Shift) {
  if (KeyCode == kKeyCodeBackspace) {
    GoUp();
  } else if (KeyCode == kKeyCodeInsert && Shift == 0) {
    NewItem(MIT_PATH_EXPLORER);
  } else {
    return false;
  }
  return true;
}

// --- the list

void frmOrganize::EnterList() {
  ActivePane_ = 1;
  ListActive_ = true;
  TreeActive_ = false;
}

void frmOrganize::ListMouseDown(const MouseEvent& event) {
  list_.View.SetSelectedItem(nullptr);
  list_.View.SetDropHighlight(nullptr);
  ListItemClicked_ = false;
  const ListItem* row = list_.View.HitTest(event.x, event.y);
  HitKey_ = row == nullptr ? std::wstring() : row->Key();
  ListRightButton_ = event.button == kRightButton;
  if (event.button == kLeftButton) TreeRightButton_ = false;
  ActivePane_ = 1;
}

void frmOrganize::ListMouseUp() {
  if (!ListRightButton_) return;
  const bool before = std::exchange(ListActive_, true);
  if (list_.HasSelection()) {
    list_.EnsureCurrentListItem();
    const ListItem* row = list_.View.SelectedItem();
    SetMenuState(MenuKind::kPopup, list_.View.SelectedCount() > 1 ? KeyForCommands() : row->Key(), row->Icon(), false);
  } else if (const TreeNode* node = tree_.View.SelectedItem()) {
    SetMenuState(MenuKind::kPopup2, node->Key(), node->Image(), false);
  }
  ListActive_ = before;
}

void frmOrganize::ListItemClick(const ListItem& row) {
  ListItemClicked_ = true;
  SetToolbarState(row.Key());
}

// What was cut or copied is forgotten first, and then what is selected.
void frmOrganize::EscapeFromList() {
  if (!ClipboardItems_.Empty()) return ClearClipboard();
  list_.View.SetAllSelected(false);
  list_.View.SetSelectedItem(nullptr);
  if (const TreeNode* node = tree_.View.SelectedItem()) ShowStatusOfNode(*node);
}

// A click where no row is: toolbar and status bar tell of the group again.
void frmOrganize::ListClick() {
  if (list_.View.SelectedItem() != nullptr) return;
  TreeNode* group = tree_.View.Find(list_.Group() == kRootOwner ? std::wstring(MIT_HF_ROOT) : KeyOfName(list_.Group()));
  if (group == nullptr) return;
  tree_.View.SetSelectedItem(group);
  ShowSelectedNode(true);
}

void frmOrganize::ListKeyDown(std::int32_t& KeyCode, std::int32_t Shift) {
  ListRightButton_ = false;
  if (KeyCode == kKeyCodeReturn) {
    OpenSelectedListItem(false);
  } else if (KeyCode == kKeyCodeEscape) {
    EscapeFromList();
  } else if (!PaneKeyDown(KeyCode, Shift)) {
    return;
  }
  KeyCode = 0;
}

}  // namespace burrowmark
