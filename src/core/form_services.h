// What windows of the whole program do in the same way.
#pragma once

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

// The pointer over a form while the program is busy, and afterwards.
void SetHourglass(Form& form);
void SetNormalPointer(Form& form);

// Every dialog calls this when it loads: it stays above other windows if the editor does.
void SetAlwaysOnTop(const Application& app, Form& form);

}  // namespace burrowmark
