// The application-wide values and settings. One object, made by the program's entry point and passed by reference.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/document.h"
#include "core/os_detection.h"
#include "core/program_dialogs.h"
#include "core/program_windows.h"
#include "core/requests.h"
#include "core/setting_names.h"
#include "platform/platform.h"

namespace burrowmark {

class FormOwner;
class frmPause;

// A drive of the machine as the menu knows it.
struct clsDrive {
  std::wstring Name;       // the title of its entry
  std::wstring LocalName;  // its root in upper case: "C:\\"
  std::int32_t DriveType = 0;
  bool IsThere = true;  // it has an entry; one that the system lists without having it has none
};

// The items that have a hot key, in the order of the store that they stand in.
struct HotKeyList {
  std::shared_ptr<clsMenuCollection> Store;
  std::vector<ItemRef> Items;
  std::set<ItemRef> Questioned;  // those whose folder is gone, while the user is to be asked about them
};

// What a lower room asks of a higher one, put in by the program's entry point. One that is empty does nothing.
struct UpwardCalls {
  // Shows the editor.
  std::function<void()> OpenEditor;
  // A command from another instance, as it came over.
  std::function<void(const std::wstring& Command)> CommandArrived;
  // Shows the Options dialog over the menu's tree; true if something was changed.
  std::function<bool()> ShowOptions;
  // Opens a wizard for the report on a folder.
  std::function<void(const std::wstring& folder, const FormOwner& owner)> ShowFolderReport;
  // Watches the keyboard for hot keys, or doesn't.
  std::function<void(bool on)> WatchHotKeys;
  // Deletes a shortcut whose folder is gone from the tree that it stands in, for good.
  std::function<void(const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item)> DeleteShortcut;
};

struct Application {
  explicit Application(Platform system)
      : Requests(system.windows, Windows, [this] { BringForward(); }),
        platform(WithBoxes(system)),
        MainDocument{.Store = std::make_shared<clsMenuCollection>(system.clock)},
        dialogs_(system.dialogs, Requests, Windows, MainWindow) {}
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  ProgramWindows Windows;
  burrowmark::Requests Requests;
  Platform platform;  // its boxes are the program's own

  Document MainDocument;  // behind the menu
  HotKeyList HotKeyItems;
  std::vector<clsDrive> DrivesCollection;  // the drives that the menu shows
  bool DrivesRebuildNeeded = true;         // the next opening of the menu makes the Drives group anew

  std::wstring AppPath;        // the program's folder
  std::wstring WindowsFolder;  // folders without a trailing backslash, empty where the system has none
  std::wstring PersonalFolder = L"C:\\";
  std::wstring DesktopFolder;
  std::wstring RecentFolder;
  std::wstring ExplorerPath;        // the file manager
  std::wstring AppCommand;          // commands in double quotes: this program,
  std::wstring CopyAddressCommand;  // and the one that puts an address on the clipboard
  std::wstring HelpFile;
  std::wstring ConfigFile;  // the default configuration file

  // Folders that show the tree outside the menu (projection/organized_folders.h); empty where the system has no place.
  std::wstring OrganizedFoldersDesktop;
  std::wstring OrganizedFoldersSendTo;
  std::wstring OrganizedFoldersFavorites;

  std::shared_ptr<frmPause> Progress;  // the one progress window, made when it is first needed

  WindowHandle MainWindow = 0;  // the hidden one behind the tray icon
  UpwardCalls Calls;

  bool AlwaysOnTop = false;  // the editor's window stays above others, and so do those that come up meanwhile
  OsDetection Os;

  // The values here are those of a first start.
  SettingValues<General> GC{true};
  SettingValues<Appearance> AC{true};
  SettingValues<Advanced> ADVC{false};
  bool ShowTips = false;      // TIP
  bool AfterInstall = false;  // AFTINST: the setup program has just run

  clsMenuCollection& MainStore() const { return *MainDocument.Store; }
  bool IsMainStore(const clsMenuCollection& store) const { return &store == MainDocument.Store.get(); }
  // The window in front of the user, and the box over it; the hidden window's box where no window is open.
  void BringForward();

 private:
  Platform WithBoxes(const Platform& system);

  ProgramDialogs dialogs_;
};

}  // namespace burrowmark
