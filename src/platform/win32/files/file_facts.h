// What the disk of the real system knows of one file or folder.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "platform/file_system.h"

namespace burrowmark {

// As FileSystem::GetFileFacts.
std::optional<FileFacts> ReadFileFacts(const std::wstring& path);

// What a search tells of its find.
FileFacts FactsOfFound(const WIN32_FIND_DATAW& found);

}  // namespace burrowmark
