#include <iterator>

#include "core/dates.h"
#include "core/form_services.h"
#include "core/hot_keys.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"

namespace burrowmark {
namespace {

constexpr std::int16_t kRootImage = 1;
constexpr Color kGrey = 0x808080;

// Columns behind the first, as the list counts them.
enum SubItem : std::size_t { kType = 1, kKeyboard, kTarget, kDescription, kModified, kCreated };

struct ViewRow {
  const wchar_t* key;
  const wchar_t* menu;
  ListViewMode mode;
  bool gridLines;
};

constexpr ViewRow kViews[] = {
    {L"keyViewsIcoLarge", L"mnuViewIcoLarge", ListViewMode::kIcon, false},
    {L"keyViewsIcoSmall", L"mnuViewIcoSmall", ListViewMode::kSmallIcon, false},
    {L"keyViewsList", L"mnuViewList", ListViewMode::kList, false},
    {L"keyViewsDetails", L"mnuViewDetails", ListViewMode::kReport, false},
    {L"keyViewsGrid", L"mnuViewGrid", ListViewMode::kReport, true},
};

std::wstring ParentKey(const clsMenuItem& item) {
  return item.OwnerName() == kRootOwner ? MIT_HF_ROOT : KeyOfName(item.OwnerName());
}

bool IsRoot(const std::wstring& key) { return key == MIT_HF_ROOT; }

std::wstring DateText(Date date, const SystemFacts& system) {
  return date == 0 ? L"Never" : DefaultDateText(date, system);
}

}  // namespace

// --- the tree

void frmOrganize::FillTree() {
  const TreeView::Update update(TreeView1);
  TreeView1.Clear();
  TreeNode* root = TreeView1.Add(nullptr, TreeRelation::kChild, MIT_HF_ROOT, L"Organized Folders", kRootImage);
  for (std::int32_t i = 1; i <= WorkCollection()->Count(); ++i) {
    const ItemRef item = WorkCollection()->Item(i);
    if (item->Remark == REMARK_AUTO) continue;
    if (item->OwnerName() != kRootOwner) {
      if (HasNode(*item)) AddTreeNodeAt(*item, ParentKey(*item), TreeRelation::kChild);
      continue;
    }
    TreeNode* node = TreeView1.Add(root, TreeRelation::kChild, KeyOfName(item->Name()), item->Caption(), item->IconID);
    if (node == nullptr) continue;
    node->EnsureVisible();
    node->SetExpanded(true);
  }
}

void frmOrganize::AddTreeNode(const clsMenuItem& item) {
  if (!HasNode(item)) return;
  std::wstring before;
  std::wstring after;
  bool passed = false;
  for (std::int32_t i = 1; i <= WorkCollection()->Count() && after.empty(); ++i) {
    const ItemRef other = WorkCollection()->Item(i);
    if (other.get() == &item) {
      passed = true;
    } else if (const std::wstring key = KeyOfName(other->Name());
               other->OwnerName() == item.OwnerName() && TreeView1.Find(key) != nullptr) {
      (passed ? after : before) = key;
    }
  }
  if (!before.empty()) return AddTreeNodeAt(item, before, TreeRelation::kNext);
  if (!after.empty()) return AddTreeNodeAt(item, after, TreeRelation::kPrevious);
  AddTreeNodeAt(item, ParentKey(item), TreeRelation::kChild);
}

void frmOrganize::AddTreeNodeAt(const clsMenuItem& item, const std::wstring& neighbour, TreeRelation relation) {
  TreeNode* place = TreeView1.Find(neighbour);
  if (place == nullptr) return;
  TreeNode* node = TreeView1.Add(place, relation, KeyOfName(item.Name()), item.Caption(), item.IconID);
  if (node != nullptr) node->Tag = item.FolderPath;
}

void frmOrganize::RefreshTreeNode(const std::wstring& Key, const clsMenuItem& item) {
  TreeNode* node = TreeView1.Find(Key);
  if (node == nullptr) return;
  node->SetText(item.Caption());
  node->SetImage(item.IconID);
  node->Tag = item.FolderPath;
}

void frmOrganize::RemoveTreeNode(const std::wstring& Name) {
  if (TreeNode* node = TreeView1.Find(KeyOfName(Name))) TreeView1.Remove(*node);
}

void frmOrganize::RemoveListItem(const std::wstring& Name) { ListView1.Remove(KeyOfName(Name)); }

void frmOrganize::SetListItemText(const std::wstring& Name, const std::wstring& text) {
  if (ListItem* row = ListView1.Find(KeyOfName(Name))) row->SetText(text);
}

void frmOrganize::RefreshViews(const std::wstring& Key, bool Expand) {
  const Hourglass busy(*this);
  FillTree();
  TreeNode* node = Key.empty() && TreeView1.Count() >= 2 ? TreeView1.Item(2) : TreeView1.Find(Key);
  if (node != nullptr) {
    TreeView1.SetSelectedItem(node);
    node->SetExpanded(Expand);
  }
  if (TreeView1.Count() >= 1) ShowSelectedNode(false);
  ListView1.SetSelectedItem(nullptr);
}

void frmOrganize::GoUp() {
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr || node->Parent() == nullptr) return;
  TreeView1.SetSelectedItem(node->Parent());
  ActivePane_ = 0;
  ShowSelectedNode(false);
}

