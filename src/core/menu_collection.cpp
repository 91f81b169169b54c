#include "core/menu_collection.h"

#include <algorithm>
#include <limits>

#include "core/failure.h"
#include "core/numbers.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kCommandNumberStart = 49;  // one below the first command number
constexpr wchar_t kOpenAllDescription[] = L"Opens all folders shortcuts in its menu level";

void CheckedIncrement(std::int32_t& counter) {
  if (counter == std::numeric_limits<std::int32_t>::max()) throw OverflowFailure("a counter at its end");
  ++counter;
}

enum class SortKind { kUnsorted = 0, kGroupsFirst = 2 };

SortKind GetSortKind(const std::wstring& owner) {
  return owner == kRootOwner || owner == MIT_PATHS_DRIVES ? SortKind::kUnsorted : SortKind::kGroupsFirst;
}

void PutInFront(std::wstring& path, const std::wstring& title) { path = path.empty() ? title : title + L"\\" + path; }

bool KeepsItsPath(const clsMenuItem& item) {
  return item.OwnerName() == kRootOwner && (item.Separator() || item.Name() == MIT_HF_SETTINGS ||
                                            item.Name() == MIT_HF_HELP || item.Name() == MIT_HF_ORGANIZE);
}

std::int32_t Number(std::size_t count) { return static_cast<std::int32_t>(count); }

ItemRef ItemOf(const ListEntry* entry) { return entry == nullptr ? nullptr : entry->item; }

}  // namespace

clsMenuCollection::clsMenuCollection(const Clock& clock) : clock_(&clock) { ResetCounters(); }

void clsMenuCollection::ResetCounters() {
  IDCounter = kCommandNumberStart;
  MenuNameCounter = 0;
}

void clsMenuCollection::EnsureName(clsMenuItem& item) {
  while (item.Name().empty() || list_.HasName(item.Name())) item.SetName(GetNextFreeMenuName());
}

void clsMenuCollection::Place(std::size_t position, const ItemRef& item, bool UpdatePath) {
  list_.Insert(position, item);
  item->SetIconIDDescription();
  if (UpdatePath) ItemFullPath(*item);
}

std::size_t clsMenuCollection::PositionOfKey(const std::wstring& key) const {
  const ListEntry* entry = list_.WithKey(key);
  if (entry == nullptr) throw KeyFailure("a key that isn't there");
  return list_.PositionOf(*entry);
}

void clsMenuCollection::AddBefore(const ItemRef& item, const std::wstring& key, bool UpdatePath) {
  Skip([&] {
    if (item->Name().empty()) EnsureName(*item);
    Place(key.empty() ? list_.Size() : PositionOfKey(key), item, UpdatePath);
  });
}

void clsMenuCollection::AddAfter(const ItemRef& item, const std::wstring& key, bool UpdatePath) {
  Skip([&] {
    if (item->Name().empty()) EnsureName(*item);
    Place(key.empty() ? list_.Size() : PositionOfKey(key) + 1, item, UpdatePath);
  });
}

bool clsMenuCollection::AddOne(const ItemRef& item, bool KeepOrder, bool UpdatePath) {
  return Attempt([&] {
    if (item->Name().empty()) EnsureName(*item);
    if (!list_.HasName(item->Name())) {
      item->SetIconIDDescription();
      std::wstring key;
      if (!KeepOrder) {
        if (item->ItemType == MIT_OPENALL && item->UserDescription.empty()) item->UserDescription = kOpenAllDescription;
        key = InsertionKey(*item);
      }
      list_.Insert(key.empty() ? list_.Size() : PositionOfKey(key), item);
    }
    if (UpdatePath) ItemFullPath(*item);
  });
}

std::wstring clsMenuCollection::InsertionKey(const clsMenuItem& item) const {
  if (item.Name() == MIT_GROUP_USER) {  // the personal group goes ahead of everything at the top level
    const EntryRow& top = list_.Under(kRootOwner).All();
    return top.Empty() ? std::wstring() : top.At(0)->item->Name();
  }
  return item.ItemType == MIT_OPENALL ? std::wstring() : GetInsertBeforeKey(item);
}

std::wstring clsMenuCollection::GetInsertBeforeKey(const clsMenuItem& item) const {
  if (item.Separator() || GetSortKind(item.OwnerName()) == SortKind::kUnsorted) return {};
  const Siblings& siblings = list_.Under(item.OwnerName());
  const ListEntry* place = siblings.FirstBehind(item.SubMenu(), item.SortCaption());
  if (place == nullptr && item.SubMenu()) place = siblings.First(false);
  return place == nullptr ? std::wstring() : place->item->Name();
}

