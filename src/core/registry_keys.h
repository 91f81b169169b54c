// Keys and values that the program keeps or reads. All of its own are under HKEY_CURRENT_USER.
#pragma once

namespace burrowmark {

inline constexpr wchar_t kMainKey[] = L"Software\\Kestrelan\\Burrowmark";
inline constexpr wchar_t kSettingsKey[] = L"Software\\Kestrelan\\Burrowmark\\Settings";
inline constexpr wchar_t kCurrentVersionKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion";
inline constexpr wchar_t kShellFoldersKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
inline constexpr wchar_t kRunKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

inline constexpr wchar_t kWindowValue[] = L"HWND";            // under kMainKey: the running instance's main window
inline constexpr wchar_t kTransferValue[] = L"TRANSFER";      // under kMainKey: the last command handed over
inline constexpr wchar_t kRunValue[] = L"Burrowmark";         // under kRunKey: start with the user's session
inline constexpr wchar_t kConfigFileValue[] = L"ConfigFile";  // under kSettingsKey, as are these
inline constexpr wchar_t kTipValue[] = L"TIP";
inline constexpr wchar_t kAfterInstallValue[] = L"AFTINST";

}  // namespace burrowmark
