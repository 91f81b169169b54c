// Removes folders of the real system.
#pragma once

#include <string>

namespace burrowmark {

// As FileSystem::DeleteFolder.
bool RemoveFolder(const std::wstring& path);

}  // namespace burrowmark
