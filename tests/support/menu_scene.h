// The program from its main window on, without its start-up: a store of a test's making behind the tray icon.
#pragma once

#include "menu/menu_actions.h"
#include "menu/menu_setup.h"
#include "menu/menu_system.h"
#include "menu/system_tray.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark::test {

class MenuScene : public ScratchMachine {
 public:
  MenuScene();

  // Adds to the main store: the personal group, a group and a shortcut in it (the folder is made, unless it is empty).
  void AddPersonal();
  ItemRef AddGroup(const std::wstring& name, const std::wstring& caption, const std::wstring& owner = MIT_GROUP_USER);
  ItemRef AddShortcut(const std::wstring& name, const std::wstring& caption, const std::wstring& path,
                      const std::wstring& owner = MIT_GROUP_USER);
  // Builds the whole menu and puts the icon up.
  void Start();
  // Opens the menu by a click on the tray icon, and does this in it.
  void Choose(MenuActions actions, LocalUser::Button button = LocalUser::Button::kLeft);

  MenuHandle Root();
  // Texts of a native menu in order, a blank between them; separators are "-", a popup's own entries follow in
  // brackets.
  std::wstring NativeTexts(MenuHandle menu);
  std::wstring NativeTexts() { return NativeTexts(Root()); }

  // Empty if every entry's number, owner and position in the store are those of the native menu, all numbers differ and
  // fit 16 bits; otherwise what is wrong.
  std::string WrongNumbers();

  MenuSystem menu{app};
  SystemTray tray{app, menu};
  MainWindowEvents events;
};

}  // namespace burrowmark::test
