#include "ui/option_button.h"

#include <algorithm>

namespace burrowmark {

OptionButton::OptionButton(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption)
    : ControlOf(parent, name, place), caption_(caption) {
  const std::vector<OptionButton*> group = Group();
  if (std::any_of(group.begin(), group.end(), [this](const auto* option) { return option != this; })) {
    StartWithoutTabStop();
  }
}

void OptionButton::SetCaption(std::wstring_view caption) {
  if (Assign(caption_, std::wstring(caption))) Tell(&OptionPeer::CaptionChanged);
}

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Control* control : Site().Controls()) {
    auto* option = control->AsOption();
    if (option != nullptr && &option->Parent() == &Parent()) group.push_back(option);
  }
  return group;
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  if (!value) return Turn(false);
  for (OptionButton* other : Group()) {
    other->Turn(other == this);
    other->SetTabStop(other == this);
  }
  const ControlSite::Running running(Site());
  Raise(Click);
}

void OptionButton::Turn(bool on) {
  if (Assign(value_, on)) Tell(&OptionPeer::ValueChanged);
}

void OptionButton::UserClick() {
  if (IsReachable()) SetValue(true);
}

void OptionButton::UserArrow(bool forward) {
  std::vector<OptionButton*> group = Group();
  if (!forward) std::reverse(group.begin(), group.end());
  const auto here = std::find(group.begin(), group.end(), this);
  std::rotate(group.begin(), here, group.end());
  const auto next =
      std::find_if(group.begin() + 1, group.end(), [](const auto* option) { return option->IsReachable(); });
  if (!IsReachable() || next == group.end()) return;
  const ControlSite::Running running(Site());
  (*next)->SetFocus();
  (*next)->UserClick();
}

}  // namespace burrowmark
