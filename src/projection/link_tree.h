// A store on the disk: a folder for each group, a link file for each folder shortcut.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

// Writes a store below the folder `root`. What is in the personal group stands right in `root`. Separators, drives,
// Open-All and fixed entries are left out, and so are shortcuts whose folder is missing. Of two links of one name the
// later stays. An item that the disk refuses is passed over.
void WriteLinkTree(Application& app, const clsMenuCollection& store, const std::wstring& root);

}  // namespace burrowmark
