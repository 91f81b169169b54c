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
    AddFixedEntries(app_, *app_.MainStore, false);
  }

  test::MenuScene scene_;
  Application& app_ = scene_.app;
};

TEST_F(MenuSetup, TheMenuFollowsTheStore) {
  Fill();
  scene_.Start();
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[Group[Inner] Top] - Options Organize Folders");
  EXPECT_EQ(scene_.WrongNumbers(), "");
}

TEST_F(MenuSetup, AnEmptyStoreLeavesTheDummyAndTheFirstEntryReplacesIt) {
  scene_.Start();
  EXPECT_EQ(scene_.NativeTexts(), L"Dummy");
  scene_.AddShortcut(L"S", L"Only", L"", kRootOwner);
  scene_.menu.Build({});
  EXPECT_EQ(scene_.NativeTexts(), L"Only");
  ClearMenu(app_);
  EXPECT_EQ(scene_.NativeTexts(), L"Dummy");
  EXPECT_EQ(app_.MainStore->Count(), 0);
}

TEST_F(MenuSetup, AnEntryWithoutItsOwnerStaysOutAndItsPopupGoes) {
  Fill();
  const std::size_t menus = 4;  // the bar, the root, Personal and Group
  app_.MainStore->AddNewMenuItem({.Caption = L"Lost", .OwnerName = L"nobody", .Name = L"L", .SubMenu = true});
  app_.MainStore->AddNewMenuItem({.Caption = L"Lost too", .OwnerName = L"L", .Name = L"M"});
  scene_.Start();
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[Group[Inner] Top] - Options Organize Folders");
  EXPECT_EQ(scene_.machine.menus.LiveMenus(), menus);
}

TEST_F(MenuSetup, AFilteredBuildAddsOneGroupAndNumbersTheOthersAnew) {
  Fill();
  scene_.Start();
  app_.MainStore->AddNewMenuItem({.Caption = L"Drives",
                                  .OwnerName = kRootOwner,
                                  .Name = MIT_PATHS_DRIVES,
                                  .SubMenu = true,
                                  .BeforeKey = MIT_HF_DRIVES_SEP});
  app_.MainStore->AddNewMenuItem({.Caption = L"C", .OwnerName = MIT_PATHS_DRIVES, .ItemType = MIT_DRIVE});
  scene_.menu.Build(MIT_PATHS_DRIVES);
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[Group[Inner] Top] Drives[C] - Options Organize Folders");
  EXPECT_EQ(scene_.WrongNumbers(), "");
}

TEST_F(MenuSetup, HelpAndOptionsComeAndGo) {
  Fill();
  scene_.Start();
  RemoveHelpEntries(app_, *app_.MainStore);
  RemoveOptionsEntry(app_, *app_.MainStore);
  EXPECT_EQ(scene_.NativeTexts(), L"Personal[Group[Inner] Top] - Organize Folders");
  EXPECT_EQ(NamesOf(*app_.MainStore), L"MIT_GROUP_USER G S T MIT_HF_DRIVES_SEP MIT_HF_ORGANIZE");
  clsMenuCollection other(scene_.machine.clock);
  CopyStore(scene_.machine.clock, *app_.MainStore, other);
  AddHelpEntries(other);
  AddOptionsEntry(other);
  EXPECT_EQ(NamesOf(other),
            L"MIT_HF_HELP MIT_HF_HELP_SEP MIT_GROUP_USER G S T MIT_HF_DRIVES_SEP MIT_HF_SETTINGS MIT_HF_ORGANIZE");
  RemoveHelpEntries(app_, other);
  EXPECT_EQ(scene_.NativeTexts(), L"Personal[Group[Inner] Top] - Organize Folders");  // another store: no menu
}

TEST_F(MenuSetup, ThreeHundredRebuildsLeaveNumbersPlacesAndHandlesRight) {
  Fill();
  scene_.Start();
  const std::size_t menus = scene_.machine.menus.LiveMenus();
  const std::wstring texts = scene_.NativeTexts();
  for (int i = 0; i < 300; ++i) {
    RebuildMainMenu(app_, {});
    ASSERT_EQ(scene_.WrongNumbers(), "") << i;
  }
  EXPECT_EQ(scene_.NativeTexts(), texts);
  EXPECT_EQ(scene_.machine.menus.LiveMenus(), menus);
  EXPECT_EQ(app_.MainStore->GetNextFreeMenuName(), L"N1");
}

