#include "config/config_file.h"
#include "config/frm_properties_config_file.h"
#include "core/file_names.h"
#include "core/form_services.h"
#include "core/hot_keys.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "core/text.h"
#include "groups/drives.h"
#include "menu/menu_setup.h"
#include "organize/frm_organize.h"
#include "ui/common_dialog.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kSaveTitle[] = L"Save Configuration File As";
constexpr wchar_t kOpenFilter[] = L"Burrowmark Configuration File (*.bwmk)|*.bwmk|All Files (*.*)|*.*";
constexpr wchar_t kSaveFilter[] = L"Burrowmark Configuration File (*.bwmk)|*.bwmk|Text Document (*.txt)|*.txt";
constexpr std::int32_t kTextFilter = 2;

// A name that was typed without an extension gets that of the filter in use.
std::wstring WithExtension(const std::wstring& path, const wchar_t* extension) {
  return GetFileName(path).find(L'.') == std::wstring::npos ? path + extension : path;
}

}  // namespace

bool frmOrganize::FuncConfigFileLoad(const std::wstring& Path) {
  const Hourglass busy(*this);
  std::optional<OpenedConfig> opened = ReadInPlace(Path.empty() ? app_.ConfigFile : Path);
  if (!opened) return false;
  ForgetEdits();
  clsMenuCollection& store = *opened->document.Store;
  AddFixedEntries(app_, store, opened->SystemGroupMissing);
  ReportSystemGroup(*opened, Path.empty());
  SetupDrives(app_, store);
  Edited = std::move(opened->document);
  SetFormCaption();
  RefreshDefaultCommands();
  RefreshViews({}, true);
  RefreshHotKeys(app_, WorkCollection());
  return true;
}

// By the options that will hold once the tree in the window has gone, and its edits with it.
std::optional<OpenedConfig> frmOrganize::ReadInPlace(const std::wstring& path) {
  const bool now = app_.AC[Appearance::kSystemFolders];
  if (optionsBefore_) app_.AC[Appearance::kSystemFolders] = (*optionsBefore_)[Appearance::kSystemFolders];
  std::optional<OpenedConfig> opened = ConfigFileRead(app_, path);
  app_.AC[Appearance::kSystemFolders] = now;
  return opened;
}

void frmOrganize::ReportSystemGroup(const OpenedConfig& opened, bool isDefault) {
  const Document& document = opened.document;
  const std::wstring name = isDefault ? L"Default configuration file" : GetFileName(document.CurrentConfigFile);
  const bool wanted = app_.AC[Appearance::kSystemFolders];
  if (wanted ? !opened.SystemGroupMissing : !opened.SystemGroupIgnored) return;
  const wchar_t* text = wanted ? L" does not contain System Folders group. The group was created automatically."
                               : L" contains System Folders group. The group was deleted automatically.";
  app_.platform.dialogs.MessageBoxA(Window(), name + text, kTitle, kBoxInformation);
}

void frmOrganize::RefreshDefaultCommands() {
  menus_[L"mnuFileOpenDefault"].SetVisible(!EditsDefaultFile());
  menus_[L"mnuFileSetDefault"].SetVisible(!EditsDefaultFile());
}

bool frmOrganize::FuncConfigFileSave(bool Rebuild) {
  const Hourglass busy(*this);
  if (!ConfigFileWrite(app_, Edited)) return false;
  optionsBefore_.reset();
  if (!Rebuild) return true;
  optionsOfMenu_ = TakeOptions(app_);
  Document document = Edited;
  document.Store = std::make_shared<clsMenuCollection>(app_.platform.clock);
  CopyStore(app_.platform.clock, *Edited.Store, *document.Store);
  ReplaceMenu(std::move(document));
  return true;
}

// False, for those who end with it.
bool frmOrganize::ReportSaveError() {
  TellSaveError(Edited.CurrentConfigFile);
  return false;
}

void frmOrganize::TellSaveError(const std::wstring& path) {
  app_.platform.dialogs.MessageBoxA(Window(), SaveErrorText(app_, path), kTitle, kBoxCritical);
}

// The user may want to keep what is edited before another file takes its place. False: everything shall stay.
bool frmOrganize::SaveBeforeOpening() {
  if (!Edited.Changed) return true;
  const std::int32_t answer = AskToSave();
  if (answer != kAnswerYes) return answer != kAnswerCancel;
  const bool isDefault = EditsDefaultFile();
  if (!FuncConfigFileSave(isDefault)) return ReportSaveError();
  if (isDefault) SavedToDefault = true;
  return true;
}

std::int32_t frmOrganize::AskToSave() {
  const std::wstring question =
      L"Do you want to save the changes you made to " + GetFileName(Edited.CurrentConfigFile) + L"?";
  return app_.platform.dialogs.MessageBoxA(Window(), question, kTitle, kBoxYesNoCancel | kBoxWarning);
}

