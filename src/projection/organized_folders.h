// The tree outside the program's own menu: groups as folders and shortcuts as link files, in three places of the shell.
//
// The folder "Organized Folders" in each place, its root, belongs to the program: every projection throws away what is
// in it and writes it anew from a store. What others put there goes to the Recycle Bin, and before a folder that others
// made is used the user is asked. Nothing is read back. Failures are passed over in silence.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "core/application.h"

namespace burrowmark {

struct ProjectionTarget {
  const wchar_t* specialFolder;  // the root's parent
  std::wstring Application::*root;
  Advanced option;               // the user wants it
  const wchar_t* value;          // under kSettingsKey: tells others where the root is
  const wchar_t* where;          // for texts: "Refreshing Organized Folders " and this
  const wchar_t* restoredTitle;  // of the box that reports it
};

// The order in which everything goes through them.
inline constexpr ProjectionTarget kProjectionTargets[] = {
    {L"Desktop", &Application::OrganizedFoldersDesktop, Advanced::kOnDesktop, L"DirDesktop", L"on the Desktop",
     L"Restore Organized Folders on the Desktop"},
    {L"SendTo", &Application::OrganizedFoldersSendTo, Advanced::kInSendTo, L"DirSendTo", L"in the Send To",
     L"Restore Organized Folders in the Send To"},
    {L"Favorites", &Application::OrganizedFoldersFavorites, Advanced::kInFavorites, L"DirFavorites",
     L"in the Favorites", L"Restore Folders in the Favorites"},
};

// Works out the three roots. One whose special folder the system doesn't have is empty, and nothing is projected there.
void InitOrganizedFoldersPaths(Application& app);

bool OrganizedFoldersExist(const Application& app, const ProjectionTarget& target);

// Projects a store, or only its personal group where the user doesn't want the System Folders there. The root is made
// if its parent exists; if the user doesn't want one that others made to be used, the option goes off. Two groups of
// one title in one place are told to the user. `ShowMessage` reports the end.
void RefreshOrganizedFolders(Application& app, const ProjectionTarget& target,
                             const std::shared_ptr<clsMenuCollection>& store, bool ShowMessage);
void RefreshOrganizedFoldersDesktop(Application& app, const std::shared_ptr<clsMenuCollection>& store,
                                    bool ShowMessage);
void RefreshOrganizedFoldersSendTo(Application& app, const std::shared_ptr<clsMenuCollection>& store, bool ShowMessage);
void RefreshOrganizedFoldersFavorites(Application& app, const std::shared_ptr<clsMenuCollection>& store,
                                      bool ShowMessage);

// Removes the root with all that is in it, unless others made it.
void DeleteOrganizedFolders(Application& app, const ProjectionTarget& target);
void DeleteOrganizedFoldersDesktop(Application& app);
void DeleteOrganizedFoldersSendTo(Application& app);
void DeleteOrganizedFoldersFavorites(Application& app);

// A root that the user took away turns its option off, in the registry too. One whose parent is out of reach doesn't.
void CheckOrganizedFoldersExist(Application& app);

}  // namespace burrowmark
