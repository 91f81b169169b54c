// A button that does something.
#pragma once

#include "ui/control.h"

namespace burrowmark {

class CommandButton final : public ControlOf<ButtonState, ButtonPeer> {
 public:
  CommandButton(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption);
  ~CommandButton();

  // The mouse, Space, Enter, the mnemonic, or code that sets the value.
  std::function<void()> Click;

  // "&" underlines the character behind it, and Alt with that character presses the button.
  const std::wstring& Caption() const override { return caption_; }
  void SetCaption(std::wstring_view caption);

  // Enter presses the default button unless another button has the focus; Esc presses the cancel button. A form has at
  // most one of each: setting it takes it from the one before.
  bool Default() const;
  void SetDefault(bool on);
  bool Cancel() const;
  void SetCancel(bool on);
  bool ShowsDefault() const override;

  // True raises Click, also where the user couldn't press; the button doesn't stay down.
  void SetValue(bool value);

  void UserClick() override;

 private:
  bool ShowsDefaultWithFocus() const override { return true; }
  void UserPress() override { UserClick(); }
  void DefaultMoved() override { Tell(&ButtonPeer::DefaultChanged); }
  void Press();

  std::wstring caption_;
};

}  // namespace burrowmark
