#include <optional>
#include <utility>

#include "config/config_file.h"
#include "core/hot_keys.h"
#include "menu/menu_setup.h"
#include "organize/frm_organize.h"
#include "projection/organized_folders.h"

namespace burrowmark {

void frmOrganize::ReplaceMenu(Document document) {
  const std::shared_ptr<clsMenuCollection> store = std::exchange(document.Store, app_.MainDocument.Store);
  app_.MainDocument = std::move(document);
  ReplaceMainStore(app_, store);
}

// --- the ways out

void frmOrganize::ExitDiscardingChanges() {
  if (Edited.Changed) {
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
  const bool saves = SaveOnExit && (Edited.Changed || (DefaultChanged && EditsDefaultFile()));
  if (saves && !SaveChanges()) {
    Cancel = true;
    return;
  }
  ForgetEdits();
  if (SavedToDefault || app_.MainDocument.CurrentConfigFile != app_.ConfigFile) FollowDefaultFile();
  BringMenuUpToOptions();
  Release();
}

// False: the window stays. Only a file that isn't the default one is asked about.
bool frmOrganize::SaveChanges() {
  const bool isDefault = EditsDefaultFile();
  if (!isDefault) {
    const std::int32_t answer = AskToSave();
    if (answer == kAnswerCancel) return false;
    if (answer != kAnswerYes) return true;
  }
  {
    Work work(app_);
    work.ShowProgress(*this, L"Saving Changes...", L"Saving Organized Folders...");
    const bool saved = FuncConfigFileSave(isDefault);
    if (saved && isDefault) {
      if (FileOpened) app_.DrivesRebuildNeeded = true;
      ProjectAll(work);
      SavedToDefault = false;  // the menu has it now
    }
    if (saved) return true;
  }
  return ReportSaveError();
}

// What the menu shows isn't what the default file holds: the menu takes the file. One that can't be read leaves the
// menu as it is.
void frmOrganize::FollowDefaultFile() {
  Work work(app_);
  if (!TakeDefaultFile()) return;
  optionsOfMenu_.AC = app_.AC;  // it is built by these
  if (!app_.ADVC[Advanced::kProjectAtClosing]) return;
  work.ShowProgress(*this, L"Saving Changes...", L"Saving Organized Folders...");
  ProjectAll(work);
}

bool frmOrganize::TakeDefaultFile() {
  std::optional<OpenedConfig> opened = ConfigFileRead(app_, app_.ConfigFile);
  if (!opened) return false;
  AddFixedEntries(app_, *opened->document.Store, opened->SystemGroupMissing);
  ReplaceMenu(std::move(opened->document));
  app_.DrivesRebuildNeeded = true;
  return true;
}

void frmOrganize::ProjectAll(Work& work) {
  if (!app_.ADVC[Advanced::kProjectAtClosing]) return;
  for (const ProjectionTarget& target : kProjectionTargets) {
    if (!app_.ADVC[target.option]) continue;
    work.SetProgressText(std::wstring(L"Saving Organized Folders ") + target.where + L"...");
    RefreshOrganizedFolders(app_, target, app_.MainDocument.Store, false);
  }
}

void frmOrganize::SaveForSessionEnd() {
  if (WorkCollection() && SaveOnExit && (Edited.Changed || DefaultChanged)) ConfigFileWrite(app_, Edited);
}

void frmOrganize::Release() {
  Edited = {};
  ClipboardItems_.Clear();
  history_.Clear();
  tree_.View.Clear();
  list_.Release();
  app_.AlwaysOnTop = false;
  RefreshHotKeys(app_, app_.MainDocument.Store);
}

}  // namespace burrowmark
