// The hidden main form: from the tree's file to the tray icon, and back.
#pragma once

#include <string>

#include "app/editor.h"
#include "core/application.h"
#include "core/progress.h"
#include "menu/menu_system.h"
#include "menu/system_tray.h"
#include "options/keyboard_hook.h"
#include "tools/folder_reports.h"

namespace burrowmark {

class frmMain {
 public:
  explicit frmMain(Application& app);
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;

  // Reads the tree, builds the menu, puts up the tray icon and takes the command line in. False without a window.
  bool Form_Load(std::uint32_t RegisteredMessage, const std::wstring& CommandLine);

 private:
  void ConnectEvents();
  void FillCalls();
  void GiveUpOptions();
  void LoadTree(Work& work);
  void BringProjectionsUp(Work& work);
  void ProjectAfterInstall(Work& work);
  void TellProgress(Work& work, const std::wstring& text);
  void DeleteShortcut(const std::shared_ptr<clsMenuCollection>& store, const ItemRef& item);
  bool SaveWithout(const clsMenuItem& item);
  void End();
  void Form_Unload();

  Application& app_;
  MenuSystem menu_;
  SystemTray tray_;
  KeyboardHook hook_;
  FolderReports reports_;
  Editor editor_;
  MainWindowEvents events_;
  bool progressUp_ = false;
};

}  // namespace burrowmark
