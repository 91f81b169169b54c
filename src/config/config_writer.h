// From a store to the bytes of a configuration file.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"

namespace burrowmark {

// The whole content of a file: the personal group, the System Folders group if the user wants it, and the summary.
std::string BuildConfig(const Application& app, const clsMenuCollection& store, const ConfigSummary& summary);

// A file's bytes with another summary in place of its own; everything else stays as it is, unless a new text needs
// another encoding. False for a file with a section that has no end: texts added to it would be read as parts of an
// item.
bool ReplaceSummary(const Application& app, std::string_view bytes, const ConfigSummary& summary,
                    std::string& replaced);

}  // namespace burrowmark
