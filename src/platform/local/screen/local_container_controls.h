// What other controls are in, on the local machine.
#pragma once

#include "platform/key_codes.h"
#include "platform/local/screen/local_control.h"

namespace burrowmark {

class LocalPicture final : public LocalControl<PicturePeer, PictureState> {
 public:
  LocalPicture(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, PictureState& picture)
      : LocalControl(process, desktop, parent, ShownKind::kPicture, picture) {
    Shown().useMnemonic = false;
    ShowAll();
  }
  void IconChanged() override { ShowAll(); }
  void BackColorChanged() override { ShowAll(); }
  void BorderChanged() override { ShowAll(); }

 private:
  void ShowAll() {
    Shown().icon = Control().Icon();
    Shown().backColor = Control().BackColor();
    Shown().border = Control().Border();
  }
};

class LocalFrame final : public LocalControl<FramePeer, FrameState> {
 public:
  LocalFrame(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, FrameState& frame)
      : LocalControl(process, desktop, parent, ShownKind::kFrame, frame) {
    CaptionChanged();
  }
  void CaptionChanged() override { Shown().text = Control().Caption(); }
  Size NeededSize() const override { return NeededByText(Control().Caption(), {300, 0}); }
};

class LocalTabStrip final : public LocalControl<TabStripPeer, TabStripState> {
 public:
  LocalTabStrip(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, TabStripState& strip)
      : LocalControl(process, desktop, parent, ShownKind::kTabStrip, strip) {
    Shown().useMnemonic = false;
    Shown().items = strip.Tabs();
    Shown().UserChoose = [&strip](std::int32_t index) { strip.UserSelect(index + 1); };
    Shown().PressKey = [&strip](std::int32_t keyCode, std::int32_t) {
      const std::int32_t steps = (keyCode == kKeyCodeRight ? 1 : 0) - (keyCode == kKeyCodeLeft ? 1 : 0);
      if (steps != 0) strip.UserSelect(strip.SelectedTab() + steps);
    };
    SelectedTabChanged();
  }
  void SelectedTabChanged() override { Shown().index = Control().SelectedTab() - 1; }
  Box AreaBelow() const override {
    constexpr Box kAround{60, 375, 120, 435};
    const Box& place = Control().Place();
    return {place.left + kAround.left, place.top + kAround.top, place.width - kAround.width,
            place.height - kAround.height};
  }
};

}  // namespace burrowmark
