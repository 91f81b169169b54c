#include "app/editor.h"

#include "organize/frm_organize.h"

namespace burrowmark {

Editor::Editor(Application& app) : app_(app) {}
Editor::~Editor() = default;

bool Editor::IsOpen() const { return window_ && window_->Loaded(); }

void Editor::Show() {
  if (!IsOpen()) {
    window_ = std::make_unique<frmOrganize>(app_);
    window_->Show(Modeless, app_.MainWindow);
  }
  if (IsOpen()) window_->BringToFront();
}

void Editor::Init(const std::wstring& Command) {
  if (IsOpen()) window_->Init(Command);
}

FormOwner Editor::AsOwner() const { return IsOpen() ? FormOwner(*window_) : FormOwner(app_.MainWindow); }

bool Editor::Unload() { return !IsOpen() || window_->Unload(); }

void Editor::SaveForSessionEnd() {
  if (IsOpen()) window_->SaveForSessionEnd();
}

void Editor::DeleteShortcut(const ItemRef& item) {
  if (IsOpen()) window_->DeleteShortcut(item);
}

}  // namespace burrowmark
