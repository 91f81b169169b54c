#include "ui/picture_box.h"

namespace burrowmark {

PictureBox::PictureBox(ControlParent& parent, const wchar_t* name, const Box& place)
    : ContainerOf(parent, name, place) {
  StartWithoutTabStop();
}

void PictureBox::SetIcon(std::int32_t number, std::int32_t size) {
  const bool another = Assign(icon_, number);
  if (Assign(iconSize_, size) || another) Tell(&PicturePeer::IconChanged);
}

void PictureBox::SetBackColor(std::int32_t systemColor) {
  if (Assign(backColor_, systemColor)) Tell(&PicturePeer::BackColorChanged);
}

void PictureBox::SetBorder(bool border) {
  if (Assign(border_, border)) Tell(&PicturePeer::BorderChanged);
}

}  // namespace burrowmark
