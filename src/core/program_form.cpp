#include "core/program_form.h"

#include <utility>

namespace burrowmark {

ProgramForm::ProgramForm(Application& app, ProgramWindow kind, std::wstring name, const Size& client)
    : Form(app.platform.windows, std::move(name), client), app_(app), kind_(kind) {}

ProgramForm::~ProgramForm() { app_.Windows.Leave(*this); }

void ProgramForm::WindowMade() {
  app_.Windows.Enter(*this);
  SetTopMost(app_.AlwaysOnTop);
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

}  // namespace burrowmark
