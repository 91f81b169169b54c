// What makes the shell show a folder with the program's icon.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

// Writes the folder's Desktop.ini, which is hidden and the system's, and gives the folder the mark that makes the shell
// heed it. Messages run between the steps. Nothing more is done after a step that fails.
void WriteDesktopIni(Application& app, const std::wstring& folder);

// The folder has a Desktop.ini that was written in this way, be it by this program in another place.
bool HasOwnDesktopIni(Application& app, const std::wstring& folder);

}  // namespace burrowmark
