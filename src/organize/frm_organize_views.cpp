// The editor's panes follow what the user selects and how the user wants to see it.
#include <algorithm>
#include <iterator>

#include "core/form_services.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"

namespace burrowmark {
namespace {

struct ViewMenu {
  const wchar_t* key;
  const wchar_t* menu;
};

constexpr ViewMenu kViewMenus[] = {
    {L"keyViewsIcoLarge", L"mnuViewIcoLarge"}, {L"keyViewsIcoSmall", L"mnuViewIcoSmall"},
    {L"keyViewsList", L"mnuViewList"},         {L"keyViewsDetails", L"mnuViewDetails"},
    {L"keyViewsGrid", L"mnuViewGrid"},
};

bool IsRoot(const std::wstring& key) { return key == MIT_HF_ROOT; }

}  // namespace

void frmOrganize::RefreshViews(const std::wstring& Key, bool Expand) {
  const Hourglass busy(*this);
  tree_.Fill();
  TreeView& tree = tree_.View;
  TreeNode* node = Key.empty() && tree.Count() >= 2 ? tree.Item(2) : tree.Find(Key);
  if (node != nullptr) {
    tree.SetSelectedItem(node);
    node->SetExpanded(Expand);
  }
  if (tree.Count() >= 1) ShowSelectedNode(false);
  list_.View.SetSelectedItem(nullptr);
}

// The list follows the tree. A shortcut's node leaves the list as it is, unless its group is gone.
void frmOrganize::ShowSelectedNode(bool KeepList) {
  const TreeNode* node = tree_.View.SelectedItem();
  if (node == nullptr) return;
  const std::wstring key = node->Key();
  const ItemRef item = IsRoot(key) ? nullptr : WorkCollection()->GetMenuItemFromName(NameOfKey(key));
  if (!IsRoot(key) && !item) return;
  SetToolbarState(key);
  if (!KeepList) {
    const bool shown = list_.Group() == kRootOwner || WorkCollection()->ItemExists(list_.Group());
    if (!item) {
      list_.ShowGroup(kRootOwner);
    } else if (item->SubMenu()) {
      list_.ShowGroup(item->Name());
    } else if (!shown) {
      list_.ShowGroup(item->OwnerName());
    }
  }
  ShowStatusOfNode(*node);
}

void frmOrganize::ShowStatusOfNode(const TreeNode& node) {
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(node.Key()));
  StatusFacts facts{.Count = node.Children(), .Caption = node.Text(), .Icon = node.Image(), .PathText = node.Tag};
  if (!item) {
    facts.TypeText = L"Organized Folders";
  } else {
    facts.Selected = !item->SubMenu();
    facts.Count = facts.Selected ? 1 : list_.View.Count();
    facts.TypeText = item->Description;
    facts.PathText = item->FolderPath;
    facts.DetailText = item->UserDescription;
  }
  strip_.SetStatusBar(std::move(facts));
}

void frmOrganize::SetStatusBarSelected() {
  const std::int32_t count = ListItemClicked_ ? list_.View.SelectedCount() : 0;
  if (count == 0) return;
  if (count == 1) {
    const ListItem* current = list_.View.SelectedItem();
    const ListItem* row = current == nullptr ? list_.View.FirstSelected() : current;
    return strip_.SetStatusBar({1, row->Text(), row->SmallIcon(), true, row->SubItem(1), row->Tag, row->ToolTipText()});
  }
  const TreeNode* node = tree_.View.SelectedItem();
  if (node == nullptr) return;
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(node->Key()));
  strip_.SetStatusBar({count, node->Text(), node->Image(), true, item ? item->Description : L"Root", node->Tag, {}});
}

void frmOrganize::GoUp() {
  const TreeNode* node = tree_.View.SelectedItem();
  if (node == nullptr || node->Parent() == nullptr) return;
  tree_.View.SetSelectedItem(node->Parent());
  ActivePane_ = 0;
  ShowSelectedNode(false);
}

void frmOrganize::OpenSelectedListItem(bool NoOpen) {
  const ListItem* row = list_.View.SelectedItem();
  if (row == nullptr || !ListItemClicked_) return;
  const std::wstring key = row->Key();
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(key));
  if (!item) return;
  if (!item->SubMenu()) {
    if (!NoOpen) PopupWindowsExplorer();
    return;
  }
  list_.ShowGroupOfRow(item->Name());
  TreeNode* node = tree_.View.Find(key);
  if (node == nullptr) return;
  tree_.View.SetSelectedItem(node);
  node->SetExpanded(true);
  ShowStatusOfNode(*node);
}

void frmOrganize::ToggleAllLeftPane() {
  const Hourglass busy(*this);
  tree_.AllLeft = !tree_.AllLeft;
  menus_[L"mnuViewAllLeftPane"].SetChecked(tree_.AllLeft);
  tree_.Fill();
}

void frmOrganize::RefreshCommand() {
  const TreeNode* node = tree_.View.SelectedItem();
  if (node == nullptr) return RefreshViews({}, true);
  const std::wstring key = node->Key();
  RefreshViews(key, node->Expanded());
}

void frmOrganize::SetAllListItemsSelected(bool selected) {
  list_.View.SetFocus();
  list_.View.SetAllSelected(selected);
  list_.View.SetSelectedItem(nullptr);
  ActivePane_ = 1;
}

// --- what the panes show, for an edit that is taken back

PanesState frmOrganize::Panes() const {
  PanesState panes{.Group = list_.Group(), .Rows = list_.SelectedKeys(), .ActivePane = ActivePane_};
  if (const TreeNode* node = tree_.View.SelectedItem()) {
    panes.Node = node->Key();
    panes.Expanded = node->Expanded();
  }
  return panes;
}

void frmOrganize::RestorePanes(const PanesState& panes, const TreeChange& change) {
  TreeNode* node = tree_.View.Find(panes.Node);
  if (node == nullptr) return ShowSelectedNode(false);
  tree_.View.SetSelectedItem(node);
  node->SetExpanded(panes.Expanded);
  // Rows that came back stand where they stood, which is seldom the end.
  const bool returned = std::any_of(change.In.begin(), change.In.end(),
                                    [&panes](const ItemRef& item) { return item->OwnerName() == panes.Group; });
  if (returned || list_.Group() != panes.Group) list_.ShowGroup(panes.Group);
  ShowSelectedNode(true);
  panes.ActivePane == 1 ? list_.View.SetFocus() : tree_.View.SetFocus();
  SelectRows(panes.Rows);
}

// --- order and view

void frmOrganize::ArrangeBy(std::int32_t Column) {
  const Hourglass busy(*this);
  list_.ArrangeBy(Column);
}

void frmOrganize::ApplyView(const std::wstring& viewKey) {
  if (!list_.ApplyView(viewKey)) return;
  SetViewCheckMarks(viewKey);
  layout_.View = viewKey;
}

// Dots: exactly one of the five is on.
void frmOrganize::SetViewCheckMarks(const std::wstring& viewKey) {
  for (const ViewMenu& row : kViewMenus) {
    menus_[row.menu].SetRadio(true);
    menus_[row.menu].SetChecked(viewKey == row.key);
  }
}

}  // namespace burrowmark
