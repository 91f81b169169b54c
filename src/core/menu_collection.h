// The store: one flat ordered list of items that holds a tree.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/keyed_items.h"
#include "core/menu_item.h"

namespace burrowmark {

// What AddNewMenuItem makes. A field that stays at its default isn't written to the new item; `SubMenu` and `Separator`
// always are, in this order, so that a group has the type of groups whatever `ItemType` says.
struct NewMenuItem {
  std::wstring Caption{};
  std::wstring OwnerName{};
  std::wstring Name{};  // empty: the store gives one
  std::int16_t IconID = 0;
  std::wstring FolderPath{};
  std::wstring ItemType{};
  std::wstring OpenType{};
  std::int32_t DriveType = 0;
  bool SubMenu = false;
  bool Separator = false;
  std::wstring Remark{};
  std::wstring BeforeKey{};  // empty: the sorted place
  bool RenameOnConflict = false;
  bool CaptionAsGiven = false;  // keeps what a file name can't hold
  bool UpdatePath = true;
  std::int32_t KeyboardCode = -1;
  std::wstring UserDescription{};
};

struct CollectionCounts {
  std::int32_t Shortcuts = 0;  // the next two together
  std::int32_t FolderShortcuts = 0;
  std::int32_t ExplorerShortcuts = 0;
  std::int32_t OpenAll = 0;
  std::int32_t Groups = 0;
};

// Names compare exactly, keys without regard to case (core/keyed_items.h). Positions count from 1.
class clsMenuCollection {
 public:
  // `clock` stamps the items that the store makes and must outlive it and them.
  explicit clsMenuCollection(const Clock& clock);

  std::int32_t IDCounter = 0;        // last command number handed out
  std::int32_t MenuNameCounter = 0;  // last number of a generated name
  std::int32_t FileMenuHandle = 0;   // handle of the root popup: the ID of the owner "-1"

  // The next command number is 50 again, the next generated name "N1".
  void ResetCounters();

  // Adds an item ahead of (behind) the entry with this key; an empty key is the end. An item without a `Name` gets one.
  // A key that isn't there, or a `Name` that is taken, leaves the item out.
  void AddBefore(const ItemRef& item, const std::wstring& key, bool UpdatePath);
  void AddAfter(const ItemRef& item, const std::wstring& key, bool UpdatePath);
  // Adds an item in its sorted place, or at the end with `KeepOrder`. An item whose exact `Name` is taken stays out.
  // The result is false on a failure only.
  bool AddOne(const ItemRef& item, bool KeepOrder, bool UpdatePath);
  // Makes an item and adds it.
  ItemRef AddNewMenuItem(const NewMenuItem& values);
  // Changes the item at the position `Index` or, for an Index below 1, the one whose key is the change's `Name`. The
  // user's description isn't touched.
  void ModifyMenuItem(std::int32_t Index, ItemChange change);
  // Takes one entry out. What a group holds stays: whoever removes a group removes its sub-tree first.
  void Remove(const std::wstring& key);

  // The entry at a position, or none.
  ItemRef Item(std::int32_t position) const;
  std::int32_t Count() const;

  // Entries of this exact title under this owner that have another name.
  std::int32_t CountSameCaption(const std::wstring& Caption, const std::wstring& OwnerName,
                                const std::wstring& Name) const;
  bool ItemExists(const std::wstring& Name) const;
  // The first entry of this exact title, owner and kind (group or not) that has another name.
  bool CaptionExists(const std::wstring& Caption, const std::wstring& OwnerName, bool SubMenu,
                     const std::wstring& Name) const;
  ItemRef CaptionExists2(const std::wstring& Caption, const std::wstring& OwnerName, bool SubMenu,
                         const std::wstring& Name) const;
  // No item where there is none.
  ItemRef GetMenuItemFromID(std::int32_t ID) const;
  ItemRef GetMenuItemFromName(const std::wstring& Name) const;
  // The ID of the item with this key, FileMenuHandle for "-1". Without one `Err` is true and the result -1.
  std::int32_t GetIDFromName(const std::wstring& Name, bool& Err) const;

  std::int32_t GetNextFreeID();
  std::wstring GetNextFreeMenuName();
  // Gives the item a title that is free among its siblings: "Copy of X", "Copy (1) of X" ...
  void GetNewItemCaption(clsMenuItem& item) const;
  // The same with "X2", "X3" ...
  void GetNewItemCaption2(clsMenuItem& item) const;

  bool HasChildren(const std::wstring& Name) const;
  // What an owner holds itself, in order.
  std::vector<ItemRef> Children(const std::wstring& OwnerName) const;
  std::int32_t ChildrenNumber(const std::wstring& Name) const;

  // Works out `ItemPath` and `ItemLocation` from the owners' titles.
  void ItemFullPath(clsMenuItem& item) const;
  // Name of the item's top-level owner, "-1" for an item of the top level.
  std::wstring GetItemRootNode(const clsMenuItem& item) const;
  CollectionCounts CountCollection() const;

  static bool MenuItemsEqual(const clsMenuItem& left, const clsMenuItem& right);

 private:
  void EnsureName(clsMenuItem& item);
  // Throws KeyFailure if there is no such key.
  std::size_t PositionOfKey(const std::wstring& key) const;
  void Place(std::size_t position, const ItemRef& item, bool UpdatePath);
  std::wstring InsertionKey(const clsMenuItem& item) const;
  std::wstring GetInsertBeforeKey(const clsMenuItem& item) const;
  void SetItemPath(clsMenuItem& item) const;
  void SetItemLocation(clsMenuItem& item) const;

  const Clock* clock_;
  KeyedItems list_;
};

}  // namespace burrowmark
