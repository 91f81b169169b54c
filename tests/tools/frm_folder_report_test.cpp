// A person walks through the report's wizard.
#include <gtest/gtest.h>

#include "core/file_names.h"
#include "core/form_state.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"
#include "tools/folder_reports.h"

namespace burrowmark::test {
namespace {

constexpr wchar_t kGone[] = L"does not exist or is not a directory.";
constexpr wchar_t kFailed[] = L"Error saving the folder report.";

class ReportWizard : public testing::Test {
 protected:
  ReportWizard() {
    scratch_.app.DesktopFolder = L"C:\\Desk";
    machine_.AddFolders(L"C:\\Data\\Sub");
    machine_.AddFile(L"C:\\Data\\a.txt", "abc");
    machine_.AddFile(scratch_.app.AppPath + L"\\folder_report.css", "css");
  }
  ShownWindow& Open(const std::wstring& folder = L"C:\\Data") {
    reports_.Show(folder, {});
    machine_.windows.DoEvents();
    window_ = &machine_.user.Window(GetFileName(folder) + L" - Folder Report");
    return *window_;
  }
  // Opens it and goes to the last page.
  ShownWindow& OpenLast(const std::wstring& folder = L"C:\\Data") {
    Open(folder);
    for (int i = 0; i < 3; ++i) window_->Click(L"Next >");
    return *window_;
  }
  // By the keyboard, instead of what stands there.
  void TypePath(const std::wstring& path) {
    window_->PressAlt(L'c');
    window_->Press(kKeyCodeTab);
    window_->Press(kKeyCodeDelete);
    window_->Type(path);
  }
  void Finish() {
    window_->Click(L"Finish");
    machine_.windows.DoEvents();
  }
  bool IsOn(const wchar_t* option) { return window_->Find(option)->check == CheckValue::kChecked; }
  std::wstring Kept(const wchar_t* value) {
    return scratch_.Registered(GetFormRegKey(L"frmFolderReport").c_str(), value);
  }

  ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  FolderReports reports_{scratch_.app};
  ShownWindow* window_ = nullptr;
};

TEST_F(ReportWizard, TellsOfTheFolderAndEndsOnTheClipboard) {
  Open();
  const std::wstring labels = window_->LabelTexts();
  for (const wchar_t* text : {L"Determine what to report on.", L"C:\\Data", L"1 SubFolder(s)", L"1 File(s)"}) {
    EXPECT_NE(labels.find(text), std::wstring::npos) << text;
  }
  EXPECT_FALSE(window_->Find(L"< Back")->enabled);
  window_->Press(kKeyCodeReturn);
  window_->Click(L"< Back");
  OpenLast();
  machine_.user.NextBox(L"The folder report is successfully copied to the Clipboard.", kAnswerOk);
  Finish();
  EXPECT_FALSE(window_->IsOpen());
  EXPECT_EQ(machine_.clipboard.Text->substr(0, 10), L"C:\\Data\t\r\n");
  EXPECT_EQ(Kept(L"FolderRepOut") + Kept(L"FolderRepFile"), L"0C:\\Desk\\folder_report.html");
  machine_.clipboard.IsHeld = true;
  OpenLast();
  machine_.user.NextBox(kFailed, kAnswerOk);
  Finish();
  EXPECT_TRUE(window_->IsOpen());
}

TEST_F(ReportWizard, ChecksComeInTheirOrderAndLeaveItOpen) {
  machine_.AddFile(L"C:\\old.csv", "old");
  const struct {
    const wchar_t* folder;
    const wchar_t* path;
    const wchar_t* box;
    std::int32_t answer;
  } rows[] = {
      {L"C:\\Gone", L"", kGone, kAnswerOk},
      {L"C:\\Data", L"", L"Please select the file to save the folder report in.", kAnswerOk},
      {L"C:\\Data", L"bare.csv", L"Please enter valid path for the output file.", kAnswerOk},
      {L"C:\\Data", L"C:\\missing\\x.csv", kFailed, kAnswerOk},
      {L"C:\\Data", L"C:\\old.csv", L"The file 'old.csv' already exists. Do you want to replace", kAnswerNo},
  };
  for (const auto& row : rows) {
    OpenLast(row.folder);
    TypePath(row.path);
    EXPECT_TRUE(IsOn(L"Save it in a file (HTML, CSV, TXT, ...)")) << "typing chooses it";
    machine_.user.NextBox(row.box, row.answer);
    Finish();
    EXPECT_TRUE(window_->IsOpen() && window_->Find(L"Finish")->enabled) << row.path;
    scratch_.Register(GetFormRegKey(L"frmFolderReport").c_str(), L"FolderRepFile", L"");
    reports_.Unload();
    scratch_.Register(GetFormRegKey(L"frmFolderReport").c_str(), L"FolderRepFile", L"");
  }
  EXPECT_EQ(machine_.BytesOf(L"C:\\old.csv"), "old");
}

TEST_F(ReportWizard, SavesAPageAndATextThatSemicolonsSeparate) {
  OpenLast();
  TypePath(L"C:\\new.html");
  machine_.user.NextBox(L"in HTML format and its CSS file 'folder_report.css' are successfully saved.", kAnswerOk);
  Finish();
  EXPECT_TRUE(machine_.files.FileExists(L"C:\\folder_report.css"));

  OpenLast();
  EXPECT_TRUE(IsOn(L"Save it in a file (HTML, CSV, TXT, ...)")) << "as it was left";
  machine_.user.NextFile(L"Save As", L"C:\\new.csv");
  machine_.user.NextBox(L"The delimiter has been set to semicolon (;)", kAnswerOk);
  window_->Click(L"Browse...");
  machine_.user.NextBox(L"The folder report is successfully saved.", kAnswerOk);
  Finish();
  EXPECT_EQ(machine_.BytesOf(L"C:\\new.csv").substr(0, 8), "C:\\Data;");
  EXPECT_EQ(Kept(L"FolderRepOut") + Kept(L"FolderRepFile"), L"1C:\\new.csv");
}

TEST_F(ReportWizard, ColumnsFollowTheirOptionsAndTheOptionsTheColumns) {
  Open().Click(L"Next >");
  EXPECT_FALSE(window_->Find(L"Name")->enabled);
  window_->Click(L"All data");
  EXPECT_TRUE(IsOn(L"Path") && IsOn(L"Short name") && IsOn(L"All data"));
  window_->Click(L"Path");
  EXPECT_TRUE(IsOn(L"Selected data") && !IsOn(L"Path"));
  window_->Click(L"Commonly used data");
  EXPECT_TRUE(IsOn(L"Name") && IsOn(L"Date created") && !IsOn(L"Short name"));
}

TEST_F(ReportWizard, APreviewIsOfAHarmlessKindAndGoesWithTheWizard) {
  const std::wstring folder = machine_.facts.TempFolder + L"\\Burrowmark report 1";
  const std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"x.HTML", L"html"}, {L"x.exe", L"txt"}, {L"x", L"txt"}};
  for (const auto& [path, extension] : rows) {
    OpenLast();
    TypePath(path);
    window_->Click(L"Preview");
    machine_.windows.DoEvents();
    ASSERT_FALSE(machine_.shell.Launches.empty());
    EXPECT_EQ(machine_.shell.Launches.back().file, folder + L"\\temp." + extension);
    EXPECT_TRUE(machine_.files.FileExists(machine_.shell.Launches.back().file));
    const bool isLast = path == rows[2].first;
    if (isLast) machine_.AddFile(folder + L"\\somebody's");
    window_->Press(kKeyCodeEscape);
    EXPECT_EQ(machine_.files.FolderExists(folder), isLast) << "with what isn't ours alone";
    EXPECT_FALSE(machine_.files.FileExists(machine_.shell.Launches.back().file));
    scratch_.Register(GetFormRegKey(L"frmFolderReport").c_str(), L"FolderRepFile", L"");
  }
}

