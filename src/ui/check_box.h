// Something that is on or off, or neither.
#pragma once

#include <functional>
#include <string>

#include "ui/control.h"

namespace burrowmark {

using enum CheckValue;

class CheckBox final : public ControlOf<CheckBoxState, CheckBoxPeer> {
 public:
  CheckBox(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption);

  // The value is another one, whoever changed it.
  std::function<void()> Click;

  // "&" underlines the character behind it, and Alt with that character clicks.
  const std::wstring& Caption() const override { return caption_; }
  void SetCaption(std::wstring_view caption);
  CheckValue Value() const override { return value_; }
  void SetValue(CheckValue value);

  // From grey to off.
  void UserClick() override;

 private:
  std::wstring caption_;
  CheckValue value_ = kUnchecked;
};

}  // namespace burrowmark
