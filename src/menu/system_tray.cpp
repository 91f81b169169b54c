#include "menu/system_tray.h"

#include <algorithm>
#include <iterator>

#include "groups/drives.h"
#include "menu/menu_actions.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kTrayId = 1;
constexpr std::int32_t kRetryAfter = 3000;  // milliseconds, while there is no task bar
constexpr std::size_t kShowDrives = 1;      // AC
constexpr wchar_t kTip[] = L"Burrowmark";

// With the editor open the first of these that is open comes forward, and the editor itself if none is.
constexpr SingleWindow kForwardOrder[] = {
    SingleWindow::kAddModify,
    SingleWindow::kProperties,
    SingleWindow::kPropertiesConfigFile,
    SingleWindow::kNetworkDrives,
    SingleWindow::kPersonalNetworkInfo,
    SingleWindow::kWizard,
    SingleWindow::kAbout,
    SingleWindow::kTip,
};

}  // namespace

TrayIcon SystemTray::Record(std::uint32_t flags) const {
  return {app_.MainWindow, kTrayId, flags, kMessageMouseMove, menu_.TrayImage(), {}};
}

void SystemTray::Add() {
  wanted_ = true;
  TrayIcon record = Record(kTrayHasMessage | kTrayHasIcon | kTrayHasTip);
  record.tip = kTip;
  Shell& shell = app_.platform.shell;
  // A task bar that only told of itself again still has the icon, and refuses a second one.
  if (shell.Shell_NotifyIconA(kTrayAdd, record) || shell.Shell_NotifyIconA(kTrayModify, record)) return;
  app_.platform.windows.PostLater(kRetryAfter, [this] {
    if (wanted_) Add();
  });
}

void SystemTray::Delete() {
  wanted_ = false;
  app_.platform.shell.Shell_NotifyIconA(kTrayDelete, Record(kTrayHasMessage));
}

void SystemTray::Form_MouseMove(std::uint32_t mouseMessage) {
  if (mouseMessage != kMessageLeftButtonUp && mouseMessage != kMessageRightButtonUp) return;
  if (app_.IsOpen(SingleWindow::kOptions) || app_.IsOpen(SingleWindow::kOrganize)) {
    BringOpenWindowForward();
  } else {
    ShowMainMenu();
  }
  // An empty message lets the popup go away properly after a click elsewhere.
  if (!app_.ExitRequested) app_.platform.windows.PostMessageA(app_.MainWindow, kMessageNull, 0, 0);
}

void SystemTray::BringOpenWindowForward() {
  if (!app_.Calls.BringToFront) return;
  if (app_.IsOpen(SingleWindow::kOptions)) {
    app_.Calls.BringToFront(SingleWindow::kOptions);
    return;
  }
  const auto* open = std::find_if(std::begin(kForwardOrder), std::end(kForwardOrder),
                                  [this](SingleWindow window) { return app_.IsOpen(window); });
  app_.Calls.BringToFront(open == std::end(kForwardOrder) ? SingleWindow::kOrganize : *open);
}

// The system measures an entry once; on a screen of another scale the menu is made anew.
void SystemTray::FitToScreen() {
  if (!menu_.SetScale(app_.platform.windows.MouseScreenDpi())) return;
  menu_.UnhookMenuWindow();
  RebuildMainMenu(app_, {});
  menu_.HookMenuWindow();
}

// The Drives group comes into being at the first opening of the menu, and is made anew when the drives have changed.
void SystemTray::BringDrivesUpToDate() {
  clsMenuCollection& store = *app_.MainStore;
  if (!app_.AC[kShowDrives]) {
    RemoveDrives(app_, store, true);
    return;
  }
  app_.platform.windows.DoEvents();
  if (!app_.DrivesRebuildNeeded) app_.DrivesRebuildNeeded = DrivesChanged(app_);
  if (!app_.DrivesRebuildNeeded) return;
  if (DrivesGroupExists(app_)) RemoveDrives(app_, store, true);
  SetupDrives(app_, store);
  menu_.Build(MIT_PATHS_DRIVES);
  app_.DrivesRebuildNeeded = false;
}

void SystemTray::ShowMainMenu() {
  if (app_.MenuShowing) return;
  app_.MenuShowing = true;
  FitToScreen();
  BringDrivesUpToDate();
  app_.platform.windows.SetForegroundWindow(app_.MainWindow);
  Menus& menus = app_.platform.menus;
  menus.TrackPopupMenu(menus.GetSubMenu(menus.GetMenu(app_.MainWindow), 0), app_.MainWindow);
  app_.MenuShowing = false;
}

}  // namespace burrowmark
