#include "core/menu_item.h"

#include <algorithm>
#include <limits>

#include "core/failure.h"
#include "core/file_names.h"
#include "core/text.h"

namespace burrowmark {
namespace {

// Icon and description of a type of item. An empty `further` fits every item of the type.
struct TypeLook {
  std::wstring_view itemType;
  std::wstring_view further;  // the name of a group, the way of opening of a folder shortcut
  std::int16_t icon;
  const wchar_t* description;
};

// The first row that fits counts.
constexpr TypeLook kTypeLooks[] = {
    {MIT_HF_ROOT, {}, 1, L"Root"},
    {MIT_GROUP_GENERAL, MIT_GROUP_USER, 2, L"Personal Group"},
    {MIT_GROUP_GENERAL, MIT_PATHS_SYSTEM, 2, L"System Folders Group"},
    {MIT_GROUP_GENERAL, MIT_PATHS_DRIVES, 2, L"Drives Group"},
    {MIT_GROUP_GENERAL, {}, 2, L"Group"},
    {MIT_PATHS_DRIVES, {}, 2, L"Drives"},
    {MIT_PATHS_SYSTEM, {}, 2, L"System Paths"},
    {MIT_HF_SETTINGS, {}, 5, L"Settings"},
    {MIT_HF_HELP, {}, 6, L"Help"},
    {MIT_HF_ORGANIZE, {}, 7, L"Organize"},
    {MIT_PATH, MIT_PATH_SHORTCUT, 3, L"Folder Shortcut"},
    {MIT_PATH, MIT_PATH_EXPLORER, 4, L"Folder Shortcut"},
    {MIT_OPENALL, {}, 12, L"Open-All"},
};

struct DriveLook {
  std::int32_t driveType;
  std::int16_t icon;
  const wchar_t* description;
};

constexpr DriveLook kDriveLooks[] = {
    {kDriveFloppy, 8, L"3.5-Inch Floppy Disk"}, {kDriveFixed, 9, L"Local Disk"},
    {kDriveRemote, 10, L"Remote Disk"},         {kDriveCompactDisc, 11, L"Compact Disc"},
    {kDriveRemovable, 13, L"Removable Disk"},
};
constexpr DriveLook kOtherDriveLook = {0, 9, L"Disk"};

DriveLook LookOfDrive(std::int32_t driveType) {
  const auto* look = std::find_if(std::begin(kDriveLooks), std::end(kDriveLooks),
                                  [driveType](const DriveLook& row) { return row.driveType == driveType; });
  return look == std::end(kDriveLooks) ? kOtherDriveLook : *look;
}

// What most items say is one text for all of them.
SharedText Usual(std::wstring_view text) {
  static const SharedText usual[] = {MIT_PATH,       MIT_PATH_SHORTCUT,  MIT_PATH_EXPLORER, MIT_GROUP_GENERAL,
                                     MIT_GROUP_USER, L"Folder Shortcut", L"Group"};
  const auto* found = std::find(std::begin(usual), std::end(usual), text);
  return found == std::end(usual) ? SharedText(text) : *found;
}

}  // namespace

clsMenuItem::clsMenuItem(const Clock& clock)
    : ItemType(Usual(MIT_PATH)), OpenType(Usual(MIT_PATH_SHORTCUT)), TimeCreated(Now(clock)), clock_(&clock) {}

template <typename Change>
void clsMenuItem::ChangeWatched(ItemAspect aspect, Change change) {
  for (ItemWatcher* watcher = watchers_; watcher != nullptr; watcher = watcher->next_) watcher->BeforeChange(aspect);
  change();
  for (ItemWatcher* watcher = watchers_; watcher != nullptr; watcher = watcher->next_) watcher->AfterChange(aspect);
}

void clsMenuItem::SetID(std::int32_t id) {
  if (id != id_) ChangeWatched(ItemAspect::kID, [&] { id_ = id; });
}

void clsMenuItem::SetName(std::wstring_view name) {
  if (name_ != name) ChangeWatched(ItemAspect::kName, [&] { name_ = name; });
}

void clsMenuItem::SetOwnerName(std::wstring_view ownerName) {
  if (ownerName_ != ownerName) ChangeWatched(ItemAspect::kPlace, [&] { ownerName_ = Usual(ownerName); });
}

void clsMenuItem::SetCaption(std::wstring_view caption) { SetCaption2(RemoveBadFileChars(caption)); }

void clsMenuItem::SetCaption2(std::wstring_view caption) {
  SetOnlyCaption(caption);
  SetCaptionMenu(caption);
}

void clsMenuItem::SetOnlyCaption(std::wstring_view caption) {
  if (caption_ == caption) return;
  ChangeWatched(ItemAspect::kPlace, [&] {
    caption_ = caption;
    sortCaption_.clear();
  });
}

const std::wstring& clsMenuItem::SortCaption() const {
  if (sortCaption_.empty()) sortCaption_.Set(UpperCaseText(caption_), caption_);
  return sortCaption_;
}

void clsMenuItem::SetCaptionMenu(std::wstring_view caption) {
  if (caption.size() <= kMenuTitleLength) {
    captionMenu_.Set(caption, caption_);
    return;
  }
  std::wstring shortened(caption.substr(0, kMenuTitleHead));
  shortened += L"...";
  shortened += caption.substr(caption.size() - kMenuTitleTail);
  captionMenu_ = shortened;
}

void clsMenuItem::SetSeparator(bool separator) { SetKind(subMenu_ && !separator, separator); }

void clsMenuItem::SetSubMenu(bool subMenu) {
  SetKind(subMenu, separator_ && !subMenu);
  if (subMenu) ItemType = Usual(MIT_GROUP_GENERAL);
}

void clsMenuItem::SetKind(bool subMenu, bool separator) {
  if (subMenu == subMenu_ && separator == separator_) return;
  ChangeWatched(ItemAspect::kPlace, [&] {
    subMenu_ = subMenu;
    separator_ = separator;
  });
}

std::int16_t clsMenuItem::GetNestingLevel() const {
  if (ItemLocation.size() <= 2) return 0;
  const auto depth = 1 + std::count(ItemLocation.begin() + 2, ItemLocation.end(), L'\\');
  if (depth > std::numeric_limits<std::int16_t>::max()) throw OverflowFailure("an item too deep in the tree");
  return static_cast<std::int16_t>(depth);
}

void clsMenuItem::SetIconIDDescription() {
  if (ItemType == MIT_DRIVE) {
    const DriveLook look = LookOfDrive(DriveType);
    IconID = look.icon;
    Description = look.description;
    return;
  }
  const SharedText& further = ItemType == MIT_PATH ? OpenType : name_;
  const auto* look = std::find_if(std::begin(kTypeLooks), std::end(kTypeLooks), [&](const TypeLook& row) {
    return ItemType == row.itemType && (row.further.empty() || further == row.further);
  });
  if (look == std::end(kTypeLooks)) return;
  IconID = look->icon;
  if (Description != look->description) Description = Usual(look->description);
  if (ItemType == MIT_OPENALL) SetOnlyCaption(L"Open-All");  // what the menu draws stays
}

void clsMenuItem::ModifyMenuItem(const ItemChange& change) {
  const bool openAll = change.ItemType == MIT_OPENALL;
  if (openAll) {
    SetCaption(L"Open-All");
  } else if (!change.Caption.empty()) {
    SetCaption(change.Caption);
  }
  if (!change.OwnerName.empty()) SetOwnerName(change.OwnerName);
  if (!change.Name.empty()) SetName(change.Name);
  if (change.IconID > 0) IconID = change.IconID;
  if (!change.FolderPath.empty()) FolderPath = change.FolderPath;
  if (change.SubMenu || openAll) FolderPath.clear();
  if (!change.ItemType.empty()) ItemType = change.ItemType;
  if (!change.OpenType.empty()) OpenType = change.OpenType;
  SetSubMenu(change.SubMenu);
  if (change.DriveType > 0) DriveType = change.DriveType;
  if (change.RefreshIcon) SetIconIDDescription();
  KeyboardCode = change.KeyboardCode;
  if (change.UserDescription) UserDescription = *change.UserDescription;
  TimeModified = Now(*clock_);
}

void clsMenuItem::CopyFrom(const clsMenuItem& other, bool captionAsGiven) {
  SetID(other.id_);
  Position = other.Position;
  if (name_ != other.name_) ChangeWatched(ItemAspect::kName, [&] { name_ = other.name_; });
  NameOld = other.NameOld;
  ChangeWatched(ItemAspect::kPlace, [&] {
    const bool same = captionAsGiven || other.caption_.Text().find_first_of(kBadFileChars) == std::wstring::npos;
    caption_ = same ? other.caption_ : SharedText(RemoveBadFileChars(other.caption_));
    sortCaption_ = same ? other.sortCaption_ : SharedText();
    ownerName_ = other.ownerName_;
    separator_ = other.separator_;
    subMenu_ = other.subMenu_;
  });
  captionMenu_ = other.captionMenu_;
  OwnerID = other.OwnerID;
  flags = other.flags;
  IconID = other.IconID;
  ItemType = other.ItemType;
  OpenType = other.OpenType;
  DriveType = other.DriveType;
  Description = other.Description;
  FolderPath = other.FolderPath;
  NetworkPath = other.NetworkPath;
  ItemPath = other.ItemPath;
  ItemLocation = other.ItemLocation;
  Remark = other.Remark;
  KeyboardCode = other.KeyboardCode;
  UserDescription = other.UserDescription;
  TimeCreated = other.TimeCreated;
  TimeModified = other.TimeModified;
  TimeAccessed = other.TimeAccessed;
}

void clsMenuItem::AddWatcher(ItemWatcher& watcher) {
  watcher.next_ = watchers_;
  watchers_ = &watcher;
}

void clsMenuItem::RemoveWatcher(const ItemWatcher& watcher) {
  ItemWatcher** at = &watchers_;
  while (*at != nullptr && *at != &watcher) at = &(*at)->next_;
  if (*at != nullptr) *at = watcher.next_;
}

}  // namespace burrowmark
