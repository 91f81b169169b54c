// The shell of the local machine: it remembers what it was asked for.
#pragma once

#include <string>
#include <vector>

#include "platform/local/disk/local_file_system.h"
#include "platform/local/faults.h"
#include "platform/shell.h"
#include "platform/system_facts.h"

namespace burrowmark {

struct Launch {
  std::wstring verb;
  std::wstring file;
  std::wstring parameters;
  std::wstring directory;
  std::int32_t show = 0;
  std::int32_t result = 0;
};

struct HelpCall {
  std::wstring path;
  std::int32_t command = 0;
};

class LocalShell final : public Shell {
 public:
  // All must outlive this object.
  LocalShell(LocalFileSystem& files, const SystemFacts& facts, Faults& faults)
      : files_(files), facts_(facts), faults_(faults) {}

  // What was asked for, in order, also if it failed.
  std::vector<Launch> Launches;
  std::vector<HelpCall> HelpCalls;
  std::vector<std::wstring> MediaCommands;
  std::vector<std::wstring> Recycled;    // what went into the bin
  std::vector<std::wstring> Properties;  // whose properties were shown
  // What it answers.
  std::int32_t LaunchResult = 42;
  bool HelpOpens = true;
  bool HasTaskBar = true;
  bool HasRecycleBin = true;

  static constexpr Rect kTrayPlace{1880, 1050, 1904, 1074};  // of every icon
  // The first icon of the tray; none if there is none.
  const TrayIcon* Tray() const { return icons_.empty() ? nullptr : &icons_.front(); }
  const std::vector<TrayIcon>& TrayIcons() const { return icons_; }
  // The task bar goes, and all icons with it.
  void LoseTaskBar();

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
  LocalFileSystem& files_;
  const SystemFacts& facts_;
  Faults& faults_;
  std::vector<TrayIcon> icons_;
};

}  // namespace burrowmark
