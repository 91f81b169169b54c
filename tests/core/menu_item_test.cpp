#include "core/menu_item.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

class MenuItem : public testing::Test {
 protected:
  MenuItem() { clock_.Fixed = test::ScratchMachine::kNow; }

  LocalClock clock_;
  clsMenuItem item_{clock_};
};

TEST_F(MenuItem, TitlesPastFiftyCharactersAreShortenedInTheMenuAlone) {
  const std::wstring head(22, L'h');
  const std::wstring tail(25, L't');
  item_.SetCaption(head + L"mid" + tail);
  EXPECT_EQ(item_.CaptionMenu(), head + L"mid" + tail);
  item_.SetCaption(head + L"midd" + tail);
  EXPECT_EQ(item_.CaptionMenu(), head + L"..." + tail);
  EXPECT_EQ(item_.Caption().size(), 51U);
}

TEST_F(MenuItem, GroupAndSeparatorExcludeEachOther) {
  item_.SetSeparator(true);
  item_.SetSubMenu(true);
  EXPECT_FALSE(item_.Separator());
  item_.SetSeparator(true);
  EXPECT_FALSE(item_.SubMenu());
  item_.SetSubMenu(false);
  EXPECT_TRUE(item_.Separator());
}

TEST_F(MenuItem, AChangeKeepsWhatItDoesNotName) {
  item_.SetCaption(L"Old");
  item_.OwnerName = MIT_GROUP_USER;
  item_.FolderPath = L"C:\\x";
  item_.UserDescription = L"mine";
  item_.KeyboardCode = 50;
  item_.ModifyMenuItem({});
  EXPECT_EQ(item_.Caption() + item_.OwnerName + item_.FolderPath, L"OldMIT_GROUP_USERC:\\x");
  EXPECT_EQ(item_.UserDescription, L"mine");
  EXPECT_EQ(item_.KeyboardCode, -1);
  EXPECT_EQ(PackDateText(item_.TimeModified), L"5|11|2003|14|7|9|");
  item_.ModifyMenuItem({.UserDescription = L""});
  EXPECT_EQ(item_.UserDescription, L"");
}

TEST_F(MenuItem, AChangeIsWrittenInTheOrderOfItsFields) {
  item_.ModifyMenuItem({.Caption = L"G:", .IconID = 9, .FolderPath = L"C:\\x", .ItemType = MIT_DRIVE, .SubMenu = true});
  EXPECT_EQ(item_.Caption(), L"G");
  EXPECT_EQ(item_.FolderPath, L"");
  EXPECT_EQ(item_.ItemType, MIT_GROUP_GENERAL);  // the group comes after the type
  item_.ModifyMenuItem({.Caption = L"x", .FolderPath = L"C:\\x", .ItemType = MIT_OPENALL, .RefreshIcon = true});
  EXPECT_EQ(item_.Caption(), L"Open-All");
  EXPECT_EQ(item_.FolderPath, L"");
}

}  // namespace
}  // namespace burrowmark
