#include "core/file_names.h"
#include "core/text.h"
#include "organize/enabling.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Rename Error";
constexpr wchar_t kBadCharacters[] =
    L"An item's name cannot contain any of the following characters: \r\n\t\\ / : * ? \" < > |";

// A new title shows in the paths of all that the item holds, which stands behind it.
void RefreshPaths(const clsMenuCollection& store) {
  for (std::int32_t i = 1; i <= store.Count(); ++i) store.ItemFullPath(*store.Item(i));
}

bool CanBeRenamed(const std::wstring& key) {
  const TargetKind kind = KindOfTarget(key);
  return kind == TargetKind::kOrdinary || kind == TargetKind::kPersonal;
}

}  // namespace

void frmOrganize::RenameCommand() {
  FollowActivePane();
  if (ListActive_) {
    EnsureCurrentListItem();
    const ListItem* row = ListView1.SelectedItem();
    if (row != nullptr && CanBeRenamed(row->Key())) ListView1.StartLabelEdit();
    return;
  }
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr || !CanBeRenamed(node->Key())) return app_.platform.windows.Beep();
  TreeView1.StartLabelEdit();
}

void frmOrganize::ConnectLabels() {
  TreeView1.AfterLabelEdit = [this](bool& Cancel, std::wstring& NewString) {
    RenameItem(TreeView1.EditedNode()->Key(), Cancel, NewString);
  };
  ListView1.AfterLabelEdit = [this](bool& Cancel, std::wstring& NewString) {
    RenameItem(ListView1.EditedItem()->Key(), Cancel, NewString);
  };
}

// The end of a label edit in a pane; the other pane follows.
void frmOrganize::RenameItem(const std::wstring& Key, bool& Cancel, const std::wstring& NewString) {
  Cancel = true;
  if (HasBadFileChars(NewString)) return TellRenameError(kBadCharacters);
  const std::wstring name = NameOfKey(Key);
  const ItemRef item = WorkCollection()->GetMenuItemFromName(name);
  if (!item || item->ItemType == MIT_OPENALL || Trim(NewString).empty() || NewString == item->Caption()) return;
  if (WorkCollection()->CaptionExists(NewString, item->OwnerName(), item->SubMenu(), name)) {
    return TellRenameError(
        L"Cannot rename " + NewString +
        L": An item with the name you specified already exists.\r\nPlease specify a different name.");
  }
  Cancel = false;
  WorkCollection()->ModifyMenuItem(
      0, {.Caption = NewString, .Name = name, .SubMenu = item->SubMenu(), .KeyboardCode = item->KeyboardCode});
  RefreshPaths(*WorkCollection());
  Edited.Changed = true;
  SetListItemText(name, NewString);
  if (TreeNode* node = TreeView1.Find(Key)) node->SetText(NewString);
}

void frmOrganize::TellRenameError(const std::wstring& text) {
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
}

}  // namespace burrowmark
