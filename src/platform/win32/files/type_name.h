// What the shell calls kinds of files.
#pragma once

#include <string>

namespace burrowmark {

// As FileSystem::GetTypeName.
std::wstring ReadTypeName(const std::wstring& extension, bool isFolder);

}  // namespace burrowmark
