// The help file, and which of its pages tells of which window.
#pragma once

#include "core/application.h"

namespace burrowmark {

// Opens the help file; kHelpContents is its contents, kHelpIndex its index. A box says if it is missing.
void ShowHelp(Application& app, std::int32_t command);
// Opens it at the page about a window.
void ShowHelpAbout(Application& app, ProgramWindow window);

// The file of that page; none for a number that no window has.
const wchar_t* HelpPage(ProgramWindow window);

}  // namespace burrowmark
