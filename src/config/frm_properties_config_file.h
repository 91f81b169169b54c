// "Information": the file of a document, what its tree holds, and the texts that it carries about itself. It gives the
// texts back; what becomes of them is its caller's to say.
#pragma once

#include "core/program_form.h"
#include "ui/check_box.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/line.h"
#include "ui/list_view.h"
#include "ui/picture_box.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"

namespace burrowmark {

class frmPropertiesConfigFile final : public ProgramForm {
 public:
  explicit frmPropertiesConfigFile(Application& app);

  // Shows a document, of which nothing is kept. False if its file isn't there: its own texts show all the same.
  bool Init(const Document& document);

  // The answer, once it has gone: the user wants other texts than the document had. Every end but Cancel takes them
  // over.
  bool Changed = false;
  const ConfigSummary& Summary() const { return Summary_; }

 private:
  struct SummaryBox {
    TextBox frmPropertiesConfigFile::*box;
    std::wstring ConfigSummary::*text;
  };
  static const SummaryBox kSummaryBoxes[5];

  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload(bool& Cancel) override;

  void ShowPage();
  void ShowFile(const std::wstring& path, const FileFacts& facts);
  void ShowFileNames(const std::wstring& path);
  void FillStatistics(const clsMenuCollection& store);
  void AddStatistic(const wchar_t* name, std::wstring value);
  void TakeTexts();

  bool Accepted_ = true;
  ConfigSummary Summary_;
  ConfigSummary Shown_;  // as the boxes had it when they were filled

  TabStrip SSTab1{*this, L"SSTab1", Box{120, 120, 6360, 5070}, {L"General", L"Summary", L"Statistics"}};
  // The pages of the tabs; they lie where the strip leaves room.
  PictureBox picGeneral{*this, L"picGeneral", Box{180, 480, 6240, 4620}};
  PictureBox picIcon{picGeneral, L"picIcon", Box{180, 150, 480, 480}};
  Label lblName{picGeneral, L"lblName", Box{900, 270, 5130, 240}};
  Line linName{picGeneral, L"linName", Box{180, 750, 5850, 30}};
  Label lblTypeTitle{picGeneral, L"lblTypeTitle", Box{180, 930, 1680, 240}, L"Type:"};
  Label lblType{picGeneral, L"lblType", Box{1920, 930, 4110, 240}, L"Burrowmark Configuration File"};
  Label lblLocationTitle{picGeneral, L"lblLocationTitle", Box{180, 1260, 1680, 240}, L"Location:"};
  Label lblLocation{picGeneral, L"lblLocation", Box{1920, 1260, 4110, 480}};
  Label lblSizeTitle{picGeneral, L"lblSizeTitle", Box{180, 1830, 1680, 240}, L"Size:"};
  Label lblSize{picGeneral, L"lblSize", Box{1920, 1830, 4110, 240}};
  Line linFile{picGeneral, L"linFile", Box{180, 2190, 5850, 30}};
  Label lblMSDOSTitle{picGeneral, L"lblMSDOSTitle", Box{180, 2370, 1680, 240}, L"MS-DOS name:"};
  Label lblMSDOS{picGeneral, L"lblMSDOS", Box{1920, 2370, 4110, 240}};
  Label lblCreatedTitle{picGeneral, L"lblCreatedTitle", Box{180, 2700, 1680, 240}, L"Created:"};
  Label lblTimeCreated{picGeneral, L"lblTimeCreated", Box{1920, 2700, 4110, 240}};
  Label lblModifiedTitle{picGeneral, L"lblModifiedTitle", Box{180, 3030, 1680, 240}, L"Modified:"};
  Label lblTimeModified{picGeneral, L"lblTimeModified", Box{1920, 3030, 4110, 240}};
  Label lblAccessedTitle{picGeneral, L"lblAccessedTitle", Box{180, 3360, 1680, 240}, L"Accessed:"};
  Label lblTimeAccessed{picGeneral, L"lblTimeAccessed", Box{1920, 3360, 4110, 240}};
  Line linTimes{picGeneral, L"linTimes", Box{180, 3720, 5850, 30}};
  Label lblAttributesTitle{picGeneral, L"lblAttributesTitle", Box{180, 3900, 1680, 240}, L"Attributes:"};
  CheckBox chkReadOnly{picGeneral, L"chkReadOnly", Box{1920, 3900, 1950, 300}, L"Read-only"};
  CheckBox chkHidden{picGeneral, L"chkHidden", Box{3990, 3900, 1950, 300}, L"Hidden"};
  CheckBox chkArchive{picGeneral, L"chkArchive", Box{1920, 4215, 1950, 300}, L"Archive"};
  CheckBox chkSystem{picGeneral, L"chkSystem", Box{3990, 4215, 1950, 300}, L"System"};

  PictureBox picSummary{*this, L"picSummary", Box{180, 480, 6240, 4620}};
  Label lblTitle{picSummary, L"lblTitle", Box{180, 240, 1200, 240}, L"&Title:"};
  TextBox txtTitle{picSummary, L"txtTitle", Box{1440, 180, 4590, 315}};
  Label lblAuthor{picSummary, L"lblAuthor", Box{180, 660, 1200, 240}, L"&Author:"};
  TextBox txtAuthor{picSummary, L"txtAuthor", Box{1440, 600, 4590, 315}};
  Label lblCategory{picSummary, L"lblCategory", Box{180, 1080, 1200, 240}, L"&Category:"};
  TextBox txtCategory{picSummary, L"txtCategory", Box{1440, 1020, 4590, 315}};
  Label lblKeywords{picSummary, L"lblKeywords", Box{180, 1500, 1200, 240}, L"&Keywords:"};
  TextBox txtKeywords{picSummary, L"txtKeywords", Box{1440, 1440, 4590, 315}};
  Label lblComments{picSummary, L"lblComments", Box{180, 1920, 1200, 240}, L"C&omments:"};
  TextBox txtComments{picSummary, L"txtComments", Box{1440, 1860, 4590, 2580}};

  PictureBox picStatistics{*this, L"picStatistics", Box{180, 480, 6240, 4620}};
  Label lblStatistics{picStatistics, L"Statistics"};
  ListView lstStatistics{picStatistics, L"lstStatistics", Box{180, 180, 5850, 4260}};

  CommandButton cmdFinish{*this, L"cmdFinish", Box{3930, 5370, 1215, 375}, L"OK"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{5265, 5370, 1215, 375}, L"Cancel"};
};

}  // namespace burrowmark
