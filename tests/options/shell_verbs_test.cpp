// The program's entries in the file manager's menus, as the registry holds them.
#include "options/shell_verbs.h"

#include <gtest/gtest.h>

#include "core/registry.h"
#include "platform/local/disk/disk.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

struct Value {
  const wchar_t* key;
  const wchar_t* text;
};

constexpr Value kWritten[] = {
    {L"Directory\\shell\\Organize Folder", L"&Organize Folder"},
    {L"Directory\\shell\\Organize Folder\\command", L"\"C:\\P Q\\b.exe\" /ADD %L"},
    {L"Drive\\shell\\Organize Drive", L"&Organize Drive"},
    {L"Drive\\shell\\Organize Drive\\command", L"\"C:\\P Q\\b.exe\" /ADD %L"},
    {L"*\\shell\\Copy Address", L"&Copy Address"},
    {L"*\\shell\\Copy Address\\command", L"\"C:\\P Q\\CopyAddress.exe\" %L"},
    {L"Directory\\shell\\Copy Address", L"&Copy Address"},
    {L"Directory\\shell\\Copy Address\\command", L"\"C:\\P Q\\CopyAddress.exe\" %L"},
    {L"Drive\\shell\\Copy Address", L"&Copy Address"},
    {L"Drive\\shell\\Copy Address\\command", L"\"C:\\P Q\\CopyAddress.exe\" %L"},
    {L"Directory\\shell\\Folder Report", L"Folder &Report"},
    {L"Directory\\shell\\Folder Report\\command", L"\"C:\\P Q\\b.exe\" /FR %L"},
    {L"Drive\\shell\\Folder Report", L"Folder &Report"},
    {L"Drive\\shell\\Folder Report\\command", L"\"C:\\P Q\\b.exe\" /FR %L"},
};

std::wstring LineOf(const std::wstring& key, const std::wstring& text) { return key + L"=" + text + L"\n"; }

class ShellVerbs : public testing::Test, protected test::ScratchMachine {
 protected:
  ShellVerbs() {
    app.AppPath = L"C:\\P Q";
    app.AppCommand = L"\"C:\\P Q\\b.exe\"";
    app.CopyAddressCommand = L"\"C:\\P Q\\CopyAddress.exe\"";
    for (const wchar_t* shell : {L"*\\shell", L"Directory\\shell", L"Drive\\shell"}) {
      for (const auto& [root, above] : kPlaces) {
        registry_.SetKeyValue(root, std::wstring(above) + shell + L"\\Other\\command", {}, L"\"C:\\o.exe\" %1");
      }
    }
  }
  // What stands in one of the places.
  std::wstring Written(std::size_t place) {
    std::wstring lines;
    for (const auto& [key, value] : kWritten) {
      std::wstring text;
      if (registry_.GetKeyValue(kPlaces[place].root, kPlaces[place].above + std::wstring(key), {}, text)) {
        lines += LineOf(key, text);
      }
    }
    return lines;
  }
  std::string WholeRegistry() {
    std::string bytes;
    ReadDiskFile(folder.Path() / "registry.txt", bytes);
    return bytes;
  }

  struct Place {
    RegistryKey root;
    const wchar_t* above;
  };
  // Of the machine, and of the user.
  static constexpr Place kPlaces[] = {{RegistryKey::kClassesRoot, L""},
                                      {RegistryKey::kCurrentUser, L"Software\\Classes\\"}};
  clsRegHandler registry_{machine.registry};
};

TEST_F(ShellVerbs, ComeAndGoWhereverTheUserMayWrite) {
  for (const bool refused : {false, true}) {
    for (const bool canCopy : {false, true}) {
      machine.faults.Clear();
      if (refused) machine.faults.RefusedKeys = {L"HKEY_CLASSES_ROOT"};
      if (canCopy) machine.AddFile(L"C:\\P Q\\CopyAddress.exe");
      const std::string before = WholeRegistry();
      AddShellVerbs(app);
      std::wstring expected;
      for (const auto& [key, value] : kWritten) {
        const bool copies = std::wstring(key).find(L"Copy") != std::wstring::npos;
        if (canCopy || !copies) expected += LineOf(key, value);
      }
      EXPECT_EQ(Written(refused ? 1 : 0), expected);
      EXPECT_EQ(Written(refused ? 0 : 1), L"");
      RemoveShellVerbs(app);
      EXPECT_EQ(WholeRegistry(), before);
    }
    machine.files.DeleteFileA(L"C:\\P Q\\CopyAddress.exe");
  }
}

}  // namespace
}  // namespace burrowmark
