// Where the system's special folders are.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

// The path of a special folder by its key ("SystemRoot", "Desktop", "Common Programs" ...), compared exactly; without a
// trailing backslash, empty where the system doesn't have it. Keys that aren't known by themselves are values of the
// user's list of shell folders.
std::wstring GetSpecialFolderPath(const Application& app, const std::wstring& key);

}  // namespace burrowmark
