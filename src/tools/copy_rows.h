// The rows of a list as text on the clipboard.
#pragma once

#include "core/application.h"
#include "ui/form.h"
#include "ui/list_view.h"

namespace burrowmark {

// The headers and then all rows, or the selected ones if there are any: a line each, and a tab behind each text. A box
// over the form says how it went.
void CopyRowsToClipboard(Application& app, const Form& form, const ListView& list);

}  // namespace burrowmark
