#include "core/form_services.h"

namespace burrowmark {

void SetHourglass(Form& form) { form.SetMousePointer(kPointerHourglass); }

void SetNormalPointer(Form& form) { form.SetMousePointer(kPointerDefault); }

bool ConfirmDelete(Application& app, const Form& form, const std::wstring& name) {
  const bool several = name.empty();
  const std::wstring text = several ? L"Are you sure you want to delete these selected items?"
                                    : L"Are you sure you want to delete '" + name + L"'?";
  const wchar_t* title = several ? L"Confirm Multiple Delete" : L"Confirm Delete";
  return app.platform.dialogs.MessageBoxA(form.Window(), text, title, kBoxYesNoCancel | kBoxQuestion) == kAnswerYes;
}

}  // namespace burrowmark