void frmOrganize::ToggleAllLeftPane() {
  const Hourglass busy(*this);
  layout_.AllLeftPane = !layout_.AllLeftPane;
  menus_[L"mnuViewAllLeftPane"].SetChecked(layout_.AllLeftPane);
  FillTree();
}

void frmOrganize::RefreshCommand() {
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr) return RefreshViews({}, true);
  const std::wstring key = node->Key();
  RefreshViews(key, node->Expanded());
}

// --- the list follows the tree

void frmOrganize::ShowSelectedNode(bool KeepList) {
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr) return;
  const std::wstring key = node->Key();
  const ItemRef item = IsRoot(key) ? nullptr : WorkCollection()->GetMenuItemFromName(NameOfKey(key));
  if (!IsRoot(key) && !item) return;
  SetToolbarState(key);
  if (!KeepList) {
    if (!item) {
      ListGroup(kRootOwner);
    } else if (item->Name() == MIT_PATHS_DRIVES) {
      ShowDrivesText();
    } else if (item->SubMenu()) {
      ListGroup(item->Name());
    }
  }
  ShowStatusOfNode(*node);
  if (!KeepList && CurrentGroup_ == kCutRootKey) CurrentGroup_ = kRootOwner;
}

void frmOrganize::ShowDrivesText() {
  ListView1.Clear();
  txtInfoDrives.SetPlace(ListView1.Place());
  txtInfoDrives.SetVisible(true);
}

// Rows of all that the editor shows of a group.
void frmOrganize::ListGroup(const std::wstring& group) {
  txtInfoDrives.SetVisible(false);
  CurrentGroup_ = NameOfKey(TreeView1.SelectedItem()->Key());
  ClearSortMark();
  SortColumn_ = 0;
  const ListView::Update update(ListView1);
  ListView1.Clear();
  for (std::int32_t i = 1; i <= WorkCollection()->Count(); ++i) {
    const ItemRef item = WorkCollection()->Item(i);
    if (!item->Separator() && item->OwnerName() == group && item->Remark != REMARK_AUTO) AddListItemGhosted(*item);
  }
}

// The user goes down from a row: here nothing is left out, and nothing is grey.
void frmOrganize::ShowGroupInList() {
  const ListItem* row = ListView1.SelectedItem();
  if (row == nullptr) return;
  const std::wstring group = NameOfKey(row->Key());
  const ListView::Update update(ListView1);
  ListView1.Clear();
  txtInfoDrives.SetVisible(group == MIT_PATHS_DRIVES);
  if (group != MIT_PATHS_DRIVES) {
    for (std::int32_t i = 1; i <= WorkCollection()->Count(); ++i) {
      const ItemRef item = WorkCollection()->Item(i);
      if (item->OwnerName() == group) AddListItem(*item, false, false);
    }
  }
  ListView1.SetSelectedItem(nullptr);
}

// --- rows

void frmOrganize::AddListItem(const clsMenuItem& item, bool Ghosted, bool Sorted) {
  if (item.OwnerName() == MIT_PATHS_DRIVES) return;
  ListView1.SetSorted(Sorted);  // ahead of the adding, so that the row stands at the end
  ListItem* row = ListView1.Add(KeyOfName(item.Name()), item.Caption(), item.IconID, item.IconID);
  if (row == nullptr) return;
  WriteColumns(*row, item);
  row->SetGhosted(Ghosted);
  row->SetSelected(false);
}

void frmOrganize::AddListItemGhosted(const clsMenuItem& item) {
  AddListItem(item, CutKeys_.contains(KeyOfName(item.Name())), false);
}

