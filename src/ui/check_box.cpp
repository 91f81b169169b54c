#include "ui/check_box.h"

namespace burrowmark {

CheckBox::CheckBox(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption)
    : ControlOf(parent, name, place), caption_(caption) {}

void CheckBox::SetCaption(std::wstring_view caption) {
  if (Assign(caption_, std::wstring(caption))) Tell(&CheckBoxPeer::CaptionChanged);
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
