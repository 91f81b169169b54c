// Copies of items and of whole trees.
#pragma once

#include <memory>
#include <string>

#include "core/menu_collection.h"

namespace burrowmark {

// Gives the target all attributes of the source.
void CloneMenuItem(const clsMenuItem& source, clsMenuItem& target);

// Clones every entry of the source into the target, with the counters.
void CopyStore(const Clock& clock, const clsMenuCollection& source, clsMenuCollection& target);

// A new store with clones of one top-level group and all that it holds, in the order of the source.
std::shared_ptr<clsMenuCollection> CopyGroup(const Clock& clock, const clsMenuCollection& source,
                                             const std::wstring& top);

}  // namespace burrowmark
