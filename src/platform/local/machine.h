// A small system of our own, kept in a folder on disk: for tests, and for running where Windows isn't.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/local/disk/drive_folders.h"
#include "platform/local/disk/local_file_system.h"
#include "platform/local/faults.h"
#include "platform/local/local_clock.h"
#include "platform/local/local_facts.h"
#include "platform/local/local_network.h"
#include "platform/local/local_shell.h"
#include "platform/local/local_workers.h"
#include "platform/local/menus/local_menus.h"
#include "platform/local/menus/menu_tree.h"
#include "platform/local/person/local_clipboard.h"
#include "platform/local/person/local_dialogs.h"
#include "platform/local/person/local_keyboard.h"
#include "platform/local/person/local_session.h"
#include "platform/local/person/local_user.h"
#include "platform/local/registry/local_registry.h"
#include "platform/local/screen/local_drawing.h"
#include "platform/local/screen/local_windows.h"
#include "platform/platform.h"

namespace burrowmark {

// Drives, attributes and registry stay in the folder: a machine opened over it later, in this process or another, finds
// them as they were left. Everything else belongs to this object alone: it stands for one process.
class LocalMachine {
 public:
  // A folder without a machine gets a new one: drive C with the system's, the program's and the user's folders, and
  // the registry's list of the user's folders. Throws std::filesystem::filesystem_error if the disk refuses.
  explicit LocalMachine(std::filesystem::path folder);
  LocalMachine(const LocalMachine&) = delete;
  LocalMachine& operator=(const LocalMachine&) = delete;

  Platform platform() {
    return {registry, files,   facts,    clock,     windows, menus,  drawing,
            shell,    dialogs, keyboard, clipboard, workers, network};
  }

  // Another process on this machine: the two find each other's windows and claimed names.
  std::unique_ptr<LocalMachine> AnotherProcess();

  // For tests. The first three aren't counted as calls, no fault strikes them and no attribute binds them; they throw
  // std::runtime_error where they can't do as told.

  // Makes a folder, or a network share, with all its parents. The drive must be there.
  void AddFolders(const std::wstring& path);
  // Writes a file of this content, in place of one that exists, and makes its parents.
  void AddFile(const std::wstring& path, std::string_view bytes = {});
  std::string BytesOf(const std::wstring& path) const;
  // Where the file or folder stands, or would stand, on the disk below; empty if its parent doesn't exist.
  std::filesystem::path RealPath(const std::wstring& path) const;

 private:
  LocalMachine(std::filesystem::path folder, std::shared_ptr<LocalSession> session);
  void Furnish();
  bool HasFile(const std::wstring& path) const;

  std::filesystem::path folder_;
  std::shared_ptr<LocalSession> session_;
  MenuTree menuTree_;

 public:
  Faults faults;
  Faults uiFaults;  // of menus, windows and the shell, counted by themselves
  DriveFolders drives;
  LocalFileSystem files;
  LocalRegistry registry;
  LocalFacts facts;
  LocalClock clock;
  LocalDrawing drawing;
  LocalShell shell;
  LocalWindows windows;
  LocalUser user;
  LocalMenus menus;
  LocalDialogs dialogs;
  LocalKeyboard keyboard;
  LocalClipboard clipboard;
  LocalWorkers workers;
  LocalNetwork network;
};

}  // namespace burrowmark
