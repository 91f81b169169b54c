// The window that stands in front of long work: a small film and a line of text.
#pragma once

#include <string>

#include "core/application.h"
#include "ui/animation.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/label.h"

namespace burrowmark {

class frmPause final : public Form {
 public:
  explicit frmPause(Application& app);
  void SetStatus(const std::wstring& text) { lblStatus.SetCaption(text); }

 private:
  void Form_Load() override;

  Application& app_;
  Animation Animation1{*this, L"Animation1", Box{180, 120, 4800, 900}};
  Label lblStatus{*this, L"lblStatus", Box{180, 1170, 4800, 450}};
  CommandButton cmdClose{*this, L"cmdClose", Box{3765, 1695, 1215, 375}, L"Close"};
};

// There is one such window, whoever shows it. Each of these also lets messages run, so that the window can draw itself.

// Shows the window in front of `owner`; if it shows already it changes.
void ShowProgress(Application& app, const FormOwner& owner, const std::wstring& title, const std::wstring& text);
// Doesn't show a window that the user has closed.
void SetProgressText(Application& app, const std::wstring& text);
void HideProgress(Application& app);

}  // namespace burrowmark
