#include "groups/personal_group.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "core/dates.h"
#include "core/failure.h"
#include "core/file_names.h"
#include "core/folder_tests.h"
#include "core/numbers.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "core/text.h"
#include "groups/special_folders.h"

namespace burrowmark {
namespace {

constexpr std::size_t kMostRecentFolders = 25;
// The counters start and are tested where they always were: 25 folders in all, or 24 groups of 24 folders each.
constexpr int kLastCounted = 24;
constexpr std::int32_t kPatience = 2000;  // milliseconds for a server that links lead to
constexpr int kDriveUnknownRoot = 1;      // GetDriveTypeA of a root that it can't tell anything about
constexpr std::uint32_t kSkippedFolders = kFileHidden | kFileSystem | kFileCompressed;

struct SampleItem {
  bool below;
  const wchar_t* caption;
  const wchar_t* folder;  // key of a special folder
  bool group;
  const wchar_t* type;
};

constexpr SampleItem kSample[] = {
    {false, L"My Group", L"", true, MIT_GROUP_GENERAL}, {false, L"My Documents", L"Personal", false, MIT_PATH},
    {true, L"Desktop", L"Desktop", false, MIT_PATH},    {true, L"Start Menu", L"Start Menu", false, MIT_PATH},
    {true, L"Open-All", L"", false, MIT_OPENALL},
};

// "M" and the number, or the first one from there on that nobody has: an item that was moved elsewhere keeps its own.
std::wstring FreeFixedName(const clsMenuCollection& store, int number) {
  std::wstring name = L"M" + DecimalText(number);
  while (store.ItemExists(name)) name = L"M" + DecimalText(++number);
  return name;
}

void AddGroup(const Application& app, clsMenuCollection& store) {
  auto group = std::make_shared<clsMenuItem>(app.platform.clock);
  group->SetName(MIT_GROUP_USER);
  group->SetOwnerName(kRootOwner);
  group->SetCaption(L"Personal");
  group->SetSubMenu(true);
  group->UserDescription = L"Contains your shortcuts to local and network folders";
  if (store.ItemExists(MIT_HF_HELP_SEP)) {
    store.AddAfter(group, MIT_HF_HELP_SEP, true);
  } else {
    store.AddOne(group, false, true);
  }
}

ItemRef AddEntry(const Application& app, clsMenuCollection& store, const std::wstring& owner,
                 const PersonalEntry& entry) {
  auto item = std::make_shared<clsMenuItem>(app.platform.clock);
  if (entry.number > 0) item->SetName(FreeFixedName(store, entry.number));
  item->SetOwnerName(owner);
  item->SetCaption(entry.caption);
  item->SetSubMenu(entry.group);
  if (!entry.group) item->ItemType = entry.type;
  item->OpenType = MIT_PATH_EXPLORER;
  item->FolderPath = entry.path;
  store.AddOne(item, false, true);
  store.GetNewItemCaption2(*item);
  return item;
}

PersonalEntries ReadSample(const Application& app) {
  PersonalEntries entries;
  for (const SampleItem& row : kSample) {
    entries.push_back({.number = static_cast<int>(entries.size()) + 1,
                       .caption = row.caption,
                       .path = *row.folder == L'\0' ? std::wstring() : GetSpecialFolderPath(app, row.folder),
                       .group = row.group,
                       .below = row.below,
                       .type = row.type});
  }
  return entries;
}

PersonalEntries ReadRecentFolders(Application& app) {
  PersonalEntries entries;
  for (const std::wstring& path : BuildRecentFolders(app)) {
    entries.push_back({.caption = GetFileName(path), .path = path});
  }
  return entries;
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

PersonalEntries ReadDriveFolders(Application& app) {
  PersonalEntries entries;
  int folders = 0;
  for (const FixedDrive& drive : FixedDrives(app)) {
    for (const std::wstring& name : VisibleFolders(app, drive.name)) {
      if (folders > kLastCounted) return entries;
      entries.push_back({.caption = drive.name + L"_" + name, .path = drive.name + L"\\" + name});
      ++folders;
    }
  }
  return entries;
}

PersonalEntries ReadDriveGroups(Application& app) {
  PersonalEntries entries;
  int groups = 1;
  for (const FixedDrive& drive : FixedDrives(app)) {
    if (groups > kLastCounted) break;
    ++groups;
    entries.push_back({.number = groups, .caption = drive.caption, .group = true});
    int folders = 1;
    for (const std::wstring& name : VisibleFolders(app, drive.name)) {
      if (folders > kLastCounted) break;
      entries.push_back({.caption = name, .path = drive.name + L"\\" + name, .below = true});
      ++folders;
    }
  }
  return entries;
}

// A link of the Recent folder and the moment at which it was written.
struct RecentLink {
  std::wstring path;
  Date written = 0;
  std::optional<std::wstring> target;  // once it was read; empty where it can't be
};

std::vector<RecentLink> RecentLinks(Application& app) {
  std::vector<RecentLink> links;
  std::vector<FolderEntry> entries;
  FileSystem& files = app.platform.files;
  files.ListFolder(app.RecentFolder, entries);
  for (const FolderEntry& entry : entries) {
    if ((entry.attributes & kFileDirectory) != 0 || GetFileExtension(entry.name) != L"lnk") continue;
    RecentLink link;
    link.path = app.RecentFolder + L"\\" + entry.name;
    const std::optional<FileFacts> facts = files.GetFileFacts(link.path);
    Skip([&] {
      if (facts && facts->modified) link.written = DateOf(*facts->modified);
    });
    links.push_back(std::move(link));
  }
  std::stable_sort(links.begin(), links.end(),
                   [](const RecentLink& left, const RecentLink& right) { return left.written > right.written; });
  return links;
}

// Tells the folder that a path leads to, the one that holds it where it is a file. False if there is nothing, and its
// share isn't there either.
bool FindFolder(FileSystem& files, const std::wstring& path, std::wstring& folder) {
  if (FileExists(files, path)) {
    const std::wstring parent = GetFolderName(path);
    if (files.FolderExists(parent)) folder = parent;
    return true;
  }
  if (files.FolderExists(path)) folder = path;
  return !folder.empty() || files.FolderExists(ShareOf(path));
}

const std::wstring& TargetOf(Application& app, RecentLink& link) {
  if (!link.target) {
    ShellLink read;
    link.target = app.platform.shell.ReadShellLink(link.path, read) ? read.target : std::wstring();
  }
  return *link.target;
}

// The folder that a link's target is or stands in; empty where there is none.
std::wstring FolderOf(FolderTests& tests, const std::wstring& target) {
  if (target.empty()) return {};
  const auto folder = std::make_shared<std::wstring>();
  const bool told =
      tests.Ask(target, [folder, target](FileSystem& files) { return FindFolder(files, target, *folder); });
  return told ? *folder : std::wstring();
}

}  // namespace

PersonalEntries ReadPersonalContent(Application& app, PersonalContent content) {
  switch (content) {
    case PersonalContent::kBlank:
      break;
    case PersonalContent::kSample:
      return ReadSample(app);
    case PersonalContent::kDriveFolders:
      return ReadDriveFolders(app);
    case PersonalContent::kDriveGroups:
      return ReadDriveGroups(app);
    case PersonalContent::kRecentFolders:
      return ReadRecentFolders(app);
  }
  return {};
}

void SetupPersonalGroup(Application& app, clsMenuCollection& store, const PersonalEntries& entries) {
  AddGroup(app, store);
  std::wstring group = MIT_GROUP_USER;
  for (const PersonalEntry& entry : entries) {
    const ItemRef item = AddEntry(app, store, entry.below ? group : MIT_GROUP_USER, entry);
    if (entry.group) group = item->Name();
  }
}

void SetupPersonalGroup(Application& app, clsMenuCollection& store, PersonalContent content) {
  SetupPersonalGroup(app, store, ReadPersonalContent(app, content));
}

void RemovePersonalGroup(Application& app, clsMenuCollection& store) {
  const auto group = CopyGroup(app.platform.clock, store, MIT_GROUP_USER);
  for (std::int32_t i = group->Count(); i >= 1; --i) store.Remove(group->Item(i)->Name());
}

std::vector<std::wstring> BuildRecentFolders(Application& app) {
  std::vector<std::wstring> folders;
  FolderTests tests(app.platform, kPatience);
  bool askedServers = false;
  std::vector<RecentLink> links = RecentLinks(app);
  for (RecentLink& link : links) {
    if (folders.size() >= kMostRecentFolders) break;
    const std::wstring& target = TargetOf(app, link);
    if (!askedServers && IsNetworkPlace(app.platform.files, target)) {
      askedServers = true;
      std::vector<std::wstring> targets;
      targets.reserve(links.size());
      for (RecentLink& each : links) targets.push_back(TargetOf(app, each));
      tests.AskServers(targets);
    }
    const std::wstring folder = FolderOf(tests, target);
    const bool known = std::any_of(folders.begin(), folders.end(),
                                   [&folder](const std::wstring& other) { return EqualIgnoringCase(other, folder); });
    if (!folder.empty() && !known) folders.push_back(folder);
  }
  return folders;
}

}  // namespace burrowmark
