#include "menu/menu_actions.h"

#include <vector>

#include "core/failure.h"
#include "core/hot_keys.h"
#include "core/registry.h"
#include "core/registry_keys.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "menu/menu_setup.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kNoDirectory[] = L"0";  // no folder has this name
constexpr std::int32_t kHelpContents = 1;

// The file manager ends an argument at a comma unless quotes hold it together.
std::wstring QuotedForExplorer(const std::wstring& path) {
  return path.find(L',') == std::wstring::npos ? path : L"\"" + path + L"\"";
}

std::int32_t Launch(Application& app, const wchar_t* verb, const std::wstring& file, const std::wstring& parameters) {
  return app.platform.shell.ShellExecuteA(verb, file, parameters, kNoDirectory, kShowNormal);
}

bool MayOpen(Application& app, const clsMenuItem& item) {
  return item.ItemType != MIT_PATH || FolderOrDriveExists(app.platform.files, item.FolderPath);
}

void OfferDeletion(Application& app, const clsMenuItem& item) {
  const std::wstring question =
      L"Path '" + item.FolderPath +
      L"' does not exist or is not a directory. Do you want to delete the shortcut from the list?";
  if (app.platform.dialogs.MessageBoxA(app.MainWindow, question, kTitle, kBoxYesNoCancel | kBoxWarning) != kAnswerYes) {
    return;
  }
  const std::wstring name = item.Name();
  RebuildMainMenu(app, [&name](clsMenuCollection& copy) { copy.Remove(name); });
  const bool editing = app.IsOpen(SingleWindow::kOrganize);
  if (!editing && app.MainStoreFromConfigFile && app.Calls.SaveMainStore) app.Calls.SaveMainStore();
}

// Sets a flag as long as it lives; `Entered` is false if it was set already.
class OneAtATime {
 public:
  explicit OneAtATime(bool& running) : running_(running), entered_(!running) { running_ = true; }
  ~OneAtATime() {
    if (entered_) running_ = false;
  }
  OneAtATime(const OneAtATime&) = delete;
  OneAtATime& operator=(const OneAtATime&) = delete;
  bool Entered() const { return entered_; }

 private:
  bool& running_;
  bool entered_;
};

// Opens the shortcuts of these names one after the other. A deletion in between makes the store's items anew, so each
// is looked up when its turn comes.
void OpenNamed(Application& app, const std::vector<std::wstring>& names) {
  for (const std::wstring& name : names) {
    const ItemRef item = app.MainStore->GetMenuItemFromName(name);
    if (item) OpenMenuItem(app, item);
  }
}

std::vector<std::wstring> ShortcutsBeside(const clsMenuCollection& store, const clsMenuItem& openAll) {
  std::vector<std::wstring> names;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (item->OwnerName() == openAll.OwnerName() && item->ItemType == MIT_PATH) names.push_back(item->Name());
  }
  return names;
}

// The level of an Open-All entry, inside a walk that is running already.
void OpenLevel(Application& app, const clsMenuItem& openAll) {
  OpenNamed(app, ShortcutsBeside(*app.MainStore, openAll));
}

}  // namespace

void MenuItemChosen(Application& app, const ItemRef& item) {
  Skip([&] {
    if (item->Name() == MIT_HF_HELP) {
      ShowHelp(app, kHelpContents);
    } else if (item->Name() == MIT_HF_SETTINGS) {
      ShowOptions(app, *app.MainStore, true);
    } else if (item->Name() == MIT_HF_ORGANIZE) {
      if (app.Calls.ProcessCommand) app.Calls.ProcessCommand(true, {});
    } else if (item->ItemType == MIT_OPENALL) {
      OpenAllMenuItem(app, item);
    } else if (item->ItemType == MIT_PATH || item->ItemType == MIT_DRIVE) {
      OpenMenuItem(app, item);
    }
  });
}

