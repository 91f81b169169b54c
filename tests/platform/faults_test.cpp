// Faults that a test switches on.
#include <vector>

#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

class FaultsTest : public LocalTest {
 protected:
  std::int32_t Open(const std::wstring& subKey, std::uint32_t access) {
    RegistryKey key = RegistryKey::kNone;
    const std::int32_t result = machine_.registry.RegOpenKeyExA(RegistryKey::kCurrentUser, subKey, access, key);
    if (result == kErrorSuccess) machine_.registry.RegCloseKey(key);
    return result;
  }
  std::int32_t Create(const std::wstring& subKey) {
    RegistryKey key = RegistryKey::kNone;
    const std::int32_t result = machine_.registry.RegCreateKeyA(RegistryKey::kCurrentUser, subKey, key);
    if (result == kErrorSuccess) machine_.registry.RegCloseKey(key);
    return result;
  }

  Faults& faults_ = machine_.faults;
  LocalFileSystem& files_ = machine_.files;
};

TEST_F(FaultsTest, EveryCallOfTheFileSystemCanBeMadeToFail) {
  machine_.AddFile(L"C:\\a");
  const std::unique_ptr<OutputFile> file = files_.CreateNewFile(L"C:\\open");
  ASSERT_TRUE(file);
  std::string bytes;
  std::vector<FolderEntry> entries;
  std::wstring label;
  faults_.FailFrom(1);
  EXPECT_FALSE(files_.FileExists(L"C:\\a"));
  EXPECT_FALSE(files_.FolderExists(L"C:\\"));
  EXPECT_FALSE(files_.DriveExists(L"C:"));
  EXPECT_FALSE(files_.GetFileAttributesA(L"C:\\a"));
  EXPECT_FALSE(files_.SetFileAttributesA(L"C:\\a", kFileHidden));
  EXPECT_FALSE(files_.ReadWholeFile(L"C:\\a", bytes));
  EXPECT_FALSE(files_.CreateNewFile(L"C:\\b"));
  EXPECT_FALSE(files_.MoveFileExA(L"C:\\a", L"C:\\b"));
  EXPECT_FALSE(files_.CopyFileA(L"C:\\a", L"C:\\b", false));
  EXPECT_FALSE(files_.DeleteFileA(L"C:\\a"));
  EXPECT_FALSE(files_.CreateFolder(L"C:\\c"));
  EXPECT_FALSE(files_.ListFolder(L"C:\\", entries));
  EXPECT_TRUE(files_.DriveList().empty());
  EXPECT_EQ(files_.GetDriveTypeA(L"c:"), kDriveTypeUnknown);
  EXPECT_FALSE(files_.GetVolumeInformationA(L"C:", label));
  EXPECT_FALSE(file->Write("lost"));
  EXPECT_FALSE(file->Flush());
  EXPECT_FALSE(file->Close());
  const std::vector<std::string> expected = {"FileExists C:\\a",
                                             "FolderExists C:\\",
                                             "DriveExists C:",
                                             "GetFileAttributesA C:\\a",
                                             "SetFileAttributesA C:\\a",
                                             "ReadWholeFile C:\\a",
                                             "CreateNewFile C:\\b",
                                             "MoveFileExA C:\\a",
                                             "CopyFileA C:\\a",
                                             "DeleteFileA C:\\a",
                                             "CreateFolder C:\\c",
                                             "ListFolder C:\\",
                                             "DriveList ",
                                             "GetDriveTypeA c:",
                                             "GetVolumeInformationA C:",
                                             "Write C:\\open",
                                             "Flush C:\\open",
                                             "Close C:\\open"};
  EXPECT_EQ(faults_.Record(), expected);
  EXPECT_EQ(faults_.Failed(), expected.size());

  faults_.Clear();
  EXPECT_EQ(files_.GetFileAttributesA(L"C:\\a"), kFileArchive);
  EXPECT_FALSE(files_.FileExists(L"C:\\b") || files_.FolderExists(L"C:\\c"));
  EXPECT_EQ(machine_.BytesOf(L"C:\\open"), "");
  EXPECT_TRUE(files_.DeleteFileA(L"C:\\open")) << "a close that fails lets go of the file";
}

TEST_F(FaultsTest, EveryCallOfTheRegistryCanBeMadeToFail) {
  LocalRegistry& registry = machine_.registry;
  RegistryKey key = RegistryKey::kNone;
  ASSERT_EQ(registry.RegCreateKeyA(RegistryKey::kCurrentUser, L"K", key), kErrorSuccess);
  ASSERT_EQ(registry.RegSetValueExA(key, L"v", kRegDword, L"1234"), kErrorSuccess);
  ASSERT_EQ(registry.OpenKeys(), 1U);
  RegistryKey other = key;
  std::uint32_t type = 0;
  std::wstring data;
  faults_.FailFrom(1);
  EXPECT_NE(registry.RegOpenKeyExA(RegistryKey::kCurrentUser, L"K", kRegRead, other), kErrorSuccess);
  EXPECT_EQ(other, RegistryKey::kNone);
  EXPECT_NE(registry.RegCreateKeyA(key, L"sub", other), kErrorSuccess);
  EXPECT_NE(registry.RegQueryValueExA(key, L"v", 9, type, data), kErrorSuccess);
  EXPECT_NE(registry.RegSetValueExA(key, L"w", kRegSz, L"x"), kErrorSuccess);
  EXPECT_NE(registry.RegDeleteValueA(key, L"v"), kErrorSuccess);
  EXPECT_NE(registry.RegDeleteKeyA(RegistryKey::kCurrentUser, L"K"), kErrorSuccess);
  EXPECT_NE(registry.RegCloseKey(key), kErrorSuccess);
  const std::string path = "HKEY_CURRENT_USER\\K";
  const std::vector<std::string> expected = {"RegOpenKeyExA " + path,
                                             "RegCreateKeyA " + path + "\\sub",
                                             "RegQueryValueExA " + path + "\\v",
                                             "RegSetValueExA " + path + "\\w",
                                             "RegDeleteValueA " + path + "\\v",
                                             "RegDeleteKeyA " + path,
                                             "RegCloseKey " + path};
  EXPECT_EQ(faults_.Record(), expected);
  EXPECT_EQ(registry.OpenKeys(), 0U);

  faults_.Clear();
  EXPECT_EQ(Open(L"K\\sub", kRegRead), kErrorFileNotFound);
  ASSERT_EQ(registry.RegOpenKeyExA(RegistryKey::kCurrentUser, L"K", kRegRead, key), kErrorSuccess);
  EXPECT_EQ(registry.RegQueryValueExA(key, L"v", 9, type, data), kErrorSuccess);
  EXPECT_EQ(registry.RegQueryValueExA(key, L"w", 9, type, data), kErrorFileNotFound);
  EXPECT_EQ(registry.RegCloseKey(key), kErrorSuccess);
}

