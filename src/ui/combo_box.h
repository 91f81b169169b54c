// A list that drops down to choose one of its entries.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/control.h"

namespace burrowmark {

// Entries count from 0; -1 is none.
class ComboBox final : public ControlOf<ComboBoxState, ComboBoxPeer> {
 public:
  ComboBox(ControlParent& parent, const wchar_t* name, const Box& place);

  // Another entry is chosen, whoever did that; not where the list is cleared. What the user passes in the open list
  // isn't chosen until that closes, and Esc closes it as it was. With a closed list each arrow key is a choice.
  std::function<void()> Click;

  void AddItem(std::wstring text);  // at the end
  void Clear();
  std::int32_t ListCount() const { return static_cast<std::int32_t>(items_.size()); }
  // Empty for an entry that isn't there.
  const std::wstring& List(std::int32_t index) const;
  const std::vector<std::wstring>& Items() const override { return items_; }
  std::int32_t ListIndex() const override { return index_; }
  // An entry that isn't there changes nothing.
  void SetListIndex(std::int32_t index);
  // The chosen entry's text; empty for none.
  const std::wstring& Text() const { return List(index_); }

  bool UsesKey(std::int32_t keyCode, std::int32_t shift) const override;

  void UserChoose(std::int32_t index) override;

 private:
  std::vector<std::wstring> items_;
  std::int32_t index_ = -1;
};

}  // namespace burrowmark
