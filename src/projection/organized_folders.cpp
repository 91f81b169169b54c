#include "projection/organized_folders.h"

#include <memory>
#include <vector>

#include "core/file_names.h"
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

void SwitchOff(Application& app, Advanced option) {
  app.ADVC[option] = false;
  clsRegHandler(app.platform.registry)
      .SetKeyValue(RegistryKey::kCurrentUser, kSettingsKey, SettingName(option), BooleanNumberText(false));
}

// A folder of this name that the program didn't make, with something in it.
bool IsSomebodyElses(Application& app, const std::wstring& root) {
  return app.platform.files.FolderExists(root) && !HasOwnDesktopIni(app, root) && HoldsForeignContent(app, root);
}

bool MayReplace(Application& app, const std::wstring& root) {
  const std::wstring question = L"Folder " + root + L" isn't Burrowmark's. Do you want its content to be replaced?";
  return !IsSomebodyElses(app, root) || app.platform.dialogs.MessageBoxA(app.MainWindow, question, L"Burrowmark",
                                                                         kBoxYesNo | kBoxWarning) == kAnswerYes;
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
  std::shared_ptr<clsMenuCollection> shown = store;
  if (!MayReplace(app, root)) return SwitchOff(app, target.option);
  EnsureRoot(app, root, target.value);
  if (!app.ADVC[Advanced::kWithSystemFolders]) shown = CopyGroup(app.platform.clock, *shown, MIT_GROUP_USER);
  FolderTests tests(app.platform);
  const LinkFiles silent = SilentLinks(app, *shown, root, tests);
  WipeLinkTree(app, root);
  WriteLinkTree(app, *shown, root, tests, silent);
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
  const std::wstring& root = app.*target.root;
  if (!OrganizedFoldersExist(app, target) || IsSomebodyElses(app, root)) return;
  WipeLinkTree(app, root);
  std::vector<FolderEntry> left;
  if (app.platform.files.ListFolder(root, left) && left.empty()) app.platform.files.DeleteFolder(root);
}

void DeleteOrganizedFoldersDesktop(Application& app) { DeleteOrganizedFolders(app, kProjectionTargets[0]); }

void DeleteOrganizedFoldersSendTo(Application& app) { DeleteOrganizedFolders(app, kProjectionTargets[1]); }

void DeleteOrganizedFoldersFavorites(Application& app) { DeleteOrganizedFolders(app, kProjectionTargets[2]); }

void CheckOrganizedFoldersExist(Application& app) {
  for (const ProjectionTarget& target : kProjectionTargets) {
    const bool gone =
        !OrganizedFoldersExist(app, target) && app.platform.files.FolderExists(GetFolderName(app.*target.root));
    if (app.ADVC[target.option] && gone) SwitchOff(app, target.option);
  }
}

}  // namespace burrowmark
