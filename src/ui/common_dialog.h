// The system's dialog for the path of a file.
#pragma once

#include <cstdint>
#include <string>

#include "platform/dialogs.h"
#include "ui/control.h"

namespace burrowmark {

class CommonDialog {
 public:
  // Shows over a form or what is in one. Both must outlive this object.
  CommonDialog(Dialogs& dialogs, const ControlParent& owner) : dialogs_(dialogs), owner_(owner) {}

  std::wstring DialogTitle;
  // Texts and patterns by turns, with a bar between them: "Text (*.txt)|*.txt|All Files (*.*)|*.*".
  std::wstring Filter;
  std::int32_t FilterIndex = 1;  // of the filter in use, counted from 1
  std::wstring FileName;         // that the dialog starts with, and afterwards the path that was chosen

  // False if the user cancelled; everything is as before then.
  bool ShowOpen();
  // A name without an extension gets that of the filter, unless that has a wildcard.
  bool ShowSave();

 private:
  bool Show(bool save);

  Dialogs& dialogs_;
  const ControlParent& owner_;
};

}  // namespace burrowmark
