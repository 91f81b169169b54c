// Boxes of the local machine, answered by the person at it.
#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/local/person/local_user.h"
#include "platform/local/screen/local_windows.h"

namespace burrowmark {

struct ShownBox {
  WindowHandle owner = 0;
  std::wstring text;
  std::wstring title;
  std::uint32_t style = 0;
  std::int32_t answer = 0;
};

struct ShownFileDialog {
  FileRequest request;
  std::optional<FileAnswer> answer;
};

// A box or file dialog that nobody expected, and an answer that the box has no button for, throw std::logic_error.
class LocalDialogs final : public Dialogs {
 public:
  // Both must outlive this object.
  LocalDialogs(LocalUser& user, LocalWindows& windows) : user_(user), windows_(windows) {}

  std::vector<ShownBox> Shown;  // in the order in which they were answered

  std::vector<ShownFileDialog> FileDialogs;

  std::int32_t MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                           std::uint32_t style) override;
  std::optional<FileAnswer> FileDialog(const FileRequest& request) override;
  void CancelBox() override;

 private:
  // What is up now.
  struct Open {
    bool cancelled = false;
  };
  class Up;

  LocalUser& user_;
  LocalWindows& windows_;
  std::vector<Open*> open_;  // the last one that came up last
};

}  // namespace burrowmark
