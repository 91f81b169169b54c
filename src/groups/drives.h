// The Drives group: one entry for each drive of the machine, made from what the system reports.
#pragma once

#include <string>
#include <vector>

#include "core/application.h"

namespace burrowmark {

// Takes one entry of the drive list ("x:", "x: [label]", "x: [\\server\share]") apart. The only medium that it may
// touch is that of a compact-disc drive without a label in the list.
clsDrive ParseDriveEntry(Application& app, const std::wstring& entry);

// Name of the volume in a drive ("D:"); empty without a medium.
std::wstring GetVolumeLabel(Application& app, const std::wstring& drive);

// Adds the group ahead of its separator if it is missing, and an entry for each drive that has none; `DrivesCollection`
// is made anew. Does nothing if the user doesn't want the group. On a store other than the main one the menu is marked
// to be rebuilt.
void SetupDrives(Application& app, clsMenuCollection& store);
// Takes the group and its entries out of a store; out of the main one's native menu too.
void RemoveDrives(Application& app, clsMenuCollection& store);
// True if the system's drives aren't those of `DrivesCollection`.
bool DrivesChanged(Application& app);
bool DrivesGroupExists(const Application& app);

}  // namespace burrowmark
