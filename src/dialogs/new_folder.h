// "New Folder": the name of a folder that is made at once.
#pragma once

#include <string>

#include "core/program_form.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/text_box.h"

namespace burrowmark {

class frmNewFolder final : public ProgramForm {
 public:
  // In this folder, which exists.
  frmNewFolder(Application& app, std::wstring folder);

  std::wstring NewFolder;  // the path of what was made; empty if nothing was

 private:
  void MakeFolder();
  void Tell(const std::wstring& text);

  Label lblName{*this, L"lblName", Box{180, 150, 4440, 240}, L"Enter a name for your new folder"};
  TextBox txtName{*this, L"txtName", Box{180, 420, 4440, 315}};
  CommandButton cmdOK{*this, L"cmdOK", Box{2070, 900, 1215, 375}, L"OK"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{3405, 900, 1215, 375}, L"Cancel"};

  std::wstring folder_;
};

}  // namespace burrowmark
