#include "groups/system_folders.h"

#include <iterator>
#include <vector>

#include "core/hot_keys.h"
#include "core/store_copy.h"
#include "groups/special_folders.h"

namespace burrowmark {
namespace {

// A row of the table: a sub-group (with its name and description) or a folder (a key of the resolver, and what
// follows).
struct FolderRow {
  const wchar_t* caption;
  const wchar_t* owner;
  const wchar_t* name;        // of a sub-group; nothing for a folder
  const wchar_t* source;      // description of a sub-group, key of a folder
  const wchar_t* tail = L"";  // behind the resolved folder
  bool important = false;     // one of those that may stand at the group's top
};

constexpr wchar_t kRoot[] = L"SystemRoot";
constexpr wchar_t kSystem32[] = L"System32";

// The order of the rows is the order of arrival in their group.
constexpr FolderRow kRows[] = {
    {L"All Users", MIT_PATHS_SYSTEM, MIT_PATHS_SYSTEM_A, L"Contains shortcuts to All Users system folders"},
    {L"Personal", MIT_PATHS_SYSTEM, MIT_PATHS_SYSTEM_P, L"Contains shortcuts to Personal system folders"},
    {L"Windows", MIT_PATHS_SYSTEM, MIT_PATHS_SYSTEM_W, L"Contains shortcuts to Windows system folders"},
    {L"Desktop", MIT_PATHS_SYSTEM_P, nullptr, L"Desktop", L"", true},
    {L"Favorites", MIT_PATHS_SYSTEM_P, nullptr, L"Favorites", L"", true},
    {L"History", MIT_PATHS_SYSTEM_P, nullptr, L"History", L"", true},
    {L"My Documents", MIT_PATHS_SYSTEM_P, nullptr, L"Personal", L"", true},
    {L"Program Files", MIT_PATHS_SYSTEM_P, nullptr, L"ProgramFilesDir", L"", true},
    {L"Send To", MIT_PATHS_SYSTEM_P, nullptr, L"SendTo", L"", true},
    {L"Windows", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"", true},
    {L"Application Data", MIT_PATHS_SYSTEM_P, nullptr, L"AppData"},
    {L"Administrative Tools", MIT_PATHS_SYSTEM_P, nullptr, L"Administrative Tools"},
    {L"Cache", MIT_PATHS_SYSTEM_P, nullptr, L"Cache"},
    {L"Local Application Data", MIT_PATHS_SYSTEM_P, nullptr, L"Local AppData"},
    {L"Local Settings", MIT_PATHS_SYSTEM_P, nullptr, L"Local Settings"},
    {L"My Pictures", MIT_PATHS_SYSTEM_P, nullptr, L"My Pictures"},
    {L"NetHood", MIT_PATHS_SYSTEM_P, nullptr, L"NetHood"},
    {L"PrintHood", MIT_PATHS_SYSTEM_P, nullptr, L"PrintHood"},
    {L"Start Menu", MIT_PATHS_SYSTEM_P, MIT_PATHS_SYSTEM_PSM, L"Shortcuts to Personal Start Menu folders"},
    {L"Recent", MIT_PATHS_SYSTEM_P, nullptr, L"Recent"},
    {L"Programs", MIT_PATHS_SYSTEM_PSM, nullptr, L"Programs"},
    {L"Start Menu", MIT_PATHS_SYSTEM_PSM, nullptr, L"Start Menu"},
    {L"Startup", MIT_PATHS_SYSTEM_PSM, nullptr, L"Startup"},
    {L"Common Files", MIT_PATHS_SYSTEM_W, nullptr, L"CommonFilesDir"},
    {L"Cookies", MIT_PATHS_SYSTEM_W, nullptr, L"Cookies"},
    {L"Cursors", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Cursors"},
    {L"Downloaded Program Files", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Downloaded Program Files"},
    {L"Fonts", MIT_PATHS_SYSTEM_W, nullptr, L"Fonts"},
    {L"Inf", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Inf"},
    {L"Java", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Java"},
    {L"Media", MIT_PATHS_SYSTEM_W, nullptr, L"MediaPath"},
    {L"Offline Web Pages", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Offline Web Pages"},
    {L"Speech", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Speech"},
    {L"System", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\System"},
    {L"System32", MIT_PATHS_SYSTEM_W, nullptr, kSystem32},
    {L"System32_drivers", MIT_PATHS_SYSTEM_W, nullptr, kSystem32, L"\\drivers"},
    {L"System32_drivers_etc", MIT_PATHS_SYSTEM_W, nullptr, kSystem32, L"\\drivers\\etc"},
    {L"Tasks", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Tasks"},
    {L"Temp", MIT_PATHS_SYSTEM_W, nullptr, kRoot, L"\\Temp"},
    {L"Templates", MIT_PATHS_SYSTEM_W, nullptr, L"Templates"},
    {L"Application Data", MIT_PATHS_SYSTEM_A, nullptr, L"Common AppData"},
    {L"Desktop", MIT_PATHS_SYSTEM_A, nullptr, L"Common Desktop"},
    {L"Documents", MIT_PATHS_SYSTEM_A, nullptr, L"Common Documents"},
    {L"Templates", MIT_PATHS_SYSTEM_A, nullptr, L"Common Templates"},
    {L"Start Menu", MIT_PATHS_SYSTEM_A, MIT_PATHS_SYSTEM_ASM, L"Shortcuts to All Users Start Menu folders"},
    {L"Administrative Tools", MIT_PATHS_SYSTEM_ASM, nullptr, L"Common Administrative Tools"},
    {L"Programs", MIT_PATHS_SYSTEM_ASM, nullptr, L"Common Programs"},
    {L"Start Menu", MIT_PATHS_SYSTEM_ASM, nullptr, L"Common Start Menu"},
    {L"Startup", MIT_PATHS_SYSTEM_ASM, nullptr, L"Common Startup"},
};
static_assert(std::size(kRows) == 49);

void AddTopGroup(const Application& app, clsMenuCollection& store) {
  auto group = std::make_shared<clsMenuItem>(app.platform.clock);
  group->SetName(MIT_PATHS_SYSTEM);
  group->SetCaption(L"System Folders");
  group->SetOwnerName(kRootOwner);
  group->SetSubMenu(true);
  group->ItemType = MIT_PATHS_SYSTEM;
  group->UserDescription = L"Contains shortcuts to Windows system folders";
  store.AddBefore(group, store.ItemExists(MIT_PATHS_DRIVES) ? MIT_PATHS_DRIVES : MIT_HF_DRIVES_SEP, true);
}

void AddSubGroup(clsMenuCollection& store, const FolderRow& row) {
  NewMenuItem item;
  item.Caption = row.caption;
  item.OwnerName = row.owner;
  item.Name = row.name;
  item.SubMenu = true;
  item.UserDescription = row.source;
  store.AddNewMenuItem(item);
}

std::wstring PathOf(const Application& app, const FolderRow& row) {
  const bool isRoot = std::wstring_view(row.source) == kRoot;
  const std::wstring path = isRoot ? app.WindowsFolder : GetSpecialFolderPath(app, row.source);
  return path.empty() ? path : path + row.tail;
}

bool HoldsFolder(const clsMenuCollection& store, const std::wstring& owner, const std::wstring& path) {
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (item->OwnerName() == owner && item->FolderPath == path) return true;
  }
  return false;
}

std::wstring OwnerOf(const Application& app, const FolderRow& row) {
  return row.important && app.AC[Appearance::kImportantFirst] ? MIT_PATHS_SYSTEM : row.owner;
}

void AddFolder(Application& app, clsMenuCollection& store, const FolderRow& row) {
  const std::wstring path = PathOf(app, row);
  if (path.empty() || !app.platform.files.FolderExists(path)) return;
  NewMenuItem item;
  item.Caption = row.caption;
  item.OwnerName = OwnerOf(app, row);
  if (HoldsFolder(store, item.OwnerName, path)) return;
  item.FolderPath = path;
  item.ItemType = MIT_PATH;
  item.OpenType = MIT_PATH_EXPLORER;
  store.AddNewMenuItem(item);
}

// The entry that the program made of a row where the options asked for it before; none where there is none.
ItemRef EntryElsewhere(const Application& app, const clsMenuCollection& store, const FolderRow& row) {
  const std::wstring now = OwnerOf(app, row);
  const std::wstring path = PathOf(app, row);
  if (path.empty()) return nullptr;
  for (const std::wstring& owner : {std::wstring(row.owner), std::wstring(MIT_PATHS_SYSTEM)}) {
    if (owner == now) continue;
    for (const ItemRef& item : store.Children(owner)) {
      if (!item->SubMenu() && item->FolderPath == path && item->Caption() == row.caption) return item;
    }
  }
  return nullptr;
}

// What the user gave it, a hot key among it, comes along.
void MoveEntry(const Application& app, clsMenuCollection& store, const FolderRow& row) {
  const ItemRef old = EntryElsewhere(app, store, row);
  if (!old) return;
  auto moved = std::make_shared<clsMenuItem>(app.platform.clock);
  CloneMenuItem(*old, *moved);
  moved->SetOwnerName(OwnerOf(app, row));
  store.Remove(old->Name());
  if (!HoldsFolder(store, moved->OwnerName(), moved->FolderPath)) store.AddOne(moved, false, true);
}

bool IsOfTable(const clsMenuItem& item, const std::vector<std::wstring>& paths) {
  for (std::size_t i = 0; i < std::size(kRows); ++i) {
    const FolderRow& row = kRows[i];
    if (row.name != nullptr && item.Name() == row.name) return true;
    const bool stands = item.OwnerName() == row.owner || (row.important && item.OwnerName() == MIT_PATHS_SYSTEM);
    if (stands && row.name == nullptr && item.Caption() == row.caption && item.FolderPath == paths[i]) return true;
  }
  return false;
}

}  // namespace

void SetupSystemFolders(Application& app, clsMenuCollection& store) {
  AddTopGroup(app, store);
  for (const FolderRow& row : kRows) {
    if (row.name != nullptr) {
      AddSubGroup(store, row);
    } else {
      AddFolder(app, store, row);
    }
  }
}

std::wstring DeleteGroupQuestion(const std::wstring& title) {
  return L"Do you want to delete " + title + L" group?\r\nYou can always add it back later in Options dialog box.";
}

void RemoveSystemFolders(Application& app, clsMenuCollection& store) {
  const auto group = GetSystemFoldersCollection(app, store);
  bool hotKeyGone = false;
  for (std::int32_t i = group->Count(); i >= 1; --i) {
    hotKeyGone = hotKeyGone || group->Item(i)->KeyboardCode > -1;
    store.Remove(group->Item(i)->Name());
  }
  if (hotKeyGone) RefreshHotKeysOf(app, store);
}

void RebuildSystemFolders(Application& app, clsMenuCollection& store) {
  for (const FolderRow& row : kRows) {
    if (row.important) MoveEntry(app, store, row);
  }
  SetupSystemFolders(app, store);
  RefreshHotKeysOf(app, store);
}

bool HoldsUsersItems(const Application& app, const clsMenuCollection& store) {
  std::vector<std::wstring> paths;
  for (const FolderRow& row : kRows) paths.push_back(row.name == nullptr ? PathOf(app, row) : std::wstring());
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (store.GetItemRootNode(*item) == MIT_PATHS_SYSTEM && !IsOfTable(*item, paths)) return true;
  }
  return false;
}

std::shared_ptr<clsMenuCollection> GetSystemFoldersCollection(const Application& app, const clsMenuCollection& store) {
  return CopyGroup(app.platform.clock, store, MIT_PATHS_SYSTEM);
}

}  // namespace burrowmark
