#include "app/command_line.h"

#include "app/editor.h"
#include "core/failure.h"
#include "core/file_names.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/registry_keys.h"

namespace burrowmark {
namespace {

constexpr std::size_t kReportCommandLength = 3;

// Over the editor, if that is open. Whether the folder is there is asked when the report is made.
void OpenFolderReport(Application& app, Editor& editor, const std::wstring& Command) {
  const std::wstring folder = CommandArgument(Command, kReportCommandLength);
  if (folder.empty()) return app.platform.windows.Beep();
  if (!app.Calls.ShowFolderReport) return;
  OpenWindow* const editing = app.Windows.Find(ProgramWindow::kOrganize);
  if (editing != nullptr) editing->ComeForward();
  app.Calls.ShowFolderReport(folder, editor.AsOwner());
  OpenWindow* const wizard = app.Windows.Find(ProgramWindow::kFolderReport);
  if (editing == nullptr && wizard != nullptr) wizard->ComeForward();
}

bool AddsOrOpens(const std::wstring& Command) {
  return Command.starts_with(kAddCommand) || Command.starts_with(kOpenCommand);
}

void CarryOut(Application& app, Editor& editor, const std::wstring& Command) {
  if (Command.starts_with(kReportCommand)) {
    OpenFolderReport(app, editor, Command);
  } else if (Command == kOrganizeCommand) {
    editor.Show();
  } else if (AddsOrOpens(Command)) {
    editor.Show();
    editor.Init(Command);
  }
}

}  // namespace

std::wstring CommandArgument(const std::wstring& Command, std::size_t length) {
  return Command.size() <= length + 1 ? std::wstring() : PathArgument(std::wstring_view(Command).substr(length + 1));
}

void ProcessCommand(Application& app, Editor& editor, const std::wstring& Command) {
  if (Command == kExitCommand) return app.Requests.EndProgram();
  app.Requests.AddCommand([&app, &editor, Command] { CarryOut(app, editor, Command); });
}

void HandOver(Application& app, std::uint32_t RegisteredMessage, const std::wstring& Command) {
  clsRegHandler registry(app.platform.registry);
  std::wstring text;
  if (!registry.GetKeyValue(RegistryKey::kCurrentUser, kMainKey, kWindowValue, text)) return;
  WindowHandle window = 0;
  Skip([&] { window = ToInt32(text); });
  registry.SetKeyValue(RegistryKey::kCurrentUser, kMainKey, kTransferValue, Command);
  if (window == 0) return;
  // The text itself goes along, so that several hand-overs at once don't overwrite each other. Without an answer the
  // running instance is asked to look into the registry.
  if (app.platform.windows.SendText(window, RegisteredMessage, Command) == 0) {
    app.platform.windows.PostMessageA(window, RegisteredMessage, app.platform.windows.ProcessNumber(), 0);
  }
}

}  // namespace burrowmark
