#include "menu/menu_actions.h"

#include <vector>

#include "core/failure.h"
#include "core/folder_tests.h"
#include "core/help.h"
#include "core/registry.h"
#include "core/registry_keys.h"

namespace burrowmark {
namespace {

constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kNoDirectory[] = L"0";  // no folder has this name

// The file manager ends an argument at a comma unless quotes hold it together.
std::wstring QuotedForExplorer(const std::wstring& path) {
  return path.find(L',') == std::wstring::npos ? path : L"\"" + path + L"\"";
}

std::int32_t Launch(Application& app, const wchar_t* verb, const std::wstring& file, const std::wstring& parameters) {
  return app.platform.shell.ShellExecuteA(verb, file, parameters, kNoDirectory, kShowNormal);
}

// A server that doesn't answer couldn't show its folder either.
bool MayOpen(FolderTests& tests, const clsMenuItem& item) {
  return item.ItemType != MIT_PATH || tests.Test(item.FolderPath) == FolderAnswer::kThere;
}

void LaunchItem(Application& app, clsMenuItem& item) {
  std::wstring arguments = item.OpenType == MIT_PATH_EXPLORER ? L"/e" : L"";
  if (!item.FolderPath.empty()) {
    if (!arguments.empty()) arguments += L",";
    arguments += QuotedForExplorer(item.FolderPath);
  }
  item.TimeAccessed = Now(app.platform.clock);
  Launch(app, L"open", app.ExplorerPath, arguments);
}

bool StandsIn(const clsMenuCollection& store, const ItemRef& item) {
  return store.GetMenuItemFromName(item->Name()) == item;
}

void OfferDeletion(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
  const std::wstring question =
      L"Path '" + item->FolderPath +
      L"' does not exist or is not a directory. Do you want to delete the shortcut from the list?";
  if (app.platform.dialogs.MessageBoxA(app.MainWindow, question, kTitle, kBoxYesNoCancel | kBoxWarning) != kAnswerYes) {
    return;
  }
  if (app.Calls.DeleteShortcut && StandsIn(*store, item)) app.Calls.DeleteShortcut(store, item);
}

// The question comes when the program is at rest, if the item is still there and its folder still isn't.
void OfferDeletionLater(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
  if (!app.GC[General::kAskForDeletingDead] || !app.HotKeyItems.Questioned.insert(item).second) return;
  app.Requests.Add([&app, store = std::weak_ptr<clsMenuCollection>(store), item] {
    const std::shared_ptr<clsMenuCollection> there = store.lock();
    FolderTests tests(app.platform);
    if (there && StandsIn(*there, item) && !MayOpen(tests, *item)) OfferDeletion(app, there, item);
    app.HotKeyItems.Questioned.erase(item);
  });
}

// The shortcuts beside an Open-All entry. What a box in between takes out is left out when its turn comes.
std::vector<ItemRef> ShortcutsBeside(const clsMenuCollection& store, const clsMenuItem& openAll) {
  std::vector<ItemRef> items;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (item->OwnerName() == openAll.OwnerName() && item->ItemType == MIT_PATH) items.push_back(item);
  }
  return items;
}

bool OpenTested(Application& app, FolderTests& tests, const std::shared_ptr<clsMenuCollection>& store,
                const ItemRef& item) {
  if (MayOpen(tests, *item)) {
    LaunchItem(app, *item);
    return true;
  }
  if (app.GC[General::kAskForDeletingDead]) OfferDeletion(app, store, item);
  return false;
}

}  // namespace

void MenuItemChosen(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
  Skip([&] {
    if (item->Name() == MIT_HF_HELP) {
      ShowHelp(app, kHelpContents);
    } else if (item->Name() == MIT_HF_SETTINGS) {
      ShowOptions(app);
    } else if (item->Name() == MIT_HF_ORGANIZE) {
      if (app.Calls.OpenEditor) app.Calls.OpenEditor();
    } else if (item->ItemType == MIT_OPENALL) {
      OpenAllMenuItem(app, store, item);
    } else if (item->ItemType == MIT_PATH || item->ItemType == MIT_DRIVE) {
      OpenMenuItem(app, store, item);
    }
  });
}

bool OpenMenuItem(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
  FolderTests tests(app.platform);
  return OpenTested(app, tests, store, item);
}

void OpenAllMenuItem(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
  const Busy walk(app.Requests, BusyWith::kWalk);
  FolderTests tests(app.platform);
  for (const ItemRef& shortcut : ShortcutsBeside(*store, *item)) {
    if (StandsIn(*store, shortcut)) OpenTested(app, tests, store, shortcut);
  }
}

bool OpenHotKeyItem(Application& app, std::int32_t KeyboardCode) {
  bool result = false;
  const HotKeyList list = app.HotKeyItems;
  FolderTests tests(app.platform);
  for (const ItemRef& item : list.Items) {
    if (item->KeyboardCode != KeyboardCode) continue;
    const bool isOpenAll = item->ItemType == MIT_OPENALL;
    for (const ItemRef& shortcut : isOpenAll ? ShortcutsBeside(*list.Store, *item) : std::vector<ItemRef>{item}) {
      result = MayOpen(tests, *shortcut);
      if (result) {
        LaunchItem(app, *shortcut);
      } else {
        OfferDeletionLater(app, list.Store, shortcut);
      }
    }
    result = result || isOpenAll;
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

bool ShowOptions(Application& app) {
  return !app.Windows.IsOpen(ProgramWindow::kOptions) && app.Calls.ShowOptions && app.Calls.ShowOptions();
}

std::wstring GetTransferText(const Application& app) {
  std::wstring text;
  clsRegHandler(app.platform.registry).GetKeyValue(RegistryKey::kCurrentUser, kMainKey, kTransferValue, text);
  return text;
}

}  // namespace burrowmark
