#include "app/frm_main.h"

#include "app/command_line.h"
#include "config/config_file.h"
#include "core/hot_keys.h"
#include "core/menu_entries.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "menu/menu_actions.h"
#include "menu/menu_setup.h"
#include "options/frm_options.h"
#include "projection/organized_folders.h"

namespace burrowmark {
namespace {

constexpr wchar_t kMainTitle[] = L"Burrowmark";
constexpr wchar_t kStartTitle[] = L"Starting Burrowmark...";

}  // namespace

frmMain::frmMain(Application& app) : app_(app), menu_(app), tray_(app, menu_), hook_(app), reports_(app), editor_(app) {
  ConnectEvents();
  FillCalls();
}

void frmMain::ConnectEvents() {
  events_.TrayMouse = [this](std::uint32_t mouseMessage) { tray_.Form_MouseMove(mouseMessage); };
  events_.TaskbarCreated = [this] { tray_.Add(); };
  events_.DpiChanged = [this](std::int32_t) { tray_.ScaleChanged(); };
  events_.SessionEnding = [this] {
    GiveUpOptions();
    editor_.SaveForSessionEnd();
  };
  events_.Close = [this] { app_.Requests.EndProgram(); };
  events_.Unload = [this] { Form_Unload(); };
  events_.AtRest = [this] { app_.Requests.RunAtRest(); };
}

// Check marks that aren't applied don't count in what is saved then.
void frmMain::GiveUpOptions() {
  OpenWindow* options = app_.Windows.Find(ProgramWindow::kOptions);
  const bool idle = !app_.Requests.IsBusyWith(BusyWith::kBox) && !app_.Requests.IsBusyWith(BusyWith::kWork);
  if (options != nullptr && idle) options->Close();
}

void frmMain::FillCalls() {
  app_.Requests.End = [this] { End(); };
  app_.Calls.OpenEditor = [this] { editor_.Show(); };
  app_.Calls.ShowOptions = [this] { return ShowOptionsOfMenu(app_); };
  app_.Calls.WatchHotKeys = [this](bool on) { on ? hook_.HookKeyboard() : hook_.UnhookKeyboard(); };
  app_.Calls.CommandArrived = [this](const std::wstring& Command) { ProcessCommand(app_, editor_, Command); };
  app_.Calls.ShowFolderReport = [this](const std::wstring& folder, const FormOwner& owner) {
    reports_.Show(folder, owner);
  };
  app_.Calls.DeleteShortcut = [this](const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
    DeleteShortcut(store, item);
  };
}

bool frmMain::Form_Load(std::uint32_t RegisteredMessage, const std::wstring& CommandLine) {
  const Busy starting(app_.Requests, BusyWith::kStart);
  app_.platform.windows.DoEvents();
  app_.MainWindow = app_.platform.windows.CreateMainWindow(kMainTitle, events_);
  if (app_.MainWindow == 0) return false;
  clsRegHandler(app_.platform.registry)
      .SetKeyValue(RegistryKey::kCurrentUser, kMainKey, kWindowValue, DecimalText(app_.MainWindow));
  {
    Work work(app_);
    LoadTree(work);
    BringProjectionsUp(work);
  }
  menu_.RegisteredMessage = RegisteredMessage;
  menu_.SetScale(app_.platform.windows.MouseScreenDpi());
  menu_.LoadMenuIcons();
  menu_.Build({});
  tray_.Add();
  if (app_.ADVC[Advanced::kHotKeys]) hook_.HookKeyboard();
  if (!CommandLine.empty()) ProcessCommand(app_, editor_, CommandLine);
  return true;
}

// The tree belongs to the default file's path in any case. Where there is no file, it is written.
void frmMain::LoadTree(Work& work) {
  const DefaultFile file = FindDefaultFile(app_);
  app_.ConfigFile = file.path;
  if (file.registers) SaveConfigFileName(app_, file.path);
  std::optional<OpenedConfig> opened;
  if (!file.source.empty()) opened = ConfigFileRead(app_, file.source);
  Document& document = app_.MainDocument;
  if (opened) {
    document = std::move(opened->document);
    AddFixedEntries(app_, *document.Store, opened->SystemGroupMissing);
  } else {
    if (file.source.empty()) TellProgress(work, L"Building recent folders list");
    document.Store = DefaultTree(app_);
    const bool isThere = FileExists(app_.platform.files, file.path);
    document.Content = isThere ? FileContent::kUnreadable : FileContent::kNone;
  }
  document.CurrentConfigFile = file.path;
  if (!FileExists(app_.platform.files, file.path)) ConfigFileWrite(app_, document);
  RefreshHotKeys(app_, document.Store);
}

// A projection that the user took away stays away, unless the program was installed since.
void frmMain::BringProjectionsUp(Work& work) {
  if (app_.AfterInstall) {
    ProjectAfterInstall(work);
  } else {
    CheckOrganizedFoldersExist(app_);
  }
}

void frmMain::ProjectAfterInstall(Work& work) {
  for (const ProjectionTarget& target : kProjectionTargets) {
    if (!app_.ADVC[target.option] || OrganizedFoldersExist(app_, target)) continue;
    TellProgress(work, std::wstring(L"Refreshing Organized Folders ") + target.where);
    RefreshOrganizedFolders(app_, target, app_.MainDocument.Store, false);
  }
  clsRegHandler(app_.platform.registry).DeleteValue(RegistryKey::kCurrentUser, kSettingsKey, kAfterInstallValue);
}

// The first text opens the progress window.
void frmMain::TellProgress(Work& work, const std::wstring& text) {
  if (progressUp_) {
    work.SetProgressText(text);
  } else {
    work.ShowProgress(app_.MainWindow, kStartTitle, text);
  }
  progressUp_ = true;
}

void frmMain::DeleteShortcut(const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
  if (!app_.IsMainStore(*store)) return editor_.DeleteShortcut(item);
  const bool editing = app_.Windows.IsOpen(ProgramWindow::kOrganize);
  if (!editing && app_.MainDocument.CurrentConfigFile == app_.ConfigFile && !SaveWithout(*item)) return;
  RemoveEntries(app_, *store, [&item](const clsMenuItem& entry) { return &entry == item.get(); });
  RefreshHotKeysOf(app_, *store);
}

// Writes the menu's file without one item. Where that fails the user is told, and the item stays.
bool frmMain::SaveWithout(const clsMenuItem& item) {
  Document document = app_.MainDocument;
  document.Store = std::make_shared<clsMenuCollection>(app_.platform.clock);
  CopyStore(app_.platform.clock, app_.MainStore(), *document.Store);
  document.Store->Remove(item.Name());
  if (!ConfigFileWrite(app_, document)) {
    app_.platform.dialogs.MessageBoxA(app_.MainWindow, SaveErrorText(app_, document.CurrentConfigFile), kMainTitle,
                                      kBoxCritical);
    return false;
  }
  document.Store = app_.MainDocument.Store;
  app_.MainDocument = std::move(document);
  return true;
}

// What the user is asked while windows unload may keep the program.
void frmMain::End() {
  if (!editor_.Unload()) return;
  reports_.Unload();
  if (app_.MainWindow != 0) app_.platform.windows.DestroyMainWindow(app_.MainWindow);
}

// Nothing is saved here: the file is written when it changes.
void frmMain::Form_Unload() {
  menu_.UnhookMenuWindow();
  hook_.UnhookKeyboard();
  tray_.Delete();
  app_.Progress.reset();
  app_.HotKeyItems = {};
  app_.MainDocument = {.Store = std::make_shared<clsMenuCollection>(app_.platform.clock)};
  app_.MainWindow = 0;
}

}  // namespace burrowmark
