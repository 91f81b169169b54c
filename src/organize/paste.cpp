#include "organize/paste.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "core/store_copy.h"
#include "organize/node_keys.h"
#include "organize/subtree.h"

namespace burrowmark {
namespace {

// A copy of the Drives group is a group of shortcuts like others.
void MakeOrdinary(clsMenuItem& item) {
  if (item.ItemType == MIT_PATHS_DRIVES) item.ItemType = MIT_GROUP_GENERAL;
  if (item.ItemType == MIT_DRIVE) item.ItemType = MIT_PATH;
  if (item.Remark == REMARK_AUTO) item.Remark.clear();
}

// Another one than the one that is moved.
bool HasOpenAll(const clsMenuCollection& store, const std::wstring& group, const clsMenuItem* moved) {
  const std::vector<ItemRef> children = store.Children(group);
  return std::any_of(children.begin(), children.end(),
                     [moved](const ItemRef& child) { return child->ItemType == MIT_OPENALL && child.get() != moved; });
}

// The one that stood there goes; what it held comes to the one that takes its place.
void Replace(TreeEdit& edit, const ItemRef& existing, const ItemRef& incoming) {
  std::vector<std::vector<ItemRef>> held;
  for (const ItemRef& child : edit.Store().Children(existing->Name())) held.push_back(TakeSubtree(edit, child));
  edit.TakeOut(existing);
  for (const std::vector<ItemRef>& items : held) {
    clsMenuItem& top = edit.Change(items.front());
    top.SetOwnerName(incoming->Name());
    edit.Store().GetNewItemCaption2(top);
    PutSubtree(edit, items, incoming->Name());
  }
}

// The target, if it is among what a move takes away, or among what was copied.
ItemRef HeldItem(const clsMenuCollection& store, const ItemClipboard& clipboard, const std::wstring& target) {
  const bool held = !clipboard.Moves(store)
                        ? !clipboard.SourceOwner.empty() && clipboard.Holds(target)
                        : std::any_of(clipboard.Trees.begin(), clipboard.Trees.end(),
                                      [&](const CopiedTree& tree) { return IsInSubtree(store, target, *tree.Origin); });
  return held ? store.GetMenuItemFromName(target) : nullptr;
}

// One paste of one top-level entry of the clipboard.
class PasteOne {
 public:
  PasteOne(TreeEdit& edit, const CopiedTree& tree, bool moves, const std::wstring& group)
      : edit_(edit), tree_(tree), moves_(moves && edit.Has(tree.Origin)), group_(group) {}

  // The one whose title is taken, or none.
  ItemRef Clash() const {
    const clsMenuItem& item = Incoming();
    return edit_.Store().CaptionExists2(item.Caption(), group_, item.SubMenu(), moves_ ? item.Name() : std::wstring());
  }
  // The item that goes in, or the one that it will be a copy of.
  const clsMenuItem& Incoming() const { return moves_ ? *tree_.Origin : *tree_.Top(); }
  const clsMenuItem* Moved() const { return moves_ ? tree_.Origin.get() : nullptr; }

  // Nothing here fails or asks, so the tree is whole before and after.
  ItemRef Run(bool sameGroup, const ItemRef& replaced) {
    const std::vector<ItemRef> items = moves_ ? TakeSubtree(edit_, tree_.Origin) : FreshCopies(edit_, tree_.Items);
    const ItemRef& top = items.front();
    for (const ItemRef& item : items) {
      clsMenuItem& changed = edit_.Change(item);
      if (moves_) changed.NameOld = changed.OwnerName();
      changed.TimeCreated = Now(edit_.Time());
    }
    edit_.Change(top).SetOwnerName(group_);
    if (!replaced) {
      sameGroup ? edit_.Store().GetNewItemCaption(*top) : edit_.Store().GetNewItemCaption2(*top);
    }
    PutSubtree(edit_, items, group_);
    if (replaced) Replace(edit_, replaced, top);
    return top;
  }

 private:
  TreeEdit& edit_;
  const CopiedTree& tree_;
  bool moves_;
  const std::wstring& group_;
};

}  // namespace

std::vector<ItemRef> FreshCopies(TreeEdit& edit, const std::vector<ItemRef>& items) {
  std::unordered_map<std::wstring, std::wstring> names;  // of each: the one that its copy gets
  for (const ItemRef& item : items) names.emplace(item->Name(), edit.FreeName());
  std::vector<ItemRef> copies;
  for (const ItemRef& item : items) {
    const auto copy = std::make_shared<clsMenuItem>(edit.Time());
    CloneMenuItem(*item, *copy);
    copy->NameOld = item->Name();
    copy->SetName(names[item->Name()]);
    if (const auto owner = names.find(item->OwnerName()); owner != names.end()) copy->SetOwnerName(owner->second);
    copy->KeyboardCode = -1;
    MakeOrdinary(*copy);
    copies.push_back(copy);
  }
  return copies;
}

PastePlace FindPastePlace(const clsMenuCollection& store, const ItemClipboard& clipboard, std::wstring target,
                          bool inDrag) {
  const bool moves = clipboard.Moves(store);
  if (target == NameOfKey(MIT_HF_ROOT) || target == kRootOwner) return {{}, PasteRefusal::kRoot};
  if (target == MIT_PATHS_DRIVES) return {{}, PasteRefusal::kDrives};
  if (moves && target == clipboard.SourceOwner) return {{}, PasteRefusal::kSamePlace};
  if (const ItemRef held = HeldItem(store, clipboard, target)) {
    if (inDrag) return {held->Caption(), PasteRefusal::kSamePlace};
    do target = store.GetMenuItemFromName(target)->OwnerName();
    while (moves && HeldItem(store, clipboard, target));
  }
  const ItemRef item = store.GetMenuItemFromName(target);
  if (!item) return {{}, target == kRootOwner ? PasteRefusal::kRoot : PasteRefusal::kGone};
  if (!item->SubMenu()) target = item->OwnerName();
  if (target == kRootOwner) return {{}, PasteRefusal::kRoot};
  return {target, target == MIT_PATHS_DRIVES ? PasteRefusal::kDrives : PasteRefusal::kNone};
}

bool PasteItems(TreeEdit& edit, ItemClipboard& clipboard, const std::wstring& group, const PasteTalk& talk,
                std::vector<ItemRef>& pasted) {
  const bool moves = clipboard.Mode == PasteMode::kMove;
  const bool sameGroup = group == clipboard.SourceOwner;
  bool toldOpenAll = false;
  for (std::size_t left = clipboard.Trees.size(); left > 0; --left) {
    const CopiedTree tree = clipboard.Trees[left - 1];
    PasteOne paste(edit, tree, moves, group);
    if (paste.Incoming().ItemType == MIT_OPENALL && HasOpenAll(edit.Store(), group, paste.Moved())) {
      if (!std::exchange(toldOpenAll, true)) talk.OpenAllIsThere();
    } else {
      const ItemRef clash = sameGroup ? nullptr : paste.Clash();
      const ClashAnswer answer = clash ? talk.TitleIsTaken(*clash, paste.Incoming()) : ClashAnswer::kRename;
      if (answer == ClashAnswer::kCancel) return false;
      pasted.push_back(paste.Run(sameGroup, answer == ClashAnswer::kReplace ? clash : nullptr));
    }
    if (moves) clipboard.Trees.pop_back();
  }
  return true;
}

}  // namespace burrowmark
