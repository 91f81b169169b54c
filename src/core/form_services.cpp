#include "core/form_services.h"

namespace burrowmark {

void SetHourglass(Form& form) { form.SetMousePointer(kPointerHourglass); }

void SetNormalPointer(Form& form) { form.SetMousePointer(kPointerDefault); }

void SetAlwaysOnTop(const Application& app, Form& form) { form.SetTopMost(app.AlwaysOnTop); }

}  // namespace burrowmark
