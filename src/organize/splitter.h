// The bar between the editor's panes, which the mouse drags.
#pragma once

#include <optional>

#include "ui/form.h"
#include "ui/picture_box.h"

namespace burrowmark {

class Splitter {
 public:
  explicit Splitter(Form& form);

  PictureBox Picture1;  // the bar, while it is dragged

  // The band between the panes, in which the form itself has the mouse.
  void SetBounds(std::int32_t left, std::int32_t right, std::int32_t top, std::int32_t height);
  bool Dragging() const { return dragging_; }
  void CancelDrag();
  void ResetCursor();

  void MouseDown(const MouseEvent& event);
  void MouseMove(const MouseEvent& event);
  // Where the bar was let go, if it was dragged.
  std::optional<std::int32_t> MouseUp(const MouseEvent& event);

 private:
  bool IsOver(std::int32_t x) const { return x >= left_ && x <= right_; }
  void MoveBar(std::int32_t x);

  Form& form_;
  std::int32_t left_ = 0;
  std::int32_t right_ = 0;
  bool dragging_ = false;
  bool cursorSet_ = false;
};

}  // namespace burrowmark
