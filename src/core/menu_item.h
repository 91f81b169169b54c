// One entry of the tree: a group, a folder shortcut, a drive, an Open-All entry, a separator or a fixed entry.
//
// An item doesn't point at its owner or at what it holds: its place in the tree is `OwnerName`, the `Name` of its
// owner, and the order of its siblings is their order in the store (core/menu_collection.h).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/mit_words.h"
#include "core/shared_text.h"

namespace burrowmark {

class clsMenuItem;
using ItemRef = std::shared_ptr<clsMenuItem>;

// What a list of items finds them by.
enum class ItemAspect : std::uint8_t {
  kName,
  kPlace,  // the owner, the title, and whether the item is a group or a separator
  kID,
};
inline constexpr ItemAspect kItemAspects[] = {ItemAspect::kName, ItemAspect::kPlace, ItemAspect::kID};

// Hears of changes that a list of items must know to find them again.
class ItemWatcher {
 public:
  virtual ~ItemWatcher() = default;
  virtual void BeforeChange(ItemAspect aspect) = 0;
  virtual void AfterChange(ItemAspect aspect) = 0;

 private:
  friend class clsMenuItem;
  ItemWatcher* next_ = nullptr;  // of the same item
};

// Kinds of drive that `DriveType` holds: those of GetDriveTypeA, and one of the program's own.
inline constexpr std::int32_t kDriveFloppy = 2;
inline constexpr std::int32_t kDriveFixed = 3;
inline constexpr std::int32_t kDriveRemote = 4;
inline constexpr std::int32_t kDriveCompactDisc = 5;
inline constexpr std::int32_t kDriveRemovable = 6;  // removable, with another letter than A and B

// Longest title that the menu draws, and what is kept of a longer one around "...".
inline constexpr std::size_t kMenuTitleLength = 50;
inline constexpr std::size_t kMenuTitleHead = 22;
inline constexpr std::size_t kMenuTitleTail = 25;

// What `ModifyMenuItem` writes. An empty text, and a number at its default, keeps what the item has; `SubMenu` and
// `KeyboardCode` are always written.
struct ItemChange {
  std::wstring Caption{};
  std::wstring OwnerName{};
  std::wstring Name{};
  std::int16_t IconID = 0;
  std::wstring FolderPath{};
  std::wstring ItemType{};
  std::wstring OpenType{};
  bool SubMenu = false;
  std::int32_t DriveType = 0;
  bool RefreshIcon = false;
  std::int32_t KeyboardCode = -1;
  std::optional<std::wstring> UserDescription{};  // absent: not touched; an empty text clears the description
};

class clsMenuItem {
 public:
  // `clock` must outlive the item: it stamps `TimeCreated` now and `TimeModified` later.
  explicit clsMenuItem(const Clock& clock);
  clsMenuItem(const clsMenuItem&) = delete;
  clsMenuItem& operator=(const clsMenuItem&) = delete;

  // What the last build of the popup menu gave to the entry (menu/menu_setup.h). Not kept in the file.
  std::int32_t ID() const { return id_; }  // a group's popup handle; otherwise a command number
  void SetID(std::int32_t id);
  std::int32_t Position = 0;  // place among the entries of one owner, from 0
  std::int32_t OwnerID = 0;
  std::int32_t flags = 0;  // native menu flags

  // The unique key of the item in its store, never shown.
  const std::wstring& Name() const { return name_; }
  void SetName(std::wstring_view name);
  // The name that the item had before a paste gave it a new one.
  SharedText NameOld;

  // The title. SetCaption leaves out what a file name can't hold, SetCaption2 takes the text as it is; both write
  // `CaptionMenu` too.
  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption);
  void SetCaption2(std::wstring_view caption);
  // The title in upper case, which is what sorts siblings.
  const std::wstring& SortCaption() const;
  // The title as the menu draws it, at most 50 characters long.
  const std::wstring& CaptionMenu() const { return captionMenu_; }
  void SetCaptionMenu(std::wstring_view caption);

  const std::wstring& OwnerName() const { return ownerName_; }
  void SetOwnerName(std::wstring_view ownerName);
  std::int16_t IconID = 3;  // number of the icon, from 1

  bool Separator() const { return separator_; }
  // A separator is no group.
  void SetSeparator(bool separator);
  bool SubMenu() const { return subMenu_; }
  // A group is no separator, and its type becomes MIT_GROUP_GENERAL; another type is written afterwards.
  void SetSubMenu(bool subMenu);

  SharedText ItemType;  // MIT_PATH and MIT_PATH_SHORTCUT at first
  SharedText OpenType;
  std::int32_t DriveType = kDriveFixed;
  SharedText Description;  // of the type, in a word or two
  SharedText FolderPath;
  SharedText NetworkPath;
  SharedText ItemPath;      // titles of the owners below the personal group, each followed by a backslash
  SharedText ItemLocation;  // two backslashes and the titles of all owners, a backslash between them
  SharedText Remark;
  std::int32_t KeyboardCode = -1;
  SharedText UserDescription;
  Date TimeCreated;
  Date TimeModified = 0;
  Date TimeAccessed = 0;

  // Depth in the tree by `ItemLocation`, 0 at the top. Throws OverflowFailure past 32,767.
  std::int16_t GetNestingLevel() const;
  // Sets `IconID` and `Description` to what the item's type, name and ways of opening give.
  void SetIconIDDescription();
  // Writes a change in the order of its fields and stamps `TimeModified`.
  void ModifyMenuItem(const ItemChange& change);

  // Takes on all that another item says, and shares its texts. A title that a file name can't hold is kept as it is if
  // `captionAsGiven`.
  void CopyFrom(const clsMenuItem& other, bool captionAsGiven);

  void AddWatcher(ItemWatcher& watcher);
  void RemoveWatcher(const ItemWatcher& watcher);

 private:
  template <typename Change>
  void ChangeWatched(ItemAspect aspect, Change change);
  void SetOnlyCaption(std::wstring_view caption);
  void SetKind(bool subMenu, bool separator);

  const Clock* clock_;
  std::int32_t id_ = 0;
  SharedText name_;
  SharedText ownerName_;
  SharedText caption_;
  SharedText captionMenu_;
  mutable SharedText sortCaption_;  // empty: not worked out
  bool separator_ = false;
  bool subMenu_ = false;
  ItemWatcher* watchers_ = nullptr;
};

}  // namespace burrowmark
