// Boxes of the real system.
#pragma once

#include "platform/dialogs.h"

namespace burrowmark {

class Win32Dialogs final : public Dialogs {
 public:
  std::int32_t MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                           std::uint32_t style) override;
  std::optional<FileAnswer> FileDialog(const FileRequest& request) override;
  void CancelBox() override;
};

}  // namespace burrowmark
