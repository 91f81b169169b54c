// The personal group and its first content.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/application.h"

namespace burrowmark {

enum class PersonalContent {
  kBlank = 0,
  kSample = 1,         // a group and a few shortcuts
  kDriveFolders = 2,   // the first-level folders of all fixed drives, 25 in all
  kDriveGroups = 3,    // a group for each of 24 fixed drives with 24 of its first-level folders
  kRecentFolders = 4,  // 25 folders of the user's recent documents
};

// Adds the personal group behind the Help entries, or at its sorted place without them, and fills it. Drives and
// folders that can't be read are passed over.
void SetupPersonalGroup(Application& app, clsMenuCollection& store, PersonalContent content);

// The folders that the user's recent documents stand in, each once, in the order of the list: at most 25.
std::vector<std::wstring> BuildRecentFolders(Application& app);

}  // namespace burrowmark
