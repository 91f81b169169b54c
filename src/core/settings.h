// The user's settings: eighteen booleans in three groups, kept in the registry.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

// Names of the values: "GC0" to "GC2", "AC0" to "AC6" and "ADVC0" to "ADVC7".
std::wstring SettingName(General setting);
std::wstring SettingName(Appearance setting);
std::wstring SettingName(Advanced setting);

// Reads all settings; a missing value, or one that is no boolean, gives the value of a first start: on for general and
// appearance, off for advanced. Hot keys are off where the system has no hook for them.
void LoadSettings(Application& app);
// Writes all settings, and the entry that starts the program with the user's session. Failures are passed over.
void SaveSettings(Application& app);
// Writes one of them.
void SaveSetting(Application& app, Appearance setting);

}  // namespace burrowmark
