#include "core/hot_keys.h"

#include <algorithm>
#include <utility>

#include "core/numbers.h"

namespace burrowmark {

std::wstring HotKeyText(std::int32_t KeyboardCode) {
  return KeyboardCode < 0 ? std::wstring() : L"Shift+Ctrl+" + DecimalText(KeyboardCode - kFirstHotKey);
}

bool HotKeyItemExists(const Application& app, const clsMenuItem& item) {
  return std::any_of(app.HotKeyItems.Items.begin(), app.HotKeyItems.Items.end(),
                     [&item](const ItemRef& other) { return other->Name() == item.Name(); });
}

bool FindHotKeyItem(const Application& app, std::int32_t KeyboardCode, ItemRef& item) {
  const auto& items = app.HotKeyItems.Items;
  const auto found = std::find_if(items.begin(), items.end(),
                                  [KeyboardCode](const ItemRef& other) { return other->KeyboardCode == KeyboardCode; });
  item = found == items.end() ? nullptr : *found;
  return item != nullptr;
}

void RefreshHotKeys(Application& app, std::shared_ptr<clsMenuCollection> store) {
  app.HotKeyItems.Store = std::move(store);
  app.HotKeyItems.Items.clear();
  for (std::int32_t i = 1; i <= app.HotKeyItems.Store->Count(); ++i) {
    const ItemRef item = app.HotKeyItems.Store->Item(i);
    if (item->KeyboardCode < 0) continue;
    if (HotKeyItemExists(app, *item)) {
      item->KeyboardCode = -1;
    } else {
      app.HotKeyItems.Items.push_back(item);
    }
  }
}

void RefreshHotKeysOf(Application& app, const clsMenuCollection& store) {
  if (app.HotKeyItems.Store.get() == &store) RefreshHotKeys(app, app.HotKeyItems.Store);
}

}  // namespace burrowmark
