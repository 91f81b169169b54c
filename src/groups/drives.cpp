#include "groups/drives.h"

#include <set>

#include "core/menu_entries.h"
#include "core/text.h"

namespace burrowmark {
namespace {

constexpr wchar_t kGroupDescription[] = L"Contains shortcuts to all fixed and network drives";

std::wstring Titled(const std::wstring& drive, const std::wstring& text) { return drive + L" (" + text + L")"; }

// Kind and name of a drive that has no label in the list. `drive` is in upper case.
void NameByKind(Application& app, const std::wstring& drive, clsDrive& parsed) {
  if (parsed.DriveType == kDriveFloppy) {
    const bool isFloppy = drive == L"A:" || drive == L"B:";
    if (!isFloppy) parsed.DriveType = kDriveRemovable;
    parsed.Name = Titled(drive, isFloppy ? L"3.5-Inch Floppy Disk" : L"Removable Disk");
  } else if (parsed.DriveType == kDriveCompactDisc) {
    const std::wstring label = GetVolumeLabel(app, drive);
    parsed.Name = Titled(drive, label.empty() ? L"Compact Disc" : label);
  } else {
    parsed.Name = drive;
  }
}

void AddGroup(clsMenuCollection& store, const Clock& clock) {
  auto group = std::make_shared<clsMenuItem>(clock);
  group->SetName(MIT_PATHS_DRIVES);
  group->SetCaption(L"Drives");
  group->SetOwnerName(kRootOwner);
  group->SetSubMenu(true);
  group->ItemType = MIT_PATHS_DRIVES;
  group->UserDescription = kGroupDescription;
  store.AddBefore(group, MIT_HF_DRIVES_SEP, true);
}

// The roots of the drives that the group holds already.
std::set<std::wstring> DrivesIn(const clsMenuCollection& store) {
  std::set<std::wstring> roots;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (item->OwnerName() == MIT_PATHS_DRIVES) roots.insert(item->FolderPath);
  }
  return roots;
}

void AddDrive(clsMenuCollection& store, const clsDrive& drive) {
  NewMenuItem item;
  item.Caption = drive.Name;
  item.CaptionAsGiven = true;
  item.OwnerName = MIT_PATHS_DRIVES;
  item.FolderPath = drive.LocalName;
  item.ItemType = MIT_DRIVE;
  item.OpenType = MIT_PATH_EXPLORER;
  item.DriveType = drive.DriveType;
  item.Remark = REMARK_AUTO;
  store.AddNewMenuItem(item);
}

}  // namespace

clsDrive ParseDriveEntry(Application& app, const std::wstring& entry) {
  const std::size_t blank = entry.find(L' ');
  const std::wstring letter = entry.substr(0, blank);
  const std::wstring drive = UpperCaseText(letter);
  clsDrive parsed;
  parsed.LocalName = drive + L"\\";
  parsed.DriveType = app.platform.files.GetDriveTypeA(letter);
  if (blank == std::wstring::npos) {
    NameByKind(app, drive, parsed);
  } else {
    const std::wstring bracketed = entry.substr(blank + 1);
    parsed.Name = Titled(drive, bracketed.size() > 2 ? bracketed.substr(1, bracketed.size() - 2) : std::wstring());
  }
  parsed.IsThere = app.platform.files.DriveExists(parsed.LocalName);
  return parsed;
}

std::wstring GetVolumeLabel(Application& app, const std::wstring& drive) {
  std::wstring label;
  return app.platform.files.GetVolumeInformationA(drive, label) ? label : std::wstring();
}

void SetupDrives(Application& app, clsMenuCollection& store) {
  if (!app.AC[Appearance::kDrives]) return;
  app.DrivesCollection.clear();
  if (!app.IsMainStore(store)) app.DrivesRebuildNeeded = true;
  if (!store.ItemExists(MIT_PATHS_DRIVES)) AddGroup(store, app.platform.clock);
  const std::set<std::wstring> there = DrivesIn(store);
  for (const std::wstring& entry : app.platform.files.DriveList()) {
    if (Trim(entry).empty()) continue;
    app.DrivesCollection.push_back(ParseDriveEntry(app, entry));
    const clsDrive& drive = app.DrivesCollection.back();
    if (drive.IsThere && !there.contains(drive.LocalName)) AddDrive(store, drive);
  }
}

void RemoveDrives(Application& app, clsMenuCollection& store) {
  if (!store.ItemExists(MIT_PATHS_DRIVES)) return;
  if (!app.IsMainStore(store)) app.DrivesRebuildNeeded = true;
  RemoveEntries(app, store, [](const clsMenuItem& item) {
    return item.OwnerName() == MIT_PATHS_DRIVES || item.Name() == MIT_PATHS_DRIVES;
  });
}

bool DrivesChanged(Application& app) {
  std::vector<std::wstring> entries = app.platform.files.DriveList();
  std::erase_if(entries, [](const std::wstring& entry) { return Trim(entry).empty(); });
  if (entries.size() != app.DrivesCollection.size()) return true;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const clsDrive drive = ParseDriveEntry(app, entries[i]);
    const clsDrive& known = app.DrivesCollection[i];
    if (drive.Name != known.Name || drive.DriveType != known.DriveType || drive.IsThere != known.IsThere) return true;
  }
  return false;
}

bool DrivesGroupExists(const Application& app) { return app.MainStore().ItemExists(MIT_PATHS_DRIVES); }

}  // namespace burrowmark
