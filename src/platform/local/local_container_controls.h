// What other controls are in, on the local machine.
#pragma once

#include "platform/local/local_control.h"

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

}  // namespace burrowmark
