// A plane with a colour of its own, that may show an icon and hold other controls.
#pragma once

#include "ui/control.h"

namespace burrowmark {

// Not a tab stop.
class PictureBox final : public ContainerOf<PictureState, PicturePeer> {
 public:
  PictureBox(ControlParent& parent, const wchar_t* name, const Box& place);

  std::int32_t Icon() const override { return icon_; }
  std::int32_t IconSize() const override { return iconSize_; }
  // One of the program's icons in the middle, by its number, or 0 for none; the size in pixels of the design.
  void SetIcon(std::int32_t number, std::int32_t size);
  std::int32_t BackColor() const override { return backColor_; }
  void SetBackColor(std::int32_t systemColor);
  bool Border() const override { return border_; }
  void SetBorder(bool border);

 private:
  std::int32_t icon_ = 0;
  std::int32_t iconSize_ = 0;
  std::int32_t backColor_ = kColorButtonFace;
  bool border_ = false;
};

}  // namespace burrowmark
