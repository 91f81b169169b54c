// The icon on the task bar's tray, and the menu that it opens.
#pragma once

#include "core/application.h"
#include "menu/menu_system.h"

namespace burrowmark {

class SystemTray {
 public:
  SystemTray(Application& app, MenuSystem& menu) : app_(app), menu_(menu) {}

  // Puts the icon up; where the task bar isn't there yet, again every few seconds until it is.
  void Add();
  void Delete();
  // The screen with the task bar has another scale now.
  void ScaleChanged();
  // The mouse over the icon, or a key: a button that goes up brings the open window forward or shows the menu, and so
  // does a key, which shows the menu at the icon.
  void Form_MouseMove(std::uint32_t mouseMessage);
  void ShowMainMenu(bool byKey);

 private:
  TrayIcon Record(std::uint32_t flags) const;
  void FitToScreen(std::int32_t dpi);
  void BringDrivesUpToDate();

  Application& app_;
  MenuSystem& menu_;
  bool wanted_ = false;  // the icon should be there
};

}  // namespace burrowmark
