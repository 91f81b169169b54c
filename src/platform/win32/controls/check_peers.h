// Check boxes and options as the system has them.
#pragma once

#include "platform/win32/windows/child_window.h"

namespace burrowmark {

class Win32CheckBox final : public ChildPeer<CheckBoxPeer> {
 public:
  Win32CheckBox(const ChildPlace& place, CheckBoxState& box);
  void CaptionChanged() override { SetText(box_.Caption()); }
  void ValueChanged() override;
  Size NeededSize() const override;

 private:
  void Command(UINT notification) override;

  CheckBoxState& box_;
};

class Win32Option final : public ChildPeer<OptionPeer> {
 public:
  Win32Option(const ChildPlace& place, OptionState& option);
  void CaptionChanged() override { SetText(option_.Caption()); }
  void ValueChanged() override;
  Size NeededSize() const override;

 private:
  void Command(UINT notification) override;
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  using ChildWindow::Handle;

  OptionState& option_;
};

}  // namespace burrowmark
