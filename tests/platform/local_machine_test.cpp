// What only the local machine has: that it lasts, and that a test rules its drives.
#include "platform/characters.h"
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

using namespace std::string_literals;

constexpr std::size_t kRoom = 1024;

class LocalMachineTest : public LocalTest {
 protected:
  static std::wstring ValueOf(LocalRegistry& registry, const std::wstring& subKey, const std::wstring& name) {
    RegistryKey key = RegistryKey::kNone;
    if (registry.RegOpenKeyExA(RegistryKey::kCurrentUser, subKey, kRegRead, key) != kErrorSuccess) return L"(no key)";
    std::uint32_t type = 0;
    std::wstring data;
    if (registry.RegQueryValueExA(key, name, kRoom, type, data) != kErrorSuccess) data = L"(no value)";
    registry.RegCloseKey(key);
    return data;
  }
  static void SetValue(LocalRegistry& registry, const std::wstring& subKey, const std::wstring& name,
                       std::uint32_t type, const std::wstring& data) {
    RegistryKey key = RegistryKey::kNone;
    ASSERT_EQ(registry.RegCreateKeyA(RegistryKey::kCurrentUser, subKey, key), kErrorSuccess);
    ASSERT_EQ(registry.RegSetValueExA(key, name, type, data), kErrorSuccess);
    ASSERT_EQ(registry.RegCloseKey(key), kErrorSuccess);
  }
  std::string RegistryFile() const {
    std::ifstream in(folder_ / "registry.txt", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
};

TEST_F(LocalMachineTest, AMachineOpenedAgainIsAsItWasLeft) {
  ASSERT_TRUE(Make(L"C:\\Kept \u0416.txt", "content"));
  ASSERT_TRUE(machine_.files.SetFileAttributesA(L"C:\\kept \u0436.TXT", kFileReadOnly | kFileHidden));
  ASSERT_TRUE(machine_.files.SetFileAttributesA(L"C:\\Windows", kFileSystem));
  const std::wstring odd = L"\"a\"\r\n\\b^{41}[\u0416]\0\0"s;
  SetValue(machine_.registry, L"Software\\[Odd]\n\"Key\"", odd.substr(0, 8), kRegMultiSz, odd);
  SetValue(machine_.registry, L"Software\\[Odd]\n\"Key\"", L"number", kRegDword, L"\1\2\3\xFF"s);

  LocalMachine again(folder_);
  EXPECT_EQ(again.BytesOf(L"c:\\KEPT \u0416.txt"), "content");
  EXPECT_EQ(again.faults.Calls(), 0U) << "neither opening the machine nor a look at its disk is a call";
  EXPECT_EQ(again.files.GetFileAttributesA(L"C:\\Kept \u0416.txt"), kFileReadOnly | kFileHidden);
  EXPECT_FALSE(again.files.DeleteFileA(L"C:\\Kept \u0416.txt"));
  EXPECT_EQ(again.files.GetFileAttributesA(L"C:\\Windows"), kFileSystem | kFileDirectory);
  EXPECT_EQ(ValueOf(again.registry, L"software\\[odd]\n\"KEY\"", odd.substr(0, 8)), odd);
  EXPECT_EQ(ValueOf(again.registry, L"Software\\[Odd]\n\"Key\"", L"NUMBER"), L"\1\2\3\xFF"s);
}

TEST_F(LocalMachineTest, TwoProcessesSeeEachOthersChanges) {
  LocalMachine other(folder_);
  SetValue(machine_.registry, L"Software\\A", L"x", kRegSz, L"one\0"s);
  SetValue(other.registry, L"Software\\B", L"x", kRegSz, L"two\0"s);
  EXPECT_EQ(ValueOf(other.registry, L"Software\\A", L"x"), L"one\0"s);
  EXPECT_EQ(ValueOf(machine_.registry, L"Software\\B", L"x"), L"two\0"s);

  RegistryKey open = RegistryKey::kNone;
  ASSERT_EQ(machine_.registry.RegOpenKeyExA(RegistryKey::kCurrentUser, L"Software\\A", kRegReadWrite, open),
            kErrorSuccess);
  ASSERT_EQ(other.registry.RegDeleteKeyA(RegistryKey::kCurrentUser, L"Software\\A"), kErrorSuccess);
  EXPECT_NE(machine_.registry.RegSetValueExA(open, L"x", kRegSz, L"back\0"s), kErrorSuccess);
  EXPECT_EQ(ValueOf(other.registry, L"Software\\A", L"x"), L"(no key)");
  EXPECT_EQ(machine_.registry.RegCloseKey(open), kErrorSuccess);

  machine_.AddFile(L"C:\\x");
  ASSERT_TRUE(machine_.files.SetFileAttributesA(L"C:\\x", kFileHidden));
  EXPECT_EQ(other.files.GetFileAttributesA(L"C:\\X"), kFileHidden);
}

TEST_F(LocalMachineTest, TheRegistryFileCanBeReadByAPersonAndKeepsTheSpelling) {
  SetValue(machine_.registry, L"Software\\MixedCase", L"MyText", kRegSz, L"C:\\A \"b\"\0"s);
  SetValue(machine_.registry, L"SOFTWARE\\MIXEDCASE", L"MYNUMBER", kRegDword, L"\x00\x04\x00\x00"s);
  const std::string text = RegistryFile();
  EXPECT_NE(text.find("\n[HKEY_CURRENT_USER\\Software\\MixedCase]\n"
                      "\"MYNUMBER\" number 1024\n"
                      "\"MyText\" text \"C:\\A ^{22}b^{22}^{0}\"\n"),
            std::string::npos)
      << text;
}

TEST_F(LocalMachineTest, DamagedLinesOfTheRegistryFileAreLostAloneAndNothingElse) {
  std::ofstream(folder_ / "registry.txt", std::ios::app | std::ios::binary)
      << "[HKEY_CURRENT_USER\\Software\\Edited]\n"
         "\"no type\" \"x\"\n\"open\" text \"x\n\"word\" number abc\n\"big\" number 99999999999\n\"byte\" bytes 100\n"
         "rubbish\n\"\n\"escape\" text \"^{}\"\n\"tail\" number 1 2\n\"good\" text \"kept\"\n[unclosed\n\"lost\" "
         "number 1";
  EXPECT_EQ(ValueOf(machine_.registry, L"Software\\Edited", L"good"), L"kept");
  for (const wchar_t* name : {L"no type", L"open", L"word", L"big", L"byte", L"escape", L"tail", L"lost"}) {
    EXPECT_EQ(ValueOf(machine_.registry, L"Software\\Edited", name), L"(no value)") << ToUtf8(name);
  }
}

TEST_F(LocalMachineTest, DrivesComeAndGoWithTheirFiles) {
  FileSystem& files = machine_.files;
  EXPECT_FALSE(files.DriveExists(L"D"));
  EXPECT_THROW(machine_.AddFile(L"D:\\x"), std::runtime_error);
  ASSERT_TRUE(machine_.drives.Add(L'D'));
  machine_.AddFile(L"D:\\folder\\x", "on D");
  EXPECT_FALSE(files.MoveFileExA(L"D:\\folder\\x", L"C:\\x")) << "a move never leaves its drive";
  EXPECT_TRUE(files.CopyFileA(L"D:\\folder\\x", L"C:\\x", true));

  ASSERT_TRUE(machine_.drives.TakeMediumOut(L'D'));
  EXPECT_TRUE(files.DriveExists(L"d:\\"));
  EXPECT_FALSE(files.FolderExists(L"D:\\"));
  EXPECT_FALSE(files.FileExists(L"D:\\folder\\x"));
  EXPECT_FALSE(files.CreateNewFile(L"D:\\y"));
  ASSERT_TRUE(machine_.drives.PutMediumIn(L'D'));
  EXPECT_TRUE(files.FileExists(L"D:\\folder\\x"));

  ASSERT_TRUE(machine_.drives.Remove(L'D'));
  EXPECT_FALSE(files.DriveExists(L"D"));
  EXPECT_FALSE(files.FolderExists(L"D:\\"));
  EXPECT_FALSE(machine_.drives.Remove(L'D'));
  ASSERT_TRUE(machine_.drives.Add(L'D'));
  EXPECT_EQ(machine_.BytesOf(L"D:\\folder\\x"), "on D");
}

TEST_F(LocalMachineTest, NetworkSharesAreReachedByServerAndShare) {
  FileSystem& files = machine_.files;
  machine_.AddFile(L"\\\\Server\\Share\\Folder\\x", "far");
  EXPECT_TRUE(files.FolderExists(L"\\\\SERVER\\share"));
  EXPECT_TRUE(files.FileExists(L"//server/SHARE/folder/X"));
  EXPECT_TRUE(files.CreateFolder(L"\\\\server\\share\\folder\\new"));
  EXPECT_TRUE(files.MoveFileExA(L"\\\\server\\share\\folder\\x", L"\\\\SERVER\\SHARE\\y"));
  EXPECT_TRUE(files.FolderExists(L"\\\\server\\share\\..")) << "the way up ends at the share";
  for (const wchar_t* path : {L"\\\\Server", L"\\\\server\\other", L"\\\\other\\share", L"\\\\server\\..\\share"}) {
    EXPECT_FALSE(files.FolderExists(path)) << ToUtf8(path);
  }
  EXPECT_FALSE(files.CreateFolder(L"\\\\server\\new")) << "a program can't make a share";
}

TEST_F(LocalMachineTest, NamesOfDevicesAreNoFiles) {
  for (const wchar_t* name : {L"CON", L"nul.txt", L"Com1", L"LPT9 .x", L"aux."}) {
    EXPECT_FALSE(Make(std::wstring(L"C:\\") + name, "")) << ToUtf8(name);
  }
  for (const wchar_t* name : {L"CONSOLE", L"COM10", L"com", L"x.nul"}) {
    EXPECT_TRUE(Make(std::wstring(L"C:\\") + name, "")) << ToUtf8(name);
  }
}

TEST_F(LocalMachineTest, AFileExchangedOnTheDiskBelowIsFoundByItsWindowsName) {
  std::ofstream(machine_.RealPath(L"C:\\users\\USER\\Exchanged.txt"), std::ios::binary) << "from outside";
  EXPECT_TRUE(std::filesystem::exists(folder_ / "drives" / "C" / "Users" / "User" / "Exchanged.txt"));
  EXPECT_EQ(machine_.BytesOf(L"C:\\Users\\User\\EXCHANGED.TXT"), "from outside");
  EXPECT_TRUE(machine_.RealPath(L"C:\\missing\\x").empty());
  EXPECT_TRUE(machine_.RealPath(L"x").empty());
  EXPECT_THROW(machine_.BytesOf(L"C:\\missing"), std::runtime_error);
}

}  // namespace
}  // namespace burrowmark
