// Small questions about files that the whole program asks. A failure answers false.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace burrowmark {

bool FolderOrDriveExists(FileSystem& files, const std::wstring& path);
bool FileExists(FileSystem& files, const std::wstring& path);
bool IsFileReadOnly(FileSystem& files, const std::wstring& path);

// True for the numbers below 10, the negative ones included.
constexpr bool IsSingleDigit(int value) { return value < 10; }

}  // namespace burrowmark
