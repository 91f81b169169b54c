// A border with a caption around the controls that are in it; these count their places from its corner.
#pragma once

#include "ui/control.h"

namespace burrowmark {

// Not a tab stop.
class Frame final : public ContainerOf<FrameState, FramePeer> {
 public:
  Frame(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view caption = {});

  const std::wstring& Caption() const override { return caption_; }
  void SetCaption(std::wstring_view caption);
  bool NamesNext() const override { return true; }

 private:
  std::wstring caption_;
};

}  // namespace burrowmark
