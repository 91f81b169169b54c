// What a folder report says, and what becomes of its file when something fails.
#include "tools/folder_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <ctime>

#include "platform/characters.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

constexpr std::uintmax_t kLarge = 5ULL << 30U;

class FolderReport : public testing::Test {
 protected:
  FolderReport() {
    machine_.AddFolders(L"C:\\Data\\Sub & more");
    machine_.AddFile(L"C:\\Data\\a & b;c.TXT", "abc");
    machine_.AddFile(L"C:\\Data\\z.burrow", std::string(1024, 'x'));
    request_.Folder = L"C:\\Data";
    request_.Delimiter = L";";
    request_.Target = L"C:\\out.txt";
    request_.Moment = Now(machine_.clock);
    Report({ReportColumn::kType, ReportColumn::kSize});
  }
  void Report(std::initializer_list<ReportColumn> columns) {
    request_.Columns = {};
    for (const ReportColumn column : columns) request_.Columns.at(static_cast<std::size_t>(column)) = true;
  }
  bool Write() { return WriteReport(request_, machine_.files, machine_.facts, *run_); }
  std::string Written() {
    run_ = std::make_unique<ReportRun>();
    EXPECT_TRUE(Write());
    return request_.Target.empty() ? ToUtf8(run_->Text) : machine_.BytesOf(request_.Target);
  }
  // The file was written on 4 July 2001 at this time of day.
  void WriteAt(const wchar_t* path, int hour, int minute, int second) {
    std::tm parts = {};
    parts.tm_year = 101;
    parts.tm_mon = 6;
    parts.tm_mday = 4;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = -1;
    const auto age = std::chrono::system_clock::now() - std::chrono::system_clock::from_time_t(std::mktime(&parts));
    std::filesystem::last_write_time(
        machine_.RealPath(path), std::filesystem::file_time_type::clock::now() - age + std::chrono::milliseconds(500));
  }
  bool Has(const std::wstring& path) { return machine_.files.FileExists(path); }

  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  ReportRequest request_;
  std::unique_ptr<ReportRun> run_ = std::make_unique<ReportRun>();
};

TEST_F(FolderReport, IsTextInAFileAndALittleOtherwiseOnTheClipboard) {
  const std::string rows =
      "\r\nName;Type;Size;\r\nSub & more;File folder;;\r\na & b;c.TXT;Text Document;3 bytes;\r\nz.burrow;BURROW "
      "File;1 KB;\r\n\r\n1;SubFolder(s);\r\n2;File(s);1.00 KB;\r\n";
  const std::string closing = "This report was created by Burrowmark software at 11/5/2003 14:07h;\r\n";
  EXPECT_EQ(Written(), "C:\\Data;\r\n" + rows + "\r\n" + closing);
  request_.Target.clear();
  EXPECT_EQ(Written(), "C:\\Data;\r\n11/5/2003 2:07:09 PM;\r\n" + rows + closing);
}

TEST_F(FolderReport, IsAPageWhoseCharactersBeyondAsciiAreNumbers) {
  machine_.AddFile(L"C:\\Data\\\u65E5\U0001F98A", "");
  std::filesystem::resize_file(machine_.RealPath(L"C:\\Data\\\u65E5\U0001F98A"), kLarge);
  machine_.AddFile(L"C:\\css", "css");
  request_.StyleSheet = L"C:\\css";
  request_.Target = L"C:\\Users\\out.HTM";
  Report({ReportColumn::kSize, ReportColumn::kPath});
  const auto row = [](const std::string& kind, const std::string& name, const std::string& size) {
    return "<tr class=\"data_" + kind + "\">\r\n<td>" + name + "</td>\r\n<td>" + size + "</td>\r\n<td>C:\\Data\\" +
           name + "</td>\r\n</tr>\r\n";
  };
  EXPECT_EQ(
      Written(),
      "<html>\r\n<head>\r\n<link rel=\"stylesheet\" type=\"text/css\" href=\"folder_report.css\">\r\n</head>\r\n"
      "<body>\r\n<center>\r\n<h3 class=\"title\">Folder Report</h3><br>\r\n<table width=\"100%\" border=\"0\">\r\n"
      "<tr>\r\n<td class=\"head1\">Folder:</td>\r\n<td class=\"head2\">C:\\Data</td>\r\n</tr>\r\n</table>\r\n<br>"
      "\r\n<table width=\"100%\" border=\"0\" class=\"data\">\r\n<tr class=\"data_header\">\r\n<td>Name</td>\r\n"
      "<td>Size</td>\r\n<td>Path</td>\r\n</tr>\r\n" +
          row("row2", "Sub & more", "&nbsp;") + row("row1", "a & b;c.TXT", "3 bytes") +
          row("row2", "z.burrow", "1 KB") + row("row1", "&#26085;&#129418;", "5,242,880 KB") +
          "<tr><td colspan=\"3\">&nbsp;</tr>\r\n<tr>\r\n<td align=\"left\">\r\n1&nbsp;SubFolder(s)\r\n</td>\r\n"
          "<td colspan=\"2\">&nbsp;</td>\r\n</tr>\r\n<tr>\r\n<td align=\"left\">\r\n3&nbsp;File(s)\r\n</td>\r\n"
          "<td aling=\"left\" colspan=\"2\">5,242,881.00 KB</td>\r\n</tr>\r\n</table>\r\n<p><font class=\"footer\">"
          "This report was created by <a href=\"http://www.kestrelan.example/\">Burrowmark</a> software at "
          "11/5/2003 14:07h</font></p>\r\n</center>\r\n</body>\r\n</html>\r\n");
  EXPECT_EQ(machine_.BytesOf(L"C:\\Users\\folder_report.css"), "css");
  machine_.AddFile(L"C:\\Users\\folder_report.css", "my own");
  machine_.AddFile(L"C:\\css", "new");
  Written();
  EXPECT_EQ(machine_.BytesOf(L"C:\\Users\\folder_report.css"), "my own");
}

