#include "core/menu_item.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "platform/characters.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

class FixedClock final : public Clock {
 public:
  LocalTime GetLocalTime() const override { return now; }
  LocalTime now = test::ScratchMachine::kNow;
};

class MenuItem : public testing::Test {
 protected:
  FixedClock clock_;
  clsMenuItem item_{clock_};
};

TEST_F(MenuItem, StartsAsAFolderShortcutMadeNow) {
  EXPECT_EQ(item_.ItemType, L"MIT_PATH");
  EXPECT_EQ(item_.OpenType, L"MIT_PATH_SHORTCUT");
  EXPECT_EQ(item_.IconID, 3);
  EXPECT_EQ(item_.DriveType, 3);
  EXPECT_EQ(item_.KeyboardCode, -1);
  EXPECT_EQ(PackDateText(item_.TimeCreated), L"5|11|2003|14|7|9|");
  EXPECT_EQ(item_.TimeModified, 0);
  EXPECT_EQ(item_.TimeAccessed, 0);
}

TEST_F(MenuItem, CaptionLeavesOutWhatAFileNameCannotHoldAndCaption2KeepsIt) {
  item_.SetCaption(L"a/b:c\\d*e?f\"g<h>i|j");
  EXPECT_EQ(item_.Caption(), L"abcdefghij");
  EXPECT_EQ(item_.CaptionMenu(), L"abcdefghij");
  item_.SetCaption2(L"a/b:c");
  EXPECT_EQ(item_.Caption(), L"a/b:c");
  EXPECT_EQ(item_.CaptionMenu(), L"a/b:c");
}

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
  EXPECT_EQ(item_.ItemType, L"MIT_GROUP_GENERAL");
  item_.SetSeparator(true);
  EXPECT_FALSE(item_.SubMenu());
  item_.SetSubMenu(false);
  EXPECT_TRUE(item_.Separator());
  EXPECT_EQ(item_.ItemType, L"MIT_GROUP_GENERAL");
}

TEST_F(MenuItem, NestingLevelCountsTheOwnersInTheLocation) {
  const std::pair<const wchar_t*, int> cases[] = {
      {L"", 0}, {L"\\\\", 0}, {L"\\\\A", 1}, {L"\\\\A\\B", 2}, {L"\\\\A\\B\\C", 3}};
  for (const auto& [location, level] : cases) {
    item_.ItemLocation = location;
    EXPECT_EQ(item_.GetNestingLevel(), level) << ToUtf8(location);
  }
  item_.ItemLocation = std::wstring(40000, L'\\');
  EXPECT_THROW(item_.GetNestingLevel(), OverflowFailure);
}

