// The wizard that makes one of the two large groups anew. It asks how; its caller does it.
#pragma once

#include <functional>
#include <string>

#include "core/program_form.h"
#include "groups/personal_group.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/line.h"
#include "ui/option_button.h"
#include "ui/picture_box.h"

namespace burrowmark {

enum class WizardMode : std::uint8_t { kPersonal, kSystemFolders };

class frmWizard final : public ProgramForm {
 public:
  explicit frmWizard(Application& app);

  // A title that isn't empty takes the place of the mode's own.
  void Init(WizardMode mode, const std::wstring& title = {});
  // What the user chose of the personal group; the last where nothing is set.
  PersonalContent GetChoice() const;

  // Does it. The wizard stays until then, and goes afterwards.
  std::function<void()> Finish;

 private:
  void Next();

  PictureBox picTop{*this, L"picTop", Box{0, 0, 9600, 1080}};
  Label lblNaslov{picTop, L"lblNaslov", Box{300, 240, 7200, 240}};
  Label lblOpis{picTop, L"lblOpis", Box{540, 540, 6960, 240}};
  PictureBox picNaslov{picTop, L"picNaslov", Box{8760, 240, 600, 600}};
  Line linTop{*this, L"linTop", Box{0, 1080, 9600, 30}};

  Label lblNext{*this, L"lblNext", Box{300, 1350, 9000, 240}};
  OptionButton optChoice0{*this, L"optChoice0", Box{540, 1770, 8820, 300}, L"&Blank content"};
  OptionButton optChoice1{*this, L"optChoice1", Box{540, 2130, 8820, 300}, L"&Sample group and shortcuts"};
  OptionButton optChoice2{*this, L"optChoice2", Box{540, 2490, 8820, 300},
                          L"Map up to 25 first-level &folders on all drives in the same group"};
  OptionButton optChoice3{*this, L"optChoice3", Box{540, 2850, 8820, 300},
                          L"Map up to 25 &drives in separate groups and up to 25 first-level folders for each drive"};
  OptionButton optChoice4{*this, L"optChoice4", Box{540, 3210, 8820, 300}, L"Map the most &recently used folders"};

  PictureBox picInfo{*this, L"picInfo", Box{300, 3780, 480, 480}};
  Label lblExplanation{*this, L"lblExplanation", Box{960, 3780, 8340, 480}};
  Line linBottom{*this, L"linBottom", Box{0, 4500, 9600, 30}};

  CommandButton cmdBack{*this, L"cmdBack", Box{5580, 4680, 1215, 375}, L"< Back"};
  CommandButton cmdNext{*this, L"cmdNext", Box{6795, 4680, 1215, 375}, L"Next >"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{8145, 4680, 1215, 375}, L"Cancel"};
};

}  // namespace burrowmark
