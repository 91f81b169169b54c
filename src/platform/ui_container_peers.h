// Controls that others are in, or on.
#pragma once

#include "platform/ui_control.h"

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

}  // namespace burrowmark
