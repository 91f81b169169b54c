// "Folder Report": four pages that ask what to report about one folder, how to separate it and where it goes.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/program_form.h"
#include "tools/folder_report.h"
#include "ui/check_box.h"
#include "ui/combo_box.h"
#include "ui/command_button.h"
#include "ui/common_dialog.h"
#include "ui/label.h"
#include "ui/line.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace burrowmark {

// The disk is asked, read and written beside the interface thread. While a report is being made its own window takes no
// input but Cancel, which leaves a file that was there as it was.
class frmFolderReport final : public ProgramForm {
 public:
  explicit frmFolderReport(Application& app);

  // The folder, once the form is loaded and ahead of showing it.
  void Init(const std::wstring& folderPath);

 private:
  struct Answers;
  struct Problem {
    std::wstring text;
    std::uint32_t style = 0;  // of the box that tells it
  };
  struct Life {};

  void Form_Load() override;
  void Form_QueryUnload(bool& Cancel, UnloadMode mode) override;
  void Form_Unload(bool& Cancel) override;

  void ConnectEvents();
  void LoadSettings();
  void SaveSettings();
  void CountEntries();

  void ShowPage();
  void UpdateButtons();
  void GoToStep(std::int32_t step);
  void FocusPage();
  void Next();
  void CancelOrUnload();

  void ChooseData(std::size_t index);
  void Browse();
  void CheckCsvDelimiter();
  std::wstring GetDelimiter() const;
  bool ToFile() const { return optDestination[1].Value(); }

  // --- making the report, step by step: each goes on only if the run is still the one
  void CreateReport(bool preview);
  void CheckPaths();
  Problem ProblemOf(const Answers& answers) const;
  bool PathsAreFine(const Answers& answers);
  void WriteNow();
  void Finish(bool done);
  void ShowResult();
  ReportRequest MakeRequest();
  std::wstring PreviewFile();
  void DeleteTempFiles();

  void BeginWork(bool preview);
  void EndWork();
  void ShowCountLater();
  void ShowCount();
  bool IsUnderWay(const std::weak_ptr<ReportRun>& run) const { return run_ && run.lock() == run_; }
  // `then` runs after so many milliseconds, unless the run has ended by then.
  void Later(std::int32_t milliseconds, std::function<void()> then);

  std::int32_t Tell(const std::wstring& text, std::uint32_t style);

  std::int32_t step_ = 1;
  std::wstring folder_;
  bool settingOptions_ = false;  // the check boxes follow an option
  bool loading_ = false;
  bool preview_ = false;            // what is under way is one
  bool boxUp_ = false;              // the run waits for an answer
  std::shared_ptr<ReportRun> run_;  // none while nothing is under way
  std::wstring previewFolder_;      // of our own; empty before the first preview
  std::wstring previewFile_;
  std::shared_ptr<Life> life_ = std::make_shared<Life>();

  PictureBox picTop{*this, L"picTop", Box{0, 0, 7560, 960}};
  PictureBox picNaslov{picTop, L"picNaslov", Box{240, 120, 720, 720}};
  Label lblNaslov{picTop, L"lblNaslov", Box{1200, 195, 6120, 240}, L"Folder Report Wizard"};
  Label lblOpis{picTop, L"lblOpis", Box{1200, 465, 6120, 480},
                L"Creates a report about the selected folder's files and subfolders"};
  Line Line1{*this, L"Line1", Box{0, 960, 7560, 30}};

  PictureBox picStart{*this, L"picStart", Box{0, 990, 7560, 3540}};
  Label lblStart{picStart, L"lblStart", Box{360, 210, 6840, 240}, L"Determine what to report on."};
  PictureBox picIcon{picStart, L"picIcon", Box{360, 690, 480, 480}};
  ComboBox cmbFiles{picStart, L"cmbFiles", Box{1080, 780, 3600, 315}};
  Label lblInfoFolder1{picStart, L"lblInfoFolder1", Box{360, 1590, 660, 240}, L"Path:"};
  Label lblInfoFolder2{picStart, L"lblInfoFolder2", Box{1080, 1590, 6120, 720}};
  Label lblInfoNumFolders{picStart, L"lblInfoNumFolders", Box{1080, 2400, 6120, 240}};
  Label lblInfoNumFiles{picStart, L"lblInfoNumFiles", Box{1080, 2700, 6120, 240}};