void frmOrganize::OpenConfigFile(const std::wstring& path) {
  if (SaveBeforeOpening()) LoadOrComplain(path);
}

void frmOrganize::LoadOrComplain(const std::wstring& path) {
  if (FuncConfigFileLoad(path)) {
    FileOpened = true;
    return;
  }
  app_.platform.dialogs.MessageBoxA(Window(), L"Error opening configuration file " + GetFileName(path), kTitle,
                                    kBoxCritical);
}

void frmOrganize::OpenConfigCommand() {
  if (!SaveBeforeOpening()) return;
  CommonDialog dialog(app_.platform.dialogs, *this);
  dialog.DialogTitle = L"Open Configuration File";
  dialog.Filter = kOpenFilter;
  if (dialog.ShowOpen()) LoadOrComplain(Trim(dialog.FileName));
}

void frmOrganize::SaveConfigCommand() {
  FuncConfigFileSave(false) ? TellSaved(Edited.CurrentConfigFile) : TellSaveError(Edited.CurrentConfigFile);
}

void frmOrganize::SaveConfigAsCommand() {
  CommonDialog dialog(app_.platform.dialogs, *this);
  dialog.DialogTitle = kSaveTitle;
  dialog.Filter = kSaveFilter;
  if (!dialog.ShowSave()) return;
  const bool asText = dialog.FilterIndex == kTextFilter;
  const std::wstring path = WithExtension(Trim(dialog.FileName), asText ? L".txt" : L".bwmk");
  if (!MayReplace(path)) return;
  const bool saved = WriteAs(path, asText);
  if (saved && !asText) {
    optionsBefore_.reset();
    SetFormCaption();
  }
  RefreshDefaultCommands();
  saved ? TellSaved(path) : TellSaveError(path);
}

// A listing can't be read back: the window goes on with its file, and what was changed there is still to be saved.
bool frmOrganize::WriteAs(const std::wstring& path, bool asText) {
  const Hourglass busy(*this);
  return asText ? ConfigFileExport(app_, Edited, path) : ConfigFileWriteAs(app_, Edited, path);
}

bool frmOrganize::MayReplace(const std::wstring& path) {
  if (!FileExists(app_.platform.files, path)) return true;
  const std::wstring question = L"File " + path + L" already exists.\r\nDo you want to replace it?";
  return app_.platform.dialogs.MessageBoxA(Window(), question, kSaveTitle, kBoxYesNoCancel | kBoxWarning) == kAnswerYes;
}

void frmOrganize::TellSaved(const std::wstring& path) {
  const bool isDefault = OwnPath(app_, path) == app_.ConfigFile;
  if (isDefault) SavedToDefault = true;
  const std::wstring text = isDefault ? L"Default configuration file is successfully saved."
                                      : L"Configuration file " + GetFileName(path) + L" is successfully saved.";
  app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, kBoxInformation);
}

void frmOrganize::SetDefaultCommand() {
  const std::wstring name = GetFileName(Edited.CurrentConfigFile);
  const std::wstring question = L"Do you want to make " + name + L" the default configuration file?";
  if (app_.platform.dialogs.MessageBoxA(Window(), question, kTitle, kBoxYesNoCancel | kBoxQuestion) != kAnswerYes) {
    return;
  }
  app_.ConfigFile = Edited.CurrentConfigFile;
  SaveConfigFileName(app_, app_.ConfigFile);
  SetFormCaption();
  RefreshDefaultCommands();
  app_.platform.dialogs.MessageBoxA(Window(), name + L" is now the default configuration file.", kTitle,
                                    kBoxInformation);
  DefaultChanged = true;
}

// The texts are written at once, without the tree. Those that couldn't be written wait for the next save.
void frmOrganize::ShowInformation() {
  frmPropertiesConfigFile dialog(app_);
  if (!dialog.Init(Edited)) {
    app_.platform.dialogs.MessageBoxA(Window(), L"File " + Edited.CurrentConfigFile + L" doesn't exist.", kTitle,
                                      kBoxCritical);
  }
  dialog.Show(Modal, *this);
  if (!dialog.Changed) return;
  Edited.Summary = dialog.Summary();
  // The menu's document may belong to the same file, and mustn't bring the old texts back.
  if (app_.MainDocument.CurrentConfigFile == Edited.CurrentConfigFile) app_.MainDocument.Summary = Edited.Summary;
  const bool hasFile = FileExists(app_.platform.files, Edited.CurrentConfigFile);
  const bool written = ConfigFileUpdateSummary(app_, Edited);
  if (!hasFile || !written) Edited.Changed = true;
  if (!written) ReportSaveError();
}

}  // namespace burrowmark
