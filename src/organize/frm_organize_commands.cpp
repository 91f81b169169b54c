#include <array>

#include "menu/menu_actions.h"
#include "organize/enabling.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "projection/organized_folders.h"
#include "tools/progress.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kWebSite[] = L"http://www.kestrelan.example";
constexpr std::int32_t kGroupImage = 2;
constexpr std::int32_t kDoublePaneImage = 4;
constexpr std::size_t kSystemFolders = 0;  // AC
constexpr std::int32_t kHelpContents = 1;
constexpr std::int32_t kHelpIndex = 2;

// The entries of the targets, in their order.
constexpr const wchar_t* kRefreshMenus[] = {L"mnuToolsRefreshDesktop", L"mnuToolsRefreshSendTo",
                                            L"mnuToolsRefreshFavorites"};
static_assert(std::size(kRefreshMenus) == std::size(kProjectionTargets));

// The seven columns by the ends of their entries' names.
constexpr const wchar_t* kArrangeEnds[] = {L"Name",        L"Type",     L"Keyboard", L"Target",
                                           L"Description", L"Modified", L"Created"};

}  // namespace

// --- what is selected

frmOrganize::Target frmOrganize::GetSelectedTarget() const {
  if (ActivePane_ == 1) {
    const ListItem* current = ListView1.SelectedItem();
    const ListItem* row = current == nullptr || !current->Selected() ? ListView1.FirstSelected() : current;
    return row == nullptr ? Target() : Target{row->Tag, row->Icon(), row->Key()};
  }
  const TreeNode* node = TreeView1.SelectedItem();
  return node == nullptr ? Target() : Target{node->Tag, node->Image(), node->Key()};
}

void frmOrganize::FollowActivePane() {
  ListActive_ = ActivePane_ == 1;
  TreeActive_ = ActivePane_ == 0;
}

// --- what can be chosen

