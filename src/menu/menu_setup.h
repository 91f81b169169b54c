// The menu's fixed entries in a store, and the native popup menu made from a store.
#pragma once

#include <memory>
#include <string>

#include "core/application.h"

namespace burrowmark {

// Only operations on the main store touch the native menu; on any other store they change the store alone.

// Adds the separator of the drives and "Organize Folders" at the end, then "Help" and "Options" as the settings say,
// and the System Folders group if `AddSystemGroup` is true. What is there already stays as it is.
void AddFixedEntries(Application& app, clsMenuCollection& store, bool AddSystemGroup);

// "Help" and its separator ahead of the personal group; without one, ahead of everything at the top level.
void AddHelpEntries(clsMenuCollection& store);
void RemoveHelpEntries(Application& app, clsMenuCollection& store);
// "Options" ahead of "Organize Folders".
void AddOptionsEntry(clsMenuCollection& store);
void RemoveOptionsEntry(Application& app, clsMenuCollection& store);

// Makes the native entries of the main store: all of them over the lone dummy entry or, with a filter, those of that
// owner and the one of that name beside what is there. An entry whose owner isn't in the store stays out, and so do
// those for which no number is left.
void MenuSetupBuild(Application& app, const std::wstring& filter);
// Puts a store behind the menu, with all its native entries; with its hot keys too, unless they are another store's.
void ReplaceMainStore(Application& app, std::shared_ptr<clsMenuCollection> store);
// Makes everything native anew from the store that is behind the menu.
void RebuildMainMenu(Application& app);
// The tree of a first start.
std::shared_ptr<clsMenuCollection> DefaultTree(Application& app);

bool ItemNamed(const std::wstring& name, const clsMenuCollection& store);

}  // namespace burrowmark