  PictureBox picData{*this, L"picData", Box{0, 990, 7560, 3540}};
  Label lblData{picData, L"lblData", Box{360, 210, 6840, 240}, L"Determine the data that will be in the report."};
  OptionButton optCopyData[3]{
      {picData, L"optCopyData(0)", Box{360, 690, 2700, 285}, L"Co&mmonly used data"},
      {picData, L"optCopyData(1)", Box{360, 1035, 2700, 285}, L"&All data"},
      {picData, L"optCopyData(2)", Box{360, 1380, 2700, 285}, L"&Selected data"},
  };
  CheckBox chkCopyData[kReportColumns]{
      {picData, L"chkCopyData(0)", Box{3720, 690, 3480, 285}, L"Name"},
      {picData, L"chkCopyData(1)", Box{3720, 1035, 3480, 285}, L"S&hort name"},
      {picData, L"chkCopyData(2)", Box{3720, 1380, 3480, 285}, L"&Type"},
      {picData, L"chkCopyData(3)", Box{3720, 1725, 3480, 285}, L"Si&ze"},
      {picData, L"chkCopyData(4)", Box{3720, 2070, 3480, 285}, L"&Date modified"},
      {picData, L"chkCopyData(5)", Box{3720, 2415, 3480, 285}, L"Date &created"},
      {picData, L"chkCopyData(6)", Box{3720, 2760, 3480, 285}, L"Date &last accessed"},
      {picData, L"chkCopyData(7)", Box{3720, 3105, 3480, 285}, L"&Path"},
  };

  PictureBox picDelimiter{*this, L"picDelimiter", Box{0, 990, 7560, 3540}};
  Label lblDelimiter{picDelimiter, L"lblDelimiter", Box{360, 210, 6840, 480},
                     L"Select the delimiter character that separates the data columns in your report."};
  OptionButton optDelimiterChar[6]{
      {picDelimiter, L"optDelimiterChar(0)", Box{360, 690, 2700, 285}, L"&Tabulator"},
      {picDelimiter, L"optDelimiterChar(1)", Box{360, 1035, 2700, 285}, L"&Semicolon ;"},
      {picDelimiter, L"optDelimiterChar(2)", Box{360, 1380, 2700, 285}, L"&Colon ,"},
      {picDelimiter, L"optDelimiterChar(3)", Box{360, 1725, 2700, 285}, L"&Pipe |"},
      {picDelimiter, L"optDelimiterChar(4)", Box{360, 2070, 2700, 285}, L"Sp&ace"},
      {picDelimiter, L"optDelimiterChar(5)", Box{360, 2415, 1020, 285}, L"&Other:"},
  };
  Label lblDelimiterChar{picDelimiter, L"Other delimiter"};
  TextBox txtDelimiterChar{picDelimiter, L"txtDelimiterChar", Box{1440, 2400, 900, 315}};

  PictureBox picDestination{*this, L"picDestination", Box{0, 990, 7560, 3540}};
  Label lblDestination{picDestination, L"lblDestination", Box{360, 210, 6840, 240},
                       L"Determines what to do with the report."};
  OptionButton optDestination[2]{
      {picDestination, L"optDestination(0)", Box{360, 690, 6840, 285}, L"Send it to the &Clipboard"},
      {picDestination, L"optDestination(1)", Box{360, 1035, 6840, 285}, L"&Save it in a file (HTML, CSV, TXT, ...)"},
  };
  Label lblPath{picDestination, L"File"};
  TextBox txtPath{picDestination, L"txtPath", Box{660, 1410, 5190, 315}};
  CommandButton cmdBrowse{picDestination, L"cmdBrowse", Box{5985, 1380, 1215, 375}, L"B&rowse..."};
  CommandButton cmdPreview{picDestination, L"cmdPreview", Box{360, 2070, 1215, 375}, L"&Preview"};

  // In the place of the pages while work goes on for longer.
  PictureBox picWork{*this, L"picWork", Box{0, 990, 7560, 3540}};
  Label lblWork{picWork, L"lblWork", Box{360, 210, 6840, 240}, L"The report is being created."};
  Label lblWorkCount{picWork, L"lblWorkCount", Box{360, 690, 6840, 240}};

  Line Line2{*this, L"Line2", Box{0, 4530, 7560, 30}};
  CommandButton cmdBack{*this, L"cmdBack", Box{3525, 4740, 1215, 375}, L"< &Back"};
  CommandButton cmdNext{*this, L"cmdNext", Box{4740, 4740, 1215, 375}, L"&Next >"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{6105, 4740, 1215, 375}, L"Cancel"};
  CommonDialog cmdMain{app_.platform.dialogs, *this};
};

}  // namespace burrowmark