TEST_F(ReportWizard, LongWorkShowsItsCountAndCanBeCancelled) {
  machine_.AddFile(L"C:\\old.csv", "old");
  OpenLast();
  TypePath(L"C:\\old.csv");
  machine_.workers.Takes = 700;
  machine_.user.NextBox(L"already exists", kAnswerYes);
  window_->Click(L"Finish");
  machine_.windows.Advance(600);
  EXPECT_TRUE(window_->CanBeUsed(*window_->Find(L"0 files and subfolders so far")));
  EXPECT_FALSE(window_->Find(L"Finish")->enabled);
  machine_.windows.Advance(600);  // the question was answered, and the writing goes on
  window_->Click(L"Cancel");
  EXPECT_FALSE(window_->CanBeUsed(*window_->Find(L"0 files and subfolders so far")));
  machine_.windows.Advance(2000);
  EXPECT_EQ(machine_.BytesOf(L"C:\\old.csv"), "old");
  EXPECT_TRUE(window_->IsOpen() && window_->Find(L"Finish")->enabled);
}

TEST_F(ReportWizard, AServerThatIsAwayEndsInTheMessageAndCanBeCancelled) {
  machine_.faults.SilentPlaces = {L"\\\\SERVER"};
  OpenLast(L"\\\\server\\share");
  window_->Click(L"Finish");
  machine_.windows.Advance(2900);
  machine_.user.NextBox(kGone, kAnswerOk);
  machine_.windows.Advance(200);
  EXPECT_TRUE(window_->Find(L"Finish")->enabled);
  window_->Click(L"Finish");
  machine_.windows.Advance(1000);
  window_->Click(L"Cancel");
  EXPECT_TRUE(window_->Find(L"Finish")->enabled);
  machine_.windows.Advance(3000);
}

TEST(ReportCommand, IsAboutTheSelectedFolder) {
  OrganizeScene scene;
  std::wstring asked;
  scene.app.PersonalFolder = L"C:\\Users";
  scene.app.Calls.ShowFolderReport = [&asked](const std::wstring& folder, const FormOwner& owner) {
    asked = folder;
    EXPECT_EQ(owner.Window(), 0) << "it stays when the editor closes";
  };
  scene.Open();
  const auto report = [&] { scene.Window().ChooseMenu({L"Tools", L"Folder Report..."}); };
  report();
  EXPECT_EQ(asked, L"C:\\Users") << "a group has no folder";
  scene.ClickRow(L"Beta");
  report();
  EXPECT_EQ(asked, L"C:\\Beta");
  scene.machine.files.DeleteFolder(L"C:\\Beta");
  asked.clear();
  scene.machine.user.NextBox(L"Folder 'C:\\Beta' does not exist or is not a directory.", kAnswerOk);
  report();
  EXPECT_EQ(asked, L"");
}

}  // namespace
}  // namespace burrowmark::test
