#include "app/start.h"

#include "app/command_line.h"
#include "app/editor.h"
#include "app/frm_main.h"
#include "config/config_file.h"
#include "core/file_names.h"
#include "core/settings.h"
#include "core/text.h"
#include "groups/special_folders.h"
#include "projection/organized_folders.h"

namespace burrowmark {
namespace {

constexpr wchar_t kMessageName[] = L"!BURROWMARK!REGMSG!";
constexpr wchar_t kInstanceName[] = L"Kestrelan.Burrowmark";

std::wstring Quoted(const std::wstring& path) { return L"\"" + path + L"\""; }

void ComputePaths(Application& app) {
  const std::wstring program = app.platform.system.GetModuleFileNameA();
  app.AppPath = GetFolderName(program);
  app.WindowsFolder = GetSpecialFolderPath(app, L"SystemRoot");
  const std::wstring personal = GetSpecialFolderPath(app, L"Personal");
  if (!personal.empty()) app.PersonalFolder = personal;
  app.DesktopFolder = GetSpecialFolderPath(app, L"Desktop");
  app.RecentFolder = GetSpecialFolderPath(app, L"Recent");
  app.ExplorerPath = app.WindowsFolder + L"\\EXPLORER.EXE";
  app.AppCommand = Quoted(program);
  app.CopyAddressCommand = Quoted(app.AppPath + L"\\CopyAddress.exe");
  app.HelpFile = app.AppPath + L"\\Burrowmark.chm";
}

// Calls of windows that don't exist yet stay empty.
void FillCalls(Application& app, frmMain& form, Editor& editor) {
  app.Calls.ProcessCommand = [&app](bool FromMenu, const std::wstring& Command) {
    ProcessCommand(app, FromMenu, Command);
  };
  app.Calls.SaveMainStore = [&app] { ConfigFileWrite(app, *app.MainStore, {}, false); };
  app.Calls.UnloadMain = [&form] { form.Unload(); };
  app.Calls.ShowOrganize = [&editor](bool) { editor.Show(); };
  app.Calls.InitOrganize = [&editor](const std::wstring& Command) { editor.Init(Command); };
  app.Calls.UnloadOrganize = [&editor] { return editor.Unload(); };
  app.Calls.SaveForSessionEnd = [&editor] { editor.SaveForSessionEnd(); };
  app.Calls.BringToFront = [&editor](SingleWindow window) {
    if (window == SingleWindow::kOrganize) editor.BringToFront();
  };
}

}  // namespace

void RunBurrowmark(Platform platform, const std::wstring& CommandLine) {
  Application app(platform);
  const std::wstring command = Trim(CommandLine);
  const std::uint32_t message = platform.windows.RegisterWindowMessageA(kMessageName);
  if (!platform.windows.ClaimInstance(kInstanceName)) {
    if (!command.empty()) HandOver(app, message, command);
    return;
  }
  platform.windows.DoEvents();
  app.Os = DetectOs(platform.system);
  ComputePaths(app);
  GetConfigFileName(app, false);
  InitOrganizedFoldersPaths(app);
  LoadSettings(app);
  frmMain form(app);
  Editor editor(app);
  FillCalls(app, form, editor);
  if (form.Form_Load(message, command)) platform.windows.RunLoop();
}

}  // namespace burrowmark
