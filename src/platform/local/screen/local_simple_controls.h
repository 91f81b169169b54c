// Labels, buttons and their like on the local machine.
#pragma once

#include "platform/key_codes.h"
#include "platform/local/screen/local_control.h"

namespace burrowmark {

class LocalLabel final : public LocalControl<LabelPeer, LabelState> {
 public:
  LocalLabel(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, LabelState& label)
      : LocalControl(process, desktop, parent, ShownKind::kLabel, label) {
    ShowAll();
  }
  void CaptionChanged() override { ShowAll(); }
  void StyleChanged() override { ShowAll(); }
  Size NeededSize() const override { return NeededByText(Control().Caption(), {}, Control().Place().width); }

 private:
  void ShowAll() {
    Shown().text = Control().Caption();
    Shown().alignment = Control().TextAlignment();
    Shown().useMnemonic = Control().UseMnemonic();
  }
};

class LocalButton final : public LocalControl<ButtonPeer, ButtonState> {
 public:
  LocalButton(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ButtonState& button)
      : LocalControl(process, desktop, parent, ShownKind::kButton, button) {
    Shown().UserClick = [&button] { button.UserClick(); };
    ShowAll();
  }
  void CaptionChanged() override { ShowAll(); }
  void DefaultChanged() override { ShowAll(); }
  Size NeededSize() const override { return NeededByText(Control().Caption(), {150, 90}); }

 private:
  void ShowAll() {
    Shown().text = Control().Caption();
    Shown().isDefault = Control().ShowsDefault();
  }
};

class LocalAnimation final : public LocalControl<AnimationPeer, AnimationState> {
 public:
  LocalAnimation(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, AnimationState& animation)
      : LocalControl(process, desktop, parent, ShownKind::kAnimation, animation) {
    Shown().useMnemonic = false;
    ShowAll();
  }
  void FileChanged() override { ShowAll(); }
  void PlayingChanged() override { ShowAll(); }

 private:
  void ShowAll() {
    const bool there = HasFile(Control().File());
    Shown().text = there ? Control().File() : L"";
    Shown().playing = there && Control().Playing();
  }
};

class LocalLine final : public LocalControl<LinePeer, LineState> {
 public:
  LocalLine(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, LineState& line)
      : LocalControl(process, desktop, parent, ShownKind::kLine, line) {}
};

// Glyph and gap to the left of a text.
inline constexpr Size kAroundCheckText{300, 30};

class LocalCheckBox final : public LocalControl<CheckBoxPeer, CheckBoxState> {
 public:
  LocalCheckBox(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, CheckBoxState& box)
      : LocalControl(process, desktop, parent, ShownKind::kCheckBox, box) {
    Shown().UserClick = [&box] { box.UserClick(); };
    CaptionChanged();
    ValueChanged();
  }
  void CaptionChanged() override { Shown().text = Control().Caption(); }
  void ValueChanged() override { Shown().check = Control().Value(); }
  Size NeededSize() const override { return NeededByText(Control().Caption(), kAroundCheckText); }
};

class LocalOption final : public LocalControl<OptionPeer, OptionState> {
 public:
  LocalOption(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, OptionState& option)
      : LocalControl(process, desktop, parent, ShownKind::kOption, option) {
    Shown().UserClick = [&option] { option.UserClick(); };
    Shown().PressKey = [&option](std::int32_t keyCode, std::int32_t) {
      if (keyCode >= kKeyCodeLeft && keyCode <= kKeyCodeDown) option.UserArrow(keyCode >= kKeyCodeRight);
    };
    CaptionChanged();
    ValueChanged();
  }
  void CaptionChanged() override { Shown().text = Control().Caption(); }
  void ValueChanged() override { Shown().check = Control().Value() ? CheckValue::kChecked : CheckValue::kUnchecked; }
  Size NeededSize() const override { return NeededByText(Control().Caption(), kAroundCheckText); }
};

}  // namespace burrowmark
