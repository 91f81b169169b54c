// From the bytes of a configuration file to the items of a store.
#pragma once

#include <string_view>

#include "core/application.h"

namespace burrowmark {

struct ConfigContent {
  ConfigSummary summary;
  bool SystemGroupMissing = false;  // the user wants the System Folders group, and the file has none
  bool SystemGroupIgnored = false;  // the file has one, and the user doesn't want it
  bool Damaged = false;             // the file held entries that couldn't be read as they stand
};

// Appends what a file holds to the store; a section without its end is read up to its last complete record, less that
// one. False for bytes without any section, and at the first record that isn't one: what was added until then stays in
// the store. The file's fixed entries, separators and drives stay out.
bool ReadConfig(const Application& app, std::string_view bytes, clsMenuCollection& store, ConfigContent& content);

}  // namespace burrowmark
