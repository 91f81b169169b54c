// The program's entries in the context menus of the system's file manager.
#pragma once

#include "core/application.h"

namespace burrowmark {

// Registers the verbs of folders, drives and files, per machine where that is allowed and otherwise for this user.
// Those that start CopyAddress.exe are left out where it is missing. Failures are passed over in silence.
void AddShellVerbs(Application& app);
// Takes all of them away again; what others registered beside them stays.
void RemoveShellVerbs(Application& app);

}  // namespace burrowmark
