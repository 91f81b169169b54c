// The bytes of shortcut files.
#include "platform/local/link_file.h"

#include "platform/characters.h"
#include "platform/local/local_facts.h"
#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

constexpr wchar_t kWidePath[] = L"D:\\Caf\u00E9\\\u041F\u0430\u043F\u043A\u0430 \U0001F98A\\x.txt";

class LinkFileTest : public ::testing::Test {
 protected:
  std::string Build(const std::wstring& target, const std::wstring& description = L"words") const {
    return BuildLinkFile({target, description, 7}, *ParseWindowsPath(target), kFileArchive, {kDriveTypeFixed, L"disk"},
                         facts_);
  }
  std::wstring TargetIn(std::string_view bytes) const {
    ShellLink link;
    return ReadLinkFile(bytes, facts_, link) ? link.target : L"(no link)";
  }

  LocalFacts facts_;
};

TEST_F(LinkFileTest, WhatWasWrittenIsRead) {
  for (const std::wstring& target :
       {std::wstring(L"C:\\"), std::wstring(L"C:\\Windows"), std::wstring(L"C:\\a\\b\\c.d"), std::wstring(kWidePath),
        std::wstring(L"\\\\server\\share\\folder"), std::wstring(L"\\\\s\u0416rver\\share\\\u0416"),
        L"C:\\" + std::wstring(200, L'a') + L"\\" + std::wstring(200, L'\u0416')}) {
    SCOPED_TRACE(ToUtf8(target));
    ShellLink link;
    ASSERT_TRUE(ReadLinkFile(Build(target, L"\U0001F98A \u0416 \u00E9"), facts_, link));
    EXPECT_EQ(link.target, target);
    EXPECT_EQ(link.description, L"\U0001F98A \u0416 \u00E9");
    EXPECT_EQ(link.showCommand, 7);
  }
}

TEST_F(LinkFileTest, TheListOfItemsAloneLeadsThereToo) {
  for (const std::wstring& target :
       {std::wstring(L"C:\\"), std::wstring(kWidePath), std::wstring(L"\\\\server\\share\\\u0416\\b")}) {
    std::string bytes = Build(target);
    bytes[0x15] = '\x01';  // the other information isn't to be used
    EXPECT_EQ(TargetIn(bytes), target) << ToUtf8(target);
  }
}

TEST_F(LinkFileTest, AnUnknownWayToShowIsTheNormalOne) {
  std::string bytes = Build(L"C:\\x");
  bytes[0x3C] = '\x05';
  ShellLink link;
  ASSERT_TRUE(ReadLinkFile(bytes, facts_, link));
  EXPECT_EQ(link.showCommand, kShowNormal);
}

TEST_F(LinkFileTest, NoTruncatedFileLeadsElsewhere) {
  for (const std::wstring& target : {std::wstring(kWidePath), std::wstring(L"\\\\s\u0416rver\\share\\folder")}) {
    const std::string whole = Build(target);
    const std::size_t closing = 4;  // says that nothing more follows
    for (std::size_t size = 0; size < whole.size(); ++size) {
      const std::string cut = whole.substr(0, size);
      EXPECT_EQ(TargetIn(cut), size < whole.size() - closing ? L"(no link)" : target) << size;
    }
  }
}

TEST_F(LinkFileTest, WhateverAByteBecomesTheTargetIsAPathOrNone) {
  for (const std::wstring& target : {std::wstring(kWidePath), std::wstring(L"\\\\s\u0416rver\\share\\folder")}) {
    std::string bytes = Build(target);
    std::size_t refused = 0;
    for (char& byte : bytes) {
      const char before = byte;
      for (const int change : {0x01, 0x80, 0xFF, 0x10, 0x5C}) {
        byte = static_cast<char>(before ^ change);
        const std::wstring read = TargetIn(bytes);
        if (read == L"(no link)") {
          ++refused;
        } else {
          EXPECT_TRUE(ParseWindowsPath(read)) << ToUtf8(read);
        }
      }
      byte = before;
    }
    EXPECT_GT(refused, 100U) << "the header alone has as many ways to be wrong";
    EXPECT_EQ(TargetIn(bytes), target);
  }
}

TEST_F(LinkFileTest, ALongDescriptionIsCutWhereItsLengthCanBeTold) {
  ShellLink link;
  ASSERT_TRUE(ReadLinkFile(Build(L"C:\\x", std::wstring(70000, L'd')), facts_, link));
  EXPECT_EQ(link.description, std::wstring(65535, L'd'));
}

}  // namespace
}  // namespace burrowmark
