#include "platform/local/person/shown_views.h"

#include <algorithm>

namespace burrowmark {
namespace {

void AddVisible(const ShownNode& parent, std::vector<ShownNode*>& visible) {
  for (const auto& child : parent.children) {
    visible.push_back(child.get());
    if (child->expanded) AddVisible(*child, visible);
  }
}

}  // namespace

// --- list

std::int32_t ShownList::TopOf(std::int32_t row) const {
  const std::int32_t above = row < 0 ? static_cast<std::int32_t>(rows.size()) : row;
  return (view == ListViewMode::kReport ? kShownHeaderHeight : 0) + above * kShownRowHeight;
}

std::int32_t ShownList::RowAt(std::int32_t y) const {
  if (y < TopOf(0) || y >= TopOf(-1)) return -1;
  return (y - TopOf(0)) / kShownRowHeight;
}

void ShownList::Retire() {
  DoubleClick = nullptr;
  Check = nullptr;
  ClickColumn = nullptr;
  DragColumn = nullptr;
}

// --- tree

std::int32_t ShownNode::Level() const {
  std::int32_t level = -1;
  for (const ShownNode* above = parent; above != nullptr; above = above->parent) ++level;
  return level;
}

std::int32_t ShownNode::Right() const {
  return Left() + kShownIconWidth + static_cast<std::int32_t>(text.size()) * kShownLetterWidth;
}

std::vector<ShownNode*> ShownTree::Visible() const {
  std::vector<ShownNode*> visible;
  AddVisible(top, visible);
  return visible;
}

ShownNode* ShownTree::RowAt(std::int32_t y) const {
  const std::vector<ShownNode*> visible = Visible();
  const auto row = static_cast<std::size_t>(y / kShownRowHeight);
  return y < 0 || row >= visible.size() ? nullptr : visible[row];
}

ShownNode* ShownTree::NodeAt(std::int32_t x, std::int32_t y) const {
  ShownNode* node = RowAt(y);
  return node != nullptr && x >= node->Left() && x < node->Right() ? node : nullptr;
}

std::int32_t ShownTree::TopOf(const ShownNode* node) const {
  const std::vector<ShownNode*> visible = Visible();
  const auto at = std::find(visible.begin(), visible.end(), node);
  return static_cast<std::int32_t>(at - visible.begin()) * kShownRowHeight;
}

ShownNode* ShownTree::Find(const std::wstring& text) const {
  for (ShownNode* node : Visible()) {
    if (node->text == text) return node;
  }
  return nullptr;
}

void ShownTree::Retire() {
  DoubleClick = nullptr;
  Check = nullptr;
}

}  // namespace burrowmark
