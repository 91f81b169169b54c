// From the bytes of a configuration file to the items of a store.
#pragma once

#include <string_view>

#include "core/application.h"

namespace burrowmark {

struct ConfigContent {
  ConfigSummary summary;
  bool SystemGroupMissing = false;  // the user wants the System Folders group, and the file has none
  bool SystemGroupIgnored = false;  // the file has one, and the user doesn't want it
  bool Damaged = false;             // it held entries that the next save would leave out or write otherwise
};

// Fills an empty store with what a file holds; a section without its end is read up to its last complete record, less
// that one. False, and nothing is added, for bytes without any section, with a record that isn't one, or without the
// personal group. The file's fixed entries, separators and drives stay out. Entries that couldn't stand as they do are
// put right (config/config_repair.h).
bool ReadConfig(const Application& app, std::string_view bytes, clsMenuCollection& store, ConfigContent& content);

}  // namespace burrowmark
