// Keys and values.
#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

using namespace std::string_literals;

constexpr std::size_t kRoom = 1024;
constexpr std::int32_t kErrorInvalidHandle = 6;
constexpr std::int32_t kErrorKeyDeleted = 1018;
constexpr std::uint32_t kRegNone = 0;
constexpr std::uint32_t kRegQword = 11;

class RegistryContract : public ContractTest {
 protected:
  RegistryContract() {
    EXPECT_EQ(registry_.RegCreateKeyA(RegistryKey::kCurrentUser, system_->Key(), key_), kErrorSuccess);
  }
  ~RegistryContract() override { EXPECT_EQ(registry_.RegCloseKey(key_), kErrorSuccess); }
  RegistryContract(const RegistryContract&) = delete;
  RegistryContract& operator=(const RegistryContract&) = delete;

  // Makes a key below the scratch key and closes it.
  void MakeKey(const std::wstring& name) {
    RegistryKey key = RegistryKey::kNone;
    ASSERT_EQ(registry_.RegCreateKeyA(key_, name, key), kErrorSuccess);
    ASSERT_EQ(registry_.RegCloseKey(key), kErrorSuccess);
  }
  // What opening a key below the scratch key gives; it is closed again.
  std::int32_t TryOpen(const std::wstring& name, std::uint32_t access = kRegRead) {
    RegistryKey key = RegistryKey::kNone;
    const std::int32_t result = registry_.RegOpenKeyExA(key_, name, access, key);
    EXPECT_EQ(key == RegistryKey::kNone, result != kErrorSuccess);
    if (result == kErrorSuccess) registry_.RegCloseKey(key);
    return result;
  }
  std::int32_t Set(const std::wstring& name, const std::wstring& text) {
    return registry_.RegSetValueExA(key_, name, kRegSz, text + L'\0');
  }
  std::int32_t Query(const std::wstring& name, std::size_t room = kRoom) {
    type_ = 99;
    data_ = L"from before";
    return registry_.RegQueryValueExA(key_, name, room, type_, data_);
  }

  RegistryApi& registry_ = platform_.registry;
  RegistryKey key_ = RegistryKey::kNone;
  std::uint32_t type_ = 0;
  std::wstring data_;
};
INSTANTIATE_TEST_SUITE_P(Systems, RegistryContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(RegistryContract, DataOfEveryTypeComesBackAsItWasStored) {
  std::wstring allBytes;
  for (int byte = 0; byte < 256; ++byte) allBytes += static_cast<wchar_t>(byte);
  const struct {
    std::uint32_t type;
    std::wstring data;
  } rows[] = {{kRegSz, L"plain\0"s},
              {kRegSz, L"\0"s},
              {kRegSz, L""s},
              {kRegSz, L"one\r\ntwo\nthree\ttab\0"s},
              {kRegSz, L"\"quoted\" 'single' \\back\\slash\\ [x] a=b ^{41} %TEMP% \0"s},
              {kRegSz, L"\u00E4\u00F6\u20AC \u0416 \u6587 \uFFFD\0"s},
              {kRegSz, L"cut\0inside\0"s},
              {kRegExpandSz, L"%SystemRoot%\\x\0"s},
              {kRegMultiSz, L"first\0second\0\0"s},
              {kRegBinary, allBytes},
              {kRegBinary, L""s},
              {kRegBinary, L"\x01\x02\x03"s},
              {kRegDword, L"\x00\x04\x00\xFF"s},
              {kRegDword, L"\x07"s},
              {kRegQword, L"\x01\0\0\0\0\0\0\x80"s},
              {kRegNone, L"\x05"s}};
  for (const auto& row : rows) {
    SCOPED_TRACE("type " + std::to_string(row.type) + ": " + ToUtf8(row.data));
    ASSERT_EQ(registry_.RegSetValueExA(key_, L"value", row.type, row.data), kErrorSuccess);
    EXPECT_EQ(Query(L"value"), kErrorSuccess);
    EXPECT_EQ(type_, row.type);
    EXPECT_EQ(data_, row.data);
  }
}

TEST_P(RegistryContract, ATextWithoutItsClosingNulGetsOne) {
  ASSERT_EQ(registry_.RegSetValueExA(key_, L"value", kRegSz, L"open"), kErrorSuccess);
  EXPECT_EQ(Query(L"value"), kErrorSuccess);
  EXPECT_EQ(data_, L"open\0"s);
}

TEST_P(RegistryContract, OnlyWhatFitsTheRoomIsRead) {
  for (const std::uint32_t type : {kRegSz, kRegBinary}) {
    for (const std::size_t size : {kRoom - 1, kRoom, kRoom + 1, 40 * kRoom}) {
      SCOPED_TRACE(size);
      std::wstring data(size, L'x');
      data.back() = L'\0';
      ASSERT_EQ(registry_.RegSetValueExA(key_, L"value", type, data), kErrorSuccess);
      EXPECT_EQ(Query(L"value"), size > kRoom ? kErrorMoreData : kErrorSuccess);
      EXPECT_EQ(type_, type);
      EXPECT_TRUE(data_ == (size > kRoom ? L"" : data));
    }
  }
  ASSERT_EQ(registry_.RegSetValueExA(key_, L"empty", kRegBinary, L""), kErrorSuccess);
  EXPECT_EQ(Query(L"empty", 0), kErrorSuccess);
}

TEST_P(RegistryContract, WhatIsMissingGivesItsOwnResult) {
  EXPECT_EQ(TryOpen(L"missing"), kErrorFileNotFound);
  EXPECT_EQ(TryOpen(L"missing", kRegReadWrite), kErrorFileNotFound);
  EXPECT_EQ(TryOpen(L"missing\\below"), kErrorFileNotFound);
  EXPECT_EQ(Query(L"missing"), kErrorFileNotFound);
  EXPECT_EQ(data_, L"");
  EXPECT_EQ(Query(L""), kErrorFileNotFound) << "a new key has no default value";
  EXPECT_EQ(registry_.RegDeleteValueA(key_, L"missing"), kErrorFileNotFound);
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"missing"), kErrorFileNotFound);
  EXPECT_EQ(TryOpen(L"missing"), kErrorFileNotFound) << "asking must not make it";
}

