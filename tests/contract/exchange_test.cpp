// Configuration files that every build writes byte for byte and reads back whole, whatever its system.
#include "config/config_reader.h"
#include "config/config_writer.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

class ExchangeContract : public ContractTest {
 protected:
  // A group in a group, a shortcut with a hot key in each, and a separator; every text has the title in it.
  void Fill(clsMenuCollection& store, const std::wstring& title) {
    const std::wstring lines = title + L"\r\n" + title;
    const NewMenuItem items[] = {
        {.Caption = L"Personal", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true},
        {.Caption = title + L" 1", .OwnerName = MIT_GROUP_USER, .FolderPath = L"C:\\" + title, .KeyboardCode = 48},
        {.OwnerName = MIT_GROUP_USER, .Name = L"line", .Separator = true},
        {.Caption = title, .OwnerName = MIT_GROUP_USER, .Name = L"group", .SubMenu = true, .UserDescription = lines},
        {.Caption = title + L" 2", .OwnerName = L"group", .FolderPath = L"\\\\a\\" + title, .KeyboardCode = 57}};
    for (const NewMenuItem& values : items) {
      const ItemRef item = store.AddNewMenuItem(values);
      item->TimeCreated = 30000 + store.Count();
      item->TimeModified = 37930 + store.Count() / 64.0;
    }
    summary_ = {title, L"author", {}, title + L"; " + title, L"two\r\nlines"};
    app_.AC[Appearance::kSystemFolders] = false;
  }

  Application app_{platform_};
  ConfigSummary summary_;
};

TEST_F(ExchangeContract, EveryBuildWritesAndReadsTheSameFiles) {
  if (!system_->HasPage1252()) GTEST_SKIP() << "the system has another ANSI page";
  const std::pair<const char*, std::wstring> files[] = {
      {"plain.bwmk", L"Plain"}, {"ansi.bwmk", L"\x20AC \xE9t\xE9 \x153"}, {"utf8.bwmk", L"\x41F\x440 \xE9"}};
  for (const auto& [name, title] : files) {
    SCOPED_TRACE(name);
    const std::string bytes = Fixture(name);
    clsMenuCollection store(platform_.clock);
    Fill(store, title);
    EXPECT_EQ(BuildConfig(app_, store, summary_), bytes);
    clsMenuCollection read(platform_.clock);
    ConfigContent content;
    ASSERT_TRUE(ReadConfig(app_, bytes, read, content));
    ASSERT_EQ(read.Count(), store.Count() - 1) << "the separator isn't the file's";
    EXPECT_EQ(read.GetMenuItemFromName(L"group")->Caption(), title);
    EXPECT_EQ(content.summary.SummaryTitle, title);
    EXPECT_EQ(BuildConfig(app_, read, content.summary), bytes);
  }
}

}  // namespace
}  // namespace burrowmark
