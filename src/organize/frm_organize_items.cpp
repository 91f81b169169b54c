// Commands of the editor on single items: new ones, changes, their folders.
#include "core/folder_tests.h"
#include "core/form_services.h"
#include "core/hot_keys.h"
#include "core/program_dialogs.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "dialogs/frm_add_modify.h"
#include "dialogs/frm_properties.h"
#include "organize/frm_organize.h"
#include "organize/node_keys.h"
#include "organize/subtree.h"
#include "tools/frm_shortcuts_list.h"
#include "tools/network_drives.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";

bool IsFixed(const clsMenuItem& item) {
  return item.Name() == MIT_GROUP_USER || item.Name() == MIT_PATHS_SYSTEM || item.Name() == MIT_PATHS_DRIVES;
}

std::wstring LocationIn(const clsMenuItem& group) {
  constexpr wchar_t kTop[] = L"\\\\";
  return group.ItemLocation + (group.ItemLocation == kTop ? L"" : L"\\") + group.Caption();
}

// The key goes to another item.
void TakeHotKey(TreeEdit& edit, const ItemRef& holder) {
  if (holder && edit.Has(holder)) edit.Change(holder).KeyboardCode = -1;
}

}  // namespace

// --- new items

void frmOrganize::NewItem(const std::wstring& Kind) {
  const TreeNode* node = tree_.View.SelectedItem();
  if (node == nullptr || node->Key() == MIT_HF_ROOT) return Inform(L"Can't add new items here.");
  NewItemInGroup(NameOfKey(node->Key()), Kind, {});
}

// The group itself, or that of a shortcut. None, and the user is told why, where nothing can be added.
ItemRef frmOrganize::GroupForNewItems(const std::wstring& Name) {
  ItemRef group = WorkCollection()->GetMenuItemFromName(Name);
  if (group && !group->SubMenu()) group = WorkCollection()->GetMenuItemFromName(group->OwnerName());
  if (!group) {
    Inform(L"Can't add new items here.");
  } else if (group->Name() == MIT_PATHS_DRIVES) {
    RefusePaste({{}, PasteRefusal::kDrives});
    group = nullptr;
  }
  return group;
}

void frmOrganize::NewItemInGroup(const std::wstring& Name, const std::wstring& Kind, const std::wstring& Path) {
  const ItemRef group = GroupForNewItems(Name);
  if (!group) return;
  frmAddModify dialog(app_);
  dialog.Init({.Mode = 0,
               .Location = LocationIn(*group),
               .Item = nullptr,
               .OwnerName = group->Name(),
               .Kind = Kind,
               .Path = Path,
               .PresetName = {},
               .Collection = WorkCollection()});
  dialog.Show(Modal, *this);
  if (dialog.Cancelled) return;
  const ItemParameters values = dialog.GetParameters();
  ItemRef made;
  EditTree(L"New Item", [&](TreeEdit& edit) {
    TakeHotKey(edit, dialog.HotKeyHolder);
    made = edit.AddNew({.Caption = values.Caption,
                        .OwnerName = group->Name(),
                        .FolderPath = values.FolderPath,
                        .ItemType = values.ItemType,
                        .OpenType = values.OpenType,
                        .SubMenu = values.SubMenu,
                        .KeyboardCode = values.KeyboardCode,
                        .UserDescription = values.UserDescription});
  });
  if (made) ShowNewRows({made});
}

// The group of what is selected; the personal group where that is none.
std::wstring frmOrganize::GroupForAdding() const {
  const TreeNode* node = tree_.View.SelectedItem();
  const ItemRef item = node == nullptr ? nullptr : WorkCollection()->GetMenuItemFromName(NameOfKey(node->Key()));
  if (!item) return MIT_GROUP_USER;
  const std::wstring group = item->SubMenu() ? item->Name() : item->OwnerName();
  return group == kRootOwner ? std::wstring(MIT_GROUP_USER) : group;
}

// --- changes

void frmOrganize::ChangeCommand() {
  FollowActivePane();
  if (ListActive_ && !list_.HasSelection()) {
    tree_.View.SetFocus();
    FollowActivePane();
  }
  const std::vector<ItemRef> items = SelectedItems();
  if (items.size() > 1) return app_.platform.windows.Beep();
  if (items.empty() || IsFixed(*items.front())) return Inform(L"Can't change this group.");
  ChangeItem(items.front());
}

void frmOrganize::ChangeItem(const ItemRef& item) {
  frmAddModify dialog(app_);
  dialog.Init({.Mode = 1,
               .Location = item->ItemLocation,
               .Item = item,
               .OwnerName = item->OwnerName(),
               .Kind = {},
               .Path = {},
               .PresetName = {},
               .Collection = WorkCollection()});
  dialog.Show(Modal, *this);
  if (dialog.Cancelled) return;
  EditTree(L"Change", [&](TreeEdit& edit) {
    TakeHotKey(edit, dialog.HotKeyHolder);
    ModifyItem(edit, item, ChangeOf(dialog.GetParameters()));
  });
  if (ListActive_) ShowNewRows({item});
}

// --- properties

