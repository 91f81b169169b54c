#include "core/program_windows.h"

#include <algorithm>

#include "core/program_form.h"

namespace burrowmark {

ProgramForm* ProgramWindows::Find(ProgramWindow window) const {
  const auto found =
      std::find_if(open_.rbegin(), open_.rend(), [window](const ProgramForm* form) { return form->Kind() == window; });
  return found == open_.rend() ? nullptr : *found;
}

ProgramForm* ProgramWindows::Innermost() const {
  const auto found = std::find_if(open_.rbegin(), open_.rend(), [](const ProgramForm* form) {
    return form->Kind() != ProgramWindow::kProgress && form->Visible();
  });
  return found == open_.rend() ? nullptr : *found;
}

bool ProgramWindows::AnyInGesture() const {
  return std::any_of(open_.begin(), open_.end(), [](const ProgramForm* form) { return form->InGesture(); });
}

void ProgramWindows::CancelGestures() const {
  for (ProgramForm* form : std::vector<ProgramForm*>(open_)) {
    if (Has(form)) form->CancelGesture();
  }
}

bool ProgramWindows::Has(const ProgramForm* form) const {
  return std::find(open_.begin(), open_.end(), form) != open_.end();
}

void ProgramWindows::Leave(const ProgramForm& form) { std::erase(open_, &form); }

ProgramWindows::Blocked::Blocked(ProgramWindows& windows) : windows_(windows), forms_(windows.open_) {
  std::erase_if(forms_, [](const ProgramForm* form) { return form->Kind() == ProgramWindow::kProgress; });
  for (ProgramForm* form : forms_) form->Block(1);
}

ProgramWindows::Blocked::~Blocked() {
  for (ProgramForm* form : forms_) {
    if (windows_.Has(form)) form->Block(-1);
  }
}

}  // namespace burrowmark
