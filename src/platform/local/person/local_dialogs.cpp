#include "platform/local/person/local_dialogs.h"

#include <utility>

#include "platform/characters.h"

namespace burrowmark {
namespace {

// The one button of a box of one button also answers to Escape, so it can't be cancelled.
bool HasButton(std::uint32_t style, std::int32_t answer) {
  constexpr std::uint32_t kButtons = 0xF;
  if ((style & kButtons) == kBoxOk) return answer == kAnswerOk;
  if ((style & kButtons) == kBoxYesNo) return answer == kAnswerYes || answer == kAnswerNo;
  if ((style & kButtons) != kBoxYesNoCancel) return false;
  return answer == kAnswerYes || answer == kAnswerNo || answer == kAnswerCancel;
}

}  // namespace

class LocalDialogs::Up {
 public:
  Up(LocalDialogs& dialogs, WindowHandle owner)
      : dialogs_(dialogs), nested_(dialogs.windows_), owner_(dialogs.windows_.Desktop.Find(owner)) {
    dialogs_.open_.push_back(&state_);
    if (owner_) ownerWasEnabled_ = std::exchange(owner_->enabled, false);
  }
  ~Up() {
    dialogs_.open_.pop_back();
    if (ownerWasEnabled_) owner_->enabled = true;
  }
  Up(const Up&) = delete;
  Up& operator=(const Up&) = delete;

  bool IsCancelled() const { return state_.cancelled; }

 private:
  LocalDialogs& dialogs_;
  LocalWindows::Nested nested_;
  std::shared_ptr<ShownWindow> owner_;  // takes no input meanwhile
  bool ownerWasEnabled_ = false;
  Open state_;
};

std::int32_t LocalDialogs::MessageBoxA(WindowHandle owner, const std::wstring& text, const std::wstring& title,
                                       std::uint32_t style) {
  BoxAnswer answer = user_.TakeBox(text, style);
  if (!HasButton(style, answer.answer)) user_.Complain("a box without the button of its answer: " + ToUtf8(text));
  const Up up(*this, owner);
  windows_.Yield(YieldPoint::kBox);
  if (answer.meanwhile && !up.IsCancelled()) answer.meanwhile();
  windows_.Yield(YieldPoint::kBox);
  if (up.IsCancelled()) answer.answer = CancelAnswer(style);
  Shown.push_back({owner, text, title, style, answer.answer});
  return answer.answer;
}

std::optional<FileAnswer> LocalDialogs::FileDialog(const FileRequest& request) {
  const FileScript script = user_.TakeFile(request.title);
  const Up up(*this, request.owner);
  windows_.Yield(YieldPoint::kFileDialog);
  std::optional<FileAnswer> answer;
  if (script.path && !up.IsCancelled()) answer = FileAnswer{*script.path, script.filterIndex};
  FileDialogs.push_back({request, answer});
  return answer;
}

void LocalDialogs::CancelBox() {
  if (!open_.empty()) open_.back()->cancelled = true;
}

}  // namespace burrowmark
