#include "ui/combo_box.h"

#include "platform/key_codes.h"

namespace burrowmark {

ComboBox::ComboBox(ControlParent& parent, const wchar_t* name, const Box& place) : ControlOf(parent, name, place) {}

void ComboBox::AddItem(std::wstring text) {
  items_.push_back(std::move(text));
  Tell(&ComboBoxPeer::ItemAdded);
}

void ComboBox::Clear() {
  if (items_.empty()) return;
  items_.clear();
  index_ = -1;
  Tell(&ComboBoxPeer::ItemsChanged);
}

const std::wstring& ComboBox::List(std::int32_t index) const {
  static const std::wstring none;
  return index < 0 || index >= ListCount() ? none : items_[static_cast<std::size_t>(index)];
}

void ComboBox::SetListIndex(std::int32_t index) {
  if (index < -1 || index >= ListCount() || !Assign(index_, index)) return;
  Tell(&ComboBoxPeer::IndexChanged);
  const ControlSite::Running running(Site());
  Raise(Click);
}

bool ComboBox::UsesKey(std::int32_t keyCode, std::int32_t shift) const {
  const bool moves = keyCode >= kKeyCodePageUp && keyCode <= kKeyCodeDown;
  return (shift & kCtrlMask) == 0 && (moves || keyCode == kKeyCodeF4);
}

void ComboBox::UserChoose(std::int32_t index) {
  if (IsReachable()) SetListIndex(index);
}

}  // namespace burrowmark
