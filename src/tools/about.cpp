#include "tools/about.h"

#include "core/product.h"
#include "core/registry.h"
#include "core/services.h"
#include "menu/menu_actions.h"

namespace burrowmark {
namespace {

constexpr Size kClient{6660, 3645};
constexpr std::int32_t kProgramIcon = 1;
constexpr std::int32_t kIconSize = 48;
constexpr wchar_t kTitle[] = L"Burrowmark";
constexpr wchar_t kWebSite[] = L"" BURROWMARK_WEB_SITE;
constexpr wchar_t kSharedTools[] = L"Software\\Microsoft\\Shared Tools";
constexpr wchar_t kToolFile[] = L"\\MSINFO32.EXE";

// The system's own tool; empty if this machine hasn't got it.
std::wstring FindSystemInformation(Application& app) {
  const auto registered = [&app](const std::wstring& key, const wchar_t* name) {
    std::wstring text;
    clsRegHandler(app.platform.registry).GetKeyValue(RegistryKey::kLocalMachine, kSharedTools + key, name, text);
    return text;
  };
  for (const std::wstring& path : {registered(L"\\MSINFO", L"PATH"), registered(L" Location", L"MSINFO") + kToolFile,
                                   app.platform.system.GetSystemDirectoryA() + kToolFile}) {
    if (FileExists(app.platform.files, path)) return path;
  }
  return {};
}

}  // namespace

frmAbout::frmAbout(Application& app) : ProgramForm(app, ProgramWindow::kAbout, L"frmAbout", kClient) {
  SetCaption(L"About Burrowmark");
  picTop.SetBackColor(kColorWindow);
  picIcon.SetBackColor(kColorWindow);
  picIcon.SetIcon(kProgramIcon, kIconSize);
  lblVersion.SetCaption(L"Version " BURROWMARK_VERSION);
  lblCopyright.SetCaption(L"" BURROWMARK_COPYRIGHT);
  txtWebSite.SetText(kWebSite);
  txtProgram.SetText(app_.platform.system.GetModuleFileNameA());
  txtTree.SetText(app_.MainDocument.CurrentConfigFile);
  for (TextBox* text : {&txtWebSite, &txtProgram, &txtTree}) text->SetReadOnly(true);

  cmdOK.SetDefault(true);
  cmdOK.SetCancel(true);
  cmdOK.Click = [this] { Unload(); };
  cmdWebSite.Click = [this] { OpenFile(app_, kWebSite); };
  cmdSysInfo.Click = [this] { StartSystemInformation(); };
}

void frmAbout::StartSystemInformation() {
  const std::wstring path = FindSystemInformation(app_);
  if (!path.empty() && OpenFile(app_, path) > kLastShellError) return;
  app_.platform.dialogs.MessageBoxA(Window(), L"System Information is unavailable at this time.", kTitle,
                                    kBoxInformation);
}

}  // namespace burrowmark
