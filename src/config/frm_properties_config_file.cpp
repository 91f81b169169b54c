#include "config/frm_properties_config_file.h"

#include <memory>
#include <utility>

#include "core/failure.h"
#include "core/file_names.h"
#include "core/folder_tests.h"
#include "core/numbers.h"
#include "core/regional_formats.h"

namespace burrowmark {
namespace {

constexpr Size kClient{6600, 5925};
constexpr std::int32_t kProgramIcon = 1;
constexpr std::int32_t kIconSize = 32;
constexpr std::int32_t kNameColumn = 4050;
constexpr std::int32_t kScrollRoom = 120;
constexpr double kKilobyte = 1024;

std::wstring SizeText(std::uint64_t size, const SystemFacts& system) {
  const auto bytes = static_cast<double>(size);
  const double kilobytes = bytes / kKilobyte;
  const bool small = kilobytes < kKilobyte;
  return FormatNumber(small ? kilobytes : kilobytes / kKilobyte, L"#.0", system) + (small ? L" KB (" : L" MB (") +
         FormatNumber(bytes, L"#,0", system) + L" bytes)";
}

// Empty where the disk keeps no such moment, or one that no date can tell.
std::wstring TimeText(const std::optional<LocalTime>& moment, const SystemFacts& system) {
  std::wstring text;
  Skip([&] {
    if (moment) text = FormatLongDateTime(DateOf(*moment), system);
  });
  return text;
}

// A server that is away makes it a file that isn't there.
std::optional<FileFacts> FactsOf(const Platform& platform, const std::wstring& path) {
  const auto facts = std::make_shared<std::optional<FileFacts>>();
  const bool told = FolderTests(platform).Ask(path, [facts, path](FileSystem& files) {
    *facts = files.GetFileFacts(path);
    return true;
  });
  return told && *facts && ((*facts)->attributes & kFileDirectory) == 0 ? *facts : std::nullopt;
}

std::wstring YesNoText(bool flag) { return flag ? L"Yes" : L"No"; }

}  // namespace

constexpr frmPropertiesConfigFile::SummaryBox frmPropertiesConfigFile::kSummaryBoxes[] = {
    {&frmPropertiesConfigFile::txtTitle, &ConfigSummary::SummaryTitle},
    {&frmPropertiesConfigFile::txtAuthor, &ConfigSummary::SummaryAuthor},
    {&frmPropertiesConfigFile::txtCategory, &ConfigSummary::SummaryCategory},
    {&frmPropertiesConfigFile::txtKeywords, &ConfigSummary::SummaryKeywords},
    {&frmPropertiesConfigFile::txtComments, &ConfigSummary::SummaryComments},
};

frmPropertiesConfigFile::frmPropertiesConfigFile(Application& app)
    : ProgramForm(app, ProgramWindow::kPropertiesConfigFile, L"frmPropertiesConfigFile", kClient) {
  SetCaption(L"Information");
  // As the system draws the page of a tab.
  for (PictureBox* picture : {&picGeneral, &picIcon, &picSummary, &picStatistics}) picture->SetBackColor(kColorWindow);
  for (Label* label : {&lblName, &lblLocation, &lblMSDOS}) label->SetUseMnemonic(false);
  for (CheckBox* box : {&chkReadOnly, &chkHidden, &chkArchive, &chkSystem}) box->SetEnabled(false);
  picIcon.SetIcon(kProgramIcon, kIconSize);
  txtComments.SetMultiLine(true);
  lstStatistics.SetMultiSelect(false);
  lstStatistics.AddColumn(L"Statistic name", kNameColumn);
  lstStatistics.AddColumn(L"Value", lstStatistics.Place().width - kNameColumn - kScrollRoom);
  cmdFinish.SetToolTipText(L"Accept Changes");
  cmdCancel.SetToolTipText(L"Don't accept changes");

  SSTab1.Click = [this] { ShowPage(); };
  // Esc accepts too: the texts are easily typed, and Cancel is there for whoever doesn't want them.
  cmdFinish.SetDefault(true);
  cmdFinish.SetCancel(true);
  cmdFinish.Click = [this] { Unload(); };
  cmdCancel.Click = [this] {
    Accepted_ = false;
    Unload();
  };
  ShowPage();
}

bool frmPropertiesConfigFile::Init(const Document& document) {
  Summary_ = document.Summary;
  for (const SummaryBox& row : kSummaryBoxes) {
    (this->*row.box).SetText(Summary_.*row.text);
    Shown_.*row.text = (this->*row.box).Text();
  }
  FillStatistics(*document.Store);
  const std::optional<FileFacts> facts = FactsOf(app_.platform, document.CurrentConfigFile);
  if (facts) ShowFile(document.CurrentConfigFile, *facts);
  return facts.has_value();
}

void frmPropertiesConfigFile::Form_Load() { Accepted_ = true; }

void frmPropertiesConfigFile::Form_Resize() {
  for (PictureBox* page : {&picGeneral, &picSummary, &picStatistics}) page->SetPlace(SSTab1.AreaBelow());
}

void frmPropertiesConfigFile::Form_Unload(bool&) {
  if (Accepted_) TakeTexts();
}

void frmPropertiesConfigFile::ShowPage() {
  std::int32_t tab = 1;
  for (PictureBox* page : {&picGeneral, &picSummary, &picStatistics}) page->SetVisible(SSTab1.SelectedTab() == tab++);
}

void frmPropertiesConfigFile::ShowFile(const std::wstring& path, const FileFacts& facts) {
  const SystemFacts& system = app_.platform.system;
  ShowFileNames(path);
  lblSize.SetCaption(SizeText(facts.size, system));
  lblMSDOS.SetCaption(facts.shortName.empty() ? lblName.Caption() : facts.shortName);
  lblTimeCreated.SetCaption(TimeText(facts.created, system));
  lblTimeModified.SetCaption(TimeText(facts.modified, system));
  lblTimeAccessed.SetCaption(TimeText(facts.accessed, system));
  for (const auto& [box, bit] : {std::pair(&chkReadOnly, kFileReadOnly), std::pair(&chkHidden, kFileHidden),
                                 std::pair(&chkArchive, kFileArchive), std::pair(&chkSystem, kFileSystem)}) {
    box->SetValue((facts.attributes & bit) != 0 ? kChecked : kUnchecked);
  }
}

void frmPropertiesConfigFile::ShowFileNames(const std::wstring& path) {
  lblName.SetCaption(GetFileName(path));
  lblLocation.SetCaption(GetFolderName(path));
  lblLocation.SetToolTipText(lblLocation.Caption());
}

void frmPropertiesConfigFile::FillStatistics(const clsMenuCollection& store) {
  const CollectionCounts counts = store.CountCollection();
  AddStatistic(L"Number of shortcuts", DecimalText(counts.Shortcuts));
  AddStatistic(L"Number of Folder Shortcuts", DecimalText(counts.FolderShortcuts));
  AddStatistic(L"Number of Windows Explorer Shortcuts", DecimalText(counts.ExplorerShortcuts));
  AddStatistic(L"Number of Open-All shortcuts", DecimalText(counts.OpenAll));
  AddStatistic(L"Number of groups", DecimalText(counts.Groups));
  AddStatistic(L"Show System Folders group", YesNoText(app_.AC[Appearance::kSystemFolders]));
  AddStatistic(L"Show Drives group in menu", YesNoText(app_.AC[Appearance::kDrives]));
  AddStatistic(L"Show Help in menu", YesNoText(app_.AC[Appearance::kHelp]));
  AddStatistic(L"Show Options in menu", YesNoText(app_.AC[Appearance::kOptions]));
}

void frmPropertiesConfigFile::AddStatistic(const wchar_t* name, std::wstring value) {
  ListItem* row = lstStatistics.Add(L"C" + DecimalText(lstStatistics.Count() + 1), name);
  if (row != nullptr) row->SetSubItem(1, std::move(value));
}

// A box whose text wasn't touched leaves the document's own, which it may show otherwise.
void frmPropertiesConfigFile::TakeTexts() {
  for (const SummaryBox& row : kSummaryBoxes) {
    const std::wstring& text = (this->*row.box).Text();
    if (text == Shown_.*row.text) continue;
    Summary_.*row.text = text;
    Changed = true;
  }
}

}  // namespace burrowmark
