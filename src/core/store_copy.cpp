#include "core/store_copy.h"

namespace burrowmark {

void CopyStore(const Clock& clock, const clsMenuCollection& source, clsMenuCollection& target) {
  for (std::int32_t i = 1; i <= source.Count(); ++i) {
    auto copy = std::make_shared<clsMenuItem>(clock);
    CloneMenuItem(*source.Item(i), *copy);
    target.AddOne(copy, true, false);
  }
  target.IDCounter = source.IDCounter;
  target.MenuNameCounter = source.MenuNameCounter;
  target.FileMenuHandle = source.FileMenuHandle;
}

void CloneMenuItem(const clsMenuItem& source, clsMenuItem& target) {
  target.SetID(source.ID());
  target.Position = source.Position;
  target.SetName(source.Name());
  target.NameOld = source.NameOld;
  if (source.OwnerName() == MIT_PATHS_DRIVES) {
    target.SetCaption2(source.Caption());
  } else {
    target.SetCaption(source.Caption());
  }
  target.SetCaptionMenu(source.CaptionMenu());
  target.OwnerID = source.OwnerID;
  target.flags = source.flags;
  target.SetOwnerName(source.OwnerName());
  target.IconID = source.IconID;
  target.SetSeparator(source.Separator());
  target.SetSubMenu(source.SubMenu());
  target.ItemType = source.ItemType;
  target.OpenType = source.OpenType;
  target.DriveType = source.DriveType;
  target.Description = source.Description;
  target.FolderPath = source.FolderPath;
  target.NetworkPath = source.NetworkPath;
  target.ItemPath = source.ItemPath;
  target.ItemLocation = source.ItemLocation;
  target.Remark = source.Remark;
  target.KeyboardCode = source.KeyboardCode;
  target.UserDescription = source.UserDescription;
  target.TimeCreated = source.TimeCreated;
  target.TimeModified = source.TimeModified;
  target.TimeAccessed = source.TimeAccessed;
}

std::shared_ptr<clsMenuCollection> CopyGroup(const Clock& clock, const clsMenuCollection& source,
                                             const std::wstring& top) {
  auto copy = std::make_shared<clsMenuCollection>(clock);
  for (std::int32_t i = 1; i <= source.Count(); ++i) {
    const ItemRef item = source.Item(i);
    if (item->Name() != top && source.GetItemRootNode(*item) != top) continue;
    auto clone = std::make_shared<clsMenuItem>(clock);
    CloneMenuItem(*item, *clone);
    copy->AddOne(clone, true, false);
  }
  return copy;
}

}  // namespace burrowmark
