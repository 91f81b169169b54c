// A text that the user can change, of one line or of many.
#pragma once

#include <functional>
#include <string>

#include "ui/control.h"

namespace burrowmark {

class TextBox final : public ControlOf<TextBoxState, TextBoxPeer> {
 public:
  TextBox(ControlParent& parent, const wchar_t* name, const Box& place, std::wstring_view text = {});

  // The text is another one, whoever changed it.
  std::function<void()> Change;

  const std::wstring& Text() const override { return text_; }
  // Every end of a line becomes "\r\n", and the caret stands in front of the text. Code may go beyond MaxLength.
  void SetText(const std::wstring& text);
  // With lines that wrap, and Enter begins one; with a vertical scroll bar unless that is turned off. Both hold from
  // the next making of the window.
  bool MultiLine() const override { return multiLine_; }
  void SetMultiLine(bool multiLine) { multiLine_ = multiLine; }
  bool ScrollBar() const override { return scrollBar_; }
  void SetScrollBar(bool on) { scrollBar_ = on; }
  bool ReadOnly() const override { return readOnly_; }
  void SetReadOnly(bool readOnly);
  std::int32_t MaxLength() const override { return maxLength_; }
  void SetMaxLength(std::int32_t characters);

  std::int32_t SelStart() const { return selection_.start; }
  std::int32_t SelLength() const { return selection_.length; }
  const TextSelection& Selection() const override { return selection_; }
  // What isn't there isn't selected.
  void SetSelection(std::int32_t start, std::int32_t length);
  void SelectAll();

  bool UsesKey(std::int32_t keyCode, std::int32_t shift) const override;

  void UserText(const std::wstring& text, const TextSelection& selection) override;
  void UserType(const std::wstring& text) override;

 private:
  TextSelection Within(std::int32_t start, std::int32_t length) const;
  void Changed();

  std::wstring text_;
  TextSelection selection_;
  bool multiLine_ = false;
  bool scrollBar_ = true;
  bool readOnly_ = false;
  std::int32_t maxLength_ = 0;
};

}  // namespace burrowmark
