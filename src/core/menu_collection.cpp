#include "core/menu_collection.h"

#include <limits>

#include "core/failure.h"
#include "core/numbers.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kCommandNumberStart = 49;  // one below the first command number
constexpr wchar_t kOpenAllDescription[] = L"Opens all folders shortcuts in its menu level";

// Steps of a scan that counts in 16 bits.
class ShortCounter {
 public:
  void Step() {
    if (value_ == std::numeric_limits<std::int16_t>::max()) throw OverflowFailure("a scan past 32,767 entries");
    ++value_;
  }
  std::int16_t Value() const { return value_; }

 private:
  std::int16_t value_ = 0;
};

template <typename Integer>
void CheckedIncrement(Integer& counter) {
  if (counter == std::numeric_limits<Integer>::max()) throw OverflowFailure("a counter at its end");
  ++counter;
}

enum class SortKind { kUnsorted = 0, kGroupsFirst = 2 };

SortKind GetSortKind(const std::wstring& owner) {
  return owner == kRootOwner || owner == MIT_PATHS_DRIVES ? SortKind::kUnsorted : SortKind::kGroupsFirst;
}

void PutInFront(std::wstring& path, const std::wstring& title) { path = path.empty() ? title : title + L"\\" + path; }

bool KeepsItsPath(const clsMenuItem& item) {
  return item.OwnerName == kRootOwner && (item.Separator() || item.Name() == MIT_HF_SETTINGS ||
                                          item.Name() == MIT_HF_HELP || item.Name() == MIT_HF_ORGANIZE);
}

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

void clsMenuCollection::AddBefore(const ItemRef& item, const std::wstring& key, bool UpdatePath) {
  Skip([&] {
    if (item->Name().empty()) EnsureName(*item);
    Place(key.empty() ? list_.Size() : list_.PositionOfKey(key), item, UpdatePath);
  });
}

void clsMenuCollection::AddAfter(const ItemRef& item, const std::wstring& key, bool UpdatePath) {
  Skip([&] {
    if (item->Name().empty()) EnsureName(*item);
    Place(key.empty() ? list_.Size() : list_.PositionOfKey(key) + 1, item, UpdatePath);
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
      list_.Insert(key.empty() ? list_.Size() : list_.PositionOfKey(key), item);
    }
    if (UpdatePath) ItemFullPath(*item);
  });
}

std::wstring clsMenuCollection::InsertionKey(const clsMenuItem& item) const {
  if (item.Name() == MIT_GROUP_USER) {  // the personal group goes ahead of everything at the top level
    for (std::size_t i = 0; i < list_.Size(); ++i) {
      if (list_.At(i)->OwnerName == kRootOwner) return list_.At(i)->Name();
    }
    return {};
  }
  return item.ItemType == MIT_OPENALL ? std::wstring() : GetInsertBeforeKey(item);
}

std::wstring clsMenuCollection::GetInsertBeforeKey(const clsMenuItem& item) const {
  if (item.Separator() || GetSortKind(item.OwnerName) == SortKind::kUnsorted) return {};
  const clsMenuItem* firstLeaf = nullptr;
  const clsMenuItem* firstGroup = nullptr;
  const clsMenuItem* first = nullptr;
  for (std::size_t i = 0; i < list_.Size(); ++i) {
    const clsMenuItem& sibling = *list_.At(i);
    if (sibling.Separator() || sibling.OwnerName != item.OwnerName) continue;
    const clsMenuItem*& firstOfKind = sibling.SubMenu() ? firstGroup : firstLeaf;
    if (firstOfKind == nullptr) firstOfKind = &sibling;
    if (first == nullptr) first = &sibling;
    if (sibling.SubMenu() == item.SubMenu() && sibling.SortCaption() > item.SortCaption()) return sibling.Name();
  }
  if (!item.SubMenu()) return {};
  const clsMenuItem* place = firstGroup == nullptr ? first : firstLeaf;
  return place == nullptr ? std::wstring() : place->Name();
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
  item->OwnerName = values.OwnerName;
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
  Skip([&] { list_.RemoveAt(list_.PositionOfKey(key)); });
}

ItemRef clsMenuCollection::Item(std::int32_t position) const {
  return position < 1 || position > Count() ? nullptr : list_.At(static_cast<std::size_t>(position) - 1);
}

std::int32_t clsMenuCollection::Count() const { return static_cast<std::int32_t>(list_.Size()); }

