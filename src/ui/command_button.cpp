#include "ui/command_button.h"

#include "ui/form.h"

namespace burrowmark {

CommandButton::CommandButton(Form& form, std::wstring name, const Box& place, std::wstring caption)
    : ControlOf(form, std::move(name), place), caption_(std::move(caption)) {}

CommandButton::~CommandButton() {
  SetDefault(false);
  SetCancel(false);
}

void CommandButton::SetCaption(std::wstring caption) {
  if (Assign(caption_, std::move(caption))) Tell(&ButtonPeer::CaptionChanged);
}

bool CommandButton::Default() const { return Owner().default_ == this; }

void CommandButton::SetDefault(bool on) {
  if (on != Default()) Owner().SetDefaultButton(on ? this : nullptr);
}

bool CommandButton::Cancel() const { return Owner().cancel_ == this; }

void CommandButton::SetCancel(bool on) {
  if (on != Cancel()) Owner().cancel_ = on ? this : nullptr;
}

bool CommandButton::ShowsDefault() const { return Owner().ButtonOfEnter() == this; }

void CommandButton::SetValue(bool value) {
  if (value) Press();
}

void CommandButton::UserClick() {
  if (IsReachable()) Press();
}

void CommandButton::Press() {
  const Form::Inside inside(Owner());
  Raise(Click);
}

}  // namespace burrowmark