void frmOrganize::SetMenuState(MenuKind Kind, const std::wstring& Key, std::int32_t Image, bool Expanded) {
  const auto enable = [this, kind = KindOfTarget(Key)](std::span<const EnablingRow> rows) {
    for (const EnablingRow& row : rows) menus_[row.name].SetEnabled(row.IsOnFor(kind));
  };
  const bool pastes = Key != MIT_HF_ROOT && !ClipboardEmpty();
  switch (Kind) {
    case MenuKind::kTools:
      return SetToolsState();
    case MenuKind::kPopup:
      menus_[L"mnuPopupPaste"].SetEnabled(pastes);
      SetPopupState(Key, Image, Expanded);
      enable(PopupEnabling());
      return menus_.PopupMenu(
          L"mnuPopup", menus_[L"mnuPopupWindowsExplorer"].Visible() ? L"mnuPopupWindowsExplorer" : L"mnuPopupExplore");
    case MenuKind::kPopup2:
      menus_[L"mnuPopup2Paste"].SetEnabled(pastes);
      return menus_.PopupMenu(L"mnuPopup2");
    case MenuKind::kEdit:
      menus_[L"mnuEditPaste"].SetEnabled(pastes);
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
  menus_[L"mnuToolsRestoreSystemFolders"].SetEnabled(app_.AC[kSystemFolders]);
  for (std::size_t i = 0; i < std::size(kRefreshMenus); ++i) {
    menus_[kRefreshMenus[i]].SetEnabled(app_.ADVC.at(kProjectionTargets[i].option));
  }
}

void frmOrganize::SetToolbarState(const std::wstring& Key) {
  const TargetKind kind = KindOfTarget(Key);
  for (const EnablingRow& row : ToolbarEnabling()) tlbMain.SetButtonEnabled(row.name, row.IsOnFor(kind));
  if (kind == TargetKind::kRoot) {
    tlbMain.SetButtonEnabled(L"keyPaste", false);
  } else {
    SetToolbarPaste();
  }
}

void frmOrganize::SetToolbarPaste() { tlbMain.SetButtonEnabled(L"keyPaste", !ClipboardEmpty()); }

// --- which entry does what

void frmOrganize::ConnectMenus() {
  for (const wchar_t* popup : {L"mnuPopup", L"mnuPopup2", L"mnuToolbar"}) menus_[popup].SetVisible(false);
  ConnectFileAndEditMenus();
  ConnectViewMenu();
  ConnectToolsMenu();
  ConnectHelpMenu();
  ConnectPopups();
}

void frmOrganize::ConnectFileAndEditMenus() {
  menus_[L"mnuFileNewItem"].Click = [this] { NewItem(MIT_PATH_EXPLORER); };
  menus_[L"mnuFileOpen"].Click = [this] { OpenConfigCommand(); };
  menus_[L"mnuFileOpenDefault"].Click = [this] { OpenConfigFile({}); };
  menus_[L"mnuFileSave"].Click = [this] { SaveConfigCommand(); };
  menus_[L"mnuFileSaveAs"].Click = [this] { SaveConfigAsCommand(); };
  menus_[L"mnuFileSetDefault"].Click = [this] { SetDefaultCommand(); };
  menus_[L"mnuFileProperties"].Click = [this] {
    if (calls_.ShowConfigFileProperties) calls_.ShowConfigFileProperties(*this, *WorkCollection);
  };
  menus_[L"mnuOptionsSettings"].Click = [this] { OptionsCommand(); };
  menus_[L"mnuFileExitDiscardChanges"].Click = [this] { ExitDiscardingChanges(); };
  menus_[L"mnuFileExit"].Click = [this] { Unload(); };
  menus_[L"mnuEdit"].Click = [this] {
    const Target target = GetSelectedTarget();
    SetMenuState(MenuKind::kEdit, target.Key, target.Image, true);
  };
  menus_[L"mnuEditRename"].Click = [this] { RenameCommand(); };
  menus_[L"mnuEditSelectAll"].Click = [this] { SetAllListItemsSelected(true); };
  menus_[L"mnuEditDeselectAll"].Click = [this] { SetAllListItemsSelected(false); };
  menus_[L"mnuEditInvertSelection"].Click = [this] { InvertSelection(); };
}

void frmOrganize::ConnectViewMenu() {
  menus_[L"mnuView"].Click = [this] {
    const Target target = GetSelectedTarget();
    SetMenuState(MenuKind::kView, target.Key, target.Image, true);
  };
  menus_[L"mnuViewStatBar"].Click = [this] { SetStatusBarVisible(!layout_.StatusBar); };
  menus_[L"mnuViewTlbText"].Click = menus_[L"mnuToolbarText"].Click = [this] { ToggleToolbarText(); };
  menus_[L"mnuViewTlbButtons"].Click = menus_[L"mnuToolbarButtons"].Click = [this] { ToggleToolbarImages(); };
  menus_[L"mnuViewAllLeftPane"].Click = [this] { ToggleAllLeftPane(); };
  menus_[L"mnuViewIcoLarge"].Click = [this] { ApplyView(L"keyViewsIcoLarge"); };
  menus_[L"mnuViewIcoSmall"].Click = [this] { ApplyView(L"keyViewsIcoSmall"); };
  menus_[L"mnuViewList"].Click = [this] { ApplyView(L"keyViewsList"); };
  menus_[L"mnuViewDetails"].Click = [this] { ApplyView(L"keyViewsDetails"); };
  menus_[L"mnuViewGrid"].Click = [this] { ApplyView(L"keyViewsGrid"); };
  for (std::size_t i = 0; i < std::size(kArrangeEnds); ++i) {
    const auto arrange = [this, column = static_cast<std::int32_t>(i) + 1] { ArrangeBy(column); };
    menus_[std::wstring(L"mnuViewArrange") + kArrangeEnds[i]].Click = arrange;
    menus_[std::wstring(L"mnuPopup2Arrange") + kArrangeEnds[i]].Click = arrange;
  }
  menus_[L"mnuViewProperties1"].Click = [this] { ShowItemProperties(false); };
  menus_[L"mnuViewRefresh"].Click = [this] { RefreshCommand(); };
}

void frmOrganize::ConnectToolsMenu() {
  menus_[L"mnuTools"].Click = [this] { SetMenuState(MenuKind::kTools, {}, 0, true); };
  menus_[L"mnuToolsWindowsExplorer"].Click = [this] { PopupWindowsExplorer(); };
  menus_[L"mnuToolsFind"].Click = [this] { FindCommand(); };
  menus_[L"mnuToolsReport"].Click = [this] { ReportCommand(); };
  menus_[L"mnuToolsVerifyShortcuts"].Click = [this] { VerifyShortcuts(); };
  menus_[L"mnuToolsNetworkDrives"].Click = [this] {
    if (calls_.ShowNetworkDrives) calls_.ShowNetworkDrives(*this);
  };
  menus_[L"mnuToolsPersonalNetworkInfo"].Click = [this] {
    if (calls_.ShowPersonalNetworkInfo) calls_.ShowPersonalNetworkInfo(*this);
  };
  for (std::size_t i = 0; i < std::size(kRefreshMenus); ++i) {
    menus_[kRefreshMenus[i]].Click = [this, i] { RefreshProjection(i); };
  }
  menus_[L"mnuToolsRestorePersonal"].Click = [this] { RestoreCommand(MIT_GROUP_USER); };
  menus_[L"mnuToolsRestoreSystemFolders"].Click = [this] { RestoreCommand(MIT_PATHS_SYSTEM); };
}

void frmOrganize::ConnectHelpMenu() {
  menus_[L"mnuHelpContents"].Click = [this] { ShowHelp(app_, kHelpContents); };
  menus_[L"mnuHelpIndex"].Click = [this] { ShowHelp(app_, kHelpIndex); };
  menus_[L"mnuHelpHomePage"].Click = [this] { OpenWebPage(L"/products/bm/"); };
  menus_[L"mnuHelpInternetServicesSupport"].Click = [this] { OpenWebPage(L"/products/bm/support.html"); };
  menus_[L"mnuHelpCheckLatestVersion"].Click = [this] { OpenWebPage(L"/products/bm/versions.html"); };
  menus_[L"mnuHelpTip"].Click = [this] {
    if (calls_.ShowTip) calls_.ShowTip(*this);
  };
  menus_[L"mnuHelpAbout"].Click = [this] {
    if (calls_.ShowAbout) calls_.ShowAbout(*this);
  };
}

void frmOrganize::ConnectPopups() {
  menus_[L"mnuPopupExplore"].Click = [this] { PopupExplore(); };
  menus_[L"mnuPopupWindowsExplorer"].Click = [this] { PopupWindowsExplorer(); };
  menus_[L"mnuPopupFind"].Click = [this] { FindCommand(); };
  menus_[L"mnuPopupReport"].Click = [this] { ReportCommand(); };
  menus_[L"mnuPopupRestore"].Click = [this] { RestoreCommand(NameOfKey(GetSelectedTarget().Key)); };
  menus_[L"mnuPopupRename"].Click = [this] { RenameCommand(); };
  menus_[L"mnuPopupProperties"].Click = [this] { ShowItemProperties(false); };
  menus_[L"mnuPopup2NewExplorer"].Click = [this] { NewItem(MIT_PATH_EXPLORER); };
  menus_[L"mnuPopup2NewShortcut"].Click = [this] { NewItem(MIT_PATH_SHORTCUT); };
  menus_[L"mnuPopup2NewGroup"].Click = [this] { NewItem(MIT_GROUP_GENERAL); };
  menus_[L"mnuPopup2NewOpenAll"].Click = [this] { NewItem(MIT_OPENALL); };
  menus_[L"mnuPopup2SelectAll"].Click = [this] { SetAllListItemsSelected(true); };
  menus_[L"mnuPopup2Properties"].Click = [this] { ShowItemProperties(true); };
}

void frmOrganize::ConnectBars() {
  tlbMain.ButtonClick = [this](const std::wstring& key) { RunButton(key); };
  tlbMain.ButtonMenuClick = [this](const std::wstring& key) {
    if (key == L"keyProperties1") ShowItemProperties(false);
  };
  tlbMain.MouseDown = [this](const MouseEvent& event) {
    if (event.button == kRightButton) menus_.PopupMenu(L"mnuToolbar");
  };
  tlbMain.MouseMove = [this](const MouseEvent&) { ResetSplitterCursor(); };
  stbMain.MouseMove = [this](const MouseEvent&) { ResetSplitterCursor(); };
}

void frmOrganize::RunButton(const std::wstring& key) {
  if (key == L"keyNew") NewItem(MIT_PATH_EXPLORER);
  if (key == L"keyUp") GoUp();
  if (key == L"keyWindowsExplorer") PopupWindowsExplorer();
  if (key == L"keyProperties") ShowItemProperties(false);
}

// --- commands

void frmOrganize::PopupExplore() {
  if (ListActive_) {
    OpenSelectedListItem(true);
  } else if (TreeNode* node = TreeView1.SelectedItem(); TreeActive_ && node != nullptr) {
    node->SetExpanded(!node->Expanded());
    ShowSelectedNode(false);
  }
}

void frmOrganize::PopupWindowsExplorer() {
  const Target target = GetSelectedTarget();
  if (target.Key.empty()) return ExploreFolder(app_, {}, false);
  const ItemRef item = WorkCollection->GetMenuItemFromName(NameOfKey(target.Key));
  if (!item) return;
  if (item->SubMenu()) {
    ExploreFolder(app_, {}, false);
  } else if (item->ItemType == MIT_PATH) {
    ExploreFolder(app_, item->FolderPath, target.Image == kDoublePaneImage);
  } else if (item->ItemType == MIT_OPENALL) {
    OpenAllMenuItem(app_, item);
  }
}

void frmOrganize::FindCommand() { FindInFolder(app_, GetSelectedTarget().Path); }

void frmOrganize::ReportCommand() {
  const Target target = GetSelectedTarget();
  const std::wstring folder = target.Path.empty() ? app_.PersonalFolder : target.Path;
  if (!app_.platform.files.FolderExists(folder)) {
    const std::wstring text = L"Folder '" + folder + L"' does not exist or is not a directory.";
    app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
  } else if (calls_.ShowFolderReport) {
    calls_.ShowFolderReport(*this, folder);
  }
}

void frmOrganize::VerifyShortcuts() {
  ListChangedByTool = false;
  if (calls_.ShowShortcutsList) calls_.ShowShortcutsList(*this, *WorkCollection);
  if (!ListChangedByTool) return;
  Changed = true;
  RefreshCommand();
}

void frmOrganize::OptionsCommand() {
  if (!ShowOptions(app_, *WorkCollection, false) || !Loaded()) return;
  Changed = true;
  RefreshViews({}, true);
}

void frmOrganize::RestoreCommand(const std::wstring& group) {
  if (calls_.ShowRestoreWizard) calls_.ShowRestoreWizard(*this, group);
}

void frmOrganize::RefreshProjection(std::size_t target) {
  const ProjectionTarget& place = kProjectionTargets[target];
  const std::wstring text = std::wstring(L"Refreshing Organized Folders ") + place.where;
  ShowProgress(app_, *this, L"Refresh Organized Folders...", text);
  RefreshOrganizedFolders(app_, place, *WorkCollection, false);
  HideProgress(app_);
}

void frmOrganize::OpenWebPage(const std::wstring& path) { OpenFile(app_, kWebSite + path); }

// --- items

std::wstring frmOrganize::GroupOfNewItem() const {
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr) return MIT_GROUP_USER;
  const TargetKind kind = KindOfTarget(node->Key());
  if (kind == TargetKind::kRoot || kind == TargetKind::kPersonal) return MIT_GROUP_USER;
  if (node->Image() == kGroupImage) return NameOfKey(node->Key());
  const TreeNode* parent = node->Parent();
  const bool hasGroup = parent != nullptr && parent->Image() == kGroupImage;
  return hasGroup ? NameOfKey(parent->Key()) : MIT_GROUP_USER;
}

void frmOrganize::NewItem(const std::wstring& Kind) {
  const TreeNode* node = TreeView1.SelectedItem();
  if (node == nullptr) return;
  if (node->Key() == MIT_HF_ROOT) {
    app_.platform.dialogs.MessageBoxA(Window(), L"Can't add new items here.", kTitle, kBoxInformation);
    return;
  }
  NewItemInGroup(NameOfKey(node->Key()), Kind, {});
}

void frmOrganize::NewItemInGroup(const std::wstring& group, const std::wstring& Kind, const std::wstring& path) {
  if (calls_.ShowNewItem) calls_.ShowNewItem(*this, group, Kind, path);
}

void frmOrganize::ShowItemProperties(bool FromBackground) {
  const TreeNode* node = TreeView1.SelectedItem();
  const std::wstring key = !FromBackground ? GetSelectedTarget().Key : node == nullptr ? L"" : node->Key();
  const ItemRef item = WorkCollection->GetMenuItemFromName(NameOfKey(key));
  if (!item) return app_.platform.windows.Beep();
  if (calls_.ShowItemProperties) calls_.ShowItemProperties(*this, item->Name());
}

}  // namespace burrowmark