template <typename Test>
ItemRef clsMenuCollection::FindCounting(Test fits) const {
  ShortCounter steps;
  for (std::size_t i = 0; i < list_.Size(); ++i) {
    steps.Step();
    if (fits(*list_.At(i))) return list_.At(i);
  }
  return nullptr;
}

std::int16_t clsMenuCollection::CountSameCaption(const std::wstring& Caption, const std::wstring& OwnerName,
                                                 const std::wstring& Name) const {
  ShortCounter found;
  FindCounting([&](const clsMenuItem& entry) {
    if (entry.Caption() == Caption && entry.OwnerName == OwnerName && entry.Name() != Name) found.Step();
    return false;
  });
  return found.Value();
}

bool clsMenuCollection::ItemExists(const std::wstring& Name) const {
  constexpr std::size_t kCounterEnd = std::numeric_limits<std::int16_t>::max();
  if (list_.Size() <= kCounterEnd) return list_.HasName(Name);
  return FindCounting([&](const clsMenuItem& entry) { return entry.Name() == Name; }) != nullptr;
}

bool clsMenuCollection::CaptionExists(const std::wstring& Caption, const std::wstring& OwnerName, bool SubMenu,
                                      const std::wstring& Name) const {
  return CaptionExists2(Caption, OwnerName, SubMenu, Name) != nullptr;
}

ItemRef clsMenuCollection::CaptionExists2(const std::wstring& Caption, const std::wstring& OwnerName, bool SubMenu,
                                          const std::wstring& Name) const {
  return FindCounting([&](const clsMenuItem& entry) {
    return entry.Name() != Name && entry.Caption() == Caption && entry.OwnerName == OwnerName &&
           entry.SubMenu() == SubMenu;
  });
}

ItemRef clsMenuCollection::GetMenuItemFromID(std::int32_t ID) const {
  return FindCounting([ID](const clsMenuItem& entry) { return entry.ID == ID; });
}

ItemRef clsMenuCollection::GetMenuItemFromName(const std::wstring& Name) const {
  ItemRef item;
  Skip([&] { item = list_.At(list_.PositionOfKey(Name)); });
  return item;
}

std::int32_t clsMenuCollection::GetIDFromName(const std::wstring& Name, bool& Err) const {
  Err = false;
  if (Name == kRootOwner) return FileMenuHandle;
  const ItemRef item = GetMenuItemFromName(Name);
  Err = item == nullptr;
  return Err ? -1 : item->ID;
}

std::int32_t clsMenuCollection::GetNextFreeItemPosition(std::int32_t ID, std::int32_t OwnerID) const {
  std::int32_t position = 0;
  FindCounting([&](const clsMenuItem& entry) {
    if (entry.ID == ID) return true;
    if (entry.OwnerID == OwnerID) ++position;
    return false;
  });
  return position;
}

std::int32_t clsMenuCollection::GetNextFreeID() {
  CheckedIncrement(IDCounter);
  for (bool collided = true; collided;) {
    collided = false;
    for (std::size_t i = 0; i < list_.Size(); ++i) {
      if (list_.At(i)->ID != IDCounter) continue;
      CheckedIncrement(IDCounter);
      collided = true;
    }
  }
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
  for (std::int32_t copy = 0; CaptionExists(item.Caption(), item.OwnerName, item.SubMenu(), item.Name()); ++copy) {
    item.SetCaption((copy == 0 ? L"Copy of " : L"Copy (" + DecimalText(copy) + L") of ") + base);
  }
}

void clsMenuCollection::GetNewItemCaption2(clsMenuItem& item) const {
  const std::wstring base = item.Caption();
  for (std::int32_t copy = 2; CaptionExists(item.Caption(), item.OwnerName, item.SubMenu(), item.Name()); ++copy) {
    item.SetCaption(base + DecimalText(copy));
  }
}

std::wstring clsMenuCollection::GetNextMenuItem(const clsMenuItem& item) const {
  const std::size_t found = list_.FirstWithName(item.Name());
  if (found == KeyedItems::kNone || found + 1 == list_.Size()) return {};
  const clsMenuItem& next = *list_.At(found + 1);
  return next.OwnerName == item.OwnerName ? next.Name() : std::wstring();
}

