// What the person does in the lists and trees of a window.
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "platform/local/person/shown_drag.h"
#include "platform/local/person/shown_window.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kMiddleOfRow = kShownRowHeight / 2;
constexpr std::int32_t kInText = 5;

MouseEvent EventAt(std::int32_t x, std::int32_t y, std::int32_t button, std::int32_t shift = 0) {
  return {button, shift, ToTwips(x, kDesignDpi), ToTwips(y, kDesignDpi)};
}

MouseEvent EventAt(const ShownList& list, std::int32_t row, std::int32_t button, std::int32_t shift) {
  if (row >= static_cast<std::int32_t>(list.rows.size())) throw std::logic_error("there is no such row");
  return EventAt(kShownIconWidth + kInText, list.TopOf(row) + kMiddleOfRow, button, shift);
}

ShownNode* Named(const ShownTree& tree, const std::wstring& text) {
  ShownNode* node = tree.Find(text);
  if (node == nullptr && !text.empty()) throw std::logic_error("no such node can be seen: " + ToUtf8(text));
  return node;
}

MouseEvent EventAt(const ShownTree& tree, const std::wstring& text, std::int32_t button, std::int32_t shift) {
  const ShownNode* node = Named(tree, text);
  return EventAt((node == nullptr ? 0 : node->Left()) + kInText, tree.TopOf(node) + kMiddleOfRow, button, shift);
}

}  // namespace

ShownControl* ShownWindow::Edited() const {
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [](const auto& control) { return control->labelEdit.has_value(); });
  return found == controls.end() ? nullptr : found->get();
}

ShownControl& ShownWindow::Get(WindowHandle control) const {
  ShownControl* found = WithWindow(control);
  if (found == nullptr || !CanBeUsed(*found)) throw std::logic_error("there is no such control to be used");
  return *found;
}

ShownControl& ShownWindow::GetList(WindowHandle control) const {
  ShownControl& list = Get(control);
  if (!list.list) throw std::logic_error("that control is no list");
  return list;
}

ShownControl& ShownWindow::GetTree(WindowHandle control) const {
  ShownControl& tree = Get(control);
  if (!tree.tree) throw std::logic_error("that control is no tree");
  return tree;
}

void ShownWindow::Press(WindowHandle control, const MouseEvent& event) {
  Mouse(control, MouseAction::kDown, event);
  if (WithWindow(control) != nullptr && IsOpen() && visible && enabled) Mouse(control, MouseAction::kUp, event);
}

void ShownWindow::PressTwice(WindowHandle control, const MouseEvent& event) {
  Press(control, event);
  Do([this, control, event] {
    const ShownControl* pressed = WithWindow(control);
    if (pressed == nullptr) return;
    const auto door = pressed->list ? pressed->list->DoubleClick : pressed->tree->DoubleClick;
    if (door) door(event);
  });
}

void ShownWindow::ClickRow(WindowHandle list, std::int32_t row, std::int32_t button, std::int32_t shift) {
  Press(list, EventAt(*GetList(list).list, row, button, shift));
}

void ShownWindow::DoubleClickRow(WindowHandle list, std::int32_t row) {
  PressTwice(list, EventAt(*GetList(list).list, row, kLeftButton, 0));
}

void ShownWindow::CheckRow(WindowHandle list, std::int32_t row) {
  Do([door = GetList(list).list->Check, row] {
    if (door) door(row);
  });
}

void ShownWindow::ClickColumn(WindowHandle list, std::int32_t column) {
  Do([door = GetList(list).list->ClickColumn, column] {
    if (door) door(column);
  });
}

void ShownWindow::DragColumn(WindowHandle list, std::int32_t column, std::int32_t width) {
  Do([door = GetList(list).list->DragColumn, column, width] {
    if (door) door(column, width);
  });
}

void ShownWindow::ClickNode(WindowHandle tree, const std::wstring& text, std::int32_t button, std::int32_t shift) {
  Press(tree, EventAt(*GetTree(tree).tree, text, button, shift));
}

void ShownWindow::DoubleClickNode(WindowHandle tree, const std::wstring& text) {
  PressTwice(tree, EventAt(*GetTree(tree).tree, text, kLeftButton, 0));
}

