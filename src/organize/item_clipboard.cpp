#include "organize/item_clipboard.h"

#include <algorithm>

#include "core/store_copy.h"
#include "organize/node_keys.h"
#include "organize/subtree.h"

namespace burrowmark {

bool ItemClipboard::Moves(const clsMenuCollection& store) const {
  return Mode == PasteMode::kMove && std::any_of(Trees.begin(), Trees.end(), [&store](const CopiedTree& tree) {
           return store.GetMenuItemFromName(tree.Origin->Name()) == tree.Origin;
         });
}

bool ItemClipboard::Holds(const std::wstring& name) const {
  return std::any_of(Trees.begin(), Trees.end(), [&name](const CopiedTree& tree) {
    return std::any_of(tree.Items.begin(), tree.Items.end(),
                       [&name](const ItemRef& item) { return item->Name() == name; });
  });
}

void ItemClipboard::Take(const Clock& clock, const clsMenuCollection& store, const ItemRef& item) {
  CopiedTree tree{item, {}};
  for (const ItemRef& source : Subtree(store, item)) {
    tree.Items.push_back(std::make_shared<clsMenuItem>(clock));
    CloneMenuItem(*source, *tree.Items.back());
  }
  SourceOwner = item->OwnerName();
  Trees.push_back(std::move(tree));
}

void ItemClipboard::Clear() {
  Trees.clear();
  SourceOwner.clear();
}

void ItemClipboard::LeaveTree() {
  Mode = PasteMode::kCopy;
  SourceOwner.clear();
}

void ItemClipboard::FindCutKeys() {
  CutKeys.clear();
  if (Mode != PasteMode::kMove || !Ghosted) return;
  for (const CopiedTree& tree : Trees) CutKeys.insert(KeyOfName(tree.Origin->Name()));
}

}  // namespace burrowmark