TEST_F(MenuSetup, ThreeThousandEntriesInOneGroup) {
  scene_.AddPersonal();
  for (int i = 0; i < 3000; ++i) scene_.AddShortcut(L"", L"Entry", L"");
  scene_.Start();
  EXPECT_EQ(scene_.WrongNumbers(), "");
  RebuildMainMenu(app_, {});
  EXPECT_EQ(scene_.WrongNumbers(), "");
}

TEST_F(MenuSetup, EntriesPastTheLastNumberStayOutAndTheTopLevelKeepsItsOwn) {
  scene_.AddPersonal();
  for (int i = 0; i < 0xF000; ++i) {
    app_.MainStore->AddOne(test::MakeItem(scene_.machine.clock, L"", L"Entry", MIT_GROUP_USER), true, false);
  }
  AddFixedEntries(app_, *app_.MainStore, false);
  scene_.Start();
  const std::size_t shown =
      scene_.machine.menus.Entries(app_.MainStore->GetMenuItemFromName(MIT_GROUP_USER)->ID()).size();
  EXPECT_EQ(shown, 0xF000U - 256 - 52);
  EXPECT_EQ(app_.MainStore->GetMenuItemFromName(L"N61440")->ID(), 0);
  const ItemRef organize = app_.MainStore->GetMenuItemFromName(MIT_HF_ORGANIZE);
  EXPECT_EQ(scene_.machine.menus.Entries(organize->OwnerID).at(static_cast<std::size_t>(organize->Position)).id,
            organize->ID());
}

TEST_F(MenuSetup, MenuCallsThatFailLeaveTheOthersInPlace) {
  Fill();
  for (std::size_t call = 1; call <= 20; ++call) {
    scene_.machine.uiFaults.FailCall(call);
    RebuildMainMenu(app_, {});
    scene_.machine.uiFaults.Clear();
  }
  RebuildMainMenu(app_, {});
  EXPECT_EQ(scene_.WrongNumbers(), "");
}

TEST_F(MenuSetup, ACloneHasEverythingAndADrivesTitleKeepsItsColon) {
  const ItemRef source = scene_.AddShortcut(L"S", L"x", L"C:\\x", MIT_PATHS_DRIVES);
  source->SetCaption2(L"C: (x)");
  source->ItemType = MIT_DRIVE;
  source->SetID(1);
  source->Position = 2;
  source->OwnerID = 3;
  source->flags = 4;
  source->NameOld = L"old";
  source->KeyboardCode = 50;
  source->TimeAccessed = 7;
  source->SetCaptionMenu(L"menu");
  clsMenuItem clone(scene_.machine.clock);
  CloneMenuItem(*source, clone);
  EXPECT_EQ(clone.Caption(), L"C: (x)");
  EXPECT_EQ(clone.CaptionMenu(), L"menu");
  EXPECT_EQ(clone.ItemType, MIT_DRIVE);
  EXPECT_EQ(clone.ID() + clone.Position + clone.OwnerID + clone.flags, 10);
  EXPECT_EQ(clone.NameOld, L"old");
  EXPECT_EQ(clone.KeyboardCode, 50);
  EXPECT_EQ(clone.TimeAccessed, 7);
  source->SetOwnerName(L"G");
  CloneMenuItem(*source, clone);
  EXPECT_EQ(clone.Caption(), L"C (x)");
}

TEST_F(MenuSetup, BadCharactersAndNames) {
  EXPECT_TRUE(HasBadFileChars(L"a:b"));
  EXPECT_FALSE(HasBadFileChars(L"a b."));
  scene_.AddShortcut(L"S", L"x", L"");
  EXPECT_TRUE(ItemNamed(L"S", *app_.MainStore));
  EXPECT_FALSE(ItemNamed(L"s", *app_.MainStore));
}

}  // namespace
}  // namespace burrowmark
