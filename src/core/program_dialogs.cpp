#include "core/program_dialogs.h"

namespace burrowmark {

std::int32_t ProgramDialogs::MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                         std::uint32_t style) {
  if (requests_.IsEnding()) return CancelAnswer(style);
  const OpenWindow* front = windows_.Innermost();
  if (owner == mainWindow_ && front != nullptr) owner = front->Handle();
  const Busy busy(requests_, BusyWith::kBox, [this] { CancelBox(); });
  return system_.MessageBoxA(owner, text, title, style);
}

std::optional<FileAnswer> ProgramDialogs::FileDialog(const FileRequest& request) {
  if (requests_.IsEnding()) return std::nullopt;
  const Busy busy(requests_, BusyWith::kBox, [this] { CancelBox(); });
  return system_.FileDialog(request);
}

}  // namespace burrowmark
