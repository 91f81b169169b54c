// The menu's fixed entries in the store.
#pragma once

#include "core/application.h"

namespace burrowmark {

// Adds the separator of the drives and "Organize Folders" at the end, then "Help" and "Options" as the settings say,
// and the System Folders group if `AddSystemGroup` is true. What is there already stays as it is.
void AddFixedEntries(Application& app, clsMenuCollection& store, bool AddSystemGroup);

// "Help" and its separator ahead of the personal group; without one, ahead of everything at the top level.
void AddHelpEntries(clsMenuCollection& store);
// "Options" ahead of "Organize Folders".
void AddOptionsEntry(clsMenuCollection& store);

}  // namespace burrowmark
