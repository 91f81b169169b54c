#include "organize/splitter.h"

#include <utility>

namespace burrowmark {

Splitter::Splitter(Form& form) : Picture1(form, L"Picture1", Box{}), form_(form) {
  Picture1.SetVisible(false);
  Picture1.SetBackColor(kColorShadow);
}

void Splitter::SetBounds(std::int32_t left, std::int32_t right, std::int32_t top, std::int32_t height) {
  left_ = left;
  right_ = right;
  Picture1.SetPlace({Picture1.Place().left, top, right - left, height});
}

void Splitter::MoveBar(std::int32_t x) {
  Box bar = Picture1.Place();
  bar.left = x;
  Picture1.SetPlace(bar);
}

void Splitter::MouseDown(const MouseEvent& event) {
  if (!IsOver(event.x) || dragging_) return;
  MoveBar(event.x);
  Picture1.SetVisible(true);
  dragging_ = true;
}

void Splitter::MouseMove(const MouseEvent& event) {
  if (IsOver(event.x)) {
    form_.SetMousePointer(kPointerSizeWE);
    cursorSet_ = true;
  } else if (!dragging_) {
    ResetCursor();
  }
  if (dragging_) MoveBar(event.x);
}

std::optional<std::int32_t> Splitter::MouseUp(const MouseEvent& event) {
  if (!dragging_) return std::nullopt;
  CancelDrag();
  return event.x;
}

void Splitter::CancelDrag() {
  Picture1.SetVisible(false);
  dragging_ = false;
}

void Splitter::ResetCursor() {
  if (std::exchange(cursorSet_, false)) form_.SetMousePointer(kPointerDefault);
}

}  // namespace burrowmark
