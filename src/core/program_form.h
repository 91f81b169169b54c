// A window of this program.
#pragma once

#include <string>

#include "core/application.h"
#include "core/form_state.h"
#include "ui/form.h"

namespace burrowmark {

// While it is open it stands in the table of open windows and stays above others if the editor does. It opens where it
// was left, if it is one that remembers (core/form_state.h). While it is modal the program is busy with it, and when
// the program ends it is closed as the user would. It takes no input while it unloads. F1 opens its page of the help.
class ProgramForm : public Form, private OpenWindow {
 public:
  bool InGesture() const override { return false; }
  void CancelGesture() override {}

 protected:
  ProgramForm(Application& app, ProgramWindow kind, const wchar_t* name, const Size& client);
  ~ProgramForm() override;
  // Of a window that remembers its size, while none is known; 0 keeps the design's. With the frame.
  virtual Size FirstSize() const { return {}; }
  // While it is modal a command from outside closes it, as the user would.
  void GoForCommands() { busyness_ = BusyWith::kOptions; }

  Application& app_;

 private:
  void WindowMade() final;
  void WindowGone() final;
  void WindowGoing() final { SaveFormState(app_, *this); }
  void RunModal() final;
  bool Form_Help() final;

  ProgramWindow Kind() const final { return kind_; }
  bool IsShown() const final { return Visible(); }
  WindowHandle Handle() const final { return Window(); }
  void ComeForward() final { BringToFront(); }
  bool Close() final { return Unload(); }
  void Hold(int holders) final { Block(holders); }

  ProgramWindow kind_;
  BusyWith busyness_ = BusyWith::kWindow;
};

}  // namespace burrowmark
