#include "tests/support/menu_scene.h"

#include <set>

#include "core/text.h"
#include "platform/characters.h"

namespace burrowmark::test {

MenuScene::MenuScene() {
  app.Os = DetectOs(machine.facts);
  app.ExplorerPath = L"C:\\Windows\\EXPLORER.EXE";
  app.PersonalFolder = L"C:\\Users\\User\\Documents";
  app.HelpFile = app.AppPath + L"\\Burrowmark.chm";
  events.TrayMouse = [this](std::uint32_t mouseMessage) { tray.Form_MouseMove(mouseMessage); };
  events.TaskbarCreated = [this] { tray.Add(); };
  events.DpiChanged = [this](std::int32_t) { tray.ScaleChanged(); };
  events.AtRest = [this] { app.Requests.RunAtRest(); };
  app.MainWindow = machine.windows.CreateMainWindow(L"Burrowmark", events);
}

void MenuScene::AddPersonal() {
  app.MainStore().AddNewMenuItem(
      {.Caption = L"Personal", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
}

ItemRef MenuScene::AddGroup(const std::wstring& name, const std::wstring& caption, const std::wstring& owner) {
  return app.MainStore().AddNewMenuItem({.Caption = caption, .OwnerName = owner, .Name = name, .SubMenu = true});
}

ItemRef MenuScene::AddShortcut(const std::wstring& name, const std::wstring& caption, const std::wstring& path,
                               const std::wstring& owner) {
  if (!path.empty()) machine.AddFolders(path);
  return app.MainStore().AddNewMenuItem({.Caption = caption, .OwnerName = owner, .Name = name, .FolderPath = path});
}

void MenuScene::Start() {
  menu.LoadMenuIcons();
  menu.Build({});
  tray.Add();
}

void MenuScene::Choose(MenuActions actions, LocalUser::Button button) {
  machine.user.NextMenu(std::move(actions));
  machine.user.ClickTray(button);
}

MenuHandle MenuScene::Root() { return machine.menus.GetSubMenu(machine.menus.GetMenu(app.MainWindow), 0); }

std::wstring MenuScene::NativeTexts(MenuHandle handle) {
  std::wstring texts;
  for (const LocalMenuEntry& entry : machine.menus.Entries(handle)) {
    texts += (texts.empty() ? L"" : L" ") + (entry.IsSeparator() ? std::wstring(L"-") : entry.text);
    if (entry.popup != 0) texts += L"[" + NativeTexts(entry.popup) + L"]";
  }
  return texts;
}

std::string MenuScene::WrongNumbers() {
  std::set<std::int32_t> numbers;
  for (std::int32_t i = 1; i <= app.MainStore().Count(); ++i) {
    const clsMenuItem& item = *app.MainStore().Item(i);
    const std::string name = ToUtf8(item.Name());
    const auto& siblings = machine.menus.Entries(item.OwnerID);
    if (item.Position < 0 || static_cast<std::size_t>(item.Position) >= siblings.size()) return name + " has no place";
    const LocalMenuEntry& entry = siblings[static_cast<std::size_t>(item.Position)];
    if (entry.text != WithDoubledAmpersands(item.Caption()) || !entry.IsOwnerDrawn())
      return name + " has another entry at its place";
    if ((item.SubMenu() ? entry.popup : entry.id) != item.ID()) return name + " has another number";
    if (!item.SubMenu() && (item.ID() < 50 || item.ID() >= 0xF000)) return name + " has a number out of range";
    if (!numbers.insert(item.ID()).second) return name + " has another's number";
  }
  return {};
}

}  // namespace burrowmark::test
