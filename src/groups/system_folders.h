// The System Folders group: well-known folders of the system that stand on this machine.
#pragma once

#include "core/application.h"

namespace burrowmark {

// Adds the group ahead of the drives, its sub-groups, and an entry for each row of the table whose folder exists. What
// is there already isn't added again.
void SetupSystemFolders(Application& app, clsMenuCollection& store);
// Takes the group and everything under it out of a store; the hot-key list is made anew if that took a hot key away.
void RemoveSystemFolders(Application& app, clsMenuCollection& store);
// A copy of the group's sub-tree.
std::shared_ptr<clsMenuCollection> GetSystemFoldersCollection(const Application& app, const clsMenuCollection& store);

}  // namespace burrowmark