ItemRef clsMenuCollection::AddNewMenuItem(const NewMenuItem& values) {
  auto item = std::make_shared<clsMenuItem>(*clock_);
  if (values.ItemType == MIT_OPENALL) {
    item->SetCaption(L"Open-All");
  } else if (values.CaptionAsGiven) {
    item->SetCaption2(values.Caption);
  } else {
    item->SetCaption(values.Caption);
  }
  item->SetOwnerName(values.OwnerName);
  if (!values.Name.empty()) item->SetName(values.Name);
  if (values.IconID > 0) item->IconID = values.IconID;
  if (!values.FolderPath.empty()) item->FolderPath = values.FolderPath;
  if (!values.ItemType.empty()) item->ItemType = values.ItemType;
  if (!values.OpenType.empty()) item->OpenType = values.OpenType;
  if (values.DriveType > 0) item->DriveType = values.DriveType;
  item->SetSubMenu(values.SubMenu);
  item->SetSeparator(values.Separator);
  if (!values.Remark.empty()) item->Remark = values.Remark;
  if (values.KeyboardCode > -1) item->KeyboardCode = values.KeyboardCode;
  if (!values.UserDescription.empty()) item->UserDescription = values.UserDescription;
  item->TimeCreated = Now(*clock_);
  if (values.BeforeKey.empty()) {
    AddOne(item, false, values.UpdatePath);
  } else {
    AddBefore(item, values.BeforeKey, values.UpdatePath);
  }
  if (values.RenameOnConflict) GetNewItemCaption2(*item);
  return item;
}

void clsMenuCollection::ModifyMenuItem(std::int32_t Index, ItemChange change) {
  const ItemRef item = Index < 1 ? GetMenuItemFromName(change.Name) : Item(Index);
  if (!item) return;
  change.UserDescription.reset();
  item->ModifyMenuItem(change);
  ItemFullPath(*item);
}

void clsMenuCollection::Remove(const std::wstring& key) {
  const ListEntry* entry = list_.WithKey(key);
  if (entry != nullptr) list_.RemoveAt(list_.PositionOf(*entry));
}

ItemRef clsMenuCollection::Item(std::int32_t position) const {
  return position < 1 || position > Count() ? nullptr : list_.At(static_cast<std::size_t>(position) - 1);
}

std::int32_t clsMenuCollection::Count() const { return Number(list_.Size()); }

std::int32_t clsMenuCollection::CountSameCaption(const std::wstring& Caption, const std::wstring& OwnerName,
                                                 const std::wstring& Name) const {
  const EntryRow* titled = list_.Under(OwnerName).Titled(Caption);
  if (titled == nullptr) return 0;
  return Number(static_cast<std::size_t>(
      std::count_if(titled->begin(), titled->end(), [&](auto* entry) { return entry->item->Name() != Name; })));
}

bool clsMenuCollection::ItemExists(const std::wstring& Name) const { return list_.HasName(Name); }

bool clsMenuCollection::CaptionExists(const std::wstring& Caption, const std::wstring& OwnerName, bool SubMenu,
                                      const std::wstring& Name) const {
  return CaptionExists2(Caption, OwnerName, SubMenu, Name) != nullptr;
}

ItemRef clsMenuCollection::CaptionExists2(const std::wstring& Caption, const std::wstring& OwnerName, bool SubMenu,
                                          const std::wstring& Name) const {
  const EntryRow* titled = list_.Under(OwnerName).Titled(Caption);
  if (titled == nullptr) return nullptr;
  const auto found = std::find_if(titled->begin(), titled->end(), [&](auto* entry) {
    return entry->item->Name() != Name && entry->item->SubMenu() == SubMenu;
  });
  return found == titled->end() ? nullptr : (*found)->item;
}

ItemRef clsMenuCollection::GetMenuItemFromID(std::int32_t ID) const { return ItemOf(list_.FirstWithID(ID)); }

ItemRef clsMenuCollection::GetMenuItemFromName(const std::wstring& Name) const { return ItemOf(list_.WithKey(Name)); }

std::int32_t clsMenuCollection::GetIDFromName(const std::wstring& Name, bool& Err) const {
  Err = false;
  if (Name == kRootOwner) return FileMenuHandle;
  const ListEntry* entry = list_.WithKey(Name);
  Err = entry == nullptr;
  return Err ? -1 : entry->item->ID();
}

std::int32_t clsMenuCollection::GetNextFreeID() {
  do {
    CheckedIncrement(IDCounter);
  } while (list_.FirstWithID(IDCounter) != nullptr);
  return IDCounter;
}

