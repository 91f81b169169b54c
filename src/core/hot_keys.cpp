#include "core/hot_keys.h"

#include <algorithm>

namespace burrowmark {

bool HotKeyItemExists(const Application& app, const clsMenuItem& item) {
  return std::any_of(app.HotKeyItems.begin(), app.HotKeyItems.end(),
                     [&item](const ItemRef& other) { return other->Name() == item.Name(); });
}

bool FindHotKeyItem(const Application& app, std::int32_t KeyboardCode, ItemRef& item) {
  const auto found = std::find_if(app.HotKeyItems.begin(), app.HotKeyItems.end(),
                                  [KeyboardCode](const ItemRef& other) { return other->KeyboardCode == KeyboardCode; });
  item = found == app.HotKeyItems.end() ? nullptr : *found;
  return item != nullptr;
}

void RefreshHotKeys(Application& app, const clsMenuCollection& store) {
  app.HotKeyItems.clear();
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (item->KeyboardCode < 0) continue;
    if (HotKeyItemExists(app, *item)) {
      item->KeyboardCode = -1;
    } else {
      app.HotKeyItems.push_back(item);
    }
  }
}

}  // namespace burrowmark
