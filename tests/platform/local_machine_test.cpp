// What only the local machine has: that it lasts, and that a test rules its drives, shares and faults.
#include "platform/characters.h"
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

using namespace std::string_literals;

class LocalMachineTest : public LocalTest {
 protected:
  // What a value holds, or the result of the call that failed.
  static std::wstring ValueOf(LocalRegistry& registry, const std::wstring& subKey, const std::wstring& name) {
    RegistryKey key = RegistryKey::kNone;
    std::uint32_t type = 0;
    std::wstring data;
    std::int32_t result = registry.RegOpenKeyExA(RegistryKey::kCurrentUser, subKey, kRegRead, key);
    if (result == kErrorSuccess) result = registry.RegQueryValueExA(key, name, 1024, type, data);
    registry.RegCloseKey(key);
    return result == kErrorSuccess ? data : std::to_wstring(result);
  }
  static std::int32_t SetValue(LocalRegistry& registry, const std::wstring& subKey, const std::wstring& name,
                               std::uint32_t type, const std::wstring& data) {
    RegistryKey key = RegistryKey::kNone;
    std::int32_t result = registry.RegCreateKeyA(RegistryKey::kCurrentUser, subKey, key);
    if (result == kErrorSuccess) result = registry.RegSetValueExA(key, name, type, data);
    registry.RegCloseKey(key);
    return result;
  }

  Faults& faults_ = machine_.faults;
  LocalFileSystem& files_ = machine_.files;
};

TEST_F(LocalMachineTest, AMachineOpenedAgainIsAsItWasLeft) {
  ASSERT_TRUE(Make(L"C:\\Kept \u0416.txt", "content"));
  ASSERT_TRUE(files_.SetFileAttributesA(L"C:\\kept \u0436.TXT", kFileReadOnly | kFileHidden));
  ASSERT_TRUE(files_.MarkCompressed(L"C:\\Windows"));
  const std::wstring odd = L"\"a\"\r\n\\b^{41}[\u0416]\0\0"s;
  EXPECT_EQ(SetValue(machine_.registry, L"Software\\[Odd]\n\"Key\"", odd.substr(0, 8), kRegSz, odd), kErrorSuccess);
  EXPECT_EQ(SetValue(machine_.registry, L"Software\\B", L"number", kRegDword, L"\1\2\3\xFF"s), kErrorSuccess);

  LocalMachine again(folder_);
  EXPECT_EQ(again.BytesOf(L"c:\\KEPT \u0416.txt"), "content");
  EXPECT_EQ(again.faults.Calls(), 0U) << "neither opening the machine nor a look at its disk is a call";
  EXPECT_EQ(again.files.GetFileAttributesA(L"C:\\Kept \u0416.txt"), kFileReadOnly | kFileHidden);
  EXPECT_EQ(again.files.GetFileAttributesA(L"C:\\Windows"), kFileCompressed | kFileDirectory);
  EXPECT_EQ(ValueOf(again.registry, L"software\\[odd]\n\"KEY\"", odd.substr(0, 8)), odd);
  EXPECT_EQ(ValueOf(again.registry, L"Software\\B", L"NUMBER"), L"\1\2\3\xFF"s);
  EXPECT_EQ(SetValue(again.registry, L"Software\\B", L"text", kRegSz, L"two\0"s), kErrorSuccess);
  EXPECT_EQ(ValueOf(machine_.registry, L"Software\\B", L"text"), L"two\0"s) << "another process may have written it";
}

TEST_F(LocalMachineTest, DamagedLinesOfTheRegistryFileAreLostAloneAndNothingElse) {
  std::ofstream(folder_ / "registry.txt", std::ios::app | std::ios::binary)
      << "[HKEY_CURRENT_USER\\Software\\Edited]\n"
         "\"no type\" \"x\"\n\"open\" text \"x\n\"word\" number abc\nrubbish\n\"\n\"escape\" text \"^{}\"\n"
         "\"good\" text \"kept\"\n[unclosed\n\"lost\" number 1";
  EXPECT_EQ(ValueOf(machine_.registry, L"Software\\Edited", L"good"), L"kept");
  for (const wchar_t* name : {L"no type", L"open", L"word", L"escape", L"lost"}) {
    EXPECT_EQ(ValueOf(machine_.registry, L"Software\\Edited", name), std::to_wstring(kErrorFileNotFound));
  }
}

TEST_F(LocalMachineTest, DrivesComeAndGoWithTheirFiles) {
  EXPECT_THROW(machine_.AddFile(L"D:\\x"), std::runtime_error);
  ASSERT_TRUE(machine_.drives.Add(L'D'));
  machine_.AddFile(L"D:\\folder\\x", "on D");
  EXPECT_FALSE(files_.MoveFileExA(L"D:\\folder\\x", L"C:\\x")) << "a move never leaves its drive";
  ASSERT_TRUE(machine_.drives.TakeMediumOut(L'D'));
  EXPECT_TRUE(files_.DriveExists(L"d:\\"));
  EXPECT_FALSE(files_.FileExists(L"D:\\folder\\x"));
  ASSERT_TRUE(machine_.drives.Remove(L'D'));
  EXPECT_FALSE(files_.DriveExists(L"D"));
  ASSERT_TRUE(machine_.drives.Add(L'D'));
  EXPECT_EQ(machine_.BytesOf(L"D:\\folder\\x"), "on D");
  machine_.AddFile(L"\\\\Server\\Share\\Folder\\x", "far");
  EXPECT_TRUE(files_.FileExists(L"\\\\server\\SHARE\\folder\\X"));
  for (const wchar_t* path : {L"\\\\Server", L"\\\\server\\other"}) EXPECT_FALSE(files_.FolderExists(path));
}

