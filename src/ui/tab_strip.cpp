#include "ui/tab_strip.h"

#include "platform/key_codes.h"

namespace burrowmark {

TabStrip::TabStrip(ControlParent& parent, const wchar_t* name, const Box& place, std::vector<std::wstring> tabs)
    : ControlOf(parent, name, place), tabs_(std::move(tabs)), selected_(tabs_.empty() ? 0 : 1) {}

void TabStrip::SetSelectedTab(std::int32_t tab) {
  if (tab < 1 || tab > static_cast<std::int32_t>(tabs_.size()) || !Assign(selected_, tab)) return;
  Tell(&TabStripPeer::SelectedTabChanged);
  const ControlSite::Running running(Site());
  Raise(Click);
}

Box TabStrip::AreaBelow() const {
  const TabStripPeer* peer = KindsPeer();
  return peer == nullptr ? Place() : peer->AreaBelow();
}

void TabStrip::UserSelect(std::int32_t tab) {
  if (IsReachable()) SetSelectedTab(tab);
}

bool TabStrip::UserFormKey(std::int32_t keyCode, std::int32_t shift) {
  const auto count = static_cast<std::int32_t>(tabs_.size());
  if (keyCode != kKeyCodeTab || (shift & ~kShiftMask) != kCtrlMask || count == 0 || !IsReachable()) return false;
  const std::int32_t steps = (shift & kShiftMask) != 0 ? count - 1 : 1;
  UserSelect((selected_ - 1 + steps) % count + 1);
  return true;
}

}  // namespace burrowmark
