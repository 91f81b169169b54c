// Controls that others are in, or on.
#pragma once

#include <string>
#include <vector>

#include "platform/peers/ui_control.h"

namespace burrowmark {

// System colours that a background can have (winuser.h).
inline constexpr std::int32_t kColorWindow = 5;
inline constexpr std::int32_t kColorButtonFace = 15;

class PictureState : public virtual ControlState {
 public:
  virtual std::int32_t Icon() const = 0;       // number of the program's icon, in the middle; 0 for none
  virtual std::int32_t IconSize() const = 0;   // pixels of the design
  virtual std::int32_t BackColor() const = 0;  // index of a system colour; also behind the texts that are in it
  virtual bool Border() const = 0;             // a thin sunken line, within which everything else lies

 protected:
  ~PictureState() = default;
};

class PicturePeer : public ControlPeer {
 public:
  virtual void IconChanged() = 0;
  virtual void BackColorChanged() = 0;
  virtual void BorderChanged() = 0;
};

class FrameState : public virtual ControlState {
 public:
  // "&" underlines the character behind it, and Alt with that character goes to the next tab stop.
  virtual const std::wstring& Caption() const = 0;

 protected:
  ~FrameState() = default;
};

class FramePeer : public CaptionPeer {};

class TabStripState : public virtual ControlState {
 public:
  virtual const std::vector<std::wstring>& Tabs() const = 0;
  virtual std::int32_t SelectedTab() const = 0;  // from 1; 0 where there are no tabs

  virtual void UserSelect(std::int32_t tab) = 0;

 protected:
  ~TabStripState() = default;
};

class TabStripPeer : public ControlPeer {
 public:
  virtual void SelectedTabChanged() = 0;
  // What is free below the tabs, within what the strip is in.
  virtual Box AreaBelow() const = 0;
};

}  // namespace burrowmark
