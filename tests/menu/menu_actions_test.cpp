// A person at the tray icon: what the menu shows and what choosing an entry does.
#include "menu/menu_actions.h"

#include <gtest/gtest.h>

#include "core/hot_keys.h"
#include "core/menu_entries.h"
#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

constexpr auto kRight = LocalUser::Button::kRight;

class MenuInUse : public testing::Test {
 protected:
  MenuInUse() {
    app_.Calls.OpenEditor = [this] { ++editorOpened_; };
    app_.Calls.DeleteShortcut = [this](const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item) {
      RemoveEntries(app_, *store, [&item](const clsMenuItem& entry) { return &entry == item.get(); });
      ++deleted_;
    };
    app_.AC[Appearance::kDrives] = false;  // the drives have a test of their own
    scene_.AddPersonal();
    scene_.AddShortcut(L"live", L"Live", L"C:\\live");
    scene_.AddShortcut(L"dead", L"Dead", L"")->FolderPath = L"C:\\gone";
  }

  void Start() {
    AddFixedEntries(app_, app_.MainStore(), false);
    scene_.Start();
  }
  void Choose(std::initializer_list<std::wstring> path) { scene_.Choose(path); }
  // Parameters of all launches of the file manager, one after the other.
  std::wstring Opened() const {
    std::wstring text;
    for (const Launch& launch : machine_.shell.Launches) {
      EXPECT_EQ(launch.verb + launch.file + launch.directory, L"openC:\\Windows\\EXPLORER.EXE0");
      text += launch.parameters + L";";
    }
    return text;
  }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  LocalUser& user_ = machine_.user;
  Application& app_ = scene_.app;
  int deleted_ = 0;
  int editorOpened_ = 0;
};

TEST_F(MenuInUse, AChosenShortcutOpensItsFolderAndIsStamped) {
  Start();
  Choose({L"Personal", L"Live"});
  EXPECT_EQ(Opened(), L"C:\\live;");
  EXPECT_GT(app_.MainStore().GetMenuItemFromName(L"live")->TimeAccessed, 0);
  app_.MainStore().GetMenuItemFromName(L"live")->OpenType = MIT_PATH_EXPLORER;
  scene_.Choose(MenuActions().Type(L"p").Press(MenuKey::kEnter).Type(L"l").Press(MenuKey::kEnter), kRight);
  EXPECT_EQ(Opened(), L"C:\\live;/e,C:\\live;");
  app_.MainStore().GetMenuItemFromName(L"live")->FolderPath = L"C:\\a, b";
  machine_.AddFolders(L"C:\\a, b");
  Choose({L"Personal", L"Live"});
  EXPECT_EQ(Opened(), L"C:\\live;/e,C:\\live;/e,\"C:\\a, b\";");  // a comma would end the argument
}

TEST_F(MenuInUse, ASilentServerIsAskedOnceForAllThatOpensTogether) {
  for (const wchar_t* path : {L"\\\\dead\\one", L"\\\\dead\\two", L"\\\\live\\share"}) {
    scene_.AddShortcut(path, path, path);
  }
  app_.MainStore().AddNewMenuItem({.OwnerName = MIT_GROUP_USER, .ItemType = MIT_OPENALL});
  machine_.faults.SilentPlaces = {L"\\\\DEAD"};
  Start();
  for (const wchar_t* path : {L"gone", L"\\\\dead\\one", L"\\\\dead\\two"}) user_.NextBox(path, kAnswerNo);
  Choose({L"Personal", L"Open-All"});
  EXPECT_EQ(Opened(), L"C:\\live;\\\\live\\share;");
  EXPECT_EQ(machine_.workers.VainWaits, 1U);
}

TEST_F(MenuInUse, NeitherADriveNorTheMenuIsOpenedWithATestOfPaths) {
  app_.MainStore().AddNewMenuItem({.Caption = L"Q",
                                   .OwnerName = kRootOwner,
                                   .FolderPath = L"Q:\\",
                                   .ItemType = MIT_DRIVE,
                                   .OpenType = MIT_PATH_EXPLORER,
                                   .DriveType = 5});
  Start();
  machine_.faults.Clear();
  Choose({L"Q"});
  EXPECT_EQ(Opened(), L"/e,Q:\\;");
  scene_.Choose(MenuActions().Click(L"Personal").Cancel());
  EXPECT_EQ(machine_.faults.Calls(), 0U);
}

