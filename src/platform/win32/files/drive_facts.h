// What the system knows of its drives.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace burrowmark {

// `letter` is a capital.
std::int32_t DriveType(wchar_t letter);
// False without a medium.
bool VolumeLabel(wchar_t letter, std::wstring& label);
// The list of FileSystem::DriveList.
std::vector<std::wstring> ListDrives();

}  // namespace burrowmark
