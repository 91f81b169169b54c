#include "ui/frame.h"

namespace burrowmark {

Frame::Frame(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption)
    : ContainerOf(parent, name, place), caption_(caption) {
  StartWithoutTabStop();
}

void Frame::SetCaption(std::wstring_view caption) {
  if (Assign(caption_, std::wstring(caption))) Tell(&FramePeer::CaptionChanged);
}

}  // namespace burrowmark
