// The list of items that have a hot key.
#pragma once

#include "core/application.h"

namespace burrowmark {

// True if an item of that name is in `HotKeyItems`.
bool HotKeyItemExists(const Application& app, const clsMenuItem& item);

// Makes `HotKeyItems` anew from a store. Of two items with one name the second loses its code; codes aren't compared.
void RefreshHotKeys(Application& app, const clsMenuCollection& store);

}  // namespace burrowmark
