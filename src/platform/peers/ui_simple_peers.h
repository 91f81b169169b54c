// Controls that show one value: labels, buttons and their like.
#pragma once

#include "platform/peers/ui_control.h"

namespace burrowmark {

enum class Alignment : std::uint8_t { kLeft, kRight, kCenter };

class LabelState : public virtual ControlState {
 public:
  virtual const std::wstring& Caption() const = 0;
  virtual Alignment TextAlignment() const = 0;
  // "&" underlines the character behind it, and Alt with that character goes to the next tab stop.
  virtual bool UseMnemonic() const = 0;

 protected:
  ~LabelState() = default;
};

class LabelPeer : public CaptionPeer {
 public:
  virtual void StyleChanged() = 0;  // alignment or mnemonic
};

class ButtonState : public virtual ControlState {
 public:
  virtual const std::wstring& Caption() const = 0;
  // Drawn as the one that the Enter key presses now.
  virtual bool ShowsDefault() const = 0;

  virtual void UserClick() = 0;

 protected:
  ~ButtonState() = default;
};

class ButtonPeer : public CaptionPeer {
 public:
  virtual void DefaultChanged() = 0;
};

class AnimationState : public virtual ControlState {
 public:
  virtual const std::wstring& File() const = 0;  // an AVI file; empty for none
  virtual bool Playing() const = 0;              // over and over

 protected:
  ~AnimationState() = default;
};

// A file that can't be shown leaves the place empty.
class AnimationPeer : public ControlPeer {
 public:
  virtual void FileChanged() = 0;
  virtual void PlayingChanged() = 0;
};

// Etched: horizontal if it is wider than high, and vertical otherwise.
class LineState : public virtual ControlState {
 protected:
  ~LineState() = default;
};

class LinePeer : public ControlPeer {};

enum class CheckValue : std::uint8_t { kUnchecked, kChecked, kGrayed };

class CheckBoxState : public virtual ControlState {
 public:
  virtual const std::wstring& Caption() const = 0;
  virtual CheckValue Value() const = 0;

  virtual void UserClick() = 0;

 protected:
  ~CheckBoxState() = default;
};

class CheckBoxPeer : public CaptionPeer {
 public:
  virtual void ValueChanged() = 0;
};

class OptionState : public virtual ControlState {
 public:
  virtual const std::wstring& Caption() const = 0;
  virtual bool Value() const = 0;

  virtual void UserClick() = 0;
  virtual void UserArrow(bool forward) = 0;

 protected:
  ~OptionState() = default;
};

class OptionPeer : public CaptionPeer {
 public:
  virtual void ValueChanged() = 0;
};

}  // namespace burrowmark