TEST_P(RegistryContract, CreatingMakesAllKeysOnTheWayAndKeepsWhatIsThere) {
  MakeKey(L"one\\two\\three");
  EXPECT_EQ(TryOpen(L"one"), kErrorSuccess);
  EXPECT_EQ(TryOpen(L"one\\two", kRegReadWrite), kErrorSuccess);
  EXPECT_EQ(TryOpen(L"ONE\\Two\\tHREE"), kErrorSuccess);

  ASSERT_EQ(Set(L"kept", L"text"), kErrorSuccess);
  RegistryKey again = RegistryKey::kNone;
  ASSERT_EQ(registry_.RegCreateKeyA(RegistryKey::kCurrentUser, system_->Key(), again), kErrorSuccess);
  EXPECT_EQ(registry_.RegSetValueExA(again, L"added", kRegSz, L"more\0"s), kErrorSuccess);
  EXPECT_EQ(registry_.RegCloseKey(again), kErrorSuccess);
  EXPECT_EQ(Query(L"kept"), kErrorSuccess);
  EXPECT_EQ(Query(L"added"), kErrorSuccess);
}

TEST_P(RegistryContract, AnEmptyNameMeansTheKeyItself) {
  ASSERT_EQ(Set(L"value", L"text"), kErrorSuccess);
  RegistryKey same = RegistryKey::kNone;
  ASSERT_EQ(registry_.RegOpenKeyExA(key_, L"", kRegRead, same), kErrorSuccess);
  EXPECT_EQ(registry_.RegQueryValueExA(same, L"value", kRoom, type_, data_), kErrorSuccess);
  EXPECT_EQ(registry_.RegCloseKey(same), kErrorSuccess);
}

TEST_P(RegistryContract, NamesOfValuesMatchWithoutRegardToCase) {
  ASSERT_EQ(Set(L"Gr\u00F6\u00DFe", L"first"), kErrorSuccess);
  ASSERT_EQ(registry_.RegSetValueExA(key_, L"GR\u00D6\u00DFE", kRegDword, L"\1\0\0\0"s), kErrorSuccess);
  EXPECT_EQ(Query(L"gr\u00F6\u00DFe"), kErrorSuccess);
  EXPECT_EQ(type_, kRegDword);
  EXPECT_EQ(data_, L"\1\0\0\0"s);
  EXPECT_EQ(registry_.RegDeleteValueA(key_, L"gR\u00F6\u00DFE"), kErrorSuccess);
  EXPECT_EQ(Query(L"Gr\u00F6\u00DFe"), kErrorFileNotFound);
}

