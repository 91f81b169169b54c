// Controls that the user enters something in: text boxes and combo boxes.
#pragma once

#include <string>
#include <vector>

#include "platform/peers/ui_control.h"

namespace burrowmark {

// Characters of a text, counted from 0.
struct TextSelection {
  std::int32_t start = 0;
  std::int32_t length = 0;  // 0: nothing is selected, and the caret stands at the start
  friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

class TextBoxState : public virtual ControlState {
 public:
  virtual const std::wstring& Text() const = 0;  // its lines end with "\r\n"
  virtual const TextSelection& Selection() const = 0;
  virtual bool MultiLine() const = 0;  // neither this nor the next changes while there is a peer
  virtual bool ScrollBar() const = 0;  // of a box of many lines
  virtual bool ReadOnly() const = 0;
  virtual std::int32_t MaxLength() const = 0;  // characters that the user can bring it to; 0: as many as he likes

  // What stands in it now, after the user changed the text or the selection.
  virtual void UserText(const std::wstring& text, const TextSelection& selection) = 0;
  // Typed or pasted: it takes the place of what is selected.
  virtual void UserType(const std::wstring& text) = 0;

 protected:
  ~TextBoxState() = default;
};

class TextBoxPeer : public ControlPeer {
 public:
  virtual void TextChanged() = 0;  // and perhaps the selection
  virtual void SelectionChanged() = 0;
  virtual void ReadOnlyChanged() = 0;
  virtual void MaxLengthChanged() = 0;
};

class ComboBoxState : public virtual ControlState {
 public:
  virtual const std::vector<std::wstring>& Items() const = 0;
  virtual std::int32_t ListIndex() const = 0;  // from 0; -1 for none

  virtual void UserChoose(std::int32_t index) = 0;

 protected:
  ~ComboBoxState() = default;
};

// Its list opens for up to twelve entries at a time. While it is open keys go nowhere else, save for Tab; a click or
// Enter chooses, which is told when it has closed, and Esc gives up.
class ComboBoxPeer : public ControlPeer {
 public:
  virtual void ItemAdded() = 0;  // the last one
  virtual void ItemsChanged() = 0;
  virtual void IndexChanged() = 0;
};

}  // namespace burrowmark
