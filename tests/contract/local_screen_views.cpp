// Lists and trees on the screen of the local machine.
#include "tests/contract/local_screen.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kInText = 5;

std::wstring Mark(bool on, const wchar_t* mark) { return on ? mark : L""; }

MouseEvent At(std::int32_t x, std::int32_t y) { return {0, 0, ToTwips(x, kDesignDpi), ToTwips(y, kDesignDpi)}; }

}  // namespace

void LocalScreen::ClickRow(WindowHandle form, WindowHandle list, std::int32_t row, std::int32_t button,
                           std::int32_t shift) {
  Form(form)->ClickRow(list, row, button, shift);
}

void LocalScreen::DoubleClickRow(WindowHandle form, WindowHandle list, std::int32_t row) {
  Form(form)->DoubleClickRow(list, row);
}

void LocalScreen::CheckRow(WindowHandle form, WindowHandle list, std::int32_t row) { Form(form)->CheckRow(list, row); }

void LocalScreen::ClickColumn(WindowHandle form, WindowHandle list, std::int32_t column) {
  Form(form)->ClickColumn(list, column);
}

void LocalScreen::DragColumn(WindowHandle form, WindowHandle list, std::int32_t column, std::int32_t width) {
  Form(form)->DragColumn(list, column, width);
}

std::wstring LocalScreen::RowsOf(WindowHandle list) {
  const ShownList& shown = *Control(list)->list;
  std::wstring rows;
  for (std::size_t row = 0; row < shown.rows.size(); ++row) {
    const ListItemState& item = shown.rows[row];
    const auto is = [row](std::int32_t other) { return static_cast<std::int32_t>(row) == other; };
    rows += (row == 0 ? L"" : L" ") + item.texts.front() + Mark(item.selected, L"+") + Mark(is(shown.current), L"*") +
            Mark(item.ghosted, L"~") + Mark(item.checked, L"v") + Mark(is(shown.drop), L"<");
  }
  return rows;
}

std::wstring LocalScreen::CellOf(WindowHandle list, std::int32_t row, std::int32_t column) {
  const auto& texts = Control(list)->list->rows.at(static_cast<std::size_t>(row)).texts;
  return static_cast<std::size_t>(column) < texts.size() ? texts[static_cast<std::size_t>(column)] : L"";
}

std::int32_t LocalScreen::ColumnWidth(WindowHandle list, std::int32_t column) {
  const std::int32_t dpi = machine_.windows.Desktop.FormOf(list)->dpi;
  return ToPixels(Control(list)->list->columns.at(static_cast<std::size_t>(column)).width, dpi);
}

std::wstring LocalScreen::ColumnText(WindowHandle list, std::int32_t column) {
  return Control(list)->list->columns.at(static_cast<std::size_t>(column)).text;
}

MouseEvent LocalScreen::PointOfRow(WindowHandle, WindowHandle list, std::int32_t row) {
  return At(kShownIconWidth + kInText, Control(list)->list->TopOf(row) + kInText);
}

void LocalScreen::ClickNode(WindowHandle form, WindowHandle tree, const std::wstring& text, std::int32_t button) {
  Form(form)->ClickNode(tree, text, button);
}

void LocalScreen::DoubleClickNode(WindowHandle form, WindowHandle tree, const std::wstring& text) {
  Form(form)->DoubleClickNode(tree, text);
}

void LocalScreen::CheckNode(WindowHandle form, WindowHandle tree, const std::wstring& text) {
  Form(form)->CheckNode(tree, text);
}

void LocalScreen::ToggleNode(WindowHandle form, WindowHandle tree, const std::wstring& text) {
  Form(form)->ToggleNode(tree, text);
}

std::wstring LocalScreen::NodesOf(WindowHandle tree) {
  const ShownTree& shown = *Control(tree)->tree;
  std::wstring nodes;
  for (const ShownNode* node : shown.Visible()) {
    nodes += (nodes.empty() ? L"" : L" ") + std::wstring(static_cast<std::size_t>(node->Level()), L'.') + node->text +
             Mark(node == shown.selected, L"*") + Mark(node->ghosted, L"~") + Mark(node->checked, L"v") +
             Mark(node == shown.drop, L"<");
  }
  return nodes;
}

MouseEvent LocalScreen::PointOfNode(WindowHandle, WindowHandle tree, const std::wstring& text) {
  const ShownTree& shown = *Control(tree)->tree;
  const ShownNode* node = shown.Find(text);
  return At((node == nullptr ? 0 : node->Left()) + kInText, shown.TopOf(node) + kInText);
}

bool LocalScreen::EditsLabel(WindowHandle control) { return Control(control)->labelEdit.has_value(); }

void LocalScreen::TypeLabel(WindowHandle form, WindowHandle, const std::wstring& text) { Form(form)->TypeLabel(text); }

}  // namespace burrowmark
