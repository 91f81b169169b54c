// Puts the items of a damaged file into an order that a store can hold.
#pragma once

#include <cstdint>
#include <vector>

#include "core/menu_item.h"

namespace burrowmark {

enum class Repair : std::uint8_t {
  kNotNeeded,
  kDone,
  kHopeless,  // the personal group isn't among the items
};

// Afterwards each item has a name of its own, the personal group and the System Folders group alone are at the top
// level, and every other item stands behind the group that owns it; what has no such group is in the personal one. An
// item without a name gets one, which doesn't count as a repair. Items keep their order otherwise. Takes a time that
// grows with the number of items alone, however deep they are.
Repair RepairItems(std::vector<ItemRef>& items);

}  // namespace burrowmark
