#include "platform/local/local_dialogs.h"

#include "platform/characters.h"

namespace burrowmark {
namespace {

// The one button of a box of one button also answers to Escape, so it can't be cancelled.
bool HasButton(std::uint32_t style, std::int32_t answer) {
  constexpr std::uint32_t kButtons = 0xF;
  if ((style & kButtons) == kBoxOk) return answer == kAnswerOk;
  if ((style & kButtons) != kBoxYesNoCancel) return false;
  return answer == kAnswerYes || answer == kAnswerNo || answer == kAnswerCancel;
}

}  // namespace

std::int32_t LocalDialogs::MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                       std::uint32_t style) {
  const BoxAnswer answer = user_.TakeBox(text);
  if (!HasButton(style, answer.answer)) user_.Complain("a box without the button of its answer: " + ToUtf8(text));
  windows_.DoEvents();
  if (answer.meanwhile) answer.meanwhile();
  windows_.DoEvents();
  Shown.push_back({owner, text, title, style, answer.answer});
  return answer.answer;
}

std::optional<FileAnswer> LocalDialogs::FileDialog(const FileRequest& request) {
  const FileScript script = user_.TakeFile(request.title);
  windows_.DoEvents();
  std::optional<FileAnswer> answer;
  if (script.path) answer = FileAnswer{*script.path, script.filterIndex};
  FileDialogs.push_back({request, answer});
  return answer;
}

}  // namespace burrowmark
