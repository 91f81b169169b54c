// Shortcut files: each system reads what each one wrote.
#include <chrono>

#include "platform/characters.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::size_t kShowCommandAt = 0x3C;  // in the documented format
constexpr std::size_t kHeaderBytes = 0x4C;

class LinksContract : public ContractTest {
 protected:
  // The bytes of a link that this system wrote.
  std::string Written(const ShellLink& link) {
    EXPECT_TRUE(shell_.WriteShellLink(In(L"written.lnk"), link)) << ToUtf8(link.target);
    return Content(In(L"written.lnk"));
  }
  // What this system reads from the bytes of a link; a target that none has if it reads none.
  ShellLink Read(const std::string& bytes) {
    const std::wstring path = In(L"read" + std::to_wstring(++files_read_) + L".lnk");
    EXPECT_TRUE(Make(path, bytes));
    ShellLink link{L"(no link)", L"(no link)", 99};
    shell_.ReadShellLink(path, link);
    return link;
  }

  Shell& shell_ = platform_.shell;
  int files_read_ = 0;
};
INSTANTIATE_TEST_SUITE_P(Systems, LinksContract, ::testing::ValuesIn(Systems()), KindName);

// Another system, that writes links for this one to read.
class OtherSystem {
 public:
  explicit OtherSystem(const SystemKind& kind) : system_(kind.make()), platform_(system_->platform()) {}

  std::wstring In(const std::wstring& name) const { return system_->Folder() + L'\\' + name; }
  FileSystem& Files() { return platform_.files; }
  bool IsWine() const { return system_->IsWine(); }
  std::string Written(const ShellLink& link) {
    std::string bytes;
    const std::wstring path = In(L"other.lnk");
    EXPECT_TRUE(platform_.shell.WriteShellLink(path, link)) << ToUtf8(link.target);
    EXPECT_TRUE(platform_.files.ReadWholeFile(path, bytes));
    return bytes;
  }

 private:
  std::unique_ptr<SystemUnderTest> system_;
  Platform platform_;
};

TEST_P(LinksContract, LinksOfEverySystemAreRead) {
  for (const SystemKind& kind : Systems()) {
    OtherSystem writer(kind);
    for (const wchar_t* name : {L"Folder", L"Caf\u00E9 \u20AC", L"\u041F\u0430\u043F\u043A\u0430 \u6587\u4EF6",
                                L"\U0001F98A", L"a & b = [c] 'd' #e %f", L"long.with.dots and a rather long name"}) {
      ASSERT_TRUE(writer.Files().CreateFolder(writer.In(name)));
      ASSERT_TRUE(writer.Files().CreateNewFile(writer.In(name) + L"\\file.txt"));
    }
    for (const std::wstring& target :
         {std::wstring(L"C:\\Windows"), std::wstring(L"C:\\Windows\\explorer.exe"), std::wstring(L"C:\\"),
          writer.In(L"Folder"), writer.In(L"Caf\u00E9 \u20AC\\file.txt"),
          writer.In(L"\u041F\u0430\u043F\u043A\u0430 \u6587\u4EF6"),
          writer.In(L"\u041F\u0430\u043F\u043A\u0430 \u6587\u4EF6\\file.txt"), writer.In(L"\U0001F98A"),
          writer.In(L"a & b = [c] 'd' #e %f"), writer.In(L"long.with.dots and a rather long name\\file.txt"),
          writer.In(L"Missing"), writer.In(L"Missing\\below\\far.txt"), std::wstring(L"C:\\No such folder \u0416")}) {
      SCOPED_TRACE("written by " + kind.name + ": " + ToUtf8(target));
      const ShellLink link = Read(writer.Written({target, L"Organized \u00E9\u0416 \u20AC", kShowNormal}));
      EXPECT_TRUE(EqualIgnoringCase(link.target, target)) << ToUtf8(link.target);
      EXPECT_EQ(link.description, L"Organized \u00E9\u0416 \u20AC");
      EXPECT_EQ(link.showCommand, kShowNormal);
    }
  }
}

TEST_P(LinksContract, ATargetOnAShareIsReadWithoutItsServer) {
  for (const SystemKind& kind : Systems()) {
    OtherSystem writer(kind);
    for (const wchar_t* target : {L"\\\\no-such-server\\share\\folder", L"\\\\no-such-server\\share\\a\\b \u00E9.txt",
                                  L"\\\\no-such-server\\share\\\u0416"}) {
      SCOPED_TRACE("written by " + kind.name + ": " + ToUtf8(target));
      // Wine writes such a link in the ANSI page, and reads no list of items that starts at the network.
      if (writer.IsWine() && std::wstring(target).find(L'\u0416') != std::wstring::npos) continue;
      if (system_->IsWine() && !writer.IsWine()) continue;
      EXPECT_EQ(Read(writer.Written({target, L"far", kShowNormal})).target, target);
    }
  }
}

