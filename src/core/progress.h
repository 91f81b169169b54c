// Work that lets messages run and mustn't be cut into, and the window that stands in front of it: a small animation and
// a line of text.
#pragma once

#include <optional>
#include <string>

#include "core/program_form.h"
#include "ui/animation.h"
#include "ui/command_button.h"
#include "ui/label.h"

namespace burrowmark {

class frmPause final : public ProgramForm {
 public:
  explicit frmPause(Application& app);
  void SetStatus(const std::wstring& text) { lblStatus.SetCaption(text); }

 private:
  void Form_Load() override;

  Animation Animation1{*this, L"Animation1", Box{180, 120, 4800, 900}};
  Label lblStatus{*this, L"lblStatus", Box{180, 1170, 4800, 450}};
  CommandButton cmdClose{*this, L"cmdClose", Box{3765, 1695, 1215, 375}, L"Close"};
};

// While it lives requests wait, and no window of the program takes input but the progress window.
class Work {
 public:
  explicit Work(Application& app) : app_(app), busy_(app.Requests, BusyWith::kWork), blocked_(app.Windows) {}
  ~Work();
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;

  // Shows the progress window in front of `owner`; if it shows already it changes. It goes with this object. Messages
  // run, so that it can draw itself.
  void ShowProgress(const FormOwner& owner, const std::wstring& title, const std::wstring& text);
  // The same for its text alone; a window that the user has closed doesn't come back.
  void SetProgressText(const std::wstring& text);

 private:
  Application& app_;
  Busy busy_;
  std::optional<ProgramWindows::Blocked> blocked_;
  bool progress_ = false;
};

}  // namespace burrowmark
