#include "menu/menu_setup.h"

#include <algorithm>
#include <initializer_list>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/failure.h"
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
// Numbers from here on are the system's own: what comes back of a chosen entry are the low 16 bits of its number.
constexpr std::int32_t kNumberEnd = 0xF000;
// The last numbers are for the top level, where "Organize Folders" stands behind all others.
constexpr std::int32_t kTopLevelNumbers = 256;
constexpr std::int32_t kNoMenu = -1;
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
    if (store.Item(i)->OwnerName() == kRootOwner) return store.Item(i)->Name();
  }
  return {};
}

void RemoveNamed(Application& app, clsMenuCollection& store, std::initializer_list<std::wstring_view> names) {
  RemoveEntries(app, store, [names](const clsMenuItem& item) {
    return std::find(names.begin(), names.end(), item.Name()) != names.end();
  });
}

bool TakesPart(const clsMenuItem& item, const std::wstring& filter) {
  return filter.empty() || filter == item.OwnerName() || filter == item.Name();
}

// How many entries of each owner, by its ID, stand ahead in the store.
using PlacesTaken = std::unordered_map<std::int32_t, std::int32_t>;

// Gives the entry its number or popup; false if all numbers are gone.
bool NumberEntry(Application& app, clsMenuItem& item) {
  if (item.SubMenu()) {
    item.SetID(app.platform.menus.CreatePopupMenu());
    item.flags = kMenuByPosition | kMenuPopup;
    return true;
  }
  clsMenuCollection& store = app.MainStore();
  const std::int32_t last = store.IDCounter;
  const std::int32_t number = store.GetNextFreeID();
  if (number >= (item.OwnerName() == kRootOwner ? kNumberEnd : kNumberEnd - kTopLevelNumbers)) {
    store.IDCounter = last;
    return false;
  }
  item.SetID(number);
  item.flags = item.Separator() ? kMenuByPosition | kMenuSeparator : kMenuByPosition;
  return true;
}

// First pass: the entry goes in, at the place that the store's order gives it among its siblings. One that has no
// number stays out and takes no place.
void InsertEntry(Application& app, clsMenuItem& item, PlacesTaken& taken, bool replacesDummy) {
  clsMenuCollection& store = app.MainStore();
  Menus& menus = app.platform.menus;
  item.OwnerID = kNoMenu;
  if (!NumberEntry(app, item)) return;
  bool noOwner = false;
  item.OwnerID = store.GetIDFromName(item.OwnerName(), noOwner);
  item.Position = taken[item.OwnerID];
  const auto put = replacesDummy ? &Menus::ModifyMenuA : &Menus::InsertMenuA;
  const std::wstring text = WithDoubledAmpersands(item.Caption());
  const bool done = (menus.*put)(item.OwnerID, item.Position, item.flags, item.ID(), text);
  if (!done && item.SubMenu()) {
    menus.DestroyMenu(item.ID());
    item.SetID(0);
  }
}

// Second pass: the entry is drawn by the program. Its text stays with it for screen readers and typed letters.
void MakeOwnerDrawn(Application& app, clsMenuItem& item) {
  item.flags = kMenuByPosition | kMenuOwnerDrawn | (item.Separator() ? kMenuSeparator : 0);
  const std::wstring text = WithDoubledAmpersands(item.Caption());
  app.platform.menus.ModifyMenuA(item.OwnerID, item.Position, item.flags, item.ID(), text);
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
      if (TakesPart(*store.Item(i), filter)) entries.push_back(store.Item(i));
    }
    for (const ItemRef& item : entries) item->SetID(0);  // numbers of the last build are free again
    PlacesTaken taken;
    for (std::int32_t i = 1; i <= store.Count(); ++i) {
      const ItemRef item = store.Item(i);
      if (TakesPart(*item, filter)) InsertEntry(app, *item, taken, i == 1 && filter.empty());
      ++taken[item->OwnerID];
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

bool ItemNamed(const std::wstring& name, const clsMenuCollection& store) { return store.ItemExists(name); }

}  // namespace burrowmark
