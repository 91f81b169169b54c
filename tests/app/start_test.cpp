// The whole program from its start to its end, as a person and other processes meet it.
#include "app/start.h"

#include <gtest/gtest.h>

#include <functional>
#include <list>

#include "app/command_line.h"
#include "config/config_file.h"
#include "core/registry_keys.h"
#include "platform/key_codes.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

constexpr wchar_t kBeside[] = L"C:\\Program Files\\Burrowmark\\default.bwmk";

class Start : public testing::Test {
 protected:
  Start() {
    machine_.windows.Input = [this] {
      if (steps_.empty()) return false;
      const auto step = steps_.front();
      steps_.pop_front();
      step();
      return true;
    };
  }

  // Runs the program; each step happens when it has nothing to do, and at the end it is told to go.
  void Run(std::initializer_list<std::function<void()>> steps, const std::wstring& commandLine = {}) {
    steps_ = steps;
    steps_.push_back([this] { SecondProcess(L"/EXIT"); });
    RunBurrowmark(machine_.platform(), commandLine);
    EXPECT_TRUE(steps_.empty());
    EXPECT_EQ(machine_.windows.Main(), 0);
    EXPECT_EQ(machine_.shell.Tray(), nullptr);
  }
  void SecondProcess(const std::wstring& commandLine) {
    const auto other = machine_.AnotherProcess();
    RunBurrowmark(other->platform(), commandLine);
  }
  std::wstring Menu() {
    std::wstring texts;
    const MenuHandle root = machine_.menus.GetSubMenu(machine_.menus.GetMenu(machine_.windows.Main()), 0);
    for (const LocalMenuEntry& entry : machine_.menus.Entries(root)) {
      texts += (entry.IsSeparator() ? L"-" : entry.text) + L";";
    }
    return texts;
  }
  // A file that holds one shortcut of this title in the personal group, and empty groups.
  std::string FileWith(const std::wstring& title, std::initializer_list<std::wstring> groups = {}) {
    Application app(machine_.platform());
    app.AC[Appearance::kSystemFolders] = false;  // without System Folders
    clsMenuCollection& store = app.MainStore();
    store.AddNewMenuItem({.Caption = L"Mine", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
    for (const std::wstring& group : groups) {
      store.AddNewMenuItem({.Caption = group, .OwnerName = MIT_GROUP_USER, .SubMenu = true});
    }
    store.AddNewMenuItem({.Caption = title, .OwnerName = MIT_GROUP_USER, .FolderPath = L"C:\\Windows"});
    ConfigFileWriteAs(app, app.MainDocument, L"C:\\made.bwmk");
    return machine_.BytesOf(L"C:\\made.bwmk");
  }

  // The default file and another one, both without System Folders.
  void AddTwoFiles() {
    scratch_.Register(kSettingsKey, L"AC0", L"0");
    machine_.AddFile(kBeside, FileWith(L"Mine"));
    machine_.AddFile(L"C:\\other.bwmk", FileWith(L"Other"));
  }

  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  std::list<std::function<void()>> steps_;
};

TEST_F(Start, TheFirstStartWritesTheDefaultFile) {
  Run({[&] {
    EXPECT_EQ(Menu(), L"Help;-;Personal;System Folders;-;Options;Organize Folders;");
    EXPECT_EQ(machine_.shell.Tray()->tip, L"Burrowmark");
  }});
  EXPECT_NE(machine_.BytesOf(kBeside).find("C_Windows"), std::string::npos);
  EXPECT_EQ(scratch_.Registered(kSettingsKey, kConfigFileValue), L"");
}

TEST_F(Start, AFileBesideTheProgramIsReadAndRegistered) {
  machine_.AddFile(kBeside, FileWith(L"Found"));
  const std::string before = machine_.BytesOf(kBeside);
  Run({[&] {
    EXPECT_EQ(Menu(), L"Help;-;Mine;System Folders;-;Options;Organize Folders;");
    machine_.user.NextMenu({L"Mine", L"Found"});
    machine_.user.ClickTray(LocalUser::Button::kLeft);
    ASSERT_EQ(machine_.shell.Launches.size(), 1U);
    EXPECT_EQ(machine_.shell.Launches[0].file + machine_.shell.Launches[0].parameters,
              L"C:\\Windows\\EXPLORER.EXEC:\\Windows");
  }});
  EXPECT_EQ(machine_.BytesOf(kBeside), before);
}

TEST_F(Start, ARegisteredFileOnADriveThatIsAwayStaysRegistered) {
  machine_.AddFile(kBeside, FileWith(L"Found"));
  scratch_.Register(kSettingsKey, kConfigFileValue, L"Q:\\away.bwmk");
  Run({[&] { EXPECT_EQ(Menu(), L"Help;-;Mine;System Folders;-;Options;Organize Folders;"); }});
  EXPECT_EQ(scratch_.Registered(kSettingsKey, kConfigFileValue), L"Q:\\away.bwmk");
  scratch_.Register(kSettingsKey, kConfigFileValue, L"C:\\gone.bwmk");
  Run({});
  EXPECT_EQ(scratch_.Registered(kSettingsKey, kConfigFileValue), kBeside);
}

TEST_F(Start, AFileThatCannotBeReadIsNotOverwritten) {
  const std::string damaged = FileWith(L"Found").substr(0, 40);
  for (const std::string& bytes : {damaged + std::string("\0x\0", 3), std::string("no file of ours")}) {
    machine_.AddFile(kBeside, bytes);
    machine_.AddFolders(L"C:\\Doomed");
    Run({[&] {
      EXPECT_EQ(Menu(), L"Help;-;Personal;System Folders;-;Options;Organize Folders;");
      std::filesystem::remove(machine_.RealPath(L"C:\\Doomed"));
      machine_.user.NextMenu({L"Personal", L"C_Doomed"});
      machine_.user.NextBox(L"does not exist", kAnswerYes);
      machine_.user.ClickTray(LocalUser::Button::kLeft);
    }});
    const std::wstring copy = L"C:\\Program Files\\Burrowmark\\default (unreadable).bwmk";
    EXPECT_EQ(machine_.BytesOf(copy), bytes);
    EXPECT_NE(machine_.BytesOf(kBeside), bytes);
    machine_.files.DeleteFileA(copy);
  }
}

TEST_F(Start, AFileThatIsHeldOpenIsLeftAloneAndAnEmptyOneIsReplaced) {
  const std::string bytes = FileWith(L"Found");
  machine_.AddFile(kBeside, bytes);
  machine_.faults.HeldOpen.insert(L"C:\\PROGRAM FILES\\BURROWMARK\\DEFAULT.BWMK");
  Run({[&] {
    EXPECT_EQ(Menu(), L"Help;-;Personal;System Folders;-;Options;Organize Folders;");
    machine_.faults.HeldOpen.clear();
    machine_.user.NextMenu({L"Organize Folders"});  // it can be read again
    machine_.user.ClickTray(LocalUser::Button::kLeft);
    EXPECT_NE(Menu().find(L"Mine"), std::wstring::npos);
  }});
  EXPECT_EQ(machine_.BytesOf(kBeside), bytes);
  machine_.AddFile(kBeside, "");
  Run({});
  EXPECT_NE(machine_.BytesOf(kBeside), "");
}

TEST_F(Start, ADeletionIsWrittenUnlessTheFileCannotBe) {
  machine_.AddFile(kBeside, FileWith(L"Found"));
  machine_.drives.Add(L'D');
  std::string bytes = machine_.BytesOf(kBeside);
  bytes.replace(bytes.find("C:\\Windows"), 10, "D:\\Windows");
  machine_.AddFile(kBeside, bytes);
  const auto choose = [&] {
    machine_.user.NextMenu({L"Mine", L"Found"});
    machine_.user.NextBox(L"Path 'D:\\Windows' does not exist", kAnswerYes);
    machine_.user.ClickTray(LocalUser::Button::kLeft);
    EXPECT_TRUE(machine_.shell.Launches.empty());
  };
  Run({[&] {
    machine_.files.SetFileAttributesA(kBeside, kFileReadOnly);
    machine_.user.NextMenu({L"Mine", L"Found"});
    machine_.user.NextBox(L"Path 'D:\\Windows' does not exist", kAnswerYes);
    machine_.user.NextBox(L"Error saving configuration file default.bwmk\r\nFile is read-only.", kAnswerOk);
    machine_.user.ClickTray(LocalUser::Button::kLeft);
    EXPECT_NE(Menu().find(L"Mine"), std::wstring::npos);  // it is still there
  }});
  EXPECT_EQ(machine_.BytesOf(kBeside), bytes);
  machine_.files.SetFileAttributesA(kBeside, 0);
  Run({choose});
  EXPECT_EQ(machine_.BytesOf(kBeside).find("Found"), std::string::npos);
  EXPECT_NE(machine_.BytesOf(kBeside).find("Mine"), std::string::npos);
}

TEST_F(Start, WhatTheMachineRefusesDoesNotStopTheStart) {
  machine_.shell.HasTaskBar = false;
  machine_.faults.RefusedKeys.insert(L"HKEY_CURRENT_USER\\SOFTWARE\\KESTRELAN");
  machine_.faults.FoldersWithoutNewFiles.insert(L"C:\\PROGRAM FILES\\BURROWMARK");
  steps_ = {[&] {
    EXPECT_EQ(Menu(), L"Help;-;Personal;System Folders;-;Options;Organize Folders;");
    machine_.windows.DestroyMainWindow(machine_.windows.Main());
  }};
  RunBurrowmark(machine_.platform(), {});
  EXPECT_TRUE(machine_.files.FileExists(L"C:\\Users\\User\\AppData\\Roaming\\Kestrelan\\Burrowmark\\default.bwmk"));
}

TEST_F(Start, AfterTheInstallationMissingProjectionsComeUp) {
  const std::wstring desktop = L"C:\\Users\\User\\Desktop\\Organized Folders";
  const std::wstring favorites = L"C:\\Users\\User\\Favorites\\Organized Folders";
  machine_.AddFile(favorites + L"\\kept");
  for (const wchar_t* value : {L"ADVC2", L"ADVC4", kAfterInstallValue}) scratch_.Register(kSettingsKey, value, L"True");
  machine_.AddFile(kBeside, FileWith(L"Found", {L"Twice", L"Twice"}));
  machine_.user.NextBox(L"Folder Twice already exists.", kAnswerOk, [&] {
    EXPECT_EQ(machine_.user.Window(L"Starting Burrowmark...").LabelTexts(),
              L"Refreshing Organized Folders on the Desktop\n");
  });
  Run({[&] { EXPECT_TRUE(machine_.windows.Desktop.Visible().empty()); }});
  EXPECT_TRUE(machine_.files.FileExists(desktop + L"\\Found.lnk"));
  EXPECT_NE(machine_.BytesOf(desktop + L"\\Desktop.ini").find("Burrowmark\\burrowmark.exe\""), std::string::npos);
  EXPECT_TRUE(machine_.files.FileExists(favorites + L"\\kept"));
  EXPECT_EQ(scratch_.Registered(kSettingsKey, kAfterInstallValue), L"");
  std::filesystem::remove_all(machine_.RealPath(desktop));
  Run({});  // the user took it away: it stays away
  EXPECT_EQ(scratch_.Registered(kSettingsKey, L"ADVC2") + scratch_.Registered(kSettingsKey, L"ADVC4"), L"0True");
}

TEST_F(Start, CommandsOfOtherProcesses) {
  Run({[&] {
         for (const wchar_t* command : {L"", L"/FR", L"/unknown", L"/FR  ", L"/exit"}) SecondProcess(command);
         EXPECT_EQ(scratch_.Registered(kMainKey, kTransferValue), L"/exit");
       },
       [&] { EXPECT_EQ(machine_.windows.Beeps(), 2U); }});
}

TEST_F(Start, EachReportIsAWizardOfItsOwnAndAllEndWithTheProgram) {
  AddTwoFiles();
  machine_.AddFolders(L"C:\\Data");
  const auto owners = [&] {
    std::vector<WindowHandle> windows;
    for (const auto& window : machine_.windows.Desktop.Visible()) {
      if (window->caption.ends_with(L" - Folder Report")) windows.push_back(window->owner);
    }
    return windows;
  };
  Run({[&] {
         SecondProcess(L"/FR C:\\Data");
         SecondProcess(L"/FR \"C:\\is not there\"");
       },
       [&] {
         EXPECT_EQ(owners(), std::vector(2, machine_.windows.Main()));
         machine_.user.Window(L"is not there - Folder Report").Close();
         SecondProcess(L"/OF");
       },
       [&] { SecondProcess(L"/FR C:\\Data"); },
       [&] {
         const WindowHandle editor = machine_.user.Window(L"Organize Folders").window;
         EXPECT_EQ(owners(), (std::vector{editor, machine_.windows.Main()}));
       }});
  EXPECT_TRUE(machine_.windows.Desktop.Visible().empty());
}

TEST_F(Start, TheEditorOpensOnceComesForwardAndClosesWithTheProgram) {
  const std::wstring title = L"Organize Folders";
  AddTwoFiles();
  Run({[&] { SecondProcess(L"/OF"); },
       [&] {
         machine_.user.Window(title).SetState(FormWindowState::kMinimized);
         SecondProcess(L"/OF");
       },
       [&] {
         EXPECT_EQ(machine_.user.Window(title).state, FormWindowState::kNormal);
         machine_.user.Window(title).Close();
         SecondProcess(L"/OPEN \"C:\\other.bwmk\"");
       },
       [&] {
         machine_.user.ClickTray(LocalUser::Button::kLeft);  // no menu: the window comes forward
         EXPECT_EQ(machine_.user.Window(title + L" - other.bwmk").caption, title + L" - other.bwmk");
       }});
}

TEST_F(Start, ACommandTakesTheOptionsAwayButNoBoxOverThem) {
  AddTwoFiles();
  const auto choose = [&](const std::function<void(ShownWindow&)>& script) {
    machine_.user.NextMenu({L"Options"});
    machine_.user.NextWindow(L"Options", script);
    machine_.user.ClickTray(LocalUser::Button::kLeft);
  };
  Run({[&] {
         choose([&](ShownWindow& window) {
           window.Click(L"Default");
           window.Click(L"OK");
         });
         EXPECT_EQ(machine_.keyboard.LiveHooks(), 1U);
         choose([&](ShownWindow& window) {
           window.Click(L"Default");
           machine_.user.NextBox(L"Are you sure you want to exit", kAnswerNo, [&] {
             SecondProcess(L"/OF");
             EXPECT_TRUE(window.IsOpen());
           });
           window.Click(L"Exit");
           EXPECT_FALSE(window.IsOpen());
         });
       },
       [&] { EXPECT_TRUE(machine_.user.Window(L"Organize Folders").visible); }});
}

TEST_F(Start, AnEditorWithChangesCanStopTheEndOfTheProgram) {
  const std::wstring title = L"Organize Folders - other.bwmk";
  AddTwoFiles();
  const auto rename = [&](const std::wstring& name) {
    ShownWindow& window = machine_.user.Window(title);
    window.Press(kKeyCodeF2);
    window.TypeLabel(name);
    window.Press(kKeyCodeReturn);
  };
  Run({[&] { SecondProcess(L"/OPEN C:\\other.bwmk"); },
       [&] {
         rename(L"First");
         machine_.user.NextBox(L"Do you want to save the changes you made to other.bwmk?", kAnswerCancel);
         SecondProcess(L"/EXIT");
       },
       [&] {
         EXPECT_NE(machine_.windows.Main(), 0);
         EXPECT_EQ(machine_.BytesOf(L"C:\\other.bwmk").find("First"), std::string::npos);
         machine_.user.EndSession();  // nobody is asked then
         EXPECT_NE(machine_.BytesOf(L"C:\\other.bwmk").find("First"), std::string::npos);
       }});
  EXPECT_EQ(machine_.BytesOf(kBeside).find("First"), std::string::npos);
}

TEST_F(Start, ExitReachesAProgramWhoseMenuIsOpen) {
  steps_ = {[&] {
    machine_.user.NextMenu(MenuActions().Do([&] { SecondProcess(L"/EXIT"); }));
    machine_.user.ClickTray(LocalUser::Button::kLeft);
  }};
  RunBurrowmark(machine_.platform(), {});
  EXPECT_EQ(machine_.windows.Main(), 0);
}

TEST_F(Start, AnExitWithoutAnInstanceTouchesNothing) {
  RunBurrowmark(machine_.platform(), L"/EXIT");
  EXPECT_FALSE(machine_.files.FileExists(kBeside));
}

}  // namespace
}  // namespace burrowmark
