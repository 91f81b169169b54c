// Controls as the system has them.
#pragma once

#include "platform/win32/windows/child_window.h"

namespace burrowmark {

class Win32Label final : public ChildPeer<LabelPeer> {
 public:
  Win32Label(const ChildPlace& place, LabelState& label);
  void CaptionChanged() override { SetText(label_.Caption()); }
  void StyleChanged() override;
  void ToolTipChanged() override;
  Size NeededSize() const override;

 private:
  void HearMouse() const;

  LabelState& label_;
};

class Win32Button final : public ChildPeer<ButtonPeer> {
 public:
  Win32Button(const ChildPlace& place, ButtonState& button);
  void CaptionChanged() override { SetText(button_.Caption()); }
  void DefaultChanged() override;
  Size NeededSize() const override;

 private:
  void Command(UINT notification) override;

  ButtonState& button_;
};

class Win32Animation final : public ChildPeer<AnimationPeer> {
 public:
  Win32Animation(const ChildPlace& place, AnimationState& animation);
  void FileChanged() override;
  void PlayingChanged() override;

 private:
  AnimationState& animation_;
};

class Win32Line final : public ChildPeer<LinePeer> {
 public:
  Win32Line(const ChildPlace& place, LineState& line);
};

}  // namespace burrowmark