TEST_P(RegistryContract, ValuesMayHaveAnyName) {
  const std::wstring names[] = {L"",        L"a\\b", L"\"quoted\"",   L"[brackets]",          L"a = b", L"two\r\nlines",
                                L" blank ", L"^",    L"\u0416\u6587", std::wstring(300, L'n')};
  for (const std::wstring& name : names) ASSERT_EQ(Set(name, L"value of " + name), kErrorSuccess) << ToUtf8(name);
  for (const std::wstring& name : names) {
    EXPECT_EQ(Query(name), kErrorSuccess) << ToUtf8(name);
    EXPECT_EQ(data_, L"value of " + name + L'\0');
  }
  for (const std::wstring& name : names) {
    EXPECT_EQ(registry_.RegDeleteValueA(key_, name), kErrorSuccess) << ToUtf8(name);
    EXPECT_EQ(Query(name), kErrorFileNotFound);
  }
}

TEST_P(RegistryContract, KeysMayHaveAnyNameOf255Characters) {
  for (const std::wstring& name :
       {L"[brackets] \"quoted\" = ^"s, L"two\nlines"s, L"\u0416 \u6587"s, L"a/b"s, L"."s, std::wstring(255, L'k')}) {
    SCOPED_TRACE(ToUtf8(name));
    MakeKey(name);
    EXPECT_EQ(TryOpen(name), kErrorSuccess);
    EXPECT_EQ(registry_.RegDeleteKeyA(key_, name), kErrorSuccess);
    EXPECT_EQ(TryOpen(name), kErrorFileNotFound);
  }
  RegistryKey key = RegistryKey::kNone;
  EXPECT_NE(registry_.RegCreateKeyA(key_, L"cut\0off"s, key), kErrorSuccess);
  EXPECT_EQ(TryOpen(L"cut"), kErrorFileNotFound);
}

TEST_P(RegistryContract, LongerNamesOfKeysAreRefused) {
  if (system_->IsWine()) GTEST_SKIP() << "Wine makes keys of longer names than the 255 characters documented";
  RegistryKey key = RegistryKey::kNone;
  EXPECT_NE(registry_.RegCreateKeyA(key_, L"sub\\" + std::wstring(256, L'k'), key), kErrorSuccess);
  EXPECT_EQ(key, RegistryKey::kNone);
}

TEST_P(RegistryContract, AKeyWithKeysBelowItIsNotDeleted) {
  MakeKey(L"parent\\child");
  MakeKey(L"parent beside");
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"parent"), kErrorAccessDenied);
  EXPECT_EQ(TryOpen(L"parent\\child"), kErrorSuccess);
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"PARENT\\CHILD"), kErrorSuccess);
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"parent"), kErrorSuccess);
  EXPECT_EQ(TryOpen(L"parent"), kErrorFileNotFound);
  EXPECT_EQ(TryOpen(L"parent beside"), kErrorSuccess);
}

TEST_P(RegistryContract, ADeletedKeyLosesItsValuesAndIsStillToBeClosed) {
  RegistryKey open = RegistryKey::kNone;
  ASSERT_EQ(registry_.RegCreateKeyA(key_, L"gone", open), kErrorSuccess);
  ASSERT_EQ(registry_.RegSetValueExA(open, L"value", kRegSz, L"text\0"s), kErrorSuccess);
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"gone"), kErrorSuccess);
  MakeKey(L"gone");
  EXPECT_EQ(registry_.RegQueryValueExA(open, L"value", kRoom, type_, data_), kErrorKeyDeleted);
  EXPECT_EQ(registry_.RegSetValueExA(open, L"value", kRegSz, L"text\0"s), kErrorKeyDeleted);
  EXPECT_EQ(registry_.RegCloseKey(open), kErrorSuccess);

  ASSERT_EQ(registry_.RegOpenKeyExA(key_, L"gone", kRegRead, open), kErrorSuccess);
  EXPECT_EQ(registry_.RegQueryValueExA(open, L"value", kRoom, type_, data_), kErrorFileNotFound);
  EXPECT_EQ(registry_.RegCloseKey(open), kErrorSuccess);
}

