#include "ui/check_box.h"

namespace burrowmark {

CheckBox::CheckBox(ControlParent& parent, std::wstring name, const Box& place, std::wstring caption)
    : ControlOf(parent, std::move(name), place), caption_(std::move(caption)) {}

void CheckBox::SetCaption(std::wstring caption) {
  if (Assign(caption_, std::move(caption))) Tell(&CheckBoxPeer::CaptionChanged);
}

void CheckBox::SetValue(CheckValue value) {
  if (!Assign(value_, value)) return;
  Tell(&CheckBoxPeer::ValueChanged);
  const ControlSite::Running running(Site());
  Raise(Click);
}

void CheckBox::UserClick() {
  if (IsReachable()) SetValue(value_ == kUnchecked ? kChecked : kUnchecked);
}

}  // namespace burrowmark
