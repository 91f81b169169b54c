#include "platform/local/local_shell.h"

#include <algorithm>

#include "platform/local/links/link_file.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kNoSuchFile = 2;
constexpr std::size_t kLongestTip = 63;

// Takes over what the flags of `from` say.
void Update(TrayIcon& icon, const TrayIcon& from) {
  if ((from.flags & kTrayHasMessage) != 0) icon.callbackMessage = from.callbackMessage;
  if ((from.flags & kTrayHasIcon) != 0) icon.icon = from.icon;
  if ((from.flags & kTrayHasTip) != 0) icon.tip = from.tip.substr(0, kLongestTip);
  icon.flags |= from.flags;
}

}  // namespace

std::int32_t LocalShell::ShellExecuteA(const std::wstring& verb, const std::wstring& file,
                                       const std::wstring& parameters, const std::wstring& directory,
                                       std::int32_t show) {
  const std::int32_t result = faults_.Strikes("ShellExecuteA", file) ? kNoSuchFile : LaunchResult;
  Launches.push_back({verb, file, parameters, directory, show, result});
  return result;
}

std::optional<Rect> LocalShell::Shell_NotifyIconGetRect(WindowHandle window, std::uint32_t id) {
  const bool isThere = std::any_of(icons_.begin(), icons_.end(),
                                   [=](const TrayIcon& icon) { return icon.window == window && icon.id == id; });
  return isThere ? std::optional(kTrayPlace) : std::nullopt;
}

bool LocalShell::Shell_NotifyIconA(std::uint32_t message, const TrayIcon& icon) {
  if (faults_.Strikes("Shell_NotifyIconA", icon.tip) || !HasTaskBar || icon.window == 0) return false;
  const auto found = std::find_if(icons_.begin(), icons_.end(), [&icon](const TrayIcon& known) {
    return known.window == icon.window && known.id == icon.id;
  });
  const bool isThere = found != icons_.end();
  if (isThere == (message == kTrayAdd) || message > kTrayDelete) return false;
  if (message == kTrayDelete) {
    icons_.erase(found);
    return true;
  }
  TrayIcon& target = isThere ? *found : icons_.emplace_back();
  target.window = icon.window;
  target.id = icon.id;
  Update(target, icon);
  return true;
}

void LocalShell::LoseTaskBar() {
  HasTaskBar = false;
  icons_.clear();
}

bool LocalShell::HtmlHelpA(const std::wstring& path, std::int32_t command) {
  HelpCalls.push_back({path, command});
  return HelpOpens;
}

bool LocalShell::ReadShellLink(const std::wstring& path, ShellLink& link) {
  std::string bytes;
  return !faults_.Strikes("ReadShellLink", path) && files_.Load(path, bytes) && ReadLinkFile(bytes, facts_, link);
}

bool LocalShell::WriteShellLink(const std::wstring& path, const ShellLink& link) {
  if (faults_.Strikes("WriteShellLink", path)) return false;
  const std::optional<WindowsPath> target = ParseWindowsPath(link.target);
  if (!target) return false;
  const DriveFacts drive = files_.FactsOf(*target);
  const std::uint32_t attributes = files_.AttributesOf(link.target).value_or(0);
  return files_.Store(path, BuildLinkFile(link, *target, attributes, {drive.type, drive.label}, facts_));
}

bool LocalShell::RecycleFile(const std::wstring& path) {
  if (faults_.Strikes("RecycleFile", path) || !HasRecycleBin || !files_.Recycle(path)) return false;
  Recycled.push_back(path);
  return true;
}

bool LocalShell::ShowProperties(WindowHandle, const std::wstring& path) {
  if (faults_.Strikes("ShowProperties", path) || !files_.AttributesOf(path)) return false;
  Properties.push_back(path);
  return true;
}

std::int32_t LocalShell::mciSendStringA(const std::wstring& command) {
  MediaCommands.push_back(command);
  return 0;
}

}  // namespace burrowmark
