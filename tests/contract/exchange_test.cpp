// Configuration files that one build writes and the other reads.
//
// The folder named by BURROWMARK_EXCHANGE is passed from the native build to the Windows build and back; each writes
// its files there and reads what it finds. Without it there is nothing to exchange.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "config/config_reader.h"
#include "config/config_writer.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

namespace fs = std::filesystem;

class Exchange : public ContractTest {
 protected:
  void SetUp() override {
    const char* folder = std::getenv("BURROWMARK_EXCHANGE");
    if (folder == nullptr) GTEST_SKIP() << "BURROWMARK_EXCHANGE isn't set";
    if (!system_->HasPage1252()) GTEST_SKIP() << "the system has another ANSI page";
    folder_ = folder;
    app_.AC[0] = false;
  }

  // A tree whose texts have the characters of `title`.
  void Fill(clsMenuCollection& store, const std::wstring& title) {
    auto top = std::make_shared<clsMenuItem>(platform_.clock);
    top->SetName(MIT_GROUP_USER);
    top->SetCaption(L"Personal");
    top->SetOwnerName(kRootOwner);
    top->SetSubMenu(true);
    store.AddOne(top, true, true);
    for (int i = 1; i <= 50; ++i) {
      auto item = std::make_shared<clsMenuItem>(platform_.clock);
      item->SetCaption(title + std::to_wstring(i));
      item->SetOwnerName(i % 10 == 0 ? L"N" + std::to_wstring(i - 1) : std::wstring(MIT_GROUP_USER));
      item->SetSubMenu(i % 10 == 9);
      item->FolderPath = L"C:\\" + title;
      item->UserDescription = title + L"\r\n" + title;
      item->KeyboardCode = i <= 9 ? 48 + i : -1;
      item->TimeModified = 37930 + i / 64.0;
      store.AddOne(item, true, true);
    }
    for (int i = 1; i <= store.Count(); ++i) store.Item(i)->TimeCreated = 30000 + i;
  }

  Application app_{platform_};
  fs::path folder_;
};

TEST_P(Exchange, EachBuildReadsWhatTheOtherWrote) {
  const std::pair<const char*, std::wstring> trees[] = {{"ansi", L"\x20AC \xE9t\xE9 \x153"},
                                                        {"wide", L"\x41F\x440 \xE9"}};
  for (const auto& [tree, title] : trees) {
    clsMenuCollection store(platform_.clock);
    Fill(store, title);
    const std::string bytes = BuildConfig(app_, store);
    const std::string mine = GetParam().name + std::to_string(sizeof(wchar_t));
    std::ofstream(folder_ / (std::string(tree) + "-" + mine), std::ios::binary) << bytes;

    for (const fs::directory_entry& file : fs::directory_iterator(folder_)) {
      if (!file.path().filename().string().starts_with(tree)) continue;
      std::ifstream in(file.path(), std::ios::binary);
      const std::string other{std::istreambuf_iterator<char>(in), {}};
      EXPECT_EQ(other, bytes) << file.path();
      clsMenuCollection read(platform_.clock);
      ConfigContent content;
      ASSERT_TRUE(ReadConfig(app_, other, read, content)) << file.path();
      ASSERT_EQ(read.Count(), store.Count());
      for (int i = 1; i <= store.Count(); ++i) {
        EXPECT_EQ(read.Item(i)->Caption(), store.Item(i)->Caption());
        EXPECT_EQ(read.Item(i)->UserDescription, store.Item(i)->UserDescription);
        EXPECT_EQ(read.Item(i)->TimeModified, store.Item(i)->TimeModified);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Systems, Exchange, ::testing::ValuesIn(Systems()), KindName);

}  // namespace
}  // namespace burrowmark
