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
  Label lblTitle{picTop, L"lblTitle", Box{1200, 240, 5220, 225}, L"Burrowmark"};
  Label lblVersion{picTop, L"lblVersion", Box{1200, 495, 5220, 225}};
  Label lblCopyright{picTop, L"lblCopyright", Box{1200, 750, 5220, 225}};

  // So that they can be copied.
  Label lblWebSite{*this, L"lblWebSite", Box{240, 1530, 1200, 225}, L"Web site:"};
  TextBox txtWebSite{*this, L"txtWebSite", Box{1500, 1470, 4920, 315}};
  Label lblProgram{*this, L"lblProgram", Box{240, 1980, 1200, 225}, L"Program:"};
  TextBox txtProgram{*this, L"txtProgram", Box{1500, 1920, 4920, 315}};
  Label lblTree{*this, L"lblTree", Box{240, 2430, 1200, 225}, L"Your folders:"};
  TextBox txtTree{*this, L"txtTree", Box{1500, 2370, 4920, 315}};
  CommandButton cmdSysInfo{*this, L"cmdSysInfo", Box{240, 3030, 2190, 375}, L"&System Information..."};
  CommandButton cmdWebSite{*this, L"cmdWebSite", Box{2550, 3030, 1215, 375}, L"&Web Site"};
};

}  // namespace burrowmark
