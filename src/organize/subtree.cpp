#include "organize/subtree.h"

#include <algorithm>
#include <unordered_set>

namespace burrowmark {

std::vector<ItemRef> Subtree(const clsMenuCollection& store, const ItemRef& top) {
  std::vector<ItemRef> items;
  std::vector<ItemRef> next{top};
  std::unordered_set<const clsMenuItem*> seen;
  while (!next.empty()) {
    const ItemRef item = next.back();
    next.pop_back();
    if (!seen.insert(item.get()).second) continue;
    items.push_back(item);
    const std::vector<ItemRef> children = store.Children(item->Name());
    next.insert(next.end(), children.rbegin(), children.rend());
  }
  return items;
}

bool IsInSubtree(const clsMenuCollection& store, const std::wstring& name, const clsMenuItem& top) {
  std::unordered_set<std::wstring> seen;
  std::wstring current = name;
  while (current != top.Name()) {
    const ItemRef item = seen.insert(current).second ? store.GetMenuItemFromName(current) : nullptr;
    if (!item) return false;
    current = item->OwnerName();
  }
  return true;
}

std::vector<ItemRef> TakeSubtree(TreeEdit& edit, const ItemRef& top) {
  std::vector<ItemRef> items = Subtree(edit.Store(), top);
  // From the end, so that nothing ever stands in the tree without its owner.
  std::for_each(items.rbegin(), items.rend(), [&edit](const ItemRef& item) { edit.TakeOut(item); });
  return items;
}

void DeleteSubtree(TreeEdit& edit, const ItemRef& top) { TakeSubtree(edit, top); }

void PutSubtree(TreeEdit& edit, const std::vector<ItemRef>& items, const std::wstring& owner) {
  edit.Change(items.front()).SetOwnerName(owner);
  for (const ItemRef& item : items) {
    edit.Change(item);  // the path that it shows
    edit.Add(item);
  }
}

void ModifyItem(TreeEdit& edit, const ItemRef& item, bool group, const std::function<void(clsMenuItem&)>& write) {
  const std::vector<ItemRef> items = Subtree(edit.Store(), item);
  const bool moves = group != item->SubMenu();
  if (moves) edit.TakeOut(item);
  write(edit.Change(item));
  if (moves) edit.Add(item);
  for (const ItemRef& below : items) edit.Store().ItemFullPath(edit.Change(below));
}

void ModifyItem(TreeEdit& edit, const ItemRef& item, const ItemChange& change) {
  ModifyItem(edit, item, change.SubMenu, [&change](clsMenuItem& changed) { changed.ModifyMenuItem(change); });
}

}  // namespace burrowmark
