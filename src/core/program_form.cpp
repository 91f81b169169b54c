#include "core/program_form.h"

#include <utility>

#include "core/help.h"

namespace burrowmark {

ProgramForm::ProgramForm(Application& app, ProgramWindow kind, const wchar_t* name, const Size& client)
    : Form(app.platform.windows, name, client), app_(app), kind_(kind) {}

ProgramForm::~ProgramForm() { app_.Windows.Leave(*this); }

void ProgramForm::WindowMade() {
  app_.Windows.Enter(*this);
  SetTopMost(app_.AlwaysOnTop);
  LoadFormState(app_, *this, FirstSize());
}

void ProgramForm::WindowGone() { app_.Windows.Leave(*this); }

void ProgramForm::RunModal() {
  if (app_.Requests.IsEnding()) {
    Unload();
    return;
  }
  const Busy busy(app_.Requests, busyness_, [this] { Unload(UnloadMode::kUser); });
  Form::RunModal();
}

bool ProgramForm::Form_Help() {
  ShowHelpAbout(app_, kind_);
  return true;
}

}  // namespace burrowmark