TEST_F(FaultsTest, CallsAreCountedAcrossFilesAndRegistryFromTheMomentOfSetting) {
  const auto failures = [this] {
    std::vector<int> failed;
    for (int call = 1; call <= 5; ++call) {
      const bool done = call % 2 == 0 ? files_.FileExists(L"C:\\Windows\\explorer.exe")
                                      : machine_.registry.RegCloseKey(RegistryKey::kCurrentUser) == kErrorSuccess;
      if (!done) failed.push_back(call);
    }
    return failed;
  };
  EXPECT_EQ(failures(), std::vector<int>());
  faults_.FailCall(3);
  EXPECT_EQ(failures(), std::vector<int>({3}));
  EXPECT_EQ(faults_.Calls(), 5U);
  EXPECT_EQ(faults_.Failed(), 1U);
  faults_.FailFrom(4);
  EXPECT_EQ(failures(), std::vector<int>({4, 5}));
  EXPECT_EQ(faults_.Failed(), 2U);
  faults_.Clear();
  EXPECT_EQ(faults_.Calls(), 0U);
  EXPECT_EQ(failures(), std::vector<int>());
}

TEST_F(FaultsTest, AFullDiskCutsAWriteShort) {
  faults_.DiskRoom = 10;
  const std::unique_ptr<OutputFile> file = files_.CreateNewFile(L"C:\\a");
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->Write("12345"));
  EXPECT_FALSE(file->Write("6789012"));
  EXPECT_FALSE(file->Write("x"));
  EXPECT_TRUE(file->Close());
  EXPECT_EQ(machine_.BytesOf(L"C:\\a"), "1234567890");
  EXPECT_FALSE(files_.CopyFileA(L"C:\\a", L"C:\\b", true));
  EXPECT_FALSE(files_.FileExists(L"C:\\b"));
  EXPECT_TRUE(files_.MoveFileExA(L"C:\\a", L"C:\\b")) << "a name needs no room";
  EXPECT_TRUE(Make(L"C:\\empty", ""));
}

TEST_F(FaultsTest, AFolderWithoutNewFilesKeepsThoseItHas) {
  machine_.AddFile(L"C:\\Closed\\a", "a");
  machine_.AddFile(L"C:\\b", "b");
  machine_.AddFolders(L"C:\\Closed\\Below");
  faults_.FoldersWithoutNewFiles.insert(L"C:\\CLOSED");
  EXPECT_FALSE(files_.CreateNewFile(L"C:\\closed\\new"));
  EXPECT_FALSE(files_.CopyFileA(L"C:\\b", L"C:\\Closed\\new", true));
  EXPECT_FALSE(files_.MoveFileExA(L"C:\\b", L"C:\\Closed\\new"));
  EXPECT_TRUE(files_.CopyFileA(L"C:\\b", L"C:\\Closed\\a", false)) << "writing into a file makes none";
  EXPECT_TRUE(Make(L"C:\\Closed\\Below\\new", ""));
  EXPECT_TRUE(files_.DeleteFileA(L"C:\\Closed\\a"));
}

TEST_F(FaultsTest, ARefusedKeyCanStillBeRead) {
  ASSERT_EQ(Create(L"Software\\Locked\\Below"), kErrorSuccess);
  ASSERT_EQ(Create(L"Software\\Locked too"), kErrorSuccess);
  faults_.RefusedKeys.insert(L"HKEY_CURRENT_USER\\SOFTWARE\\LOCKED");
  for (const wchar_t* name : {L"Software\\Locked", L"software\\locked\\below"}) {
    EXPECT_EQ(Open(name, kRegRead), kErrorSuccess);
    EXPECT_EQ(Open(name, kRegReadWrite), kErrorAccessDenied);
    EXPECT_EQ(Create(name), kErrorAccessDenied);
  }
  EXPECT_EQ(Create(L"Software\\Locked\\new"), kErrorAccessDenied);
  EXPECT_EQ(Open(L"Software\\Locked\\missing", kRegReadWrite), kErrorFileNotFound);
  EXPECT_EQ(machine_.registry.RegDeleteKeyA(RegistryKey::kCurrentUser, L"Software\\Locked\\Below"), kErrorAccessDenied);
  EXPECT_EQ(Open(L"Software", kRegReadWrite), kErrorSuccess);
  EXPECT_EQ(Open(L"Software\\Locked too", kRegReadWrite), kErrorSuccess);
}

}  // namespace
}  // namespace burrowmark
