// What a folder of the real system holds.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace burrowmark {

// As FileSystem::ListFolder.
bool ReadFolder(const std::wstring& path, std::vector<FolderEntry>& entries);

}  // namespace burrowmark
