// What a folder of the real system holds.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace burrowmark {

// As FileSystem::ListFolder.
bool ReadFolder(const std::wstring& path, std::vector<FolderEntry>& entries);

// As FileSystem::WalkFolder.
bool VisitFolder(const std::wstring& path, const FolderVisitor& visit);

// What was found leads to a folder elsewhere.
bool IsFolderLink(const WIN32_FIND_DATAW& found);

}  // namespace burrowmark
