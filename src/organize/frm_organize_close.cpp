#include "config/config_file.h"
#include "core/file_names.h"
#include "core/form_services.h"
#include "core/hot_keys.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "groups/drives.h"
#include "menu/menu_setup.h"
#include "organize/frm_organize.h"
#include "projection/organized_folders.h"
#include "tools/progress.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr std::size_t kRefreshAtClosing = 6;  // ADVC
constexpr std::size_t kSystemFolders = 0;     // AC

}  // namespace

// --- loading and saving files

bool frmOrganize::FuncConfigFileLoad(const std::wstring& Path) {
  const Hourglass busy(*this);
  clsMenuCollection store(app_.platform.clock);
  bool missing = false;
  bool ignored = false;
  if (!ConfigFileRead(app_, store, Path, missing, ignored)) return false;
  ReportSystemGroup(Path, missing, ignored);
  SetupDrives(app_, store);
  WorkCollection = std::make_shared<clsMenuCollection>(app_.platform.clock);
  CopyStore(app_.platform.clock, store, *WorkCollection);
  SetFormCaption();
  RefreshDefaultCommands();
  RefreshViews({}, true);
  RefreshHotKeys(app_, *WorkCollection);
  return true;
}

void frmOrganize::ReportSystemGroup(const std::wstring& Path, bool missing, bool ignored) {
  const std::wstring name = Path.empty() ? L"Default configuration file" : GetFileName(Path);
  if (app_.AC[kSystemFolders] ? !missing : !ignored) return;
  const wchar_t* text = app_.AC[kSystemFolders]
                            ? L" does not contain System Folders group. The group was created automatically."
                            : L" contains System Folders group. The group was deleted automatically.";
  app_.platform.dialogs.MessageBoxA(Window(), name + text, kTitle, kBoxInformation);
}

void frmOrganize::RefreshDefaultCommands() {
  menus_[L"mnuFileOpenDefault"].SetVisible(!EditsDefaultFile());
  menus_[L"mnuFileSetDefault"].SetVisible(!EditsDefaultFile());
}

bool frmOrganize::FuncConfigFileSave(bool Rebuild, const std::wstring& Path, bool TextMode) {
  const Hourglass busy(*this);
  if (!ConfigFileWrite(app_, *WorkCollection, Path, TextMode)) return false;
  if (Rebuild) ReplaceMenu(*WorkCollection);
  return true;
}

void frmOrganize::ReplaceMenu(const clsMenuCollection& store) {
  ClearMenu(app_);
  CopyStore(app_.platform.clock, store, *app_.MainStore);
  app_.MainStoreFromConfigFile = true;
  RefreshHotKeys(app_, *app_.MainStore);
  MenuSetupBuild(app_, {});
}

void frmOrganize::ReportSaveError(const std::wstring& path) {
  const std::wstring file = path.empty() ? app_.ConfigFile : path;
  std::wstring text = L"Error saving configuration file " + GetFileName(file);
  if (IsFileReadOnly(app_.platform.files, file)) text += L"\r\nFile is read-only.";
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
}

// The user may want to keep what is edited before another file takes its place. False: everything shall stay.
bool frmOrganize::SaveBeforeOpening() {
  if (!Changed) return true;
  const std::int32_t answer = AskToSave();
  if (answer == kAnswerCancel) return false;
  if (answer == kAnswerYes && !FuncConfigFileSave(EditsDefaultFile(), app_.CurrentConfigFile, false)) {
    ReportSaveError(app_.CurrentConfigFile);
  }
  return true;
}

std::int32_t frmOrganize::AskToSave() {
  const std::wstring question =
      L"Do you want to save the changes you made to " + GetFileName(app_.CurrentConfigFile) + L"?";
  return app_.platform.dialogs.MessageBoxA(Window(), question, kTitle, kBoxYesNoCancel | kBoxWarning);
}

void frmOrganize::OpenConfigFile(const std::wstring& path) {
  if (!SaveBeforeOpening()) return;
  if (FuncConfigFileLoad(path)) {
    Changed = false;
    FileOpened = true;
    return;
  }
  const std::wstring text = L"Error opening configuration file " + GetFileName(path.empty() ? app_.ConfigFile : path);
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
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
