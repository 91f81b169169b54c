// One message of the system as the seam has it.
#pragma once

#include <windows.h>

#include <optional>

#include "platform/win32/menus/menu_font.h"
#include "platform/window_system.h"

namespace burrowmark {

// A context that was handed to us for one drawing: text has no background and the menu's font, and afterwards all is as
// it was, since the system goes on to draw the arrow of a group. What was excluded from drawing stays so.
class BorrowedContext {
 public:
  BorrowedContext(HDC context, HFONT font);
  ~BorrowedContext();
  BorrowedContext(const BorrowedContext&) = delete;
  BorrowedContext& operator=(const BorrowedContext&) = delete;

 private:
  HDC context_;
  HGDIOBJ fontBefore_;
  int modeBefore_;
  COLORREF textColorBefore_;
};

// Decodes the records that a message points at, as long as it lives, and writes the answer of a measuring back.
class DecodedMessage {
 public:
  // `selectedState` is what every selected entry is drawn with.
  DecodedMessage(HWND window, UINT number, WPARAM wParam, LPARAM lParam, UINT selectedState, const MenuFont& font);
  DecodedMessage(const DecodedMessage&) = delete;
  DecodedMessage& operator=(const DecodedMessage&) = delete;

  // False for copied data that isn't a text.
  bool IsWhole() const { return whole_; }
  WindowMessage& Message() { return message_; }
  void WriteBack() const;

 private:
  void DecodeMeasure();
  void DecodeDraw(UINT selectedState, const MenuFont& font);
  void DecodeText();

  WindowMessage message_;
  MeasureRecord measure_;
  DrawRecord draw_;
  std::optional<BorrowedContext> context_;
  bool whole_ = true;
};

// The state of an entry as the program compares it: whether the bit for hidden keyboard cues comes with a selected
// entry hangs on the user's settings and on how the menu was opened.
UINT EntryState(UINT state, UINT selectedState);

}  // namespace burrowmark
