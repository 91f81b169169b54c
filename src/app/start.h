// Start-up: everything from the first statement to the message loop.
#pragma once

#include <string>

#include "platform/platform.h"

namespace burrowmark {

// Runs the program until it ends. `CommandLine` is what stands behind the program's own name, as it was typed. If
// another instance runs, the command line goes to it and this returns at once.
void RunBurrowmark(Platform platform, const std::wstring& CommandLine);

}  // namespace burrowmark
