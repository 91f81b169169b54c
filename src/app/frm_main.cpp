#include "app/frm_main.h"

#include "app/command_line.h"
#include "config/config_file.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/services.h"
#include "menu/menu_actions.h"
#include "menu/menu_setup.h"
#include "projection/organized_folders.h"
#include "tools/progress.h"

namespace burrowmark {
namespace {

constexpr std::size_t kHotKeys = 7;  // ADVC
constexpr wchar_t kMainTitle[] = L"Burrowmark";
constexpr wchar_t kStartTitle[] = L"Starting Burrowmark...";

// True if the drive or the share that a path stands on is there.
bool IsPlaceThere(FileSystem& files, const std::wstring& path) {
  if (!path.starts_with(L"\\\\")) return files.DriveExists(path.substr(0, 2));
  const std::size_t share = path.find(L'\\', 2);
  return share != std::wstring::npos && files.FolderExists(path.substr(0, path.find(L'\\', share + 1)));
}

}  // namespace

frmMain::frmMain(Application& app) : app_(app), menu_(app), tray_(app, menu_), hook_(app) {
  events_.TrayMouse = [this](std::uint32_t mouseMessage) { tray_.Form_MouseMove(mouseMessage); };
  events_.TaskbarCreated = [this] { tray_.Add(); };
  events_.SessionEnding = [this] {
    if (app_.Calls.SaveForSessionEnd) app_.Calls.SaveForSessionEnd();
  };
  events_.Unload = [this] { Form_Unload(); };
}

bool frmMain::Form_Load(std::uint32_t RegisteredMessage, const std::wstring& CommandLine) {
  app_.platform.windows.DoEvents();
  app_.MainWindow = app_.platform.windows.CreateMainWindow(kMainTitle, events_);
  if (app_.MainWindow == 0) return false;
  clsRegHandler(app_.platform.registry)
      .SetKeyValue(RegistryKey::kCurrentUser, kMainKey, kWindowValue, DecimalText(app_.MainWindow));
  LoadTree();
  BringProjectionsUp();
  if (progressUp_) HideProgress(app_);
  menu_.RegisteredMessage = RegisteredMessage;
  menu_.SetScale(app_.platform.windows.MouseScreenDpi());
  menu_.LoadMenuIcons();
  menu_.Build({});
  tray_.Add();
  if (app_.ADVC[kHotKeys]) hook_.HookKeyboard();
  if (!CommandLine.empty()) ProcessCommand(app_, false, CommandLine);
  return true;
}

void frmMain::LoadTree() {
  FileSystem& files = app_.platform.files;
  const std::wstring beside = app_.AppPath + L"\\" + kDefaultConfigName;
  if (FileExists(files, app_.ConfigFile)) {
    ReadTree();
  } else if (FileExists(files, beside)) {
    // A registered file on a drive that is away just now stays registered.
    const bool registers = IsPlaceThere(files, app_.ConfigFile);
    app_.ConfigFile = beside;
    if (registers) SaveConfigFileName(app_, beside);
    ReadTree();
  } else {
    TellProgress(L"Building recent folders list");
    ResetToDefaults(app_);
  }
  if (FileExists(files, app_.ConfigFile)) return;
  app_.MainStoreFromConfigFile = ConfigFileWrite(app_, *app_.MainStore, {}, false);
}

void frmMain::ReadTree() {
  bool SystemGroupMissing = false;
  bool SystemGroupIgnored = false;
  app_.MainStoreFromConfigFile = ConfigFileRead(app_, *app_.MainStore, {}, SystemGroupMissing, SystemGroupIgnored);
  if (app_.MainStoreFromConfigFile) return;
  if (FileExists(app_.platform.files, app_.ConfigFile)) app_.UnreadableConfigFile = app_.ConfigFile;
  ResetToDefaults(app_);
}

// A projection that the user took away stays away, unless the program was installed since.
void frmMain::BringProjectionsUp() {
  if (app_.AfterInstall) {
    ProjectAfterInstall();
  } else {
    CheckOrganizedFoldersExist(app_);
  }
}

void frmMain::ProjectAfterInstall() {
  for (const ProjectionTarget& target : kProjectionTargets) {
    if (!app_.ADVC[target.option] || OrganizedFoldersExist(app_, target)) continue;
    TellProgress(std::wstring(L"Refreshing Organized Folders ") + target.where);
    RefreshOrganizedFolders(app_, target, *app_.MainStore, false);
  }
  clsRegHandler(app_.platform.registry).DeleteValue(RegistryKey::kCurrentUser, kSettingsKey, kAfterInstallValue);
}

// The first text opens the progress window.
void frmMain::TellProgress(const std::wstring& text) {
  if (progressUp_) {
    SetProgressText(app_, text);
  } else {
    ShowProgress(app_, app_.MainWindow, kStartTitle, text);
  }
  progressUp_ = true;
}

void frmMain::Unload() {
  if (app_.Calls.UnloadOrganize && !app_.Calls.UnloadOrganize()) {
    app_.ExitRequested = false;
    return;
  }
  if (app_.MainWindow != 0) app_.platform.windows.DestroyMainWindow(app_.MainWindow);
}

// Nothing is saved here: the file is written when it changes.
void frmMain::Form_Unload() {
  menu_.UnhookMenuWindow();
  hook_.UnhookKeyboard();
  tray_.Delete();
  app_.Progress.reset();
  app_.HotKeyItems.clear();
  app_.MainStore = std::make_shared<clsMenuCollection>(app_.platform.clock);
  app_.MainWindow = 0;
}

}  // namespace burrowmark
