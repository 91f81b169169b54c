#include "core/help.h"

#include "core/services.h"

namespace burrowmark {
namespace {

// `page` is the file, or a page in it.
void Open(Application& app, const std::wstring& page, std::int32_t command) {
  if (!FileExists(app.platform.files, app.HelpFile)) {
    app.platform.dialogs.MessageBoxA(app.MainWindow, L"Burrowmark help file is missing. Unable to display help.",
                                     L"Burrowmark", kBoxCritical);
    return;
  }
  Shell& shell = app.platform.shell;
  if (!shell.HtmlHelpA(page, command)) shell.ShellExecuteA(L"open", app.HelpFile, {}, L"0", kShowNormal);
}

}  // namespace

void ShowHelp(Application& app, std::int32_t command) { Open(app, app.HelpFile, command); }

void ShowHelpAbout(Application& app, ProgramWindow window) {
  Open(app, app.HelpFile + L"::/" + HelpPage(window), kHelpPage);
}

// A window without a page doesn't compile.
const wchar_t* HelpPage(ProgramWindow window) {
  switch (window) {
    case ProgramWindow::kAbout:
    case ProgramWindow::kTip:
      return L"start.html";
    case ProgramWindow::kOrganize:
      return L"editor.html";
    case ProgramWindow::kAddModify:
    case ProgramWindow::kItemExists:
    case ProgramWindow::kProperties:
    case ProgramWindow::kBrowseFolder:
    case ProgramWindow::kNewFolder:
      return L"items.html";
    case ProgramWindow::kOptions:
      return L"options.html";
    case ProgramWindow::kProgress:
    case ProgramWindow::kPropertiesConfigFile:
      return L"files.html";
    case ProgramWindow::kShortcutsList:
      return L"list.html";
    case ProgramWindow::kFolderReport:
      return L"report.html";
    case ProgramWindow::kNetworkDrives:
    case ProgramWindow::kPersonalNetworkInfo:
      return L"network.html";
    case ProgramWindow::kWizard:
      return L"restore.html";
  }
  return nullptr;
}

}  // namespace burrowmark
