#include <algorithm>

#include "core/hot_keys.h"
#include "core/product.h"
#include "menu/menu_actions.h"
#include "organize/enabling.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "projection/organized_folders.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kGroupImage = 2;
constexpr std::int32_t kDoublePaneImage = 4;

// The entries of the places that the tree is projected to, in their order.
constexpr const wchar_t* kRefreshMenus[] = {L"mnuToolsRefreshDesktop", L"mnuToolsRefreshSendTo",
                                            L"mnuToolsRefreshFavorites"};
static_assert(std::size(kRefreshMenus) == std::size(kProjectionTargets));

}  // namespace

// --- what is selected

frmOrganize::Target frmOrganize::GetSelectedTarget() const {
  if (ActivePane_ == 1) {
    const ListItem* current = list_.View.SelectedItem();
    const ListItem* row = current == nullptr || !current->Selected() ? list_.View.FirstSelected() : current;
    return row == nullptr ? Target() : Target{row->Tag, row->Icon(), row->Key()};
  }
  const TreeNode* node = tree_.View.SelectedItem();
  return node == nullptr ? Target() : Target{node->Tag, node->Image(), node->Key()};
}

// Of several rows the one that most can be done to, since a command passes over those that it isn't for.
std::wstring frmOrganize::KeyForCommands() const {
  const std::wstring current = GetSelectedTarget().Key;
  if (ActivePane_ != 1 || list_.View.SelectedCount() < 2) return current;
  const std::vector<std::wstring> keys = list_.SelectedKeys();
  return *std::min_element(keys.begin(), keys.end(), [](const std::wstring& left, const std::wstring& right) {
    return KindOfTarget(left) < KindOfTarget(right);
  });
}

void frmOrganize::FollowActivePane() {
  ListActive_ = ActivePane_ == 1;
  TreeActive_ = ActivePane_ == 0;
}

// --- what can be chosen

void frmOrganize::SetMenuState(MenuKind Kind, const std::wstring& Key, std::int32_t Image, bool Expanded) {
  const auto enable = [this, kind = KindOfTarget(Key)](std::span<const EnablingRow> rows) {
    for (const EnablingRow& row : rows) EnableMenu(row.name, row.IsOnFor(kind));
  };
  const bool pastes = Key != MIT_HF_ROOT && !ClipboardItems_.Empty();
  switch (Kind) {
    case MenuKind::kPopup:
      EnableMenu(L"mnuPopupPaste", pastes);
      SetPopupState(Key, Image, Expanded);
      enable(PopupEnabling());
      return menus_.PopupMenu(
          L"mnuPopup", menus_[L"mnuPopupWindowsExplorer"].Visible() ? L"mnuPopupWindowsExplorer" : L"mnuPopupExplore");
    case MenuKind::kPopup2:
      EnableMenu(L"mnuPopup2Paste", pastes);
      return menus_.PopupMenu(L"mnuPopup2");
    case MenuKind::kEdit:
      EnableMenu(L"mnuEditPaste", pastes);
      return enable(EditEnabling());
    case MenuKind::kView:
      return enable(ViewEnabling());
  }
}

void frmOrganize::SetPopupState(const std::wstring& Key, std::int32_t Image, bool Expanded) {
  const std::wstring name = NameOfKey(Key);
  const bool restores = name == MIT_GROUP_USER || name == MIT_PATHS_SYSTEM;
  menus_[L"mnuPopupRestore"].SetVisible(restores);
  menus_[L"mnuPopupSepRestore"].SetVisible(restores);
  const bool explores = Key == MIT_HF_ROOT || Image == kGroupImage;
  menus_[L"mnuPopupExplore"].SetVisible(explores);
  menus_[L"mnuPopupWindowsExplorer"].SetVisible(!explores);
  if (!explores) return;
  const wchar_t* closed = ActivePane_ == 1 ? L"&Explore" : L"&Expand";
  menus_[L"mnuPopupExplore"].SetCaption(Expanded ? L"&Collapse" : closed);
}

void frmOrganize::SetToolsState() {
  EnableMenu(L"mnuToolsRestoreSystemFolders", app_.AC[Appearance::kSystemFolders]);
  for (std::size_t i = 0; i < std::size(kRefreshMenus); ++i) {
    EnableMenu(kRefreshMenus[i], app_.ADVC[kProjectionTargets[i].option]);
  }
}

void frmOrganize::OpenEditMenu() {
  menus_[L"mnuEditUndo"].SetCaption(L"&Undo" + (history_.Empty() ? std::wstring() : L" " + history_.Name()));
  EnableMenu(L"mnuEditUndo", !history_.Empty());
  SetMenuState(MenuKind::kEdit, KeyForCommands(), GetSelectedTarget().Image, true);
}

void frmOrganize::OpenViewMenu() {
  const Target target = GetSelectedTarget();
  SetMenuState(MenuKind::kView, target.Key, target.Image, true);
}

void frmOrganize::SetToolbarState(const std::wstring& Key) {
  const TargetKind kind = KindOfTarget(Key);
  for (const EnablingRow& row : ToolbarEnabling()) EnableButton(row.name, row.IsOnFor(kind));
  EnableButton(L"keyPaste", kind != TargetKind::kRoot && !ClipboardItems_.Empty());
}

void frmOrganize::SetToolbarPaste() { EnableButton(L"keyPaste", !ClipboardItems_.Empty()); }

// --- commands

void frmOrganize::PopupExplore() {
  if (ListActive_) {
    OpenSelectedListItem(true);
  } else if (TreeNode* node = tree_.View.SelectedItem(); TreeActive_ && node != nullptr) {
    node->SetExpanded(!node->Expanded());
    ShowSelectedNode(false);
  }
}

void frmOrganize::PopupWindowsExplorer() {
  const Target target = GetSelectedTarget();
  if (target.Key.empty()) return ExploreFolder(app_, {}, false);
  const ItemRef item = WorkCollection()->GetMenuItemFromName(NameOfKey(target.Key));
  if (!item) return;
  if (item->SubMenu()) {
    ExploreFolder(app_, {}, false);
  } else if (item->ItemType == MIT_PATH) {
    ExploreFolder(app_, item->FolderPath, target.Image == kDoublePaneImage);
  } else if (item->ItemType == MIT_OPENALL) {
    OpenAllMenuItem(app_, WorkCollection(), item);
  }
}

void frmOrganize::FindCommand() { FindInFolder(app_, GetSelectedTarget().Path); }

void frmOrganize::RefreshProjection(const ProjectionTarget& place) {
  Work work(app_);
  const std::wstring text = std::wstring(L"Refreshing Organized Folders ") + place.where;
  work.ShowProgress(*this, L"Refresh Organized Folders...", text);
  RefreshOrganizedFolders(app_, place, WorkCollection(), false);
}

void frmOrganize::OpenWebPage(const std::wstring& path) { OpenFile(app_, L"" BURROWMARK_WEB_SITE + path); }

}  // namespace burrowmark
