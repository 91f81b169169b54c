#include "ui/command_button.h"

namespace burrowmark {

CommandButton::CommandButton(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption)
    : ControlOf(parent, name, place), caption_(caption) {}

CommandButton::~CommandButton() {
  SetDefault(false);
  SetCancel(false);
}

void CommandButton::SetCaption(std::wstring_view caption) {
  if (Assign(caption_, std::wstring(caption))) Tell(&ButtonPeer::CaptionChanged);
}

bool CommandButton::Default() const { return Site().DefaultButton() == this; }

void CommandButton::SetDefault(bool on) {
  if (on != Default()) Site().SetDefaultButton(on ? this : nullptr);
}

bool CommandButton::Cancel() const { return Site().CancelButton() == this; }

void CommandButton::SetCancel(bool on) {
  if (on != Cancel()) Site().SetCancelButton(on ? this : nullptr);
}

bool CommandButton::ShowsDefault() const { return Site().ButtonOfEnter() == this; }

void CommandButton::SetValue(bool value) {
  if (value) Press();
}

void CommandButton::UserClick() {
  if (IsReachable()) Press();
}

void CommandButton::Press() {
  const ControlSite::Running running(Site());
  Raise(Click);
}

}  // namespace burrowmark