void frmOrganize::WriteColumns(ListItem& row, const clsMenuItem& item) {
  const bool openAll = item.ItemType == MIT_OPENALL;
  const SystemFacts& system = app_.platform.system;
  row.Tag = item.FolderPath;
  row.SetToolTipText(item.UserDescription);
  row.SetSubItem(kType, openAll ? L"Open-All Shortcut" : item.Description);
  row.SetSubItem(kKeyboard, HotKeyText(item.KeyboardCode));
  row.SetForeColor(kKeyboard, app_.ADVC[Advanced::kHotKeys] ? kColorOfControl : kGrey);
  row.SetSubItem(kTarget, item.FolderPath);
  row.SetForeColor(kTarget, item.SubMenu() || openAll ? kGrey : kColorOfControl);
  row.SetSubItem(kDescription, item.UserDescription);
  row.SetSubItem(kModified, DateText(item.TimeModified, system));
  row.SetSubItem(kCreated, DateText(item.TimeCreated, system));
}

void frmOrganize::RefreshListItem(const std::wstring& Key, const clsMenuItem& item) {
  ListItem* row = ListView1.Find(Key);
  if (row == nullptr) return;
  row->SetText(item.Caption());
  row->SetIcons(item.IconID, item.IconID);
  WriteColumns(*row, item);
}

void frmOrganize::OpenSelectedListItem(bool NoOpen) {
  const ListItem* row = ListView1.SelectedItem();
  if (row == nullptr || !ListItemClicked_) return;
  const std::wstring key = row->Key();
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(key));
  if (!item) return;
  if (!item->SubMenu()) {
    if (!NoOpen) PopupWindowsExplorer();
    return;
  }
  ShowGroupInList();
  TreeNode* node = TreeView1.Find(key);
  if (node == nullptr) return;
  TreeView1.SetSelectedItem(node);
  node->SetExpanded(true);
  CurrentGroup_ = NameOfKey(node->Key());
  SetStatusBar({ListView1.Count(), node->Text(), node->Image(), false, item->Description, item->FolderPath,
                item->UserDescription});
}

void frmOrganize::EnsureCurrentListItem() {
  const ListItem* current = ListView1.SelectedItem();
  if (HasSelection() && (current == nullptr || !current->Selected())) {
    ListView1.SetSelectedItem(ListView1.FirstSelected());
  }
}

void frmOrganize::SetAllListItemsSelected(bool selected) {
  ListView1.SetFocus();
  ListView1.SetAllSelected(selected);
  ListView1.SetSelectedItem(nullptr);
  ActivePane_ = 1;
}

void frmOrganize::InvertSelection() {
  for (std::int32_t i = 1; i <= ListView1.Count(); ++i) {
    ListView1.Item(i).SetSelected(!ListView1.Item(i).Selected());
  }
}

// --- order and view

void frmOrganize::ArrangeBy(std::int32_t Column) {
  const Hourglass busy(*this);
  ClearSortMark();
  const bool descending = Column == SortColumn_ && ListView1.Order() != SortOrder::kDescending;
  ListView1.SetOrder(descending ? SortOrder::kDescending : SortOrder::kAscending);
  const std::wstring& header = ListView1.Columns().at(static_cast<std::size_t>(Column) - 1).text;
  ListView1.SetColumnText(Column, header + (descending ? L"-" : L"+"));
  ListView1.SetSortKey(Column - 1);
  SortColumn_ = Column;
  ListView1.SetSorted(true);
}

void frmOrganize::ClearSortMark() {
  if (SortColumn_ <= 0) return;
  const std::wstring header = ListView1.Columns().at(static_cast<std::size_t>(SortColumn_) - 1).text;
  if (header.ends_with(L'-') || header.ends_with(L'+')) {
    ListView1.SetColumnText(SortColumn_, header.substr(0, header.size() - 1));
  }
}

void frmOrganize::ApplyView(const std::wstring& viewKey) {
  const auto* view =
      std::find_if(std::begin(kViews), std::end(kViews), [&viewKey](const ViewRow& row) { return viewKey == row.key; });
  if (view == std::end(kViews)) return;
  SetViewCheckMarks(viewKey);
  ListView1.SetView(view->mode);
  ListView1.SetGridLines(view->gridLines);
  layout_.View = viewKey;
}

// Dots: exactly one of the five is on.
void frmOrganize::SetViewCheckMarks(const std::wstring& viewKey) {
  for (const ViewRow& row : kViews) {
    menus_[row.menu].SetRadio(true);
    menus_[row.menu].SetChecked(viewKey == row.key);
  }
}

}  // namespace burrowmark
