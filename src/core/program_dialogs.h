// The system's boxes, as this program shows them.
#pragma once

#include "core/program_windows.h"
#include "core/requests.h"
#include "platform/dialogs.h"

namespace burrowmark {

// What a box says when a copy didn't reach the clipboard.
inline constexpr wchar_t kClipboardFailed[] = L"The data couldn't be copied to the Clipboard.";

// While one is up the program is busy with it. One that is meant for the hidden main window stands over the window in
// front of the user, if there is one. While the program ends none comes up, and each is answered as if it was
// cancelled.
class ProgramDialogs final : public Dialogs {
 public:
  // All must outlive this object.
  // `mainWindow` is the hidden one; 0 while there is none.
  ProgramDialogs(Dialogs& system, Requests& requests, const ProgramWindows& windows, const WindowHandle& mainWindow)
      : system_(system), requests_(requests), windows_(windows), mainWindow_(mainWindow) {}

  std::int32_t MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                           std::uint32_t style) override;
  std::optional<FileAnswer> FileDialog(const FileRequest& request) override;
  void CancelBox() override { system_.CancelBox(); }

 private:
  Dialogs& system_;
  Requests& requests_;
  const ProgramWindows& windows_;
  const WindowHandle& mainWindow_;
};

}  // namespace burrowmark
