#include "core/form_services.h"

namespace burrowmark {

void SetHourglass(Form& form) { form.SetMousePointer(kPointerHourglass); }

void SetNormalPointer(Form& form) { form.SetMousePointer(kPointerDefault); }

}  // namespace burrowmark
