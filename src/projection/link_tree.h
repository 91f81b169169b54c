// A store on the disk: a folder for each group, a link file for each folder shortcut.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

// Writes a store below the folder `root`. What is in the personal group stands right in `root`. Separators, drives,
// Open-All and fixed entries are left out, and so are shortcuts whose folder is missing. Of two links of one name the
// later stays. An item that the disk refuses is passed over.
// A file of somebody else's is left as it is.
void WriteLinkTree(Application& app, const clsMenuCollection& store, const std::wstring& root);

// Empties a folder that was written to in this way. What can't have come from the program goes to the Recycle Bin, and
// stays if that doesn't take it. Links to other folders go; what they lead to stays.
void WipeLinkTree(Application& app, const std::wstring& root);
// There is something in the folder that can't have come from the program.
bool HoldsForeignFiles(Application& app, const std::wstring& folder);

}  // namespace burrowmark
