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

// What shall stand in the personal group, in order.
struct PersonalEntry {
  int number = 0;  // of its fixed name; 0: the store gives it one
  std::wstring caption{};
  std::wstring path{};
  bool group = false;
  bool below = false;  // in the group that comes ahead of it
  std::wstring type = MIT_PATH;
};
using PersonalEntries = std::vector<PersonalEntry>;

// Reads drives, folders and links, and lets messages run meanwhile. What can't be read is passed over.
PersonalEntries ReadPersonalContent(Application& app, PersonalContent content);

// Adds the personal group behind the Help entries, or at its sorted place without them, and fills it.
void SetupPersonalGroup(Application& app, clsMenuCollection& store, const PersonalEntries& entries);
void SetupPersonalGroup(Application& app, clsMenuCollection& store, PersonalContent content);
// Takes the group and everything under it out of a store.
void RemovePersonalGroup(Application& app, clsMenuCollection& store);

// The folders that the user's recent documents stand in, each once, the latest first: at most 25.
std::vector<std::wstring> BuildRecentFolders(Application& app);

}  // namespace burrowmark
