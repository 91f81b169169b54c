// What a paste does to a tree.
#pragma once

#include <functional>
#include <string>

#include "organize/item_clipboard.h"
#include "organize/tree_edit.h"

namespace burrowmark {

enum class PasteRefusal : std::uint8_t {
  kNone,
  kRoot,
  kDrives,
  kSamePlace,  // it is there already; `Text` is the title to name, if there is one
  kGone,       // the target isn't there any more
};

// Where a paste goes, or why it doesn't.
struct PastePlace {
  std::wstring Text;  // the group's name
  PasteRefusal Refusal = PasteRefusal::kNone;
};

// A paste on a shortcut goes beside it; one on what is itself cut or copied goes to the group above, unless it comes
// from a drag. `target` is the name of an item.
PastePlace FindPastePlace(const clsMenuCollection& store, const ItemClipboard& clipboard, std::wstring target,
                          bool inDrag);

// What becomes of an item whose title an item of the target group bears.
enum class ClashAnswer : std::uint8_t { kCancel, kReplace, kRename };

// What a paste asks and tells a person.
struct PasteTalk {
  std::function<ClashAnswer(const clsMenuItem& existing, const clsMenuItem& incoming)> TitleIsTaken;
  // A second Open-All was left out.
  std::function<void()> OpenAllIsThere;
};

// Pastes what was cut or copied into a group, the last one first; false if the person gave up. What was cut and is in
// its new place leaves the clipboard; a copy stays there. Copies come under new names and without hot keys. The tops of
// what is in now, in the order in which they came, are added to `pasted`.
bool PasteItems(TreeEdit& edit, ItemClipboard& clipboard, const std::wstring& group, const PasteTalk& talk,
                std::vector<ItemRef>& pasted);

// Every copy of a paste of `items` (a group ahead of what it holds) has a name that is free in the tree, and those
// below the first one follow it.
std::vector<ItemRef> FreshCopies(TreeEdit& edit, const std::vector<ItemRef>& items);

}  // namespace burrowmark
