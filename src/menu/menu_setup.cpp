#include "menu/menu_setup.h"

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "core/file_names.h"
#include "core/hot_keys.h"
#include "core/menu_entries.h"
#include "core/store_copy.h"
#include "core/text.h"
#include "groups/personal_group.h"
#include "groups/system_folders.h"

namespace burrowmark {
namespace {

// One below the first command number of a build.
constexpr std::int32_t kBuildStart = 49;
constexpr std::int32_t kDummyId = 50;
constexpr wchar_t kDummyText[] = L"Dummy";

NewMenuItem FixedEntry(const wchar_t* name, const wchar_t* caption, const std::wstring& beforeKey) {
  NewMenuItem entry;
  entry.Caption = caption;
  entry.OwnerName = kRootOwner;
  entry.Name = name;
  entry.ItemType = name;
  entry.Remark = REMARK_AUTO;
  entry.BeforeKey = beforeKey;
  return entry;
}

NewMenuItem FixedSeparator(const wchar_t* name, const std::wstring& beforeKey) {
  NewMenuItem entry = FixedEntry(name, L"", beforeKey);
  entry.ItemType.clear();
  entry.Separator = true;
  return entry;
}

// The key that the Help entries stand ahead of; empty in a store without a top level.
std::wstring FirstRootKey(const clsMenuCollection& store) {
  if (store.GetMenuItemFromName(MIT_GROUP_USER)) return MIT_GROUP_USER;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    if (store.Item(i)->OwnerName == kRootOwner) return store.Item(i)->Name();
  }
  return {};
}

void RemoveNamed(Application& app, clsMenuCollection& store, std::initializer_list<std::wstring_view> names) {
  RemoveEntries(app, store, [names](const clsMenuItem& item) {
    return std::find(names.begin(), names.end(), item.Name()) != names.end();
  });
}

bool TakesPart(const clsMenuItem& item, const std::wstring& filter) {
  return filter.empty() || filter == item.OwnerName || filter == item.Name();
}

// First pass: the entry goes in, at the place that the store's order gives it among its siblings.
void InsertEntry(Application& app, clsMenuItem& item, bool replacesDummy) {
  clsMenuCollection& store = app.MainStore();
  Menus& menus = app.platform.menus;
  if (item.SubMenu()) {
    item.ID = menus.CreatePopupMenu();
    item.flags = kMenuByPosition | kMenuPopup;
  } else {
    item.ID = store.GetNextFreeID();
    item.flags = item.Separator() ? kMenuByPosition | kMenuSeparator : kMenuByPosition;
  }
  bool noOwner = false;
  item.OwnerID = store.GetIDFromName(item.OwnerName, noOwner);
  item.Position = store.GetNextFreeItemPosition(item.ID, item.OwnerID);
  const std::wstring text = WithDoubledAmpersands(item.Caption());
  const bool done = replacesDummy ? menus.ModifyMenuA(item.OwnerID, item.Position, item.flags, item.ID, text)
                                  : menus.InsertMenuA(item.OwnerID, item.Position, item.flags, item.ID, text);
  if (!done && item.SubMenu()) {
    menus.DestroyMenu(item.ID);
    item.ID = 0;
  }
}

// Second pass: the entry is drawn by the program. Its text stays with it for screen readers and typed letters.
void MakeOwnerDrawn(Application& app, clsMenuItem& item) {
  item.flags = kMenuByPosition | kMenuOwnerDrawn | (item.Separator() ? kMenuSeparator : 0);
  const std::wstring text = WithDoubledAmpersands(item.Caption());
  app.platform.menus.ModifyMenuA(item.OwnerID, item.Position, item.flags, item.ID, text);
}

}  // namespace

void AddFixedEntries(Application& app, clsMenuCollection& store, bool AddSystemGroup) {
  store.AddNewMenuItem(FixedSeparator(MIT_HF_DRIVES_SEP, {}));
  store.AddNewMenuItem(FixedEntry(MIT_HF_ORGANIZE, L"Organize Folders", {}));
  if (app.AC[Appearance::kHelp]) AddHelpEntries(store);
  if (app.AC[Appearance::kOptions]) AddOptionsEntry(store);
  if (AddSystemGroup) SetupSystemFolders(app, store);
}

void AddHelpEntries(clsMenuCollection& store) {
  const std::wstring before = FirstRootKey(store);
  store.AddNewMenuItem(FixedEntry(MIT_HF_HELP, L"Help", before));
  store.AddNewMenuItem(FixedSeparator(MIT_HF_HELP_SEP, before));
}

void RemoveHelpEntries(Application& app, clsMenuCollection& store) {
  RemoveNamed(app, store, {MIT_HF_HELP, MIT_HF_HELP_SEP});
}

void AddOptionsEntry(clsMenuCollection& store) {
  store.AddNewMenuItem(FixedEntry(MIT_HF_SETTINGS, L"Options", MIT_HF_ORGANIZE));
}

void RemoveOptionsEntry(Application& app, clsMenuCollection& store) { RemoveNamed(app, store, {MIT_HF_SETTINGS}); }

void MenuSetupBuild(Application& app, const std::wstring& filter) {
  Skip([&] {
    clsMenuCollection& store = app.MainStore();
    store.FileMenuHandle = app.platform.menus.GetSubMenu(app.platform.menus.GetMenu(app.MainWindow), 0);
    store.IDCounter = kBuildStart;
    std::vector<ItemRef> entries;
    for (std::int32_t i = 1; i <= store.Count(); ++i) {
      const ItemRef item = store.Item(i);
      if (!TakesPart(*item, filter)) continue;
      InsertEntry(app, *item, i == 1 && filter.empty());
      entries.push_back(item);
    }
    for (const ItemRef& item : entries) MakeOwnerDrawn(app, *item);
    if (!filter.empty()) NumberPositions(store);
  });
}

void ReplaceMainStore(Application& app, std::shared_ptr<clsMenuCollection> store) {
  Menus& menus = app.platform.menus;
  const MenuHandle root = menus.GetSubMenu(menus.GetMenu(app.MainWindow), 0);
  while (menus.DeleteMenu(root, 0, kMenuByPosition)) {
  }
  menus.InsertMenuA(root, 0, kMenuByPosition, kDummyId, kDummyText);
  const bool hasHotKeys = !app.HotKeyItems.Store || app.IsMainStore(*app.HotKeyItems.Store);
  app.MainDocument.Store = std::move(store);
  if (hasHotKeys) RefreshHotKeys(app, app.MainDocument.Store);
  MenuSetupBuild(app, {});
}

void RebuildMainMenu(Application& app) {
  auto copy = std::make_shared<clsMenuCollection>(app.platform.clock);
  CopyStore(app.platform.clock, app.MainStore(), *copy);
  ReplaceMainStore(app, std::move(copy));
}

std::shared_ptr<clsMenuCollection> DefaultTree(Application& app) {
  auto store = std::make_shared<clsMenuCollection>(app.platform.clock);
  SetupPersonalGroup(app, *store, PersonalContent::kRecentFolders);
  if (store->ChildrenNumber(MIT_GROUP_USER) == 0) SetupPersonalGroup(app, *store, PersonalContent::kDriveFolders);
  AddFixedEntries(app, *store, app.AC[Appearance::kSystemFolders]);
  return store;
}

bool HasBadFileChars(std::wstring_view text) { return text.find_first_of(kBadFileChars) != std::wstring_view::npos; }

bool ItemNamed(const std::wstring& name, const clsMenuCollection& store) { return store.ItemExists(name); }

}  // namespace burrowmark