TEST_P(LinksContract, TheWayToShowTheTargetIsKept) {
  for (const std::int32_t show : {1, 3, 7}) {
    for (const SystemKind& kind : Systems()) {
      const std::string bytes = OtherSystem(kind).Written({L"C:\\Windows", L"", show});
      ASSERT_GT(bytes.size(), kHeaderBytes);
      EXPECT_EQ(bytes.substr(kShowCommandAt, 4), std::string({static_cast<char>(show), '\0', '\0', '\0'}));
      if (system_->IsWine()) continue;  // its reader always answers 1
      EXPECT_EQ(Read(bytes).showCommand, show);
    }
  }
}

TEST_P(LinksContract, AThousandLinksAreWrittenInFiveSeconds) {
  if (GetParam().name == "Local") GTEST_SKIP() << "a benchmark times this one";
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 1000; ++i) {
    ASSERT_TRUE(shell_.WriteShellLink(In(std::to_wstring(i) + L".lnk"), {L"C:\\Windows", L"one of many", kShowNormal}));
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_P(LinksContract, ALinkWithoutADescriptionHasNone) {
  for (const SystemKind& kind : Systems()) {
    EXPECT_EQ(Read(OtherSystem(kind).Written({L"C:\\Windows", L"", kShowNormal})).description, L"");
  }
}

TEST_P(LinksContract, ALinkReplacesTheOneThatIsThere) {
  const std::string large = Written({L"C:\\Windows\\explorer.exe", std::wstring(200, L'x'), kShowNormal});
  const std::string small = Written({L"C:\\", L"small", kShowNormal});
  EXPECT_LT(small.size(), large.size());
  const ShellLink link = Read(small);
  EXPECT_EQ(link.target, L"C:\\");
  EXPECT_EQ(link.description, L"small");
}

TEST_P(LinksContract, ALinkIsWrittenOnlyWhereAFileCanBe) {
  ASSERT_TRUE(files_.CreateFolder(In(L"folder")) && files_.CreateFolder(In(L"folder\\below")));
  const ShellLink link{L"C:\\Windows", L"", kShowNormal};
  for (const std::wstring& path :
       {In(L"missing\\x.lnk"), In(L"folder\\below"), In(L"a*b.lnk"), In(L"a\\b/c:d.lnk"), std::wstring(L"x.lnk")}) {
    EXPECT_FALSE(shell_.WriteShellLink(path, link)) << ToUtf8(path);
  }
  for (const wchar_t* target : {L"", L"Windows", L"C:Windows"}) {
    EXPECT_FALSE(shell_.WriteShellLink(In(L"x.lnk"), {target, L"", kShowNormal})) << ToUtf8(target);
  }
  EXPECT_FALSE(files_.FileExists(In(L"x.lnk")));
}

TEST_P(LinksContract, WhatIsNoLinkGivesNothing) {
  const std::string good = Written({L"C:\\Windows", L"description", kShowNormal});
  std::string otherKind = good;
  otherKind[4] = '\x02';
  std::string otherSize = good;
  otherSize[0] = '\x4D';
  const std::string header = good.substr(0, kHeaderBytes);
  std::string nothingFollows = header;
  nothingFollows[0x14] = '\0';
  for (const std::string& bytes : {std::string(), std::string("text, which isn't a link"), std::string(5000, '\0'),
                                   header.substr(0, kHeaderBytes - 1), otherKind, otherSize, nothingFollows}) {
    EXPECT_EQ(Read(bytes).target, L"(no link)") << bytes.size() << " bytes";
  }
  ASSERT_TRUE(files_.CreateFolder(In(L"folder.lnk")));
  for (const std::wstring& path :
       {In(L"missing.lnk"), In(L"folder.lnk"), std::wstring(), std::wstring(L"written.lnk")}) {
    ShellLink link{L"(no link)", L"(no link)", 99};
    EXPECT_FALSE(shell_.ReadShellLink(path, link)) << ToUtf8(path);
    EXPECT_EQ(link.target, L"(no link)") << "a failure leaves it as it was";
  }
}

TEST_P(LinksContract, ALinkToSomethingElseThanAFileLeadsNowhere) {
  using namespace std::string_literals;
  std::string bytes = Written({L"C:\\Windows", L"", kShowNormal}).substr(0, kHeaderBytes);
  bytes[0x14] = '\x01';  // an ID list and nothing else
  bytes[0x15] = bytes[0x16] = bytes[0x17] = '\0';
  // My Computer, and in it the Control Panel.
  const std::string computer = "\x14\0\x1F\x50\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\0\x2B\x30\x30\x9D"s;
  const std::string panel = "\x14\0\x2E\0\x20\x20\xEC\x21\xEA\x3A\x69\x10\xA2\xDD\x08\0\x2B\x30\x30\x9D"s;
  bytes += "\x2A\0"s + computer + panel + "\0\0"s;
  EXPECT_EQ(Read(bytes + "\0\0\0\0"s).target, L"(no link)");
}

}  // namespace
}  // namespace burrowmark
