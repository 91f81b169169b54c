// What lists and trees of the local machine show. It is laid out plainly and never scrolls: one row below the other.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/peers/ui_view_peers.h"

namespace burrowmark {

// Pixels at 96 dots per inch.
inline constexpr std::int32_t kShownRowHeight = 17;
inline constexpr std::int32_t kShownHeaderHeight = 24;  // of a list with columns
inline constexpr std::int32_t kShownIndent = 19;        // of a node to what it is in; its button stands there
inline constexpr std::int32_t kShownIconWidth = 20;     // in front of a node's text
inline constexpr std::int32_t kShownLetterWidth = 7;    // of a node's text

struct ShownList {
  ListViewMode view = ListViewMode::kReport;
  bool gridLines = false;
  bool multiSelect = true;
  bool checkBoxes = false;
  std::vector<ListColumn> columns;
  std::vector<ListItemState> rows;
  std::int32_t current = -1;
  std::int32_t drop = -1;

  // -1 if no row is that far down; pixels at 96 dots per inch, as all that follow.
  std::int32_t RowAt(std::int32_t y) const;
  // Where a row begins, or the empty space below the rows for -1.
  std::int32_t TopOf(std::int32_t row) const;

  // What the person does; empty once the control has gone.
  std::function<void(const MouseEvent&)> DoubleClick;  // the second press and its end
  std::function<void(std::int32_t row)> Check;
  std::function<void(std::int32_t column)> ClickColumn;
  std::function<void(std::int32_t column, std::int32_t width)> DragColumn;
  void Retire();
};

struct ShownNode {
  TreeNodeState* state = nullptr;  // tells nodes apart
  std::wstring text;
  std::int32_t image = 0;
  bool expanded = false;
  bool checked = false;
  bool ghosted = false;
  ShownNode* parent = nullptr;
  std::vector<std::unique_ptr<ShownNode>> children;

  std::int32_t Level() const;
  // Where its text begins and ends.
  std::int32_t Left() const { return (Level() + 1) * kShownIndent; }
  std::int32_t Right() const;
};

struct ShownTree {
  bool checkBoxes = false;
  ShownNode top;  // holds the roots and isn't shown
  ShownNode* selected = nullptr;
  ShownNode* drop = nullptr;

  // Those that no closed node hides, from top to bottom.
  std::vector<ShownNode*> Visible() const;
  ShownNode* RowAt(std::int32_t y) const;
  ShownNode* NodeAt(std::int32_t x, std::int32_t y) const;
  // The end of all rows for none.
  std::int32_t TopOf(const ShownNode* node) const;
  // The first visible one with a text.
  ShownNode* Find(const std::wstring& text) const;

  // What the person does; empty once the control has gone.
  std::function<void(const MouseEvent&)> DoubleClick;
  std::function<void(ShownNode& node)> Check;
  void Retire();
};

}  // namespace burrowmark
