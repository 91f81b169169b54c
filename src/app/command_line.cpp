#include "app/command_line.h"

#include "core/failure.h"
#include "core/file_names.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"

namespace burrowmark {
namespace {

constexpr std::size_t kReportCommandLength = 3;

void OpenFolderReport(Application& app, const std::wstring& Command) {
  const std::wstring folder = CommandArgument(Command, kReportCommandLength);
  if (folder.empty()) {
    app.platform.windows.Beep();
  } else if (app.Calls.ShowFolderReport) {
    app.Calls.ShowFolderReport(folder);
  }
}

bool AddsOrOpens(const std::wstring& Command) {
  return Command.starts_with(kAddCommand) || Command.starts_with(kOpenCommand);
}

void OpenOrganize(Application& app, bool AddMode, const std::wstring& Command) {
  const auto bringToFront = [&app](SingleWindow window) {
    if (app.Calls.BringToFront) app.Calls.BringToFront(window);
  };
  if (!app.IsOpen(SingleWindow::kOrganize) && app.Calls.ShowOrganize) app.Calls.ShowOrganize(AddMode);
  bringToFront(SingleWindow::kOrganize);
  if (app.IsOpen(SingleWindow::kAddModify)) {
    bringToFront(SingleWindow::kAddModify);
  } else if (AddMode && app.Calls.InitOrganize) {
    app.Calls.InitOrganize(Command);
  }
}

}  // namespace

std::wstring CommandArgument(const std::wstring& Command, std::size_t length) {
  return Command.size() <= length + 1 ? std::wstring() : PathArgument(std::wstring_view(Command).substr(length + 1));
}

void ProcessCommand(Application& app, bool FromMenu, const std::wstring& Command) {
  if (app.IsOpen(SingleWindow::kOptions) && app.Calls.UnloadOptions) app.Calls.UnloadOptions();
  bool AddMode = false;
  if (!FromMenu) {
    if (Command.starts_with(kReportCommand)) {
      OpenFolderReport(app, Command);
      return;
    }
    if (Command == kExitCommand) {
      app.ExitRequested = true;
      if (app.Calls.UnloadMain) app.Calls.UnloadMain();
      return;
    }
    AddMode = AddsOrOpens(Command);
    if (Command != kOrganizeCommand && !AddMode) return;
  }
  OpenOrganize(app, AddMode, Command);
}

void HandOver(Application& app, std::uint32_t RegisteredMessage, const std::wstring& Command) {
  clsRegHandler registry(app.platform.registry);
  std::wstring text;
  if (!registry.GetKeyValue(RegistryKey::kCurrentUser, kMainKey, kWindowValue, text)) return;
  WindowHandle window = 0;
  Skip([&] { window = ToInt32(text); });
  if (window == 0) return;
  registry.SetKeyValue(RegistryKey::kCurrentUser, kMainKey, kTransferValue, Command);
  // The text itself goes along, so that several hand-overs at once don't overwrite each other. Without an answer the
  // running instance is asked to look into the registry.
  if (app.platform.windows.SendText(window, RegisteredMessage, Command) == 0) {
    app.platform.windows.PostMessageA(window, RegisteredMessage, 0, 0);
  }
}

}  // namespace burrowmark
