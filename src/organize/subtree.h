// An item with all that it holds: what edits of a tree work on.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "organize/tree_edit.h"

namespace burrowmark {

// The item and all below it, a group ahead of what it holds. A circle of owners ends.
std::vector<ItemRef> Subtree(const clsMenuCollection& store, const ItemRef& top);
// True for the item itself too.
bool IsInSubtree(const clsMenuCollection& store, const std::wstring& name, const clsMenuItem& top);

void DeleteSubtree(TreeEdit& edit, const ItemRef& top);

// Takes a sub-tree out and gives what it was, for PutSubtree. Between the two nothing may fail.
std::vector<ItemRef> TakeSubtree(TreeEdit& edit, const ItemRef& top);
// Puts items that aren't in the tree under an owner: the first one, and the others below it where they belong.
void PutSubtree(TreeEdit& edit, const std::vector<ItemRef>& items, const std::wstring& owner);

// Writes to an item, and the paths that its title shows in. `group` is what it is then: what becomes a group, or ceases
// to be one, goes to its sorted place.
void ModifyItem(TreeEdit& edit, const ItemRef& item, bool group, const std::function<void(clsMenuItem&)>& write);
void ModifyItem(TreeEdit& edit, const ItemRef& item, const ItemChange& change);

}  // namespace burrowmark
