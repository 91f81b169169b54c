// Asks what to do with an item that comes to a group in which its title is taken. It only answers.
#pragma once

#include "core/program_form.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/picture_box.h"

namespace burrowmark {

class frmItemExists final : public ProgramForm {
 public:
  explicit frmItemExists(Application& app);

  void Init(const clsMenuItem& ExistingItem, const clsMenuItem& NewItem);

  // The answer, once it has gone. Neither: the user gave up.
  bool Replace = false;
  bool Rename = false;

 private:
  void Form_Load() override;
  void Answer(bool& answer);

  PictureBox picTitle{*this, L"picTitle", Box{240, 240, 480, 480}};
  Label lblTitle{*this, L"lblTitle", Box{960, 240, 6900, 480}};

  // The path has room for two lines, and stands last so that a group, which has none, leaves no gap.
  Label Label1{*this, L"Label1", Box{960, 840, 6900, 240}, L"Would you like to replace the existing item"};
  PictureBox picItem1{*this, L"picItem1", Box{960, 1200, 480, 480}};
  Label lblItem1Time{*this, L"lblItem1Time", Box{1620, 1200, 6240, 240}};
  Label lblItem1FolderPath{*this, L"lblItem1FolderPath", Box{1620, 1440, 6240, 480}};

  Label Label2{*this, L"Label2", Box{960, 2100, 6900, 240}, L"with this new one?"};
  PictureBox picItem2{*this, L"picItem2", Box{960, 2460, 480, 480}};
  Label lblItem2Time{*this, L"lblItem2Time", Box{1620, 2460, 6240, 240}};
  Label lblItem2FolderPath{*this, L"lblItem2FolderPath", Box{1620, 2700, 6240, 480}};

  Label Label3{*this, L"Label3", Box{960, 3360, 6900, 240}, L"Or you would like to rename the new item?"};
  // The first one has the focus: Enter must not throw an item away.
  CommandButton cmdRename{*this, L"cmdRename", Box{5310, 3840, 1215, 375}, L"Re&name"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{6645, 3840, 1215, 375}, L"Cancel"};
  CommandButton cmdReplace{*this, L"cmdReplace", Box{3975, 3840, 1215, 375}, L"&Replace"};
};

}  // namespace burrowmark