// All that is accepted in the dialog is one edit. With the flag it is about the node, whatever pane is used.
void frmOrganize::ShowItemProperties(bool FromBackground) {
  FollowActivePane();
  if (FromBackground) ListActive_ = false;
  const std::vector<ItemRef> items = SelectedItems();
  if (items.empty()) return app_.platform.windows.Beep();
  // Of several rows it is about the current one.
  const ItemRef current =
      ListActive_ ? WorkCollection()->GetMenuItemFromName(NameOfKey(GetSelectedTarget().Key)) : nullptr;
  const ItemRef item = current ? current : items.front();
  EditTree(L"Properties", [&](TreeEdit& edit) {
    frmProperties dialog(app_);
    dialog.Init(*item, WorkCollection());
    dialog.Apply = [&](const ItemRef& copy) { FuncPropertiesRefresh(edit, item, *copy, dialog.HotKeyHolder); };
    dialog.Show(Modal, *this);
    if (!dialog.Cancelled) FuncPropertiesRefresh(edit, item, *dialog.DohvatiMenuItem(), dialog.HotKeyHolder);
  });
  if (ListActive_) ShowNewRows({item});
}

void frmOrganize::FuncPropertiesRefresh(TreeEdit& edit, const ItemRef& item, const clsMenuItem& copy,
                                        const ItemRef& hotKeyHolder) {
  if (!edit.Has(item)) return;
  TakeHotKey(edit, hotKeyHolder);
  ModifyItem(edit, item, copy.SubMenu(), [&copy](clsMenuItem& changed) { CloneMenuItem(copy, changed); });
  FollowEdit(edit);
}

// --- the list of all shortcuts

// All that is done there is one edit.
void frmOrganize::VerifyShortcuts() {
  EditTree(L"Verify Shortcuts", [this](TreeEdit& edit) {
    frmShortcutsList list(app_);
    list.Init(WorkCollection(),
              {.Remove =
                   [&](const std::vector<ItemRef>& items) {
                     for (const ItemRef& item : items) edit.TakeOut(item);
                     FollowEdit(edit);
                   },
               .Modify =
                   [&](const ItemRef& item, const ItemChange& change, const ItemRef& holder) {
                     if (!edit.Has(item)) return;
                     TakeHotKey(edit, holder);
                     ModifyItem(edit, item, change);
                     FollowEdit(edit);
                   },
               .TakeOver = [&](const ItemRef& item, const clsMenuItem& copy,
                               const ItemRef& holder) { FuncPropertiesRefresh(edit, item, copy, holder); },
               .ClearHotKeys =
                   [&](const std::vector<ItemRef>& items) {
                     for (const ItemRef& item : items) TakeHotKey(edit, item);
                     FollowEdit(edit);
                   }});
    list.Show(Modal, *this);
  });
}

// --- the folders of what is selected

// A network that doesn't tell leaves the paths as they are.
std::vector<clsNetworkDrive> frmOrganize::MappedDrives() {
  constexpr std::int32_t kPatience = 3000;  // milliseconds
  const Hourglass busy(*this);
  const auto drives = std::make_shared<std::vector<clsNetworkDrive>>();
  const bool told = app_.platform.workers.RunWithin(
      kPatience, [drives, &network = app_.platform.network] { EnumNetworkDrives(network, *drives, true); });
  return told ? *drives : std::vector<clsNetworkDrive>();
}

void frmOrganize::CopyTargetLocations(bool complete) {
  FollowActivePane();
  std::wstring text;
  const std::vector<clsNetworkDrive> drives = complete ? MappedDrives() : std::vector<clsNetworkDrive>();
  for (const ItemRef& item : SelectedItems()) {
    if (item->FolderPath.empty()) continue;
    text += (complete ? GetRemoteName(item->FolderPath, drives) : item->FolderPath) + L"\r\n";
  }
  if (text.empty()) return app_.platform.windows.Beep();
  if (app_.platform.clipboard.SetText(text)) return;
  app_.platform.dialogs.MessageBoxA(Window(), kClipboardFailed, kTitle, kBoxCritical);
}

// The wizard stays when this window closes.
void frmOrganize::ReportCommand() {
  std::wstring path = GetSelectedTarget().Path;
  if (path.empty()) path = app_.PersonalFolder;
  const bool isThere = FolderTests(app_.platform).TestContent(path) == FolderAnswer::kThere;
  if (isThere) return Raise(app_.Calls.ShowFolderReport, path, FormOwner());
  app_.platform.dialogs.MessageBoxA(Window(), L"Folder '" + path + L"' does not exist or is not a directory.", kTitle,
                                    kBoxCritical);
}

void frmOrganize::ShowFolderProperties(std::wstring Path) {
  FollowActivePane();
  if (Path.empty()) Path = GetSelectedTarget().Path;
  std::wstring problem;
  if (Path.empty()) {
    problem = L"Cannot show properties. The selected item does not have a Target Location.";
  } else if (FolderTests(app_.platform).Test(Path) != FolderAnswer::kThere) {
    problem = L"Cannot show properties. Folder '" + Path + L"' doesn't exist.";
  }
  if (problem.empty()) {
    app_.platform.shell.ShowProperties(Window(), Path);
    return;
  }
  app_.platform.windows.Beep();
  app_.platform.dialogs.MessageBoxA(Window(), problem, kTitle, kBoxCritical);
}

}  // namespace burrowmark
