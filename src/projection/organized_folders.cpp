#include "projection/organized_folders.h"

#include <memory>
#include <vector>

#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/services.h"
#include "core/settings.h"
#include "core/store_copy.h"
#include "groups/special_folders.h"
#include "projection/desktop_ini.h"
#include "projection/link_tree.h"

namespace burrowmark {
namespace {

constexpr wchar_t kRootName[] = L"\\Organized Folders";

void EnsureRoot(Application& app, const std::wstring& root, const wchar_t* value) {
  if (!FolderOrDriveExists(app.platform.files, root) && !app.platform.files.CreateFolder(root)) return;
  clsRegHandler(app.platform.registry).SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, value, root);
}

// Each entry that stays is passed over.
void Wipe(FileSystem& files, const std::wstring& root) {
  std::vector<FolderEntry> entries;
  files.ListFolder(root, entries);
  for (const FolderEntry& entry : entries) {
    const std::wstring path = root + L"\\" + entry.name;
    if ((entry.attributes & kFileDirectory) != 0) {
      files.DeleteFolder(path);
    } else {
      files.DeleteFileA(path);
    }
  }
}

}  // namespace

void InitOrganizedFoldersPaths(Application& app) {
  for (const ProjectionTarget& target : kProjectionTargets) {
    const std::wstring parent = GetSpecialFolderPath(app, target.specialFolder);
    app.*target.root = parent.empty() ? parent : parent + kRootName;
  }
}

bool OrganizedFoldersExist(const Application& app, const ProjectionTarget& target) {
  return app.platform.files.FolderExists(app.*target.root);
}

void RefreshOrganizedFolders(Application& app, const ProjectionTarget& target,
                             const std::shared_ptr<clsMenuCollection>& store, bool ShowMessage) {
  const std::wstring root = app.*target.root;
  if (root.empty()) return;
  EnsureRoot(app, root, target.value);
  std::shared_ptr<clsMenuCollection> shown = store;
  if (!app.ADVC[Advanced::kWithSystemFolders]) shown = CopyGroup(app.platform.clock, *store, MIT_GROUP_USER);
  Wipe(app.platform.files, root);
  WriteLinkTree(app, *shown, root);
  if (OrganizedFoldersExist(app, target)) WriteDesktopIni(app, root);
  if (!ShowMessage) return;
  app.platform.dialogs.MessageBoxA(app.MainWindow, L"Organized Folders have been restored.", target.restoredTitle,
                                   kBoxInformation);
}

void RefreshOrganizedFoldersDesktop(Application& app, const std::shared_ptr<clsMenuCollection>& store,
                                    bool ShowMessage) {
  RefreshOrganizedFolders(app, kProjectionTargets[0], store, ShowMessage);
}

void RefreshOrganizedFoldersSendTo(Application& app, const std::shared_ptr<clsMenuCollection>& store,
                                   bool ShowMessage) {
  RefreshOrganizedFolders(app, kProjectionTargets[1], store, ShowMessage);
}

void RefreshOrganizedFoldersFavorites(Application& app, const std::shared_ptr<clsMenuCollection>& store,
                                      bool ShowMessage) {
  RefreshOrganizedFolders(app, kProjectionTargets[2], store, ShowMessage);
}

void DeleteOrganizedFolders(Application& app, const ProjectionTarget& target) {
  if (OrganizedFoldersExist(app, target)) app.platform.files.DeleteFolder(app.*target.root);
}

void DeleteOrganizedFoldersDesktop(Application& app) { DeleteOrganizedFolders(app, kProjectionTargets[0]); }

void DeleteOrganizedFoldersSendTo(Application& app) { DeleteOrganizedFolders(app, kProjectionTargets[1]); }

void DeleteOrganizedFoldersFavorites(Application& app) { DeleteOrganizedFolders(app, kProjectionTargets[2]); }

void CheckOrganizedFoldersExist(Application& app) {
  clsRegHandler registry(app.platform.registry);
  for (const ProjectionTarget& target : kProjectionTargets) {
    if (!app.ADVC[target.option] || OrganizedFoldersExist(app, target)) continue;
    app.ADVC[target.option] = false;
    registry.SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, SettingName(target.option), BooleanNumberText(false));
  }
}

}  // namespace burrowmark
