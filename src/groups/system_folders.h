// The System Folders group: well-known folders of the system that stand on this machine.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

// Adds the group ahead of the drives, its sub-groups, and an entry for each row of the table whose folder exists. What
// is there already isn't added again.
void SetupSystemFolders(Application& app, clsMenuCollection& store);
// What the user is asked before a group that the program made is deleted.
std::wstring DeleteGroupQuestion(const std::wstring& title);
// Takes the group and everything under it out of a store; the hot-key list is made anew if that took a hot key away.
void RemoveSystemFolders(Application& app, clsMenuCollection& store);
// Brings the group to what the options ask for, and keeps what the user put there.
void RebuildSystemFolders(Application& app, clsMenuCollection& store);
// The group holds something that isn't of the table.
bool HoldsUsersItems(const Application& app, const clsMenuCollection& store);
// A copy of the group's sub-tree.
std::shared_ptr<clsMenuCollection> GetSystemFoldersCollection(const Application& app, const clsMenuCollection& store);

}  // namespace burrowmark