TEST_F(FolderReport, TotalsFollowTheScopeAndDatesAreTheUsers) {
  using enum ReportColumn;
  const struct {
    ReportScope scope;
    std::vector<ReportColumn> columns;
    const char* part;
  } rows[] = {
      {ReportScope::kFiles, {kSize}, "Name;Size;\r\na & b;c.TXT;3 bytes;\r\nz.burrow;1 KB;\r\n\r\n2;File(s);1.00 KB;"},
      {ReportScope::kFolders, {kSize}, "Name;Size;\r\nSub & more;;\r\n\r\n1;SubFolder(s);\r\n\r\nThis"},
      {ReportScope::kAll, {}, "z.burrow;\r\n\r\n1;SubFolder(s);\r\n2;File(s);\r\n\r\nThis"},
      {ReportScope::kFolders,
       {kShortName, kPath},
       "Name;Short Name;Path;\r\nSub & more;Sub & more;C:\\Data\\Sub & more;"},
      {ReportScope::kFiles,
       {kModified},
       "Date Last Modified;\r\na & b;c.TXT;7/4/2001;\r\nz.burrow;7/4/2001 1:02:03 PM;"}};
  WriteAt(L"C:\\Data\\a & b;c.TXT", 0, 0, 0);
  WriteAt(L"C:\\Data\\z.burrow", 13, 2, 3);
  for (const auto& row : rows) {
    request_.Scope = row.scope;
    request_.Columns = {};
    for (const ReportColumn column : row.columns) request_.Columns.at(static_cast<std::size_t>(column)) = true;
    EXPECT_NE(Written().find(row.part), std::string::npos) << Written();
  }
}

TEST_F(FolderReport, TextIsAnsiUnlessThatCannotHoldIt) {
  machine_.AddFile(L"C:\\Data\\\u00E9.txt");
  EXPECT_NE(Written().find("\xE9.txt;"), std::string::npos);
  machine_.AddFile(L"C:\\Data\\\u65E5.txt");
  const std::string text = Written();
  EXPECT_TRUE(
      text.starts_with("\xEF\xBB\xBF"
                       "C:\\Data;"));
  EXPECT_NE(text.find("\xC3\xA9.txt;"), std::string::npos);
  EXPECT_NE(text.find("\xE6\x97\xA5.txt;"), std::string::npos);
}

TEST_F(FolderReport, WalksOnceOpensNoFileFollowsNoLinkAndAsksForATypeOnce) {
  machine_.AddFile(L"C:\\Data\\more.txt");
  std::error_code noLinks;  // some disks have none: then it is a folder like others
  std::filesystem::create_directory_symlink(machine_.RealPath(L"C:\\Data"), machine_.RealPath(L"C:\\Data\\loop"),
                                            noLinks);
  if (noLinks) machine_.files.CreateFolder(L"C:\\Data\\loop");
  machine_.faults.FailFrom(0);
  const std::string text = Written();
  EXPECT_NE(text.find("loop;File folder;;\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("2;SubFolder(s)"), std::string::npos);
  std::vector<std::string> calls = machine_.faults.Record();
  std::erase_if(calls, [](const std::string& call) { return call.find("out.txt") != std::string::npos; });
  std::sort(calls.begin(), calls.end());
  EXPECT_EQ(calls, (std::vector<std::string>{"GetTypeName ", "GetTypeName .burrow", "GetTypeName .txt",
                                             "WalkFolder C:\\Data"}));
}

// Each way to fail leaves the old file, and nothing beside it.
TEST_F(FolderReport, AFailureOrACancelLeavesTheOldFile) {
  const auto meet = [this](const char* what, const std::function<void()>& fault, bool page = false) {
    SCOPED_TRACE(what);
    request_.Target = page ? L"C:\\out.html" : L"C:\\out.txt";
    machine_.AddFile(request_.Target, "old");
    machine_.files.SetFileAttributesA(request_.Target, kFileReadOnly);
    run_ = std::make_unique<ReportRun>();
    fault();
    EXPECT_FALSE(Write());
    machine_.faults.Clear();
    EXPECT_EQ(machine_.BytesOf(request_.Target), "old");
    EXPECT_EQ(machine_.files.GetFileAttributesA(request_.Target), kFileReadOnly);
    EXPECT_FALSE(Has(request_.Target + L".~burrowmark"));
    request_.Folder = L"C:\\Data";
  };
  meet("no such folder", [this] { request_.Folder = L"C:\\Gone"; });
  meet("it goes in the middle", [this] { machine_.faults.WalkEndsAfter = 2; });
  meet(
      "the disk is full", [this] { machine_.faults.DiskRoom = 100; }, true);
  meet("no new files", [this] { machine_.faults.FoldersWithoutNewFiles = {L"C:\\"}; });
  meet("another program has it", [this] { machine_.faults.HeldOpen = {L"C:\\OUT.TXT"}; });
  meet("cancelled", [this] { EXPECT_TRUE(run_->Cancel()); });

  EXPECT_NE(Written(), "old") << "a read-only file is replaced";
  EXPECT_FALSE(run_->Cancel()) << "too late";
}

}  // namespace
}  // namespace burrowmark
