// Names and parts of paths. These look at the text alone and never at the disk.
#pragma once

#include <string>
#include <string_view>

namespace burrowmark {

// The characters that a file name can't hold.
inline constexpr std::wstring_view kBadFileChars = L"\\/:*?\"<>|";

bool HasBadFileChars(std::wstring_view text);
std::wstring RemoveBadFileChars(std::wstring_view text);
// Each bad character becomes "-".
std::wstring ReplaceBadFileChars(std::wstring_view text);

// What stands behind the last backslash; the whole text without one. Of a path that ends in a backslash, its first
// character: the letter of a drive.
std::wstring GetFileName(std::wstring_view path);
// What stands ahead of the last backslash, with the backslash kept for the root of a drive; the whole text without one.
std::wstring GetFolderName(std::wstring_view path);
// What stands behind the last dot, in lower case; empty without one.
std::wstring GetFileExtension(std::wstring_view path);
// What stands ahead of the last dot, in lower case; the whole text as it is without one.
std::wstring GetFileBaseName(std::wstring_view path);

// A title as the name of a folder, and of a file ahead of its extension: none that the system takes for nothing or for
// a device. Other characters that it refuses stay.
std::wstring FolderNameOf(std::wstring_view title);
std::wstring FileNameOf(std::wstring_view title);

// A path that was given with a command: without blanks around it and without one pair of double quotes around that.
std::wstring PathArgument(std::wstring_view text);

}  // namespace burrowmark
