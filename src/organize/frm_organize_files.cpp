#include "config/config_file.h"
#include "core/file_names.h"
#include "core/form_services.h"
#include "core/hot_keys.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "core/text.h"
#include "groups/drives.h"
#include "organize/frm_organize.h"
#include "ui/common_dialog.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kSaveTitle[] = L"Save Configuration File As";
constexpr wchar_t kOpenFilter[] = L"Burrowmark Configuration File (*.bwmk)|*.bwmk|All Files (*.*)|*.*";
constexpr wchar_t kSaveFilter[] = L"Burrowmark Configuration File (*.bwmk)|*.bwmk|Text Document (*.txt)|*.txt";
constexpr std::int32_t kTextFilter = 2;
constexpr std::size_t kSystemFolders = 0;  // AC

}  // namespace

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
  if (SaveBeforeOpening()) LoadOrComplain(path);
}

void frmOrganize::LoadOrComplain(const std::wstring& path) {
  if (FuncConfigFileLoad(path)) {
    Changed = false;
    FileOpened = true;
    return;
  }
  const std::wstring text = L"Error opening configuration file " + GetFileName(path.empty() ? app_.ConfigFile : path);
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxCritical);
}

void frmOrganize::OpenConfigCommand() {
  if (!SaveBeforeOpening()) return;
  CommonDialog dialog(app_.platform.dialogs, *this);
  dialog.DialogTitle = L"Open Configuration File";
  dialog.Filter = kOpenFilter;
  if (dialog.ShowOpen()) LoadOrComplain(Trim(dialog.FileName));
}

void frmOrganize::SaveConfigCommand() {
  const std::wstring path = app_.CurrentConfigFile;
  FuncConfigFileSave(false, path, false) ? TellSaved(path, false) : ReportSaveError(path);
}

void frmOrganize::SaveConfigAsCommand() {
  CommonDialog dialog(app_.platform.dialogs, *this);
  dialog.DialogTitle = kSaveTitle;
  dialog.Filter = kSaveFilter;
  if (!dialog.ShowSave()) return;
  const std::wstring path = Trim(dialog.FileName);
  if (!MayReplace(path)) return;
  const bool asText = dialog.FilterIndex == kTextFilter;
  const bool saved = FuncConfigFileSave(false, path, asText);
  // A listing can't be read back: the window goes on with its file.
  if (saved && !asText) {
    app_.CurrentConfigFile = path;
    SetFormCaption();
  }
  RefreshDefaultCommands();
  saved ? TellSaved(path, asText) : ReportSaveError(path);
}

bool frmOrganize::MayReplace(const std::wstring& path) {
  if (!FileExists(app_.platform.files, path)) return true;
  const std::wstring question = L"File " + path + L" already exists.\r\nDo you want to replace it?";
  return app_.platform.dialogs.MessageBoxA(Window(), question, kSaveTitle, kBoxYesNoCancel | kBoxWarning) == kAnswerYes;
}

void frmOrganize::TellSaved(const std::wstring& path, bool asText) {
  Changed = false;
  const bool isDefault = path == app_.ConfigFile;
  if (isDefault && !asText) SavedToDefault = true;
  const std::wstring text = isDefault ? L"Default configuration file is successfully saved."
                                      : L"Configuration file " + GetFileName(path) + L" is successfully saved.";
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxInformation);
}

void frmOrganize::SetDefaultCommand() {
  const std::wstring name = GetFileName(app_.CurrentConfigFile);
  const std::wstring question = L"Do you want to make " + name + L" the default configuration file?";
  if (app_.platform.dialogs.MessageBoxA(Window(), question, kTitle, kBoxYesNoCancel | kBoxQuestion) != kAnswerYes) {
    return;
  }
  app_.ConfigFile = app_.CurrentConfigFile;
  SaveConfigFileName(app_, app_.ConfigFile);
  SetFormCaption();
  RefreshDefaultCommands();
  app_.platform.dialogs.MessageBoxA(Window(), name + L" is now the default configuration file.", kTitle,
                                    kBoxInformation);
  DefaultChanged = true;
}

}  // namespace burrowmark
