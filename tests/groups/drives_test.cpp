#include "groups/drives.h"

#include <gtest/gtest.h>

#include "tests/support/menu_scene.h"

namespace burrowmark {
namespace {

class Drives : public testing::Test {
 protected:
  Drives() {
    scene_.AddPersonal();
    AddFixedEntries(app_, *app_.MainStore, false);
  }
  void AddDrive(wchar_t letter, std::int32_t type, const std::wstring& label = {}, const std::wstring& share = {}) {
    machine_.drives.Add(letter);
    machine_.drives.SetFacts(letter, {type, label, share});
  }
  void OpenMenu() {
    machine_.user.NextMenu(MenuActions().Cancel());
    machine_.user.ClickTray(LocalUser::Button::kLeft);
  }

  test::MenuScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
};

TEST_F(Drives, EntriesOfTheListAreTakenApart) {
  AddDrive(L'A', 2);
  AddDrive(L'B', 2);
  AddDrive(L'D', 5, L"DATA");
  AddDrive(L'E', 5);
  machine_.drives.TakeMediumOut(L'E');
  AddDrive(L'X', 4, L"", L"\\\\server\\share");
  AddDrive(L'Z', 2);
  AddDrive(L'M', 6);
  struct Case {
    const wchar_t* entry;
    const wchar_t* name;
    const wchar_t* localName;
    std::int32_t type;
  };
  const Case cases[] = {
      {L"a:", L"A: (3.5-Inch Floppy Disk)", L"A:\\", 2},
      {L"b:", L"B: (3.5-Inch Floppy Disk)", L"B:\\", 2},
      {L"z:", L"Z: (Removable Disk)", L"Z:\\", 6},
      {L"z: [usb]", L"Z: (usb)", L"Z:\\", 2},
      {L"d:", L"D: (DATA)", L"D:\\", 5},
      {L"e:", L"E: (Compact Disc)", L"E:\\", 5},
      {L"x: [\\\\server\\share]", L"X: (\\\\server\\share)", L"X:\\", 4},
      {L"c:", L"C:", L"C:\\", 3},
      {L"c: [System Disk]", L"C: (System Disk)", L"C:\\", 3},
      {L"m:", L"M:", L"M:\\", 6},
      {L"q:", L"Q:", L"Q:\\", 1},
      {L"c: ", L"C: ()", L"C:\\", 3},
  };
  for (const Case& row : cases) {
    const clsDrive drive = ParseDriveEntry(app_, row.entry);
    EXPECT_EQ(drive.Name, row.name);
    EXPECT_EQ(drive.LocalName, row.localName) << ToUtf8(row.entry);
    EXPECT_EQ(drive.DriveType, row.type) << ToUtf8(row.entry);
  }
}

TEST_F(Drives, TheGroupComesAtTheFirstOpeningAndFollowsTheMachine) {
  AddDrive(L'D', 5, L"DATA");
  AddDrive(L'X', 4, L"", L"\\\\server\\share");
  scene_.Start();
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[] - Options Organize Folders");
  OpenMenu();
  EXPECT_EQ(scene_.NativeTexts(),
            L"Help - Personal[] Drives[C: D: (DATA) X: (\\\\server\\share)] - Options Organize Folders");
  EXPECT_EQ(scene_.WrongNumbers(), "");
  AddDrive(L'U', 2);
  OpenMenu();
  EXPECT_EQ(scene_.NativeTexts(),
            L"Help - Personal[] Drives[C: D: (DATA) U: (Removable Disk) X: (\\\\server\\share)] - "
            L"Options Organize Folders");
  machine_.drives.Remove(L'X');
  machine_.drives.TakeMediumOut(L'D');
  OpenMenu();
  EXPECT_EQ(scene_.NativeTexts(),
            L"Help - Personal[] Drives[C: D: (Compact Disc) U: (Removable Disk)] - Options Organize Folders");
  EXPECT_EQ(scene_.WrongNumbers(), "");
  app_.AC[1] = false;
  OpenMenu();
  EXPECT_EQ(scene_.NativeTexts(), L"Help - Personal[] - Options Organize Folders");
}

TEST_F(Drives, ItemsHoldWhatOpensThem) {
  AddDrive(L'U', 2);
  SetupDrives(app_, *app_.MainStore);
  const ItemRef group = app_.MainStore->GetMenuItemFromName(MIT_PATHS_DRIVES);
  ASSERT_TRUE(group);
  EXPECT_EQ(group->ItemType, MIT_PATHS_DRIVES);
  EXPECT_EQ(group->Description, L"Drives");
  EXPECT_EQ(group->Remark, L"");
  EXPECT_EQ(group->UserDescription, L"Contains shortcuts to all fixed and network drives");
  const ItemRef drive = app_.MainStore->CaptionExists2(L"U: (Removable Disk)", MIT_PATHS_DRIVES, false, L"");
  ASSERT_TRUE(drive);
  EXPECT_EQ(drive->FolderPath, L"U:\\");
  EXPECT_EQ(drive->ItemType, MIT_DRIVE);
  EXPECT_EQ(drive->OpenType, MIT_PATH_EXPLORER);
  EXPECT_EQ(drive->IconID, 13);
  EXPECT_EQ(drive->Remark, REMARK_AUTO);
}

TEST_F(Drives, OpeningTheMenuTouchesNoServerAndNoRemovableMedium) {
  AddDrive(L'A', 2);
  AddDrive(L'U', 2);
  AddDrive(L'X', 4, L"", L"\\\\server\\share");
  scene_.Start();
  OpenMenu();
  OpenMenu();
  for (const wchar_t letter : {L'A', L'U', L'X'}) EXPECT_EQ(machine_.drives.MediumTouches(letter), 0U);
}

TEST_F(Drives, ACheckAtAnOpeningTouchesTheMediumOfADiscWithoutALabelAlone) {
  AddDrive(L'D', 5, L"DATA");
  scene_.Start();
  OpenMenu();
  const std::size_t once = machine_.drives.MediumTouches(L'D');
  EXPECT_GE(once, 1U);
  machine_.faults.Clear();
  OpenMenu();
  EXPECT_EQ(machine_.drives.MediumTouches(L'D'), once + 1);
  for (const std::string& call : machine_.faults.Record()) {
    EXPECT_TRUE(call.starts_with("DriveList") || call.starts_with("GetDriveTypeA") ||
                call == "GetVolumeInformationA D:")
        << call;
  }
}

TEST_F(Drives, AnotherStoreMarksTheMenuAndUnchangedDrivesLeaveItAlone) {
  scene_.Start();
  OpenMenu();
  EXPECT_FALSE(app_.DrivesRebuildNeeded);
  const std::int32_t id = app_.MainStore->GetMenuItemFromName(MIT_PATHS_DRIVES)->ID();
  OpenMenu();
  EXPECT_EQ(app_.MainStore->GetMenuItemFromName(MIT_PATHS_DRIVES)->ID(), id);
  clsMenuCollection other(machine_.clock);
  AddFixedEntries(app_, other, false);
  SetupDrives(app_, other);
  EXPECT_TRUE(other.ItemExists(MIT_PATHS_DRIVES));
  EXPECT_TRUE(app_.DrivesRebuildNeeded);
  RemoveDrives(app_, other, false);
  EXPECT_FALSE(other.ItemExists(MIT_PATHS_DRIVES));
  EXPECT_EQ(other.ChildrenNumber(MIT_PATHS_DRIVES), 0);
  OpenMenu();
  EXPECT_EQ(scene_.WrongNumbers(), "");
}

}  // namespace
}  // namespace burrowmark
