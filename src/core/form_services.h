// What windows of the whole program do in the same way.
#pragma once

#include <string>

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

// The pointer over a form while the program is busy, and afterwards.
void SetHourglass(Form& form);
void SetNormalPointer(Form& form);

// Asks whether an item shall be deleted; several ones for an empty name.
bool ConfirmDelete(Application& app, const Form& form, const std::wstring& name);

// The busy pointer as long as this lives; then the pointer from before.
class Hourglass {
 public:
  explicit Hourglass(Form& form) : form_(form), before_(form.MousePointer()) { SetHourglass(form_); }
  ~Hourglass() { form_.SetMousePointer(before_); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Form& form_;
  std::int32_t before_;
};

}  // namespace burrowmark
