// "About Burrowmark": what this program is, and where it and the user's tree are kept.
#pragma once

#include "core/program_form.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace burrowmark {

class frmAbout final : public ProgramForm {
 public:
  explicit frmAbout(Application& app);

 private:
  void StartSystemInformation();

  CommandButton cmdOK{*this, L"cmdOK", Box{5205, 3030, 1215, 375}, L"OK"};

  PictureBox picTop{*this, L"picTop", Box{0, 0, 6660, 1230}};
  PictureBox picIcon{picTop, L"picIcon", Box{240, 255, 720, 720}};
  Label lblTitle{picTop, L"lblTitle", Box{1200, 240, 5220, 240}, L"Burrowmark"};
  Label lblVersion{picTop, L"lblVersion", Box{1200, 495, 5220, 240}};
  Label lblCopyright{picTop, L"lblCopyright", Box{1200, 750, 5220, 240}};

  // So that they can be copied.
  Label lblWebSite{*this, L"lblWebSite", Box{240, 1530, 1380, 240}, L"Web site:"};
  TextBox txtWebSite{*this, L"txtWebSite", Box{1680, 1470, 4740, 315}};
  Label lblProgram{*this, L"lblProgram", Box{240, 1980, 1380, 240}, L"Program:"};
  TextBox txtProgram{*this, L"txtProgram", Box{1680, 1920, 4740, 315}};
  Label lblTree{*this, L"lblTree", Box{240, 2430, 1380, 240}, L"Your folders:"};
  TextBox txtTree{*this, L"txtTree", Box{1680, 2370, 4740, 315}};
  CommandButton cmdSysInfo{*this, L"cmdSysInfo", Box{240, 3030, 2400, 375}, L"&System Information..."};
  CommandButton cmdWebSite{*this, L"cmdWebSite", Box{2775, 3030, 1215, 375}, L"&Web Site"};
};

}  // namespace burrowmark
