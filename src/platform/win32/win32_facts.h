// What the real system says about itself.
#pragma once

#include "platform/system_facts.h"

namespace burrowmark {

class Win32Facts final : public SystemFacts {
 public:
  bool GetVersionExA(SystemVersion& version) const override;
  std::wstring GetWindowsDirectoryA() const override;
  std::wstring GetSystemDirectoryA() const override;
  std::wstring GetComputerNameA() const override;
  std::wstring GetTempPathA() const override;
  std::wstring GetModuleFileNameA() const override;
  std::wstring GetLocaleInfoA(std::int32_t setting) const override;
  bool ToAnsi(std::wstring_view text, std::string& bytes) const override;
  std::wstring FromAnsi(std::string_view bytes) const override;
};

}  // namespace burrowmark