std::wstring clsMenuCollection::GetNextFreeMenuName() {
  std::wstring name;
  do {
    CheckedIncrement(MenuNameCounter);
    name = L"N" + DecimalText(MenuNameCounter);
  } while (list_.HasName(name));
  return name;
}

void clsMenuCollection::GetNewItemCaption(clsMenuItem& item) const {
  const std::wstring base = item.Caption();
  for (std::int32_t copy = 0; CaptionExists(item.Caption(), item.OwnerName(), item.SubMenu(), item.Name()); ++copy) {
    item.SetCaption((copy == 0 ? L"Copy of " : L"Copy (" + DecimalText(copy) + L") of ") + base);
  }
}

void clsMenuCollection::GetNewItemCaption2(clsMenuItem& item) const {
  const std::wstring base = item.Caption();
  for (std::int32_t copy = 2; CaptionExists(item.Caption(), item.OwnerName(), item.SubMenu(), item.Name()); ++copy) {
    item.SetCaption(base + DecimalText(copy));
  }
}

bool clsMenuCollection::HasChildren(const std::wstring& Name) const { return !list_.Under(Name).Empty(); }

std::vector<ItemRef> clsMenuCollection::Children(const std::wstring& OwnerName) const {
  std::vector<ItemRef> children;
  for (const ListEntry* entry : list_.Under(OwnerName).All()) children.push_back(entry->item);
  return children;
}

std::int32_t clsMenuCollection::ChildrenNumber(const std::wstring& Name) const {
  return Number(list_.Under(Name).All().Size());
}

void clsMenuCollection::ItemFullPath(clsMenuItem& item) const {
  SetItemPath(item);
  SetItemLocation(item);
}

// All walks to the top are one pass from the last entry to the first: an owner behind what it owns isn't found, and a
// circle of owners in a damaged file ends.

void clsMenuCollection::SetItemPath(clsMenuItem& item) const {
  if (KeepsItsPath(item)) return;
  std::wstring path = item.SubMenu() ? item.Caption() : std::wstring();
  if (item.OwnerName() == kRootOwner) {
    item.ItemPath = path + L"\\";
    return;
  }
  std::wstring current = item.OwnerName();
  const ListEntry* owner = nullptr;
  while (current != kRootOwner && current != MIT_GROUP_USER) {
    owner = list_.LastNamed(current, owner);
    if (owner == nullptr) break;
    PutInFront(path, owner->item->Caption());
    current = owner->item->OwnerName();
  }
  if (!path.empty()) item.ItemPath = path + L"\\";
}

void clsMenuCollection::SetItemLocation(clsMenuItem& item) const {
  std::wstring path;
  std::wstring current = item.OwnerName();
  const ListEntry* owner = nullptr;
  while (current != kRootOwner) {
    owner = list_.LastNamed(current, owner);
    if (owner == nullptr) break;
    PutInFront(path, owner->item->Caption());
    current = owner->item->OwnerName();
  }
  item.ItemLocation = L"\\\\" + path;
}

std::wstring clsMenuCollection::GetItemRootNode(const clsMenuItem& item) const {
  std::wstring top = item.OwnerName();
  std::wstring current = top;
  const ListEntry* owner = nullptr;
  while (current != kRootOwner) {
    owner = list_.LastNamed(current, owner);
    if (owner == nullptr) break;
    current = owner->item->OwnerName();
    if (current != kRootOwner) top = current;
  }
  return top;
}

CollectionCounts clsMenuCollection::CountCollection() const {
  CollectionCounts counts;
  for (std::size_t i = 0; i < list_.Size(); ++i) {
    const clsMenuItem& entry = *list_.At(i);
    if (entry.Separator()) continue;
    if (entry.SubMenu()) {
      ++counts.Groups;
    } else if (entry.ItemType == MIT_OPENALL) {
      ++counts.OpenAll;
    } else if (entry.ItemType == MIT_PATH && entry.OpenType == MIT_PATH_SHORTCUT) {
      ++counts.FolderShortcuts;
    } else if (entry.ItemType == MIT_PATH && entry.OpenType == MIT_PATH_EXPLORER) {
      ++counts.ExplorerShortcuts;
    }
  }
  counts.Shortcuts = counts.FolderShortcuts + counts.ExplorerShortcuts;
  return counts;
}

bool clsMenuCollection::MenuItemsEqual(const clsMenuItem& left, const clsMenuItem& right) {
  return left.Caption() == right.Caption() && left.ItemType == right.ItemType && left.SubMenu() == right.SubMenu() &&
         left.Separator() == right.Separator();
}

}  // namespace burrowmark
