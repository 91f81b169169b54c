// Keys and values.
#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

using namespace std::string_literals;

constexpr std::size_t kRoom = 1024;

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
    EXPECT_EQ(registry_.RegCreateKeyA(key_, name, key), kErrorSuccess);
    EXPECT_EQ(registry_.RegCloseKey(key), kErrorSuccess);
  }
  // What opening a key below the scratch key gives; it is closed again.
  std::int32_t TryOpen(const std::wstring& name) {
    RegistryKey key = RegistryKey::kNone;
    const std::int32_t result = registry_.RegOpenKeyExA(key_, name, kRegReadWrite, key);
    if (result == kErrorSuccess) registry_.RegCloseKey(key);
    return result;
  }
  std::int32_t Set(const std::wstring& name, std::uint32_t type, const std::wstring& data) {
    return registry_.RegSetValueExA(key_, name, type, data);
  }
  std::int32_t Query(const std::wstring& name) {
    type_ = 99;
    data_ = L"from before";
    return registry_.RegQueryValueExA(key_, name, kRoom, type_, data_);
  }

  RegistryApi& registry_ = platform_.registry;
  RegistryKey key_ = RegistryKey::kNone;
  std::uint32_t type_ = 0;
  std::wstring data_;
};

TEST_F(RegistryContract, DataComesBackAsItWasStored) {
  std::wstring allBytes;
  for (int byte = 0; byte < 256; ++byte) allBytes += static_cast<wchar_t>(byte);
  const std::pair<std::uint32_t, std::wstring> rows[] = {
      {kRegSz, L"plain\0"s},
      {kRegSz, L"\0"s},
      {kRegSz, L"one\r\ntwo \"quoted\" \\back\\ [x] ^{41} %TEMP% \0"s},
      {kRegSz, L"\u00E4\u20AC \u0416 \u6587\0"s},
      {kRegExpandSz, L"%SystemRoot%\\x\0"s},
      {kRegBinary, L"\0\0\0\0"s},
      {kRegBinary, allBytes},
      {kRegDword, L"\x00\x04\x00\xFF"s},
  };
  for (const auto& [type, data] : rows) {
    SCOPED_TRACE("type " + std::to_string(type) + ": " + ToUtf8(data));
    ASSERT_EQ(Set(L"value", type, data), kErrorSuccess);
    EXPECT_EQ(Query(L"VALUE"), kErrorSuccess);
    EXPECT_EQ(type_, type);
    EXPECT_EQ(data_, data);
  }
}

TEST_F(RegistryContract, OnlyWhatFitsTheRoomIsRead) {
  for (const std::size_t size : {kRoom, kRoom + 1}) {
    const std::wstring data = std::wstring(size - 1, L'x') + L'\0';
    ASSERT_EQ(Set(L"value", kRegSz, data), kErrorSuccess);
    EXPECT_EQ(Query(L"value"), size > kRoom ? kErrorMoreData : kErrorSuccess);
    EXPECT_EQ(data_, size > kRoom ? L"" : data);
  }
}

TEST_F(RegistryContract, WhatIsMissingGivesItsOwnResult) {
  EXPECT_EQ(TryOpen(L"missing\\below"), kErrorFileNotFound);
  EXPECT_EQ(Query(L"missing"), kErrorFileNotFound);
  EXPECT_EQ(registry_.RegDeleteValueA(key_, L"missing"), kErrorFileNotFound);
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"missing"), kErrorFileNotFound);
  ASSERT_EQ(Set(L"value", kRegSz, L"text\0"s), kErrorSuccess);
  EXPECT_EQ(registry_.RegDeleteValueA(key_, L"VALUE"), kErrorSuccess);
  EXPECT_EQ(Query(L"value"), kErrorFileNotFound);
}

TEST_F(RegistryContract, KeysComeWithAllOnTheWayAndGoOnceTheyAreEmpty) {
  ASSERT_EQ(Set(L"kept", kRegSz, L"text\0"s), kErrorSuccess);
  MakeKey(L"parent\\child");
  MakeKey(L"parent beside");
  EXPECT_EQ(TryOpen(L"PARENT\\Child"), kErrorSuccess);
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"parent"), kErrorAccessDenied);
  MakeKey(L"PARENT");
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"parent\\CHILD"), kErrorSuccess);
  EXPECT_EQ(registry_.RegDeleteKeyA(key_, L"parent"), kErrorSuccess);
  EXPECT_EQ(TryOpen(L"parent"), kErrorFileNotFound);
  EXPECT_EQ(TryOpen(L"parent beside"), kErrorSuccess);
  EXPECT_EQ(Query(L"kept"), kErrorSuccess);
}

TEST_F(RegistryContract, AKeyOpenedForReadingTakesNoValues) {
  ASSERT_EQ(Set(L"value", kRegSz, L"text\0"s), kErrorSuccess);
  RegistryKey reader = RegistryKey::kNone;
  ASSERT_EQ(registry_.RegOpenKeyExA(RegistryKey::kCurrentUser, system_->Key(), kRegRead, reader), kErrorSuccess);
  EXPECT_EQ(registry_.RegSetValueExA(reader, L"value", kRegSz, L"other\0"s), kErrorAccessDenied);
  EXPECT_EQ(registry_.RegDeleteValueA(reader, L"value"), kErrorAccessDenied);
  EXPECT_EQ(registry_.RegCloseKey(reader), kErrorSuccess);
  EXPECT_EQ(Query(L"value"), kErrorSuccess);
  EXPECT_EQ(data_, L"text\0"s);
}

}  // namespace
}  // namespace burrowmark
