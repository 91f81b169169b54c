#include "app/editor.h"

#include "organize/frm_organize.h"

namespace burrowmark {

Editor::Editor(Application& app) : app_(app) {}
Editor::~Editor() = default;

void Editor::Show() {
  if (!window_) window_ = std::make_unique<frmOrganize>(app_, OrganizeCalls{});
  app_.IsOpen(SingleWindow::kOrganize) = true;
  window_->Show(Modeless, app_.MainWindow);
}

void Editor::BringToFront() {
  if (window_) window_->BringToFront();
}

void Editor::Init(const std::wstring& Command) {
  if (window_ && window_->Loaded()) window_->Init(Command);
}

bool Editor::Unload() { return !window_ || window_->Unload(); }

void Editor::SaveForSessionEnd() {
  if (window_) window_->SaveForSessionEnd();
}

}  // namespace burrowmark
