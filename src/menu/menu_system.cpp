#include "menu/menu_system.h"

#include "core/failure.h"
#include "core/text.h"
#include "menu/menu_actions.h"
#include "menu/menu_setup.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kIconSize = 16;  // at 96 dots per inch

}  // namespace

void MenuSystem::LoadMenuIcons() {
  Drawing& drawing = app_.platform.drawing;
  const std::int32_t size = (kIconSize * look_.dpi + kDesignDpi / 2) / kDesignDpi;
  look_.MenuIcons.clear();
  for (std::int32_t number = 1; number <= drawing.MenuIconCount(); ++number) {
    look_.MenuIcons.push_back(drawing.LoadMenuIcon(number, size));
  }
  if (!look_.MenuIcons.empty()) look_.MenuIcons.insert(look_.MenuIcons.begin(), look_.MenuIcons.front());
}

void MenuSystem::HookMenuWindow() {
  look_.SelectedState = app_.Os.SelectedState;
  app_.platform.windows.SetWindowHook(app_.MainWindow,
                                      [this](WindowMessage& message) { return MenuWindowProc(message); });
}

void MenuSystem::UnhookMenuWindow() { app_.platform.windows.SetWindowHook(app_.MainWindow, {}); }

void MenuSystem::Build(const std::wstring& filter) {
  if (filter.empty()) UnhookMenuWindow();
  MenuSetupBuild(app_, filter);
  if (filter.empty()) HookMenuWindow();
}

bool MenuSystem::SetScale(std::int32_t dpi) {
  if (dpi == look_.dpi || dpi <= 0) return false;
  look_.dpi = dpi;
  LoadMenuIcons();
  return true;
}

Color MenuSystem::ChooseColors() {
  Drawing& drawing = app_.platform.drawing;
  look_.Dark = !drawing.IsHighContrast() && IsLight(drawing.GetSysColor(kColorMenu)) && drawing.AppsAreDark();
  return MenuBackground(drawing, look_);
}

MessageResult MenuSystem::MenuWindowProc(WindowMessage& message) {
  Skip([&] {
    if (message.number == RegisteredMessage && RegisteredMessage != 0) {
      AskedToLook(message.wParam);
    } else if (message.number == kMessageDrawItem && message.draw != nullptr) {
      Draw(*message.draw);
    } else if (message.number == kMessageMeasureItem && message.measure != nullptr) {
      Measure(*message.measure);
    } else if (message.number == kMessageMenuRightButtonUp) {
      RightClick(static_cast<std::int32_t>(message.wParam), static_cast<MenuHandle>(message.lParam));
    }
  });
  const bool isHandOver = message.number == kMessageCopyData && message.lParam == RegisteredMessage;
  if (!isHandOver) return {};
  heard_.insert(message.wParam);
  HandedOver(message.text);
  return {true, 1};
}

void MenuSystem::Measure(MeasureRecord& record) {
  const ItemRef item = app_.MainStore().GetMenuItemFromID(record.itemID);
  if (item) MeasureMenuItem(app_.platform.drawing, look_, *item, record);
}

void MenuSystem::Draw(const DrawRecord& record) {
  const ItemRef item = app_.MainStore().GetMenuItemFromID(record.itemID);
  if (!item) return;
  look_.ShowIcons = app_.AC[Appearance::kShortcutIcons];
  look_.RedBar = app_.AC[Appearance::kRedSelection];
  MenuItemDraw(app_.platform.drawing, look_, *item, record);
}

void MenuSystem::RightClick(std::int32_t position, MenuHandle menu) {
  const ItemRef item = app_.MainStore().GetMenuItemFromID(app_.platform.menus.GetMenuItemID(menu, position));
  if (!item || item->DriveType != kDriveCompactDisc) return;
  EjectDisc(app_, UpperCaseText(item->FolderPath));
  app_.platform.windows.SendMessageA(app_.MainWindow, kMessageCancelMode, 0, 0);
}

// A process that saw no answer asks to look into the registry, though its text may have come over meanwhile.
void MenuSystem::AskedToLook(std::int64_t process) {
  if (heard_.erase(process) == 0) HandedOver(GetTransferText(app_));
}

void MenuSystem::HandedOver(const std::wstring& text) {
  if (!text.empty() && app_.Calls.CommandArrived) app_.Calls.CommandArrived(text);
}

}  // namespace burrowmark
