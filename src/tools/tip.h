// "Tip of the Day": one line of a text file at a time.
#pragma once

#include <string>
#include <vector>

#include "core/program_form.h"
#include "ui/check_box.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace burrowmark {

class frmTip final : public ProgramForm {
 public:
  explicit frmTip(Application& app);

 private:
  void Form_Load() override;
  void Form_Unload(bool& Cancel) override;

  void LoadCurrentTip();
  bool LoadTips(const std::wstring& fileName);
  void ShowNextTip();
  void ShowPreviousTip();
  void DisplayCurrentTip();
  std::int16_t Count() const { return static_cast<std::int16_t>(tips_.size()); }

  std::vector<std::wstring> tips_;
  std::int16_t current_ = 1;

  // The first one has the focus when the window opens.
  CommandButton cmdNextTip{*this, L"cmdNextTip", Box{4050, 2805, 1215, 375}, L"&Next >"};
  CommandButton cmdOK{*this, L"cmdOK", Box{5400, 2805, 1215, 375}, L"&Close"};
  PictureBox picPage{*this, L"picPage", Box{0, 0, 6735, 2220}};
  PictureBox Picture1{picPage, L"Picture1", Box{180, 240, 480, 480}};
  Label lblTipNum{picPage, L"lblTipNum", Box{840, 270, 5715, 240}};
  TextBox txtTip{picPage, L"txtTip", Box{840, 660, 5715, 1320}};
  CheckBox chkLoadTipsAtStartup{*this, L"chkLoadTipsAtStartup", Box{120, 2385, 6495, 300},
                                L"&Show Tips when opening Organize Folders window"};
  CommandButton cmdPreviousTip{*this, L"cmdPreviousTip", Box{2835, 2805, 1215, 375}, L"< &Previous"};
};

}  // namespace burrowmark
