// What the local machine says about itself. A test changes any of it.
#pragma once

#include <map>

#include "platform/system_facts.h"

namespace burrowmark {

class LocalFacts final : public SystemFacts {
 public:
  // Starts as a Windows 10 with the settings of the United States. The ANSI code page is always Windows-1252.
  LocalFacts();

  SystemVersion Version{10, 0, 19045, kPlatformNT};
  bool VersionFails = false;
  std::wstring WindowsFolder = L"C:\\Windows";
  std::wstring SystemFolder = L"C:\\Windows\\System32";
  std::wstring Computer = L"BURROW";
  std::wstring Module = L"C:\\Program Files\\Burrowmark\\burrowmark.exe";
  std::wstring TempFolder = L"C:\\Users\\User\\AppData\\Local\\Temp";
  std::map<std::int32_t, std::wstring> Locale;  // by setting

  bool GetVersionExA(SystemVersion& version) const override;
  std::wstring GetWindowsDirectoryA() const override { return WindowsFolder; }
  std::wstring GetSystemDirectoryA() const override { return SystemFolder; }
  std::wstring GetComputerNameA() const override { return Computer; }
  std::wstring GetTempPathA() const override { return TempFolder; }
  std::wstring GetModuleFileNameA() const override { return Module; }
  std::wstring GetLocaleInfoA(std::int32_t setting) const override;
  bool ToAnsi(std::wstring_view text, std::string& bytes) const override;
  std::wstring FromAnsi(std::string_view bytes) const override;
};

}  // namespace burrowmark
