// What the user enters something in, on the local machine.
#pragma once

#include "platform/local/screen/local_control.h"

namespace burrowmark {

class LocalTextBox final : public LocalControl<TextBoxPeer, TextBoxState> {
 public:
  LocalTextBox(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, TextBoxState& box);
  void TextChanged() override { ShowAll(); }
  void SelectionChanged() override { ShowAll(); }
  void ReadOnlyChanged() override { ShowAll(); }
  void MaxLengthChanged() override {}

 private:
  void Press(std::int32_t keyCode, std::int32_t shift);
  void Erase(std::int32_t start, std::int32_t length);
  void MoveCaret(std::int32_t to, std::int32_t selected = 0);
  void Report(const std::wstring& text, const TextSelection& selection);
  void ShowAll();
};

class LocalComboBox final : public LocalControl<ComboBoxPeer, ComboBoxState> {
 public:
  LocalComboBox(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ComboBoxState& box);
  void ItemAdded() override { ItemsChanged(); }
  void ItemsChanged() override;
  void IndexChanged() override;

 private:
  void Press(std::int32_t keyCode, std::int32_t shift);
  void PressInList(std::int32_t keyCode, std::int32_t shift);
  void Mark(std::int32_t index);
  void Close(bool choose);
};

}  // namespace burrowmark
