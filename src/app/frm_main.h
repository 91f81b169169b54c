// The hidden main form: from the tree's file to the tray icon, and back.
#pragma once

#include <string>

#include "core/application.h"
#include "menu/menu_system.h"
#include "menu/system_tray.h"
#include "options/keyboard_hook.h"

namespace burrowmark {

class frmMain {
 public:
  explicit frmMain(Application& app);
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;

  // Reads the tree, builds the menu, puts up the tray icon and obeys the command line. False without a window.
  bool Form_Load(std::uint32_t RegisteredMessage, const std::wstring& CommandLine);
  // Ends the program: the window goes, and with it the message loop.
  void Unload();

 private:
  void LoadTree();
  void ReadTree();
  void BringProjectionsUp();
  void ProjectAfterInstall();
  void TellProgress(const std::wstring& text);
  void Form_Unload();

  Application& app_;
  MenuSystem menu_;
  SystemTray tray_;
  KeyboardHook hook_;
  MainWindowEvents events_;
  bool progressUp_ = false;
};

}  // namespace burrowmark