TEST_F(LocalMachineTest, TheDriveListTouchesNoServerAndNoMediumThatCanBeTakenOut) {
  const std::pair<wchar_t, DriveFacts> rows[] = {{L'C', {kDriveTypeFixed, L"System [1]\u0416", {}}},
                                                 {L'D', {kDriveTypeCompactDisc, L"MUSIC", {}}},
                                                 {L'E', {kDriveTypeFixed, L"", {}}},
                                                 {L'U', {kDriveTypeRemovable, L"stick", {}}},
                                                 {L'X', {kDriveTypeRemote, L"far away", L"\\\\Server\\Share"}}};
  for (const auto& [letter, facts] : rows) {
    EXPECT_TRUE(machine_.drives.Has(letter) || machine_.drives.Add(letter));
    EXPECT_TRUE(machine_.drives.SetFacts(letter, facts));
  }
  const std::vector<std::wstring> expected = {L"c: [System [1]\u0416]", L"d:", L"e:", L"u:", L"x: [\\\\Server\\Share]"};
  EXPECT_EQ(files_.DriveList(), expected);
  EXPECT_EQ(LocalMachine(folder_).files.DriveList(), expected);
  for (const wchar_t letter : {L'D', L'U', L'X'}) EXPECT_EQ(machine_.drives.MediumTouches(letter), 0U);
  std::wstring label;
  EXPECT_TRUE(files_.GetVolumeInformationA(L"d:", label));
  EXPECT_EQ(label, L"MUSIC");
  files_.FolderExists(L"u:\\");
  for (const wchar_t letter : {L'D', L'U'}) EXPECT_EQ(machine_.drives.MediumTouches(letter), 1U);
  ASSERT_TRUE(machine_.drives.TakeMediumOut(L'D'));
  EXPECT_FALSE(files_.GetVolumeInformationA(L"D:", label));
}

TEST_F(LocalMachineTest, CallsOfFilesAndRegistryAreCountedAndFailFromTheMomentOfSetting) {
  const auto failures = [this] {
    std::string failed;
    for (int call = 1; call <= 5; ++call) {
      const bool done = call % 2 == 0 ? files_.FileExists(L"C:\\Windows\\explorer.exe")
                                      : machine_.registry.RegCloseKey(RegistryKey::kCurrentUser) == kErrorSuccess;
      if (!done) failed += std::to_string(call);
    }
    return failed;
  };
  EXPECT_EQ(failures(), "");
  faults_.FailCall(3);
  EXPECT_EQ(failures(), "3");
  EXPECT_EQ(faults_.Calls(), 5U);
  EXPECT_EQ(faults_.Record()[1], "FileExists C:\\Windows\\explorer.exe");
  faults_.FailFrom(4);
  EXPECT_EQ(failures(), "45");
  EXPECT_EQ(faults_.Failed(), 2U);
  faults_.Clear();
  EXPECT_EQ(failures(), "");
}

TEST_F(LocalMachineTest, StandingFaultsOfTheDiskAndTheRegistry) {
  faults_.DiskRoom = 10;
  const std::unique_ptr<OutputFile> file = files_.CreateNewFile(L"C:\\a");
  EXPECT_TRUE(file->Write("12345"));
  EXPECT_FALSE(file->Write("6789012"));
  EXPECT_TRUE(file->Close());
  EXPECT_EQ(machine_.BytesOf(L"C:\\a"), "1234567890") << "a full disk cuts a write short";
  EXPECT_FALSE(files_.CopyFileA(L"C:\\a", L"C:\\b", true));
  EXPECT_FALSE(files_.FileExists(L"C:\\b"));
  faults_.Clear();

  machine_.AddFolders(L"C:\\Closed\\Below");
  faults_.FoldersWithoutNewFiles.insert(L"C:\\CLOSED");
  EXPECT_FALSE(files_.CreateNewFile(L"C:\\closed\\new"));
  EXPECT_FALSE(files_.CopyFileA(L"C:\\a", L"C:\\Closed\\new", true));
  EXPECT_FALSE(files_.MoveFileExA(L"C:\\a", L"C:\\Closed\\new"));
  EXPECT_TRUE(Make(L"C:\\Closed\\Below\\new", ""));

  EXPECT_EQ(SetValue(machine_.registry, L"Locked\\Below", L"x", kRegSz, L"kept"), kErrorSuccess);
  faults_.RefusedKeys.insert(L"HKEY_CURRENT_USER\\LOCKED");
  EXPECT_EQ(SetValue(machine_.registry, L"locked\\below", L"x", kRegSz, L"new"), kErrorAccessDenied);
  EXPECT_EQ(SetValue(machine_.registry, L"Locked too", L"x", kRegSz, L"new"), kErrorSuccess);
  EXPECT_EQ(ValueOf(machine_.registry, L"Locked\\Below", L"x"), L"kept") << "it can still be read";
}

}  // namespace
}  // namespace burrowmark
