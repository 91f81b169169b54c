// Keys and values that the program keeps, all under HKEY_CURRENT_USER.
#pragma once

namespace burrowmark {

inline constexpr wchar_t kMainKey[] = L"Software\\Kestrelan\\Burrowmark";
inline constexpr wchar_t kSettingsKey[] = L"Software\\Kestrelan\\Burrowmark\\Settings";
inline constexpr wchar_t kShellFoldersKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

inline constexpr wchar_t kConfigFileValue[] = L"ConfigFile";  // under kSettingsKey

}  // namespace burrowmark
