// Windows and commands that the editor opens and doesn't know itself.
#pragma once

#include <functional>
#include <string>

#include "core/menu_collection.h"

namespace burrowmark {

class Form;

// Each shows a modal window over the editor. One that is empty isn't there yet, and its command does nothing.
struct OrganizeCalls {
  std::function<void(Form& owner)> ShowTip;
  std::function<void(Form& owner)> ShowAbout;
  std::function<void(Form& owner, clsMenuCollection& store)> ShowConfigFileProperties;
  std::function<void(Form& owner, clsMenuCollection& store)> ShowShortcutsList;
  std::function<void(Form& owner, const std::wstring& folder)> ShowFolderReport;
  std::function<void(Form& owner)> ShowNetworkDrives;
  std::function<void(Form& owner)> ShowPersonalNetworkInfo;
  // The wizard for the group of that name.
  std::function<void(Form& owner, const std::wstring& group)> ShowRestoreWizard;
  // The dialog for a new item in a group; `kind` is a type of shortcut or group, the path may be empty.
  std::function<void(Form& owner, const std::wstring& group, const std::wstring& kind, const std::wstring& path)>
      ShowNewItem;
  // The dialog of an item, by its name.
  std::function<void(Form& owner, const std::wstring& name)> ShowItemProperties;
};

}  // namespace burrowmark
