#include "core/progress.h"

namespace burrowmark {
namespace {

constexpr Size kClient{5160, 2190};
constexpr wchar_t kAnimation[] = L"\\filecopy.avi";

}  // namespace

frmPause::frmPause(Application& app) : ProgramForm(app, ProgramWindow::kProgress, L"frmPause", kClient) {
  lblStatus.SetUseMnemonic(false);
  cmdClose.SetCancel(true);
  cmdClose.Click = [this] { Unload(); };
}

void frmPause::Form_Load() {
  Animation1.Open(app_.AppPath + kAnimation);
  Animation1.Play();
}

// The window behind takes input again before the progress window goes, so that it is the one to come forward.
Work::~Work() {
  if (progress_) app_.platform.windows.DoEvents();
  blocked_.reset();
  if (progress_ && app_.Progress) app_.Progress->Unload();
}

void Work::ShowProgress(const FormOwner& owner, const std::wstring& title, const std::wstring& text) {
  if (!app_.Progress) app_.Progress = std::make_shared<frmPause>(app_);
  progress_ = true;
  app_.Progress->Load();
  app_.Progress->SetCaption(title);
  app_.Progress->SetStatus(text);
  app_.Progress->Show(Modeless, owner);
  app_.platform.windows.DoEvents();
}

void Work::SetProgressText(const std::wstring& text) {
  if (app_.Progress) app_.Progress->SetStatus(text);
  app_.platform.windows.DoEvents();
}

}  // namespace burrowmark
