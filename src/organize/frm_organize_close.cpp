#include "config/config_file.h"
#include "core/hot_keys.h"
#include "core/store_copy.h"
#include "menu/menu_setup.h"
#include "organize/frm_organize.h"
#include "projection/organized_folders.h"
#include "tools/progress.h"

namespace burrowmark {
namespace {

constexpr std::size_t kRefreshAtClosing = 6;  // ADVC

}  // namespace

void frmOrganize::ReplaceMenu(const clsMenuCollection& store) {
  ClearMenu(app_);
  CopyStore(app_.platform.clock, store, *app_.MainStore);
  app_.MainStoreFromConfigFile = true;
  RefreshHotKeys(app_, *app_.MainStore);
  MenuSetupBuild(app_, {});
}

// --- the ways out

void frmOrganize::ExitDiscardingChanges() {
  if (Changed) {
    const std::int32_t answer = app_.platform.dialogs.MessageBoxA(
        Window(), L"Are you sure you want to exit and lose any changes you have made?", L"Exit Discarding Changes",
        kBoxYesNoCancel | kBoxInformation);
    if (answer == kAnswerCancel) return;
    // No saves the changes: the user doesn't want to lose them.
    if (answer == kAnswerYes) SaveOnExit = false;
  }
  if (!Unload()) SaveOnExit = true;
}

void frmOrganize::Form_Unload(bool& Cancel) {
  SaveLayout();
  const bool saves = DefaultChanged || (SaveOnExit && Changed);
  if (saves && !SaveChanges()) {
    Cancel = true;
    return;
  }
  if (SavedToDefault) FollowSavedFile();
  Release();
}

// False: the window stays.
bool frmOrganize::SaveChanges() {
  const bool isDefault = EditsDefaultFile();
  std::wstring path;
  if (!isDefault) {
    const std::int32_t answer = AskToSave();
    if (answer == kAnswerCancel) return false;
    if (answer != kAnswerYes) return true;
    path = app_.CurrentConfigFile;
  }
  ShowProgress(app_, *this, L"Saving Changes...", L"Saving Organized Folders...");
  if (!FuncConfigFileSave(isDefault, path, false)) {
    HideProgress(app_);
    ReportSaveError(path);
    return false;
  }
  if (isDefault) {
    if (FileOpened) app_.DrivesRebuildNeeded = true;
    ProjectAll(*WorkCollection);
    SavedToDefault = false;  // the menu has it now
  }
  HideProgress(app_);
  return true;
}

// The default file was written from this window, and what is edited now isn't what it holds: the menu takes the file.
void frmOrganize::FollowSavedFile() {
  clsMenuCollection store(app_.platform.clock);
  bool missing = false;
  bool ignored = false;
  ShowProgress(app_, *this, L"Saving Changes...", L"Saving Organized Folders...");
  if (ConfigFileRead(app_, store, {}, missing, ignored)) {
    ReplaceMenu(store);
    app_.DrivesRebuildNeeded = true;
    ProjectAll(store);
  }
  HideProgress(app_);
}

void frmOrganize::ProjectAll(const clsMenuCollection& store) {
  if (!app_.ADVC[kRefreshAtClosing]) return;
  for (const ProjectionTarget& target : kProjectionTargets) {
    if (!app_.ADVC.at(target.option)) continue;
    SetProgressText(app_, std::wstring(L"Saving Organized Folders ") + target.where + L"...");
    RefreshOrganizedFolders(app_, target, store, false);
  }
}

void frmOrganize::SaveForSessionEnd() {
  if (!WorkCollection || !SaveOnExit || (!Changed && !DefaultChanged)) return;
  ConfigFileWrite(app_, *WorkCollection, app_.CurrentConfigFile, false);
}

void frmOrganize::Release() {
  WorkCollection.reset();
  ClipboardItems_.reset();
  CutKeys_.clear();
  TreeView1.Clear();
  ListView1.Clear();
  app_.AlwaysOnTop = false;
  RefreshHotKeys(app_, *app_.MainStore);
  app_.IsOpen(SingleWindow::kOrganize) = false;
}

}  // namespace burrowmark
