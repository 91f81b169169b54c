// The shell of the real system.
#pragma once

#include <memory>

#include "platform/shell.h"
#include "platform/win32/system_library.h"

namespace burrowmark {

class Win32Shell final : public Shell {
 public:
  Win32Shell();
  ~Win32Shell() override;
  Win32Shell(const Win32Shell&) = delete;
  Win32Shell& operator=(const Win32Shell&) = delete;

  std::int32_t ShellExecuteA(const std::wstring& verb, const std::wstring& file, const std::wstring& parameters,
                             const std::wstring& directory, std::int32_t show) override;
  bool Shell_NotifyIconA(std::uint32_t message, const TrayIcon& icon) override;
  std::optional<Rect> Shell_NotifyIconGetRect(WindowHandle window, std::uint32_t id) override;
  bool HtmlHelpA(const std::wstring& path, std::int32_t command) override;
  bool ReadShellLink(const std::wstring& path, ShellLink& link) override;
  bool WriteShellLink(const std::wstring& path, const ShellLink& link) override;
  bool RecycleFile(const std::wstring& path) override;
  bool ShowProperties(WindowHandle owner, const std::wstring& path) override;
  std::int32_t mciSendStringA(const std::wstring& command) override;

 private:
  class Apartment;
  class Help;

  std::unique_ptr<Apartment> apartment_;
  std::unique_ptr<Help> help_;  // from its first use on
};

}  // namespace burrowmark
