#include "app/start.h"

#include "app/command_line.h"
#include "app/frm_main.h"
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

}  // namespace

void RunBurrowmark(Platform platform, const std::wstring& CommandLine) {
  Application app(platform);
  const std::wstring command = Trim(CommandLine);
  const std::uint32_t message = platform.windows.RegisterWindowMessageA(kMessageName);
  if (!platform.windows.ClaimInstance(kInstanceName)) {
    if (!command.empty()) HandOver(app, message, command);
    return;
  }
  if (command == kExitCommand) return;  // there is nobody to end
  platform.windows.DoEvents();
  app.Os = DetectOs(platform.system);
  ComputePaths(app);
  InitOrganizedFoldersPaths(app);
  LoadSettings(app);
  frmMain form(app);
  if (form.Form_Load(message, command)) platform.windows.RunLoop();
}

}  // namespace burrowmark
