// One of several choices: at most one of those in the same form, picture or frame is on.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/control.h"

namespace burrowmark {

// The Tab key stops at the one that is on, or at the first one made, and the arrow keys turn on the next from there.
// The focus alone turns none on: a form that shows may have none.
class OptionButton final : public ControlOf<OptionState, OptionPeer> {
 public:
  OptionButton(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption);

  // It is on now, whoever did that.
  std::function<void()> Click;

  // "&" underlines the character behind it, and Alt with that character turns it on.
  const std::wstring& Caption() const override { return caption_; }
  void SetCaption(std::wstring_view caption);
  bool Value() const override { return value_; }
  // True turns the others off, without an event of theirs.
  void SetValue(bool value);

  void UserClick() override;
  void UserArrow(bool forward) override;

 private:
  OptionButton* AsOption() override { return this; }
  // Those of which one can be on, in tab order, this one among them.
  std::vector<OptionButton*> Group() const;
  void Turn(bool on);

  std::wstring caption_;
  bool value_ = false;
};

}  // namespace burrowmark
