// The one editor window of the program, made when it is first opened.
#pragma once

#include <memory>
#include <string>

#include "core/application.h"

namespace burrowmark {

class frmOrganize;

class Editor {
 public:
  explicit Editor(Application& app);
  ~Editor();
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  void Show();
  void BringToFront();
  // A command behind the opening; nothing without a window.
  void Init(const std::wstring& Command);
  // False if the user wants to go on editing.
  bool Unload();
  void SaveForSessionEnd();

 private:
  Application& app_;
  std::unique_ptr<frmOrganize> window_;
};

}  // namespace burrowmark
