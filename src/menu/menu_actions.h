// What a chosen entry does.
#pragma once

#include <memory>
#include <string>

#include "core/application.h"

namespace burrowmark {

// `store` is always the one that the item stands in.

// Runs a chosen entry: a fixed one by its name, any other by its type. A failure ends it silently.
void MenuItemChosen(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item);

// Opens the folder of a shortcut or a drive in the file manager. A shortcut whose folder has gone opens nothing and
// gives false; if the user wants that, a box offers to delete it.
bool OpenMenuItem(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item);
// Opens all folder shortcuts of the entry's menu level, groups and drives left out.
void OpenAllMenuItem(Application& app, const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item);
// Opens every item of the hot-key list that has this code; the result is that of the last. Nothing waits for the user:
// the question about a folder that is gone comes when the program is at rest.
bool OpenHotKeyItem(Application& app, std::int32_t KeyboardCode);

// Opens a folder in the file manager, the user's own for an empty path; `WithTree` shows the tree beside it.
void ExploreFolder(Application& app, const std::wstring& path, bool WithTree);
// Starts the shell's search, in drive C for an empty path.
void FindInFolder(Application& app, const std::wstring& path);
// Opens any file or folder; the shell's result.
std::int32_t OpenFile(Application& app, const std::wstring& path);
// Opens the tray of a compact-disc drive.
void EjectDisc(Application& app, const std::wstring& drive);
// Shows the Options dialog over the menu's tree unless it is open; true if something was changed.
bool ShowOptions(Application& app);
// The last command that was handed over, or empty.
std::wstring GetTransferText(const Application& app);

}  // namespace burrowmark
