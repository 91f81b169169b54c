#include "core/file_names.h"
#include "core/text.h"
#include "organize/enabling.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "organize/subtree.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Rename Error";
constexpr wchar_t kBadCharacters[] =
    L"An item's name cannot contain any of the following characters: \r\n\t\\ / : * ? \" < > |";

bool CanBeRenamed(const std::wstring& key) {
  const TargetKind kind = KindOfTarget(key);
  return kind == TargetKind::kOrdinary || kind == TargetKind::kPersonal;
}

}  // namespace

void frmOrganize::RenameCommand() {
  FollowActivePane();
  if (ListActive_) {
    list_.EnsureCurrentListItem();
    const ListItem* row = list_.View.SelectedItem();
    if (row != nullptr && CanBeRenamed(row->Key())) list_.View.StartLabelEdit();
    return;
  }
  const TreeNode* node = tree_.View.SelectedItem();
  if (node == nullptr || !CanBeRenamed(node->Key())) return app_.platform.windows.Beep();
  tree_.View.StartLabelEdit();
}

void frmOrganize::ConnectLabels() {
  tree_.View.AfterLabelEdit = [this](bool& Cancel, std::wstring& NewString) {
    RenameItem(tree_.View.EditedNode()->Key(), Cancel, NewString);
  };
  list_.View.AfterLabelEdit = [this](bool& Cancel, std::wstring& NewString) {
    RenameItem(list_.View.EditedItem()->Key(), Cancel, NewString);
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
  EditTree(L"Rename", [&](TreeEdit& edit) {
    ModifyItem(edit, item, {.Caption = NewString, .SubMenu = item->SubMenu(), .KeyboardCode = item->KeyboardCode});
  });
}

void frmOrganize::TellRenameError(const std::wstring& text) {
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
}

}  // namespace burrowmark
