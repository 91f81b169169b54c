// A window of this program.
#pragma once

#include <string>

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

// While it is open it stands in the table of open windows and stays above others if the editor does. While it is modal
// the program is busy with it, and when the program ends it is closed as the user would. It takes no input while it
// unloads.
class ProgramForm : public Form {
 public:
  ProgramWindow Kind() const { return kind_; }
  // The user is in the middle of something in this window: nothing from outside may come now.
  virtual bool InGesture() const { return false; }
  virtual void CancelGesture() {}

 protected:
  ProgramForm(Application& app, ProgramWindow kind, std::wstring name, const Size& client);
  ~ProgramForm() override;

  Application& app_;

 private:
  friend class ProgramWindows;  // which blocks it

  void WindowMade() override;
  void WindowGone() override;
  void RunModal() override;

  ProgramWindow kind_;
};

}  // namespace burrowmark
