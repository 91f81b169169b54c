#include "tools/frm_folder_report.h"

#include <iterator>
#include <span>
#include <utility>

#include "core/failure.h"
#include "core/file_names.h"
#include "core/folder_tests.h"
#include "core/form_services.h"
#include "core/form_state.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/text.h"

namespace burrowmark {
namespace {

constexpr Size kClient{7560, 5295};
constexpr std::int32_t kLastStep = 4;
constexpr std::int32_t kHeadIcon = 18;
constexpr std::int32_t kHeadIconSize = 48;
constexpr std::int32_t kScopeIconSize = 32;
constexpr std::int32_t kPatience = 3000;  // milliseconds for a server
constexpr std::int32_t kCountAfter = 500;
constexpr std::int32_t kCountEvery = 200;
constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kFileValue[] = L"FolderRepFile";
constexpr wchar_t kOutValue[] = L"FolderRepOut";
constexpr wchar_t kFilter[] =
    L"CSV Files (Comma Delimited) (*.csv)|*.csv|HTML Files (*.html)|*.html|Text Files (*.txt)|*.txt|All Files "
    L"(*.*)|*.*";
constexpr std::int32_t kFilterOfPages = 2;
constexpr wchar_t kPageExtension[] = L".html";
constexpr wchar_t kDelimiters[] = L"\t;,| ";

struct ScopeRow {
  const wchar_t* text;
  std::int32_t icon;
};

constexpr ScopeRow kScopes[] = {{L"Files and SubFolders", 18}, {L"Only Files", 19}, {L"Only SubFolders", 3}};

constexpr bool kCommonlyUsed[kReportColumns] = {true, false, true, true, true, true, false, false};

// What a preview may be: no file that the system would run.
constexpr const wchar_t* kPreviewExtensions[] = {L"html", L"htm", L"csv", L"txt"};

// The folder that a file stands in; empty if the path names none, or no file.
std::wstring GetParentFolderName(const std::wstring& path) {
  return GetFileName(path).empty() || path.find(L'\\') == std::wstring::npos ? std::wstring() : GetFolderName(path);
}

std::wstring FileIn(const std::wstring& folder, const std::wstring& name) {
  return folder.ends_with(L'\\') ? folder + name : folder + L"\\" + name;
}

}  // namespace

// What the disk says of the two paths. A server may never do so.
struct frmFolderReport::Answers {
  std::atomic<bool> folderIsThere = false;
  std::atomic<bool> targetIsThere = false;
  bool used = false;  // for this thread alone
};

frmFolderReport::frmFolderReport(Application& app)
    : ProgramForm(app, ProgramWindow::kFolderReport, L"frmFolderReport", kClient) {
  SetCaption(L"Folder Report");
  for (PictureBox* picture : {&picTop, &picNaslov}) picture->SetBackColor(kColorWindow);
  picNaslov.SetIcon(kHeadIcon, kHeadIconSize);
  for (PictureBox* page : {&picData, &picDelimiter, &picDestination, &picWork}) page->SetVisible(false);
  lblInfoFolder2.SetUseMnemonic(false);
  chkCopyData[0].SetEnabled(false);
  cmdBack.SetEnabled(false);
  cmdNext.SetDefault(true);
  cmdCancel.SetCancel(true);
  cmdMain.DialogTitle = L"Save As";
  cmdMain.Filter = kFilter;
  ConnectEvents();
  for (const ScopeRow& scope : kScopes) cmbFiles.AddItem(scope.text);
  cmbFiles.SetListIndex(0);
  optCopyData[0].SetValue(true);
  optDelimiterChar[0].SetValue(true);
  optDestination[0].SetValue(true);
}

void frmFolderReport::ConnectEvents() {
  cmdBack.Click = [this] { GoToStep(step_ - 1); };
  cmdNext.Click = [this] { Next(); };
  cmdCancel.Click = [this] { CancelOrUnload(); };
  cmdBrowse.Click = [this] { Browse(); };
  cmdPreview.Click = [this] { CreateReport(true); };
  cmbFiles.Click = [this] {
    picIcon.SetIcon(kScopes[static_cast<std::size_t>(cmbFiles.ListIndex())].icon, kScopeIconSize);
  };
  for (std::size_t i = 0; i < std::size(optCopyData); ++i) optCopyData[i].Click = [this, i] { ChooseData(i); };
  for (CheckBox& box : chkCopyData) {
    box.Click = [this] {
      if (!settingOptions_) optCopyData[2].SetValue(true);
    };
  }
  txtDelimiterChar.Change = [this] { optDelimiterChar[5].SetValue(true); };
  txtPath.Change = [this] {
    if (!loading_) optDestination[1].SetValue(true);
  };
}

void frmFolderReport::Init(const std::wstring& folderPath) {
  folder_ = folderPath;
  step_ = 1;
  SetCaption(GetFileName(folder_) + L" - " + Caption());
  lblInfoFolder2.SetCaption(folder_);
  CountEntries();
}

// Shown when they are known. A folder that can't be read has none to show.
void frmFolderReport::CountEntries() {
  struct Counts {
    std::int64_t folders = 0;
    std::int64_t files = 0;
    bool known = false;
  };
  const auto counts = std::make_shared<Counts>();
  const auto count = [counts, folder = folder_, &files = app_.platform.files, life = std::weak_ptr(life_)] {
    counts->known = files.WalkFolder(folder, [&counts, &life](const FolderEntry& entry, const FileFacts&) {
      ++((entry.attributes & kFileDirectory) != 0 ? counts->folders : counts->files);
      return !life.expired();
    });
  };
  app_.platform.workers.Run(count, [this, counts, life = std::weak_ptr(life_)] {
    if (life.expired() || !counts->known) return;
    lblInfoNumFolders.SetCaption(DecimalText(counts->folders) + L" SubFolder(s)");
    lblInfoNumFiles.SetCaption(DecimalText(counts->files) + L" File(s)");
  });
}

// --- life

void frmFolderReport::Form_Load() {
  loading_ = true;
  LoadSettings();
  loading_ = false;
  txtPath.SetSelection(static_cast<std::int32_t>(txtPath.Text().size()), 0);
}

void frmFolderReport::LoadSettings() {
  clsRegHandler registry(app_.platform.registry);
  const std::wstring key = GetFormRegKey(Name());
  std::wstring text;
  registry.GetKeyValue(RegistryKey::kCurrentUser, key, kFileValue, text);
  txtPath.SetText(text.empty() ? FileIn(app_.DesktopFolder, L"folder_report.html") : text);
  registry.GetKeyValue(RegistryKey::kCurrentUser, key, kOutValue, text);
  std::int32_t index = 0;
  Skip([&] { index = ToInt32(text); });
  if (index == 1) optDestination[1].SetValue(true);
}

void frmFolderReport::SaveSettings() {
  clsRegHandler registry(app_.platform.registry);
  const std::wstring key = GetFormRegKey(Name());
  registry.SetKeyValue(RegistryKey::kCurrentUser, key, kFileValue, txtPath.Text());
  registry.SetKeyValue(RegistryKey::kCurrentUser, key, kOutValue, ToFile() ? L"1" : L"0");
}

void frmFolderReport::Form_QueryUnload(bool& /*Cancel*/, UnloadMode /*mode*/) {
  SaveSettings();
  if (auto* editor = app_.Windows.Find(ProgramWindow::kOrganize)) editor->ComeForward();
}

void frmFolderReport::Form_Unload(bool& /*Cancel*/) {
  life_ = std::make_shared<Life>();
  if (run_) run_->Cancel();
  run_.reset();
  DeleteTempFiles();
}

// --- pages

void frmFolderReport::ShowPage() {
  PictureBox* pages[] = {&picStart, &picData, &picDelimiter, &picDestination};
  for (std::int32_t i = 0; i < kLastStep; ++i) pages[i]->SetVisible(i == step_ - 1);
}

void frmFolderReport::UpdateButtons() {
  cmdBack.SetEnabled(step_ > 1);
  cmdNext.SetCaption(step_ == kLastStep ? L"&Finish" : L"&Next >");
}

void frmFolderReport::GoToStep(std::int32_t step) {
  step_ = step;
  UpdateButtons();
  ShowPage();
  FocusPage();
}

// The keyboard goes on from page to page, unless it is at a button beside them.
void frmFolderReport::FocusPage() {
  if (cmdNext.HasFocus() || (cmdBack.HasFocus() && cmdBack.Enabled())) return;
  if (step_ == 1) return cmbFiles.SetFocus();
  for (std::span<OptionButton> options :
       {std::span<OptionButton>(optCopyData), std::span<OptionButton>(optDelimiterChar),
        std::span<OptionButton>(optDestination)}) {
    for (OptionButton& option : options) {
      if (option.Value()) option.SetFocus();  // on a page that doesn't show nothing happens
    }
  }
}

void frmFolderReport::Next() {
  if (step_ == kLastStep) return CreateReport(false);
  GoToStep(step_ + 1);
}

void frmFolderReport::CancelOrUnload() {
  if (!run_) {
    Unload();
  } else if (run_->Cancel()) {
    EndWork();
  }
}

void frmFolderReport::ChooseData(std::size_t index) {
  if (index == 2) return;
  settingOptions_ = true;
  for (std::size_t i = 0; i < kReportColumns; ++i) {
    chkCopyData[i].SetValue(index == 1 || kCommonlyUsed[i] ? kChecked : kUnchecked);
  }
  settingOptions_ = false;
}

std::wstring frmFolderReport::GetDelimiter() const {
  for (std::size_t i = 0; i + 1 < std::size(optDelimiterChar); ++i) {
    if (optDelimiterChar[i].Value()) return {kDelimiters[i]};
  }
  return txtDelimiterChar.Text();
}

void frmFolderReport::Browse() {
  const std::wstring folder = GetParentFolderName(txtPath.Text());
  const bool isThere = !folder.empty() && FolderTests(app_.platform).Test(folder) == FolderAnswer::kThere;
  cmdMain.FileName = isThere ? txtPath.Text() : std::wstring();
  cmdMain.FilterIndex = kFilterOfPages;
  if (!cmdMain.ShowSave()) return;
  std::wstring path = cmdMain.FileName;
  if (GetFileName(path).find(L'.') == std::wstring::npos) path += kPageExtension;
  txtPath.SetText(path);
  txtPath.SetSelection(static_cast<std::int32_t>(path.size()), 0);
  optDestination[1].SetValue(true);
  CheckCsvDelimiter();
}

void frmFolderReport::CheckCsvDelimiter() {
  if (!ToFile() || GetFileExtension(txtPath.Text()) != L"csv" || optDelimiterChar[1].Value()) return;
  Tell(L"The delimiter has been set to semicolon (;)", kBoxInformation);
  optDelimiterChar[1].SetValue(true);
}

std::int32_t frmFolderReport::Tell(const std::wstring& text, std::uint32_t style) {
  return app_.platform.dialogs.MessageBoxA(Window(), text, kTitle, style);
}

// --- the report

void frmFolderReport::CreateReport(bool preview) {
  if (run_) return;
  BeginWork(preview);
  CheckPaths();
}

void frmFolderReport::CheckPaths() {
  FileSystem& files = app_.platform.files;
  const std::wstring target = !preview_ && ToFile() ? txtPath.Text() : std::wstring();
  const auto answers = std::make_shared<Answers>();
  const auto goOn = [this, answers, run = std::weak_ptr(run_), life = std::weak_ptr(life_)] {
    if (life.expired() || !IsUnderWay(run) || std::exchange(answers->used, true)) return;
    const bool fine = PathsAreFine(*answers);
    if (!IsUnderWay(run)) return;
    fine ? WriteNow() : EndWork();
  };
  app_.platform.workers.Run(
      [answers, target, folder = folder_, &files] {
        answers->folderIsThere = files.FolderExists(folder);
        answers->targetIsThere = !target.empty() && files.FileExists(target);
      },
      goOn);
  if (IsNetworkPlace(files, folder_) || IsNetworkPlace(files, target)) Later(kPatience, goOn);
}

// What keeps the report from being made, or asks about it; mostly nothing.
frmFolderReport::Problem frmFolderReport::ProblemOf(const Answers& answers) const {
  if (!answers.folderIsThere) {
    return {L"Folder '" + folder_ + L"' does not exist or is not a directory.", kBoxCritical};
  }
  if (preview_ || !ToFile()) return {};
  const std::wstring& target = txtPath.Text();
  if (target.empty()) return {L"Please select the file to save the folder report in.", kBoxWarning};
  if (GetParentFolderName(target).empty()) return {L"Please enter valid path for the output file.", kBoxWarning};
  if (!answers.targetIsThere) return {};
  return {L"The file '" + GetFileName(target) + L"' already exists. Do you want to replace the existing file?",
          kBoxWarning | kBoxYesNoCancel};
}

// A question may end the run, and the form.
bool frmFolderReport::PathsAreFine(const Answers& answers) {
  const Problem problem = ProblemOf(answers);
  if (problem.text.empty()) return true;
  boxUp_ = true;
  const bool replace = Tell(problem.text, problem.style) == kAnswerYes;
  boxUp_ = false;
  return replace;
}

void frmFolderReport::WriteNow() {
  ShowCountLater();
  const auto done = std::make_shared<bool>(false);
  const Platform& platform = app_.platform;
  app_.platform.workers.Run([done, run = run_, request = MakeRequest(), &files = platform.files,
                             &system = platform.system] { *done = WriteReport(request, files, system, *run); },
                            [this, done, run = std::weak_ptr(run_), life = std::weak_ptr(life_)] {
                              if (!life.expired() && IsUnderWay(run)) Finish(*done);
                            });
}

ReportRequest frmFolderReport::MakeRequest() {
  ReportRequest request;
  request.Folder = folder_;
  request.Scope = static_cast<ReportScope>(cmbFiles.ListIndex());
  for (std::size_t i = 0; i < kReportColumns; ++i) request.Columns.at(i) = chkCopyData[i].Value() == kChecked;
  request.Delimiter = GetDelimiter();
  if (preview_) {
    request.Target = PreviewFile();
  } else if (ToFile()) {
    request.Target = txtPath.Text();
  }
  request.StyleSheet = FileIn(app_.AppPath, kReportStyleSheet);
  request.Moment = Now(app_.platform.clock);
  return request;
}

void frmFolderReport::Finish(bool done) {
  const std::shared_ptr<ReportRun> run = run_;
  EndWork();
  if (done && !preview_ && !ToFile()) done = app_.platform.clipboard.SetText(run->Text);
  if (!done) {
    Tell(L"Error saving the folder report.", kBoxCritical);
  } else if (preview_) {
    app_.platform.shell.ShellExecuteA(L"open", previewFile_, {}, L"0", kShowNormal);
  } else {
    ShowResult();
  }
}

void frmFolderReport::ShowResult() {
  if (!ToFile()) {
    Tell(L"The folder report is successfully copied to the Clipboard.", kBoxInformation);
  } else if (IsReportPage(txtPath.Text())) {
    Tell(L"The folder report in HTML format and its CSS file 'folder_report.css' are successfully saved.",
         kBoxInformation);
  } else {
    Tell(L"The folder report is successfully saved.", kBoxInformation);
  }
  Unload();
}

// --- a preview's files

// Each wizard has a folder of its own, so that none takes away what another shows.
std::wstring frmFolderReport::PreviewFile() {
  constexpr int kMostFolders = 1000;
  const std::wstring temp = app_.platform.system.GetTempPathA() + L"\\Burrowmark report ";
  for (int i = 1; previewFolder_.empty() && i <= kMostFolders; ++i) {
    if (app_.platform.files.CreateFolder(temp + DecimalText(i))) previewFolder_ = temp + DecimalText(i);
  }
  if (!previewFile_.empty()) app_.platform.files.DeleteFileA(previewFile_);
  const std::wstring wanted = ToFile() ? GetFileExtension(txtPath.Text()) : std::wstring();
  std::wstring extension = L"txt";
  for (const wchar_t* known : kPreviewExtensions) {
    if (wanted == known) extension = known;
  }
  previewFile_ = previewFolder_ + L"\\temp." + extension;
  return previewFile_;
}

void frmFolderReport::DeleteTempFiles() {
  if (previewFolder_.empty()) return;
  FileSystem& files = app_.platform.files;
  files.DeleteFileA(previewFile_);
  files.DeleteFileA(FileIn(previewFolder_, kReportStyleSheet));
  std::vector<FolderEntry> left;
  if (files.ListFolder(previewFolder_, left) && left.empty()) files.DeleteFolder(previewFolder_);
  previewFolder_.clear();
  previewFile_.clear();
}

// --- while it is made

void frmFolderReport::BeginWork(bool preview) {
  preview_ = preview;
  run_ = std::make_shared<ReportRun>();
  SetHourglass(*this);
  cmdCancel.SetFocus();
  for (CommandButton* button : {&cmdBack, &cmdNext, &cmdPreview}) button->SetEnabled(false);
  picDestination.SetEnabled(false);
  ShowCountLater();
}

void frmFolderReport::EndWork() {
  run_.reset();
  SetNormalPointer(*this);
  for (CommandButton* button : {&cmdNext, &cmdPreview}) button->SetEnabled(true);
  cmdNext.SetFocus();
  picDestination.SetEnabled(true);
  picWork.SetVisible(false);
  GoToStep(step_);
}

void frmFolderReport::Later(std::int32_t milliseconds, std::function<void()> then) {
  app_.platform.windows.PostLater(
      milliseconds, [this, then = std::move(then), run = std::weak_ptr(run_), life = std::weak_ptr(life_)] {
        if (!life.expired() && IsUnderWay(run)) then();
      });
}

void frmFolderReport::ShowCountLater() {
  Later(kCountAfter, [this] {
    if (boxUp_ || picWork.Visible()) return;
    picDestination.SetVisible(false);
    picWork.SetVisible(true);
    ShowCount();
  });
}

void frmFolderReport::ShowCount() {
  const auto count = static_cast<double>(run_->Count);
  const std::wstring text = count > 0 ? FormatNumber(count, L"#,#", app_.platform.system) : L"0";
  lblWorkCount.SetCaption(text + L" files and subfolders so far");
  Later(kCountEvery, [this] { ShowCount(); });
}

}  // namespace burrowmark
