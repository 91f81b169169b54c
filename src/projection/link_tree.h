// A store on the disk: a folder for each group, a link file for each folder shortcut.
#pragma once

#include <map>
#include <string>

#include "core/application.h"
#include "core/folder_tests.h"

namespace burrowmark {

// A link as it stands on the disk.
struct LinkFile {
  std::wstring target;
  std::string bytes;
};
using LinkFiles = std::map<std::wstring, LinkFile>;  // by their paths in capitals

// The links below the folder `root` whose server doesn't answer; none if the store has no folder on a server.
LinkFiles SilentLinks(Application& app, const clsMenuCollection& store, const std::wstring& root, FolderTests& tests);

// Writes a store below the folder `root`. What is in the personal group stands right in `root`. Separators, drives,
// Open-All and fixed entries are left out, and so are shortcuts whose folder is missing. One whose server doesn't
// answer gets its link back if it had one to that folder. Of two links of one name the later stays. An item that the
// disk refuses is passed over. A file of somebody else's is left as it is.
void WriteLinkTree(Application& app, const clsMenuCollection& store, const std::wstring& root, FolderTests& tests,
                   const LinkFiles& silent);

// Empties a folder that was written to in this way. What can't have come from the program goes to the Recycle Bin, and
// stays if that doesn't take it. Links to other folders go; what they lead to stays.
void WipeLinkTree(Application& app, const std::wstring& root);
// There is something in the folder that can't have come from the program.
bool HoldsForeignContent(Application& app, const std::wstring& folder);

}  // namespace burrowmark
