#include "tools/progress.h"

#include "core/form_services.h"

namespace burrowmark {
namespace {

constexpr Size kClient{5160, 2190};
constexpr wchar_t kFilm[] = L"\\filecopy.avi";

frmPause& Window(Application& app) {
  if (!app.Progress) app.Progress = std::make_shared<frmPause>(app);
  app.Progress->Load();
  return *app.Progress;
}

}  // namespace

frmPause::frmPause(Application& app) : Form(app.platform.windows, L"frmPause", kClient), app_(app) {
  lblStatus.SetUseMnemonic(false);
  cmdClose.SetCancel(true);
  cmdClose.Click = [this] { Unload(); };
}

void frmPause::Form_Load() {
  SetAlwaysOnTop(app_, *this);
  Animation1.Open(app_.AppPath + kFilm);
  Animation1.Play();
}

void ShowProgress(Application& app, const FormOwner& owner, const std::wstring& title, const std::wstring& text) {
  frmPause& window = Window(app);
  window.SetCaption(title);
  window.SetStatus(text);
  window.Show(Modeless, owner);
  app.platform.windows.DoEvents();
}

void SetProgressText(Application& app, const std::wstring& text) {
  Window(app).SetStatus(text);
  app.platform.windows.DoEvents();
}

void HideProgress(Application& app) {
  app.platform.windows.DoEvents();
  if (app.Progress) app.Progress->Unload();
}

}  // namespace burrowmark
