// A text that the user can't change.
#pragma once

#include "ui/control.h"

namespace burrowmark {

class Label final : public ControlOf<LabelState, LabelPeer> {
 public:
  Label(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption = {});
  // One that shows nowhere: screen readers call the control behind it so.
  Label(ControlParent& parent, const wchar_t* spoken);

  const std::wstring& Caption() const override { return caption_; }
  void SetCaption(std::wstring_view caption);
  Alignment TextAlignment() const override { return alignment_; }
  void SetTextAlignment(Alignment alignment);
  bool UseMnemonic() const override { return useMnemonic_; }
  void SetUseMnemonic(bool use);
  bool NamesNext() const override { return true; }

 private:
  std::wstring caption_;
  Alignment alignment_ = Alignment::kLeft;
  bool useMnemonic_ = true;
};

}  // namespace burrowmark