TEST_F(MenuInUse, ADeadShortcutAsksAndYesTakesItOutOfMenuAndFile) {
  Start();
  app_.GC[General::kAskForDeletingDead] = false;
  Choose({L"Personal", L"Dead"});  // nobody is asked
  app_.GC[General::kAskForDeletingDead] = true;
  for (const std::int32_t answer : {kAnswerNo, kAnswerYes}) {
    user_.NextBox(L"Path 'C:\\gone' does not exist", answer);
    Choose({L"Personal", L"Dead"});
    EXPECT_EQ(app_.MainStore().ItemExists(L"dead"), answer == kAnswerNo);
  }
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[Live] - Options Organize Folders");
  EXPECT_EQ(scene_.WrongNumbers(), "");
  EXPECT_EQ(Opened(), L"");
}

TEST_F(MenuInUse, OpenAllOpensTheLivingOfItsLevelAndAsksForEachOfTheDead) {
  scene_.AddGroup(L"g", L"Group");
  scene_.AddShortcut(L"inner", L"Inner", L"C:\\inner", L"g");
  scene_.AddShortcut(L"dead2", L"Dead2", L"")->FolderPath = L"C:\\gone2";
  scene_.AddShortcut(L"zlast", L"Z", L"C:\\z");
  app_.MainStore().AddNewMenuItem({.OwnerName = MIT_GROUP_USER, .Name = L"all", .ItemType = MIT_OPENALL});
  Start();
  user_.NextBox(L"C:\\gone'", kAnswerYes);
  user_.NextBox(L"C:\\gone2'", kAnswerYes);
  Choose({L"Personal", L"Open-All"});
  EXPECT_EQ(Opened(), L"C:\\live;C:\\z;");
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[Group[Inner] Live Z Open-All] - Options Organize Folders");
  EXPECT_GT(app_.MainStore().GetMenuItemFromName(L"zlast")->TimeAccessed, 0);
  EXPECT_EQ(deleted_, 2);
}

TEST_F(MenuInUse, AHotKeyOpensEveryItemOfItsCode) {
  scene_.AddGroup(L"g", L"Group");
  scene_.AddShortcut(L"inner", L"Inner", L"C:\\inner", L"g");
  app_.MainStore().AddNewMenuItem({.OwnerName = L"g", .Name = L"all", .ItemType = MIT_OPENALL, .KeyboardCode = 53});
  app_.MainStore().GetMenuItemFromName(L"live")->KeyboardCode = 53;
  app_.MainStore().GetMenuItemFromName(L"dead")->KeyboardCode = 54;
  Start();
  RefreshHotKeys(app_, app_.MainDocument.Store);
  EXPECT_TRUE(OpenHotKeyItem(app_, 53));
  EXPECT_EQ(Opened(), L"C:\\live;C:\\inner;");
  EXPECT_FALSE(OpenHotKeyItem(app_, 54));
  user_.NextBox(L"C:\\gone", kAnswerYes);  // when the program is at rest
  machine_.windows.DoEvents();
  EXPECT_EQ(deleted_, 1);
}

TEST_F(MenuInUse, FixedEntriesGoTheirOwnWays) {
  Start();
  Choose({L"Organize Folders"});
  EXPECT_EQ(editorOpened_, 1);
  bool shown = false;
  app_.Calls.ShowOptions = [&] {
    shown = true;
    return true;
  };
  Choose({L"Options"});
  EXPECT_TRUE(shown);
  user_.NextBox(L"Burrowmark help file is missing. Unable to display help.", kAnswerOk);
  Choose({L"Help"});
  machine_.AddFile(app_.HelpFile, "x");
  Choose({L"Help"});
  EXPECT_EQ(machine_.shell.HelpCalls.back().command, 1);
  machine_.shell.HelpOpens = false;
  Choose({L"Help"});
  EXPECT_EQ(machine_.shell.Launches.back().file, app_.HelpFile);
}

