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
  target.CopyFrom(source, source.OwnerName() == MIT_PATHS_DRIVES);
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