bool OpenMenuItem(Application& app, const ItemRef& item) {
  if (!MayOpen(app, *item)) {
    constexpr std::size_t kAskForDeletion = 1;  // GC
    if (app.GC[kAskForDeletion]) OfferDeletion(app, *item);
    return false;
  }
  std::wstring arguments = item->OpenType == MIT_PATH_EXPLORER ? L"/e" : L"";
  if (!item->FolderPath.empty()) {
    if (!arguments.empty()) arguments += L",";
    arguments += QuotedForExplorer(item->FolderPath);
  }
  item->TimeAccessed = Now(app.platform.clock);
  Launch(app, L"open", app.ExplorerPath, arguments);
  return true;
}

bool OpenAllMenuItem(Application& app, const ItemRef& item) {
  const OneAtATime walk(app.WalkRunning);
  if (!walk.Entered()) return false;
  OpenLevel(app, *item);
  return true;
}

bool OpenHotKeyItem(Application& app, std::int32_t KeyboardCode) {
  const OneAtATime walk(app.WalkRunning);
  if (!walk.Entered()) return false;
  bool result = false;
  const std::vector<ItemRef> items = app.HotKeyItems;
  for (const ItemRef& item : items) {
    if (item->KeyboardCode != KeyboardCode) continue;
    if (item->ItemType == MIT_OPENALL) {
      OpenLevel(app, *item);
      result = true;
    } else {
      const ItemRef live = app.MainStore->GetMenuItemFromName(item->Name());
      result = OpenMenuItem(app, live ? live : item);
    }
  }
  return result;
}

void ExploreFolder(Application& app, const std::wstring& path, bool WithTree) {
  const std::wstring folder = QuotedForExplorer(path.empty() ? app.PersonalFolder : path);
  Launch(app, L"open", app.ExplorerPath, WithTree ? L"/e," + folder : folder);
}

void FindInFolder(Application& app, const std::wstring& path) {
  Launch(app, L"find", path.empty() ? L"C:\\" : path, {});
}

std::int32_t OpenFile(Application& app, const std::wstring& path) { return Launch(app, L"open", path, {}); }

void EjectDisc(Application& app, const std::wstring& drive) {
  Shell& shell = app.platform.shell;
  shell.mciSendStringA(L"close all");
  shell.mciSendStringA(L"open " + drive + L" type cdaudio alias cdr wait shareable");
  shell.mciSendStringA(L"set cdr door open");
  shell.mciSendStringA(L"close all");
}

void ShowHelp(Application& app, std::int32_t command) {
  if (!FileExists(app.platform.files, app.HelpFile)) {
    app.platform.dialogs.MessageBoxA(app.MainWindow, L"Burrowmark help file is missing. Unable to display help.",
                                     kTitle, kBoxCritical);
    return;
  }
  if (!app.platform.shell.HtmlHelpA(app.HelpFile, command)) OpenFile(app, app.HelpFile);
}

bool ShowOptions(Application& app, clsMenuCollection& store, bool FromMainMenu) {
  if (app.IsOpen(SingleWindow::kOptions) || !app.Calls.ShowOptions) return false;
  app.IsOpen(SingleWindow::kOptions) = true;
  const bool changed = app.Calls.ShowOptions(store, FromMainMenu);
  app.IsOpen(SingleWindow::kOptions) = false;
  if (app.ExitRequested && app.Calls.UnloadMain) app.Calls.UnloadMain();
  return changed;
}

std::wstring GetTransferText(const Application& app) {
  std::wstring text;
  clsRegHandler(app.platform.registry).GetKeyValue(RegistryKey::kCurrentUser, kMainKey, kTransferValue, text);
  return text;
}

void RebuildMainMenu(Application& app, const std::function<void(clsMenuCollection& copy)>& change) {
  clsMenuCollection copy(app.platform.clock);
  CopyStore(app.platform.clock, *app.MainStore, copy);
  if (change) change(copy);
  ClearMenu(app);
  HandOverItems(copy, *app.MainStore);
  RefreshHotKeys(app, *app.MainStore);
  MenuSetupBuild(app, {});
}

}  // namespace burrowmark
