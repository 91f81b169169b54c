#include "menu/menu_setup.h"

#include <gtest/gtest.h>

#include "core/store_copy.h"
#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

using test::NamesOf;

class MenuSetup : public testing::Test {
 protected:
  void Fill() {
    scene_.AddPersonal();
    scene_.AddGroup(L"G", L"Group");
    scene_.AddShortcut(L"S", L"Inner", L"", L"G");
    scene_.AddShortcut(L"T", L"Top", L"");
    AddFixedEntries(app_, app_.MainStore(), false);
  }

  test::MenuScene scene_;
  Application& app_ = scene_.app;
};

TEST_F(MenuSetup, AnEmptyStoreLeavesTheDummyAndTheFirstEntryReplacesIt) {
  scene_.Start();
  EXPECT_EQ(scene_.NativeTexts(), L"Dummy");
  scene_.AddShortcut(L"S", L"Only", L"", kRootOwner);
  scene_.menu.Build({});
  EXPECT_EQ(scene_.NativeTexts(), L"Only");
  ReplaceMainStore(app_, std::make_shared<clsMenuCollection>(scene_.machine.clock));
  EXPECT_EQ(scene_.NativeTexts(), L"Dummy");
}

TEST_F(MenuSetup, AnEntryWithoutItsOwnerStaysOutAndItsPopupGoes) {
  Fill();
  const std::size_t menus = 4;  // the bar, the root, Personal and Group
  app_.MainStore().AddNewMenuItem({.Caption = L"Lost", .OwnerName = L"nobody", .Name = L"L", .SubMenu = true});
  app_.MainStore().AddNewMenuItem({.Caption = L"Lost too", .OwnerName = L"L", .Name = L"M"});
  scene_.Start();
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[Group[Inner] Top] - Options Organize Folders");
  EXPECT_EQ(scene_.machine.menus.LiveMenus(), menus);
}

TEST_F(MenuSetup, HelpAndOptionsComeAndGo) {
  Fill();
  scene_.Start();
  RemoveHelpEntries(app_, app_.MainStore());
  RemoveOptionsEntry(app_, app_.MainStore());
  EXPECT_EQ(scene_.NativeTexts(), L"Personal[Group[Inner] Top] - Organize Folders");
  clsMenuCollection other(scene_.machine.clock);
  CopyStore(scene_.machine.clock, app_.MainStore(), other);
  AddHelpEntries(other);
  AddOptionsEntry(other);
  EXPECT_EQ(NamesOf(other),
            L"MIT_HF_HELP MIT_HF_HELP_SEP MIT_GROUP_USER G S T MIT_HF_DRIVES_SEP MIT_HF_SETTINGS MIT_HF_ORGANIZE");
  RemoveHelpEntries(app_, other);
  EXPECT_EQ(scene_.NativeTexts(), L"Personal[Group[Inner] Top] - Organize Folders");  // another store: no menu
}

TEST_F(MenuSetup, RebuildsLeaveNumbersPlacesAndHandlesRight) {
  Fill();
  for (int i = 0; i < 300; ++i) scene_.AddShortcut(L"", L"Entry", L"");
  scene_.Start();
  EXPECT_EQ(scene_.WrongNumbers(), "");
  const std::size_t menus = scene_.machine.menus.LiveMenus();
  const std::wstring texts = scene_.NativeTexts();
  for (int i = 0; i < 10; ++i) RebuildMainMenu(app_);
  EXPECT_EQ(scene_.WrongNumbers(), "");
  EXPECT_EQ(scene_.NativeTexts(), texts);
  EXPECT_EQ(scene_.machine.menus.LiveMenus(), menus);
  EXPECT_EQ(app_.MainStore().GetNextFreeMenuName(), L"N301");
}

TEST_F(MenuSetup, EntriesPastTheLastNumberStayOutAndTheTopLevelKeepsItsOwn) {
  scene_.AddPersonal();
  for (int i = 0; i < 0xF000; ++i) {
    app_.MainStore().AddOne(test::MakeItem(scene_.machine.clock, L"", L"Entry", MIT_GROUP_USER), true, false);
  }
  AddFixedEntries(app_, app_.MainStore(), false);
  scene_.Start();
  const std::size_t shown =
      scene_.machine.menus.Entries(app_.MainStore().GetMenuItemFromName(MIT_GROUP_USER)->ID()).size();
  EXPECT_EQ(shown, 0xF000U - 256 - 52);
  EXPECT_EQ(app_.MainStore().GetMenuItemFromName(L"N61440")->ID(), 0);
  const ItemRef organize = app_.MainStore().GetMenuItemFromName(MIT_HF_ORGANIZE);
  EXPECT_EQ(scene_.machine.menus.Entries(organize->OwnerID).at(static_cast<std::size_t>(organize->Position)).id,
            organize->ID());
}

TEST_F(MenuSetup, MenuCallsThatFailLeaveTheOthersInPlace) {
  Fill();
  for (std::size_t call = 1; call <= 20; ++call) {
    scene_.machine.uiFaults.FailCall(call);
    RebuildMainMenu(app_);
    scene_.machine.uiFaults.Clear();
  }
  RebuildMainMenu(app_);
  EXPECT_EQ(scene_.WrongNumbers(), "");
}

TEST_F(MenuSetup, ACloneHasEverythingAndADrivesTitleKeepsItsColon) {
  const ItemRef source = scene_.AddShortcut(L"S", L"x", L"C:\\x", MIT_PATHS_DRIVES);
  source->SetCaption2(L"C: (x)");
  source->SetCaptionMenu(L"menu");
  source->KeyboardCode = 50;
  source->TimeAccessed = 7;
  clsMenuItem clone(scene_.machine.clock);
  CloneMenuItem(*source, clone);
  EXPECT_EQ(clone.Caption() + clone.CaptionMenu() + clone.FolderPath, L"C: (x)menuC:\\x");
  EXPECT_EQ(clone.KeyboardCode + clone.TimeAccessed, 57);
  source->SetOwnerName(L"G");
  CloneMenuItem(*source, clone);
  EXPECT_EQ(clone.Caption(), L"C (x)");
}

}  // namespace
}  // namespace burrowmark
