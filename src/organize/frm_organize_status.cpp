#include "core/numbers.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"

namespace burrowmark {
namespace {

constexpr std::size_t kCountPanel = 1;
constexpr std::size_t kTypePanel = 2;
constexpr std::size_t kDetailPanel = 3;
constexpr std::int32_t kStripIcon = 16;  // pixels at 96 dots per inch

std::wstring CountText(std::int32_t count, bool selected) {
  return DecimalText(count) + (selected ? L" object(s) selected" : L" object(s)");
}

}  // namespace

// `lastStatus_` is what shows now; its detail text is that of the third panel.
void frmOrganize::SetStatusBar(StatusFacts facts) {
  if (facts.DetailText.empty()) facts.DetailText = facts.PathText;
  facts.PathText.clear();
  const bool first = !lastStatus_;
  const StatusFacts last = lastStatus_.value_or(StatusFacts());
  const bool pictureChanged = first || facts.Caption != last.Caption || facts.Image != last.Image;
  const bool detailChanged = first || facts.DetailText != last.DetailText;
  if (!pictureChanged && !detailChanged && facts.Count == last.Count && facts.TypeText == last.TypeText &&
      facts.Selected == last.Selected) {
    return;
  }
  stbMain.SetPanelText(kCountPanel, CountText(facts.Count, facts.Selected));
  if (facts.Selected && facts.Count >= 2) facts.TypeText = L"Multiple selection";
  if (first || facts.TypeText != last.TypeText) stbMain.SetPanelText(kTypePanel, facts.TypeText);
  if (detailChanged) stbMain.SetPanelText(kDetailPanel, facts.DetailText);
  if (pictureChanged) {
    picInfo.SetIcon(TreeView1.Images().IconOf(facts.Image), kStripIcon);
    lblInfo.SetCaption(facts.Caption);
  }
  lastStatus_ = std::move(facts);
}

void frmOrganize::SetStatusBarSelected() {
  if (!ListItemClicked_) return;
  const std::int32_t count = ListView1.SelectedCount();
  if (count == 0) return;
  if (count == 1) {
    const ListItem* current = ListView1.SelectedItem();
    const ListItem* row = current == nullptr ? ListView1.FirstSelected() : current;
    SetStatusBar({1, row->Text(), row->SmallIcon(), true, row->SubItem(1), row->Tag, row->ToolTipText()});
    return;
  }
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr) return;
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(node->Key()));
  SetStatusBar({count, node->Text(), node->Image(), true, item ? item->Description : L"Root", node->Tag, {}});
}

void frmOrganize::ShowStatusOfNode(const TreeNode& node) {
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(node.Key()));
  if (!item) {
    SetStatusBar({node.Children(), node.Text(), node.Image(), false, L"Organized Folders", node.Tag, {}});
  } else if (item->SubMenu()) {
    SetStatusBar({ListView1.Count(), node.Text(), node.Image(), false, item->Description, item->FolderPath,
                  item->UserDescription});
  } else {
    SetStatusBar({1, node.Text(), node.Image(), true, item->Description, item->FolderPath, item->UserDescription});
  }
}

}  // namespace burrowmark
