// The application-wide values and settings. One object, made by the program's entry point and passed by reference.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/menu_collection.h"
#include "core/os_detection.h"
#include "platform/platform.h"

namespace burrowmark {

class frmPause;

// Windows of which there is never more than one; the order is that of WindowOpenFlags.
enum class SingleWindow {
  kOptions,
  kOrganize,
  kAddModify,
  kProperties,
  kPropertiesConfigFile,
  kNetworkDrives,
  kPersonalNetworkInfo,
  kWizard,
  kAbout,
  kTip,
  kCount,
};

// Sizes of the three groups of settings.
inline constexpr std::size_t kGeneralCount = 3;
inline constexpr std::size_t kAppearanceCount = 7;
inline constexpr std::size_t kAdvancedCount = 8;

// A drive of the machine as the menu knows it.
struct clsDrive {
  std::wstring Name;       // the title of its entry
  std::wstring LocalName;  // its root in upper case: "C:\\"
  std::int32_t DriveType = 0;
};

// Texts that a configuration file carries about itself.
struct ConfigSummary {
  std::wstring SummaryTitle;
  std::wstring SummaryAuthor;
  std::wstring SummaryCategory;
  std::wstring SummaryKeywords;
  std::wstring SummaryComments;
};

// Calls that must go up, put in by the program's entry point. One that is empty has no window yet and does nothing.
struct UpwardCalls {
  // The command handler: of the menu's "Organize Folders" (true, empty) and of a hand-over (false, its text).
  std::function<void(bool FromMenu, const std::wstring& Command)> ProcessCommand;
  // Shows the Options dialog over the main window; true if something was changed.
  std::function<bool(clsMenuCollection& store, bool FromMainMenu)> ShowOptions;
  std::function<void(SingleWindow window)> BringToFront;
  // Writes the main store to the default file.
  std::function<void()> SaveMainStore;
  // Shows the editor over the main window; then hands it a command ("/ADD ...", "/OPEN ...").
  std::function<void(bool AddMode)> ShowOrganize;
  std::function<void(const std::wstring& Command)> InitOrganize;
  // Closes the editor; false if the user wants to go on with it.
  std::function<bool()> UnloadOrganize;
  // What is being edited is written without a question.
  std::function<void()> SaveForSessionEnd;
  std::function<void(const std::wstring& folder)> ShowFolderReport;
  std::function<void()> UnloadOptions;
  // Ends the program: unloads the main window.
  std::function<void()> UnloadMain;
};

struct Application {
  explicit Application(Platform system)
      : platform(system), MainStore(std::make_shared<clsMenuCollection>(system.clock)) {}

  Platform platform;

  std::shared_ptr<clsMenuCollection> MainStore;  // the tree behind the menu
  std::vector<ItemRef> HotKeyItems;              // the items of a store that have a hot key, in its order
  std::vector<clsDrive> DrivesCollection;        // the drives that the menu shows
  bool DrivesRebuildNeeded = true;               // the next opening of the menu makes the Drives group anew

  std::wstring AppPath;        // the program's folder
  std::wstring WindowsFolder;  // folders without a trailing backslash, empty where the system has none
  std::wstring PersonalFolder = L"C:\\";
  std::wstring DesktopFolder;
  std::wstring RecentFolder;
  std::wstring ExplorerPath;        // the file manager
  std::wstring AppCommand;          // commands in double quotes: this program,
  std::wstring CopyAddressCommand;  // and the one that puts an address on the clipboard
  std::wstring HelpFile;

  // Folders that show the tree outside the menu (projection/organized_folders.h); empty where the system has no place.
  std::wstring OrganizedFoldersDesktop;
  std::wstring OrganizedFoldersSendTo;
  std::wstring OrganizedFoldersFavorites;

  std::shared_ptr<frmPause> Progress;  // the one progress window, made when it is first needed

  WindowHandle MainWindow = 0;  // the hidden one behind the tray icon
  UpwardCalls Calls;

  std::wstring ConfigFile;         // the default configuration file
  std::wstring CurrentConfigFile;  // the file that was last read
  ConfigSummary Summary;           // of the current file

  // A file that couldn't be read at the start: before anything overwrites it, it is copied to a name beside it.
  std::wstring UnreadableConfigFile;
  bool MainStoreFromConfigFile = false;  // the menu's tree is what `ConfigFile` holds

  bool ExitRequested = false;
  bool WalkRunning = false;  // several shortcuts are being opened one after the other
  bool MenuShowing = false;  // the popup menu is up
  bool AlwaysOnTop = false;  // the editor's window stays above others, and so do those that come up meanwhile
  OsDetection Os;
  std::array<bool, static_cast<std::size_t>(SingleWindow::kCount)> WindowOpenFlags{};

  // General, appearance and advanced settings; the values here are those of a first start.
  std::array<bool, kGeneralCount> GC{true, true, true};
  std::array<bool, kAppearanceCount> AC{true, true, true, true, true, true, true};
  std::array<bool, kAdvancedCount> ADVC{};
  bool ShowTips = false;      // TIP
  bool AfterInstall = false;  // AFTINST: the setup program has just run

  bool& IsOpen(SingleWindow window) { return WindowOpenFlags.at(static_cast<std::size_t>(window)); }
};

}  // namespace burrowmark
