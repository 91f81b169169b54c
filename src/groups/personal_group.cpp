#include "groups/personal_group.h"

#include <algorithm>

#include "core/file_names.h"
#include "core/numbers.h"
#include "core/services.h"
#include "core/text.h"
#include "groups/special_folders.h"

namespace burrowmark {
namespace {

constexpr std::size_t kMostRecentFolders = 25;
// The counters start and are tested where they always were: 25 folders in all, or 24 groups of 24 folders each.
constexpr int kLastCounted = 24;
constexpr int kDriveUnknownRoot = 1;  // GetDriveTypeA of a root that it can't tell anything about
constexpr std::uint32_t kFileCompressed = 2048;
constexpr std::uint32_t kSkippedFolders = kFileHidden | kFileSystem | kFileCompressed;

struct SampleItem {
  int number;
  bool inFirst;  // in the group of the first row, not beside it
  const wchar_t* caption;
  const wchar_t* folder;  // key of a special folder
  bool group;
  const wchar_t* type;
};

constexpr SampleItem kSample[] = {
    {1, false, L"My Group", L"", true, MIT_GROUP_GENERAL}, {2, false, L"My Documents", L"Personal", false, MIT_PATH},
    {3, true, L"Desktop", L"Desktop", false, MIT_PATH},    {4, true, L"Start Menu", L"Start Menu", false, MIT_PATH},
    {5, true, L"Open-All", L"", false, MIT_OPENALL},
};

// "M" and the number, or the first one from there on that nobody has: an item that was moved elsewhere keeps its own.
std::wstring FreeFixedName(const clsMenuCollection& store, int number) {
  std::wstring name = L"M" + DecimalText(number);
  while (store.ItemExists(name)) name = L"M" + DecimalText(++number);
  return name;
}

ItemRef NewItem(const Application& app, const std::wstring& name, const std::wstring& owner,
                const std::wstring& caption) {
  auto item = std::make_shared<clsMenuItem>(app.platform.clock);
  item->SetName(name);
  item->SetOwnerName(owner);
  item->SetCaption(caption);
  return item;
}

void AddGroup(const Application& app, clsMenuCollection& store) {
  const ItemRef group = NewItem(app, MIT_GROUP_USER, kRootOwner, L"Personal");
  group->SetSubMenu(true);
  group->UserDescription = L"Contains your shortcuts to local and network folders";
  if (store.ItemExists(MIT_HF_HELP_SEP)) {
    store.AddAfter(group, MIT_HF_HELP_SEP, true);
  } else {
    store.AddOne(group, false, true);
  }
}

void AddSample(const Application& app, clsMenuCollection& store) {
  std::wstring first;
  for (const SampleItem& row : kSample) {
    const std::wstring name = FreeFixedName(store, row.number);
    if (first.empty()) first = name;
    const ItemRef item = NewItem(app, name, row.inFirst ? first : MIT_GROUP_USER, row.caption);
    item->SetSubMenu(row.group);
    item->ItemType = row.type;
    item->OpenType = MIT_PATH_EXPLORER;
    if (*row.folder != L'\0') item->FolderPath = GetSpecialFolderPath(app, row.folder);
    store.AddOne(item, false, true);
  }
}

ItemRef AddFolder(const Application& app, clsMenuCollection& store, const std::wstring& owner,
                  const std::wstring& caption, const std::wstring& path) {
  const ItemRef item = NewItem(app, {}, owner, caption);
  item->FolderPath = path;
  item->OpenType = MIT_PATH_EXPLORER;
  store.AddOne(item, false, true);
  return item;
}

void AddRecentFolders(Application& app, clsMenuCollection& store) {
  for (const std::wstring& path : BuildRecentFolders(app)) {
    const ItemRef item = AddFolder(app, store, MIT_GROUP_USER, GetFileName(path), path);
    store.GetNewItemCaption2(*item);
  }
}

// A fixed drive of the machine, as an entry of the drive list tells it.
struct FixedDrive {
  std::wstring name;     // "C:"
  std::wstring caption;  // with its label
};

std::vector<FixedDrive> FixedDrives(Application& app) {
  std::vector<FixedDrive> drives;
  for (const std::wstring& entry : app.platform.files.DriveList()) {
    if (Trim(entry).empty()) continue;
    const std::size_t blank = entry.find(L' ');
    const std::wstring letter = entry.substr(0, blank);
    const std::int32_t type = app.platform.files.GetDriveTypeA(letter);
    if (type != kDriveFixed && type != kDriveUnknownRoot) continue;
    const std::wstring name = UpperCaseText(letter);
    const std::wstring label = blank == std::wstring::npos || entry.size() < blank + 3
                                   ? std::wstring()
                                   : entry.substr(blank + 2, entry.size() - blank - 3);
    drives.push_back({name, label.empty() ? name : name + L" (" + label + L")"});
  }
  return drives;
}

// First-level folders of a drive that aren't hidden, system's or compressed, in the disk's order.
std::vector<std::wstring> VisibleFolders(Application& app, const std::wstring& drive) {
  std::vector<FolderEntry> entries;
  std::vector<std::wstring> names;
  if (!app.platform.files.ListFolder(drive + L"\\", entries)) return names;
  for (const FolderEntry& entry : entries) {
    if ((entry.attributes & kFileDirectory) == 0) continue;
    if ((entry.attributes & kSkippedFolders) != 0) {
      app.platform.windows.DoEvents();
    } else {
      names.push_back(entry.name);
    }
  }
  return names;
}

void AddDriveFolders(Application& app, clsMenuCollection& store) {
  int folders = 0;
  for (const FixedDrive& drive : FixedDrives(app)) {
    for (const std::wstring& name : VisibleFolders(app, drive.name)) {
      if (folders > kLastCounted) return;
      AddFolder(app, store, MIT_GROUP_USER, drive.name + L"_" + name, drive.name + L"\\" + name);
      ++folders;
    }
  }
}

void AddDriveGroups(Application& app, clsMenuCollection& store) {
  int groups = 1;
  for (const FixedDrive& drive : FixedDrives(app)) {
    if (groups > kLastCounted) return;
    ++groups;
    const std::wstring owner = FreeFixedName(store, groups);
    const ItemRef group = NewItem(app, owner, MIT_GROUP_USER, drive.caption);
    group->SetSubMenu(true);
    store.AddOne(group, false, true);
    int folders = 1;
    for (const std::wstring& name : VisibleFolders(app, drive.name)) {
      if (folders > kLastCounted) break;
      AddFolder(app, store, owner, name, drive.name + L"\\" + name);
      ++folders;
    }
  }
}

// The folder that a recent link leads to: the one that holds its file, or its target itself; empty where there is none.
std::wstring FolderOfLink(Application& app, const std::wstring& link) {
  ShellLink read;
  if (!app.platform.shell.ReadShellLink(link, read)) return {};
  FileSystem& files = app.platform.files;
  if (FileExists(files, read.target)) {
    const std::wstring parent = GetFolderName(read.target);
    return files.FolderExists(parent) ? parent : std::wstring();
  }
  return files.FolderExists(read.target) ? read.target : std::wstring();
}

}  // namespace

void SetupPersonalGroup(Application& app, clsMenuCollection& store, PersonalContent content) {
  AddGroup(app, store);
  switch (content) {
    case PersonalContent::kBlank:
      break;
    case PersonalContent::kSample:
      AddSample(app, store);
      break;
    case PersonalContent::kDriveFolders:
      AddDriveFolders(app, store);
      break;
    case PersonalContent::kDriveGroups:
      AddDriveGroups(app, store);
      break;
    case PersonalContent::kRecentFolders:
      AddRecentFolders(app, store);
      break;
  }
}

std::vector<std::wstring> BuildRecentFolders(Application& app) {
  std::vector<std::wstring> folders;
  std::vector<FolderEntry> entries;
  app.platform.files.ListFolder(app.RecentFolder, entries);
  for (const FolderEntry& entry : entries) {
    if ((entry.attributes & kFileDirectory) != 0 || GetFileExtension(entry.name) != L"lnk") continue;
    if (folders.size() >= kMostRecentFolders) break;
    const std::wstring folder = FolderOfLink(app, app.RecentFolder + L"\\" + entry.name);
    const bool known = std::any_of(folders.begin(), folders.end(),
                                   [&folder](const std::wstring& other) { return EqualIgnoringCase(other, folder); });
    if (!folder.empty() && !known) folders.push_back(folder);
  }
  return folders;
}

}  // namespace burrowmark
