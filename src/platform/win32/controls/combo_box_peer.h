// Combo boxes as the system has them.
#pragma once

#include "platform/win32/windows/child_window.h"

namespace burrowmark {

class Win32ComboBox final : public ChildPeer<ComboBoxPeer> {
 public:
  Win32ComboBox(const ChildPlace& place, ComboBoxState& box);
  void ItemAdded() override;
  void ItemsChanged() override;
  void IndexChanged() override;

 private:
  void Command(UINT notification) override;
  int NativeHeight(int height) const override;

  void Choose();
  void Closed();

  ComboBoxState& box_;
  bool givenUp_ = false;  // the list that closes
};

}  // namespace burrowmark
