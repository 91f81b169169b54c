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

}  // namespace

clsMenuItem::clsMenuItem(const Clock& clock) : TimeCreated(Now(clock)), clock_(&clock) {}

void clsMenuItem::SetName(std::wstring name) {
  if (name == name_) return;
  const std::wstring old = std::exchange(name_, std::move(name));
  for (ItemWatcher* watcher : watchers_) watcher->NameChanged(*this, old);
}

void clsMenuItem::SetCaption(std::wstring_view caption) { SetCaption2(RemoveBadFileChars(caption)); }

void clsMenuItem::SetCaption2(std::wstring_view caption) {
  caption_ = caption;
  sortCaption_.reset();
  SetCaptionMenu(caption);
}

const std::wstring& clsMenuItem::SortCaption() const {
  if (!sortCaption_) sortCaption_ = UpperCaseText(caption_);
  return *sortCaption_;
}

void clsMenuItem::SetCaptionMenu(std::wstring_view caption) {
  if (caption.size() <= kMenuTitleLength) {
    captionMenu_ = caption;
    return;
  }
  captionMenu_ = caption.substr(0, kMenuTitleHead);
  captionMenu_ += L"...";
  captionMenu_ += caption.substr(caption.size() - kMenuTitleTail);
}

void clsMenuItem::SetSeparator(bool separator) {
  separator_ = separator;
  if (separator) subMenu_ = false;
}

void clsMenuItem::SetSubMenu(bool subMenu) {
  subMenu_ = subMenu;
  if (!subMenu) return;
  separator_ = false;
  ItemType = MIT_GROUP_GENERAL;
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
  const std::wstring& further = ItemType == MIT_PATH ? OpenType : name_;
  const auto* look = std::find_if(std::begin(kTypeLooks), std::end(kTypeLooks), [&](const TypeLook& row) {
    return row.itemType == ItemType && (row.further.empty() || row.further == further);
  });
  if (look == std::end(kTypeLooks)) return;
  IconID = look->icon;
  Description = look->description;
  if (ItemType == MIT_OPENALL) {  // the title alone: what the menu draws stays
    caption_ = L"Open-All";
    sortCaption_.reset();
  }
}

void clsMenuItem::ModifyMenuItem(const ItemChange& change) {
  const bool openAll = change.ItemType == MIT_OPENALL;
  if (openAll) {
    SetCaption(L"Open-All");
  } else if (!change.Caption.empty()) {
    SetCaption(change.Caption);
  }
  if (!change.OwnerName.empty()) OwnerName = change.OwnerName;
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

void clsMenuItem::RemoveWatcher(const ItemWatcher& watcher) {
  const auto found = std::find(watchers_.begin(), watchers_.end(), &watcher);
  if (found != watchers_.end()) watchers_.erase(found);
}

}  // namespace burrowmark