TEST_P(RegistryContract, AKeyOpenedForReadingTakesNoValues) {
  ASSERT_EQ(Set(L"value", L"text"), kErrorSuccess);
  RegistryKey reader = RegistryKey::kNone;
  ASSERT_EQ(registry_.RegOpenKeyExA(RegistryKey::kCurrentUser, system_->Key(), kRegRead, reader), kErrorSuccess);
  EXPECT_EQ(registry_.RegSetValueExA(reader, L"value", kRegSz, L"other\0"s), kErrorAccessDenied);
  EXPECT_EQ(registry_.RegDeleteValueA(reader, L"value"), kErrorAccessDenied);
  EXPECT_EQ(registry_.RegQueryValueExA(reader, L"value", kRoom, type_, data_), kErrorSuccess);
  EXPECT_EQ(data_, L"text\0"s);
  EXPECT_EQ(registry_.RegCloseKey(reader), kErrorSuccess);
}

TEST_P(RegistryContract, AKeyThatIsNotOpenIsGoodForNothing) {
  RegistryKey closed = RegistryKey::kNone;
  ASSERT_EQ(registry_.RegCreateKeyA(key_, L"sub", closed), kErrorSuccess);
  ASSERT_EQ(registry_.RegCloseKey(closed), kErrorSuccess);
  for (const RegistryKey key : {closed, RegistryKey::kNone, static_cast<RegistryKey>(0xBADBAD)}) {
    RegistryKey other = key_;
    EXPECT_EQ(registry_.RegOpenKeyExA(key, L"x", kRegRead, other), kErrorInvalidHandle);
    EXPECT_EQ(other, RegistryKey::kNone);
    EXPECT_EQ(registry_.RegCreateKeyA(key, L"x", other), kErrorInvalidHandle);
    EXPECT_EQ(registry_.RegQueryValueExA(key, L"x", kRoom, type_, data_), kErrorInvalidHandle);
    EXPECT_EQ(registry_.RegSetValueExA(key, L"x", kRegSz, L"x\0"s), kErrorInvalidHandle);
    EXPECT_EQ(registry_.RegDeleteValueA(key, L"x"), kErrorInvalidHandle);
    EXPECT_EQ(registry_.RegDeleteKeyA(key, L"x"), kErrorInvalidHandle);
    EXPECT_EQ(registry_.RegCloseKey(key), kErrorInvalidHandle);
  }
}

TEST_P(RegistryContract, TheRootsAreAlwaysOpen) {
  for (const RegistryKey root : {RegistryKey::kClassesRoot, RegistryKey::kCurrentUser, RegistryKey::kLocalMachine}) {
    EXPECT_EQ(registry_.RegCloseKey(root), kErrorSuccess);
    RegistryKey key = RegistryKey::kNone;
    EXPECT_EQ(registry_.RegOpenKeyExA(root, L"", kRegRead, key), kErrorSuccess);
    EXPECT_EQ(registry_.RegCloseKey(key), kErrorSuccess);
  }
}

TEST_P(RegistryContract, TheUsersFoldersAreListedAndExist) {
  RegistryKey folders = RegistryKey::kNone;
  ASSERT_EQ(registry_.RegOpenKeyExA(RegistryKey::kCurrentUser,
                                    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", kRegRead,
                                    folders),
            kErrorSuccess);
  for (const wchar_t* name : {L"AppData", L"Desktop", L"Favorites", L"Personal", L"Recent", L"SendTo"}) {
    SCOPED_TRACE(ToUtf8(name));
    ASSERT_EQ(registry_.RegQueryValueExA(folders, name, kRoom, type_, data_), kErrorSuccess);
    EXPECT_EQ(type_, kRegSz);
    ASSERT_TRUE(data_.ends_with(L'\0'));
    data_.pop_back();
    EXPECT_TRUE(files_.FolderExists(data_)) << ToUtf8(data_);
  }
  EXPECT_EQ(registry_.RegCloseKey(folders), kErrorSuccess);
}

}  // namespace
}  // namespace burrowmark
