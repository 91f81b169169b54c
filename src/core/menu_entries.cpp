#include "core/menu_entries.h"

#include <unordered_map>
#include <vector>

namespace burrowmark {

void RemoveEntries(Application& app, clsMenuCollection& store, const std::function<bool(const clsMenuItem&)>& fits) {
  const bool native = app.IsMainStore(store);
  std::vector<std::wstring> found;
  // From the end, so that the positions of those still to go stay right.
  for (std::int32_t i = store.Count(); i >= 1; --i) {
    const ItemRef item = store.Item(i);
    if (!fits(*item)) continue;
    if (native) app.platform.menus.DeleteMenu(item->OwnerID, item->Position, kMenuByPosition);
    found.push_back(item->Name());
  }
  for (const std::wstring& name : found) store.Remove(name);
  if (native && !found.empty()) NumberPositions(store);
}

void NumberPositions(const clsMenuCollection& store) {
  std::unordered_map<std::int32_t, std::int32_t> next;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    item->Position = next[item->OwnerID]++;
  }
}

}  // namespace burrowmark