TEST_F(MenuItem, IconAndDescriptionFollowTheType) {
  struct Case {
    const wchar_t* type;
    const wchar_t* name;
    const wchar_t* openType;
    std::int32_t drive;
    int icon;
    const wchar_t* description;
  };
  const Case cases[] = {
      {L"MIT_HF_ROOT", L"x", L"", 3, 1, L"Root"},
      {L"MIT_GROUP_GENERAL", L"MIT_GROUP_USER", L"", 3, 2, L"Personal Group"},
      {L"MIT_GROUP_GENERAL", L"MIT_PATHS_SYSTEM", L"", 3, 2, L"System Folders Group"},
      {L"MIT_GROUP_GENERAL", L"MIT_PATHS_DRIVES", L"", 3, 2, L"Drives Group"},
      {L"MIT_GROUP_GENERAL", L"N1", L"", 3, 2, L"Group"},
      {L"MIT_PATHS_DRIVES", L"x", L"", 3, 2, L"Drives"},
      {L"MIT_PATHS_SYSTEM", L"x", L"", 3, 2, L"System Paths"},
      {L"MIT_HF_SETTINGS", L"x", L"", 3, 5, L"Settings"},
      {L"MIT_HF_HELP", L"x", L"", 3, 6, L"Help"},
      {L"MIT_HF_ORGANIZE", L"x", L"", 3, 7, L"Organize"},
      {L"MIT_PATH", L"x", L"MIT_PATH_SHORTCUT", 3, 3, L"Folder Shortcut"},
      {L"MIT_PATH", L"x", L"MIT_PATH_EXPLORER", 3, 4, L"Folder Shortcut"},
      {L"MIT_OPENALL", L"x", L"", 3, 12, L"Open-All"},
      {L"MIT_DRIVE", L"x", L"", 2, 8, L"3.5-Inch Floppy Disk"},
      {L"MIT_DRIVE", L"x", L"", 3, 9, L"Local Disk"},
      {L"MIT_DRIVE", L"x", L"", 4, 10, L"Remote Disk"},
      {L"MIT_DRIVE", L"x", L"", 5, 11, L"Compact Disc"},
      {L"MIT_DRIVE", L"x", L"", 6, 13, L"Removable Disk"},
      {L"MIT_DRIVE", L"x", L"", 1, 9, L"Disk"},
      {L"MIT_PATH", L"x", L"other", 3, 77, L"as it was"},
      {L"unknown", L"x", L"", 3, 77, L"as it was"},
  };
  for (const Case& row : cases) {
    clsMenuItem item(clock_);
    item.IconID = 77;
    item.Description = L"as it was";
    item.ItemType = row.type;
    item.SetName(row.name);
    item.OpenType = row.openType;
    item.DriveType = row.drive;
    item.SetIconIDDescription();
    EXPECT_EQ(item.IconID, row.icon) << ToUtf8(row.type) << ' ' << ToUtf8(row.name);
    EXPECT_EQ(item.Description, row.description) << ToUtf8(row.type) << ' ' << ToUtf8(row.name);
  }
}

TEST_F(MenuItem, AnOpenAllEntryIsRenamedBesideItsMenuTitle) {
  item_.SetCaption(L"Everything");
  item_.ItemType = MIT_OPENALL;
  item_.SetIconIDDescription();
  EXPECT_EQ(item_.Caption(), L"Open-All");
  EXPECT_EQ(item_.CaptionMenu(), L"Everything");
  EXPECT_EQ(item_.SortCaption(), L"OPEN-ALL");
}

TEST_F(MenuItem, AChangeKeepsWhatItDoesNotName) {
  item_.SetName(L"N1");
  item_.SetCaption(L"Old");
  item_.SetOwnerName(L"MIT_GROUP_USER");
  item_.FolderPath = L"C:\\x";
  item_.UserDescription = L"mine";
  item_.KeyboardCode = 50;
  item_.ModifyMenuItem({});
  EXPECT_EQ(item_.Caption(), L"Old");
  EXPECT_EQ(item_.OwnerName(), L"MIT_GROUP_USER");
  EXPECT_EQ(item_.FolderPath, L"C:\\x");
  EXPECT_EQ(item_.UserDescription, L"mine");
  EXPECT_EQ(item_.KeyboardCode, -1);
  EXPECT_EQ(PackDateText(item_.TimeModified), L"5|11|2003|14|7|9|");
  item_.ModifyMenuItem({.UserDescription = L""});
  EXPECT_EQ(item_.UserDescription, L"");
}

TEST_F(MenuItem, AChangeIsWrittenInTheOrderOfItsFields) {
  item_.ModifyMenuItem(
      {.Caption = L"G:", .IconID = 9, .FolderPath = L"C:\\x", .ItemType = L"MIT_DRIVE", .SubMenu = true});
  EXPECT_EQ(item_.Caption(), L"G");
  EXPECT_EQ(item_.FolderPath, L"");
  EXPECT_EQ(item_.ItemType, L"MIT_GROUP_GENERAL");  // the group comes after the type
  EXPECT_EQ(item_.IconID, 9);
  item_.ModifyMenuItem({.Caption = L"x", .FolderPath = L"C:\\x", .ItemType = MIT_OPENALL, .RefreshIcon = true});
  EXPECT_EQ(item_.Caption(), L"Open-All");
  EXPECT_EQ(item_.FolderPath, L"");
  EXPECT_EQ(item_.IconID, 12);
}

}  // namespace
}  // namespace burrowmark
