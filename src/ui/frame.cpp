#include "ui/frame.h"

namespace burrowmark {

Frame::Frame(ControlParent& parent, std::wstring name, const Box& place, std::wstring caption)
    : ContainerOf(parent, std::move(name), place), caption_(std::move(caption)) {
  StartWithoutTabStop();
}

void Frame::SetCaption(std::wstring caption) {
  if (Assign(caption_, std::move(caption))) Tell(&FramePeer::CaptionChanged);
}

}  // namespace burrowmark