std::wstring clsMenuCollection::GetPrevMenuItem(const clsMenuItem& item) const {
  std::wstring previous;
  for (std::size_t i = 0; i < list_.Size(); ++i) {
    const clsMenuItem& entry = *list_.At(i);
    if (entry.Name() == item.Name()) return previous;
    if (entry.OwnerName == item.OwnerName) previous = entry.Name();
  }
  return {};
}

ItemRef clsMenuCollection::GetSecondChild(const std::wstring& OwnerName, const std::wstring& ChildName) const {
  const std::size_t owner = list_.FirstWithName(OwnerName);
  if (owner == KeyedItems::kNone) return nullptr;
  for (std::size_t i = owner + 1; i < list_.Size(); ++i) {
    if (list_.At(i)->OwnerName == OwnerName && list_.At(i)->Name() != ChildName) return list_.At(i);
  }
  return nullptr;
}

bool clsMenuCollection::HasChildren(const std::wstring& Name) const {
  for (std::size_t i = 0; i < list_.Size(); ++i) {
    if (list_.At(i)->OwnerName == Name) return true;
  }
  return false;
}

std::int32_t clsMenuCollection::ChildrenNumber(const std::wstring& Name) const {
  std::int32_t children = 0;
  for (std::size_t i = 0; i < list_.Size(); ++i) {
    if (list_.At(i)->OwnerName == Name) ++children;
  }
  return children;
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
  if (item.OwnerName == kRootOwner) {
    item.ItemPath = path + L"\\";
    return;
  }
  std::wstring current = item.OwnerName;
  std::size_t below = list_.Size();
  while (current != kRootOwner && current != MIT_GROUP_USER) {
    const std::size_t owner = list_.LastWithName(current, below);
    if (owner == KeyedItems::kNone) break;
    PutInFront(path, list_.At(owner)->Caption());
    current = list_.At(owner)->OwnerName;
    below = owner;
  }
  if (!path.empty()) item.ItemPath = path + L"\\";
}

void clsMenuCollection::SetItemLocation(clsMenuItem& item) const {
  std::wstring path;
  std::wstring current = item.OwnerName;
  std::size_t below = list_.Size();
  while (current != kRootOwner) {
    const std::size_t owner = list_.LastWithName(current, below);
    if (owner == KeyedItems::kNone) break;
    PutInFront(path, list_.At(owner)->Caption());
    current = list_.At(owner)->OwnerName;
    below = owner;
  }
  item.ItemLocation = L"\\\\" + path;
}

std::wstring clsMenuCollection::GetItemRootNode(const clsMenuItem& item) const {
  std::wstring top = item.OwnerName;
  std::wstring current = top;
  std::size_t below = list_.Size();
  while (current != kRootOwner) {
    const std::size_t owner = list_.LastWithName(current, below);
    if (owner == KeyedItems::kNone) break;
    current = list_.At(owner)->OwnerName;
    if (current != kRootOwner) top = current;
    below = owner;
  }
  return top;
}

CollectionCounts clsMenuCollection::CountCollection() const {
  CollectionCounts counts;
  for (std::size_t i = 0; i < list_.Size(); ++i) {
    const clsMenuItem& entry = *list_.At(i);
    if (entry.Separator()) continue;
    if (entry.SubMenu()) {
      CheckedIncrement(counts.Groups);
    } else if (entry.ItemType == MIT_OPENALL) {
      CheckedIncrement(counts.OpenAll);
    } else if (entry.ItemType == MIT_PATH && entry.OpenType == MIT_PATH_SHORTCUT) {
      CheckedIncrement(counts.FolderShortcuts);
    } else if (entry.ItemType == MIT_PATH && entry.OpenType == MIT_PATH_EXPLORER) {
      CheckedIncrement(counts.ExplorerShortcuts);
    }
  }
  const std::int32_t shortcuts = counts.FolderShortcuts + counts.ExplorerShortcuts;
  if (shortcuts > std::numeric_limits<std::int16_t>::max()) throw OverflowFailure("more than 32,767 shortcuts");
  counts.Shortcuts = static_cast<std::int16_t>(shortcuts);
  return counts;
}

bool clsMenuCollection::MenuItemsEqual(const clsMenuItem& left, const clsMenuItem& right) {
  return left.Caption() == right.Caption() && left.ItemType == right.ItemType && left.SubMenu() == right.SubMenu() &&
         left.Separator() == right.Separator();
}

}  // namespace burrowmark
