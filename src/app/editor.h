// The one editor window of the program, made anew each time it is opened.
#pragma once

#include <memory>
#include <string>

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

class frmOrganize;

class Editor {
 public:
  explicit Editor(Application& app);
  ~Editor();
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  // Opens it, or brings it to the front.
  void Show();
  // A command behind the opening; nothing without a window.
  void Init(const std::wstring& Command);
  // The hidden window stands in for it while it isn't open.
  FormOwner AsOwner() const;
  // False if the user wants to go on editing.
  bool Unload();
  void SaveForSessionEnd();
  // Deletes a shortcut of the tree that is being edited.
  void DeleteShortcut(const ItemRef& item);

 private:
  bool IsOpen() const;

  Application& app_;
  std::unique_ptr<frmOrganize> window_;
};

}  // namespace burrowmark
