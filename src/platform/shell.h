// The shell: launching, the icon on the task bar's tray, help, media commands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/drawing.h"
#include "platform/window_handle.h"

namespace burrowmark {

// A launch worked if its result is above this (shellapi.h).
inline constexpr std::int32_t kLastShellError = 32;
inline constexpr std::int32_t kShowNormal = 1;

// Messages of Shell_NotifyIconA and the parts of the record that count (shellapi.h).
inline constexpr std::uint32_t kTrayAdd = 0;
inline constexpr std::uint32_t kTrayModify = 1;
inline constexpr std::uint32_t kTrayDelete = 2;
inline constexpr std::uint32_t kTrayHasMessage = 1;
inline constexpr std::uint32_t kTrayHasIcon = 2;
inline constexpr std::uint32_t kTrayHasTip = 4;

struct TrayIcon {
  WindowHandle window = 0;  // hears of the mouse and of keys
  std::uint32_t id = 0;
  std::uint32_t flags = 0;
  std::uint32_t callbackMessage = 0;  // what it hears, with the mouse's message, or a key's, as its value
  IconHandle icon = 0;
  std::wstring tip;  // at most 63 characters
};

// What HtmlHelpA opens (htmlhelp.h).
inline constexpr std::int32_t kHelpPage = 0;
inline constexpr std::int32_t kHelpContents = 1;
inline constexpr std::int32_t kHelpIndex = 2;

// What a shortcut file says.
struct ShellLink {
  std::wstring target;  // full path of a file or a folder
  std::wstring description;
  std::int32_t showCommand = kShowNormal;
};

class Shell {
 public:
  virtual ~Shell() = default;

  // Starts a program, or opens a file with the one that is registered for it. A directory that isn't a folder ("0") is
  // none. The result is above kLastShellError on success. Nothing is shown on failure.
  virtual std::int32_t ShellExecuteA(const std::wstring& verb, const std::wstring& file, const std::wstring& parameters,
                                     const std::wstring& directory, std::int32_t show) = 0;
  // False if there is no task bar, or it refuses.
  virtual bool Shell_NotifyIconA(std::uint32_t message, const TrayIcon& icon) = 0;
  // Where the icon is on the screen; none where the system doesn't tell.
  virtual std::optional<Rect> Shell_NotifyIconGetRect(WindowHandle window, std::uint32_t id) = 0;
  // Opens a help file; for kHelpPage the path ends in "::/" and the name of the page. False if it can't.
  virtual bool HtmlHelpA(const std::wstring& path, std::int32_t command) = 0;
  // Reads a shortcut file as it stands, without looking for its target. False if it is none, or leads to no file.
  virtual bool ReadShellLink(const std::wstring& path, ShellLink& link) = 0;
  // Writes a shortcut file in place of one that is there; the target needn't exist.
  virtual bool WriteShellLink(const std::wstring& path, const ShellLink& link) = 0;
  // Moves a file, or a folder with all that is in it, to the Recycle Bin. False if it stays, as it does where there is
  // no bin. Nothing is shown unless the system wants to ask about what is too large for the bin.
  virtual bool RecycleFile(const std::wstring& path) = 0;
  // Shows the shell's own properties of a file or a folder over a window. They go when they are closed, or with the
  // program. False if there are none.
  virtual bool ShowProperties(WindowHandle owner, const std::wstring& path) = 0;
  // A command to a media device; the system's error number, 0 on success.
  virtual std::int32_t mciSendStringA(const std::wstring& command) = 0;
};

}  // namespace burrowmark