TEST_F(MenuInUse, ARightClickOnACompactDiscOpensItsTrayAndClosesTheMenu) {
  app_.MainStore().AddNewMenuItem(
      {.Caption = L"D", .OwnerName = kRootOwner, .FolderPath = L"d:\\", .ItemType = MIT_DRIVE, .DriveType = 5});
  Start();
  scene_.Choose(MenuActions().RightClick(L"D"));
  EXPECT_EQ(machine_.shell.MediaCommands,
            (std::vector<std::wstring>{L"close all", L"open D:\\ type cdaudio alias cdr wait shareable",
                                       L"set cdr door open", L"close all"}));
  EXPECT_EQ(machine_.windows.CancelledModes(), 1U);
  scene_.Choose(MenuActions().Click(L"Personal").RightClick(L"Live").Cancel());
  EXPECT_EQ(machine_.shell.MediaCommands.size(), 4U);
  EXPECT_EQ(Opened(), L"");
}

TEST_F(MenuInUse, TheTrayIconIsTriedAgainAndComesBackWithTheTaskBar) {
  machine_.shell.HasTaskBar = false;
  Start();
  EXPECT_EQ(machine_.shell.Tray(), nullptr);
  machine_.shell.HasTaskBar = true;
  machine_.windows.Advance(5000);
  ASSERT_NE(machine_.shell.Tray(), nullptr);
  EXPECT_EQ(LocalDrawing::IconNumber(machine_.shell.Tray()->icon), 1);
  user_.LoseTaskBar();
  user_.StartTaskBar();
  EXPECT_EQ(machine_.shell.TrayIcons().size(), 1U);
  user_.StartTaskBar();  // it tells of itself again, with the icon still there
  machine_.uiFaults.Clear();
  machine_.windows.Advance(60000);
  EXPECT_EQ(machine_.uiFaults.Calls(), 0U);  // nobody goes on trying
}

TEST_F(MenuInUse, TheTrayIconFollowsTheScale) {
  Start();
  machine_.windows.Dpi = 192;
  WindowMessage message = MessageTo(app_.MainWindow, kMessageDpiChanged, 192, 0);
  machine_.windows.Deliver(message);
  EXPECT_EQ(LocalDrawing::IconSize(machine_.shell.Tray()->icon), 32);
  EXPECT_EQ(machine_.shell.Tray()->tip, L"Burrowmark");
}

TEST_F(MenuInUse, AnAmpersandIsALetterLikeAnyOther) {
  scene_.AddShortcut(L"amp", L"&Live", L"C:\\amp");
  Start();
  scene_.Choose(MenuActions().Click(L"Personal").Type(L"l").Press(MenuKey::kEnter));
  scene_.Choose(MenuActions().Click(L"Personal").Type(L"&").Press(MenuKey::kEnter));
  EXPECT_EQ(Opened(), L"C:\\live;C:\\amp;");
}

TEST_F(MenuInUse, WhereAppsAreDarkTheMenuIsUnlessTheSystemsColoursSayMore) {
  machine_.drawing.DarkApps = true;
  constexpr Color kDark = 0x2B2B2B;
  EXPECT_EQ(scene_.menu.ChooseColors(), kDark);
  machine_.drawing.HighContrast = true;
  EXPECT_EQ(scene_.menu.ChooseColors(), 0xF0F0F0U);
  machine_.drawing.HighContrast = false;
  machine_.drawing.Colors[kColorMenu] = 0x202020;  // dark already
  EXPECT_EQ(scene_.menu.ChooseColors(), 0x202020U);
}

TEST_F(MenuInUse, OpenedByAKeyItStandsAtTheIcon) {
  Start();
  machine_.user.NextMenu(MenuActions().Cancel());
  machine_.user.PressTray();
  EXPECT_EQ(machine_.menus.Beside, LocalShell::kTrayPlace);
  scene_.Choose(MenuActions().Cancel());
  EXPECT_EQ(machine_.menus.Beside, std::nullopt);
}

TEST_F(MenuInUse, OnAScreenOfAnotherScaleTheMenuIsMeasuredAnew) {
  Start();
  for (const std::int32_t dpi : {96, 192}) {
    machine_.windows.Dpi = dpi;
    scene_.Choose(MenuActions().Cancel());
    EXPECT_EQ(machine_.menus.Entries(scene_.Root()).front().height, 19 * dpi / 96);
  }
  EXPECT_EQ(scene_.WrongNumbers(), "");
}

}  // namespace
}  // namespace burrowmark