// The press selects what it selects, and is let go by the drag.
void ShownWindow::DragFrom(WindowHandle control, const MouseEvent& event,
                           const std::function<void(ShownDrag& drag)>& way) {
  Do([this, control, event, way] {
    if (const auto door = Get(control).UserMouse) door(MouseAction::kDown, event);
    const ShownControl* pressed = WithWindow(control);
    const auto start = pressed == nullptr ? nullptr : pressed->UserStartDrag;
    if (!start) return;
    start([&way](std::uint32_t allowed) {
      ShownDrag drag(allowed);
      way(drag);
      return drag.GiveUp();
    });
  });
}

void ShownWindow::DragRow(WindowHandle list, std::int32_t row, const std::function<void(ShownDrag& drag)>& way) {
  DragFrom(list, EventAt(*GetList(list).list, row, kLeftButton, 0), way);
}

void ShownWindow::DragNode(WindowHandle tree, const std::wstring& text,
                           const std::function<void(ShownDrag& drag)>& way) {
  DragFrom(tree, EventAt(*GetTree(tree).tree, text, kLeftButton, 0), way);
}

// --- what is dragged

void ShownDrag::Move(const ShownWindow& window, WindowHandle control, const MouseEvent& at) {
  event_.shift = at.shift;
  event_.x = at.x;
  event_.y = at.y;
  std::shared_ptr<ShownControl> under = window.Shared(control);
  if (under != nullptr && !under->oleDrop) under = nullptr;
  if (under != over_) Leave();
  const bool enters = over_ == nullptr;
  over_ = under;
  const auto door = over_ == nullptr ? nullptr : over_->UserDragOver;
  Effect = door ? door(event_, enters ? DragState::kEnter : DragState::kOver) : kEffectNone;
}

void ShownDrag::OverRow(const ShownWindow& window, WindowHandle list, std::int32_t row, std::int32_t shift) {
  Move(window, list, EventAt(*window.Shared(list)->list, row, 0, shift));
}

void ShownDrag::OverNode(const ShownWindow& window, WindowHandle tree, const std::wstring& text, std::int32_t shift) {
  Move(window, tree, EventAt(*window.Shared(tree)->tree, text, 0, shift));
}

void ShownDrag::Over(const ShownWindow& window, WindowHandle control) { Move(window, control, {}); }

void ShownDrag::Leave() {
  const auto door = over_ == nullptr ? nullptr : over_->UserDragOver;
  over_ = nullptr;
  Effect = kEffectNone;
  if (door) door(event_, DragState::kLeave);
}

// Where nothing would be done with it, it leaves.
void ShownDrag::Drop() {
  const auto door = over_ == nullptr || Effect == kEffectNone ? nullptr : over_->UserDragDrop;
  if (!door) return Leave();
  over_ = nullptr;
  Effect = door(event_, files_);
}

std::uint32_t ShownDrag::GiveUp() {
  if (over_ != nullptr) Leave();
  return Effect;
}

void ShownWindow::CheckNode(WindowHandle tree, const std::wstring& text) {
  const std::shared_ptr<ShownTree> shown = GetTree(tree).tree;
  Do([shown, node = Named(*shown, text)] {
    const auto door = shown->Check;
    if (door && node != nullptr) door(*node);
  });
}

void ShownWindow::ToggleNode(WindowHandle tree, const std::wstring& text) {
  const ShownTree& shown = *GetTree(tree).tree;
  const ShownNode* node = Named(shown, text);
  if (node == nullptr || node->children.empty()) throw std::logic_error("that node has no button");
  Press(tree, EventAt(node->Left() - kInText, shown.TopOf(node) + kMiddleOfRow, kLeftButton));
}

void ShownWindow::TypeLabel(const std::wstring& text) {
  Do([this, text] {
    ShownControl* edited = Edited();
    if (edited == nullptr) throw std::logic_error("no label is being edited");
    edited->labelEdit = text;
  });
}

void ShownWindow::RunEditKey(ShownControl& edited, std::int32_t keyCode) {
  const auto door = edited.EndLabelEdit;
  if (keyCode != kKeyCodeReturn && keyCode != kKeyCodeEscape) return;
  const std::optional<std::wstring> text = std::exchange(edited.labelEdit, std::nullopt);
  if (door) door(keyCode == kKeyCodeReturn ? text : std::nullopt);
}

}  // namespace burrowmark
