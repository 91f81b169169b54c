// What screen readers call a control.
#pragma once

#include <string>

#include "ui/control.h"

namespace burrowmark {

// The rule is the system's own: a control with a caption is called by it. Another one is called by the nearest label or
// frame that was made ahead of it in the same form or container, seen or not; but not beyond a tab stop that can be
// seen. Without the mark of a mnemonic; empty for none.
std::wstring AccessibleName(const Control& control);

// The character that goes to a control, or from a label on to what it stands in front of, with Alt; in lower case, 0
// for none.
wchar_t MnemonicOf(const Control& control);
// The same in a caption that uses marks.
wchar_t MnemonicIn(const std::wstring& caption);

}  // namespace burrowmark
