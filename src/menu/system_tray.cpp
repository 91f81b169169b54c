#include "menu/system_tray.h"

#include "groups/drives.h"
#include "menu/menu_actions.h"
#include "menu/menu_setup.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kTrayId = 1;
constexpr std::int32_t kTrayImage = 1;
constexpr std::int32_t kTrayImageSize = 16;  // at 96 dots per inch
constexpr std::int32_t kRetryAfter = 3000;   // milliseconds, while there is no task bar
constexpr wchar_t kTip[] = L"Burrowmark";

}  // namespace

TrayIcon SystemTray::Record(std::uint32_t flags) const {
  const std::int32_t size = (kTrayImageSize * app_.platform.windows.MainScreenDpi() + kDesignDpi / 2) / kDesignDpi;
  const IconHandle icon = app_.platform.drawing.LoadMenuIcon(kTrayImage, size);
  return {app_.MainWindow, kTrayId, flags, kMessageMouseMove, icon, {}};
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

void SystemTray::ScaleChanged() {
  if (wanted_) app_.platform.shell.Shell_NotifyIconA(kTrayModify, Record(kTrayHasIcon));
}

void SystemTray::Form_MouseMove(std::uint32_t mouseMessage) {
  const bool byKey = mouseMessage == kMessageTrayKey || mouseMessage == kMessageContextMenu;
  if (!byKey && mouseMessage != kMessageLeftButtonUp && mouseMessage != kMessageRightButtonUp) return;
  // The system also tells of the mouse's right button as of a key, and of a key twice: the menu is up by then.
  if (app_.Requests.IsBusyWith(BusyWith::kMenu)) return;
  if (app_.Windows.Innermost() != nullptr || app_.Requests.IsBusy()) {
    app_.BringForward();
  } else {
    ShowMainMenu(byKey);
  }
  // An empty message lets the popup go away properly after a click elsewhere.
  app_.platform.windows.PostMessageA(app_.MainWindow, kMessageNull, 0, 0);
}

// The system measures an entry once; on a screen of another scale the menu is made anew.
void SystemTray::FitToScreen(std::int32_t dpi) {
  if (!menu_.SetScale(dpi)) return;
  menu_.UnhookMenuWindow();
  RebuildMainMenu(app_);
  menu_.HookMenuWindow();
}

// The Drives group comes into being at the first opening of the menu, and is made anew when the drives have changed.
void SystemTray::BringDrivesUpToDate() {
  if (!app_.AC[Appearance::kDrives]) {
    RemoveDrives(app_, app_.MainStore());
    return;
  }
  app_.platform.windows.DoEvents();
  if (!app_.DrivesRebuildNeeded) app_.DrivesRebuildNeeded = DrivesChanged(app_);
  if (!app_.DrivesRebuildNeeded) return;
  RemoveDrives(app_, app_.MainStore());
  SetupDrives(app_, app_.MainStore());
  menu_.Build(MIT_PATHS_DRIVES);
  app_.DrivesRebuildNeeded = false;
}

// What the user takes is the item that stood there when the menu went up.
void SystemTray::ShowMainMenu(bool byKey) {
  std::shared_ptr<clsMenuCollection> store;
  std::int32_t number = 0;
  {
    const Busy showing(app_.Requests, BusyWith::kMenu, [this] { app_.platform.windows.CancelModes(); });
    std::optional<Rect> icon;
    if (byKey) icon = app_.platform.shell.Shell_NotifyIconGetRect(app_.MainWindow, kTrayId);
    FitToScreen(icon ? app_.platform.windows.MainScreenDpi() : app_.platform.windows.MouseScreenDpi());
    BringDrivesUpToDate();
    if (app_.Requests.IsEnding()) return;
    app_.platform.windows.SetForegroundWindow(app_.MainWindow);
    store = app_.MainDocument.Store;
    Menus& menus = app_.platform.menus;
    const MenuHandle root = menus.GetSubMenu(menus.GetMenu(app_.MainWindow), 0);
    number = menus.TrackPopupMenu(root, app_.MainWindow, menu_.ChooseColors(), icon);
  }
  const ItemRef item = number == 0 ? nullptr : store->GetMenuItemFromID(number);
  if (item) MenuItemChosen(app_, store, item);
}

}  // namespace burrowmark
