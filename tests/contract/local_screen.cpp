#include <optional>
#include <stdexcept>

#include "platform/local/machine.h"
#include "tests/contract/screen_under_test.h"

namespace burrowmark {
namespace {

std::wstring Mark(bool on, const wchar_t* mark) { return on ? mark : L""; }

}  // namespace

struct ScreenUnderTest::Side {
  ShownWindow* Form(WindowHandle form) const { return machine.windows.Desktop.Find(form).get(); }
  ShownWindow* FormOf(WindowHandle control) const { return machine.windows.Desktop.FormOf(control).get(); }
  ShownControl* Control(WindowHandle control) const {
    for (const auto& window : machine.windows.Desktop.History()) {
      ShownControl* found = window->IsOpen() ? window->WithWindow(control) : nullptr;
      if (found != nullptr) return found;
    }
    return nullptr;
  }

  LocalMachine& machine;
};

ScreenUnderTest::ScreenUnderTest(LocalMachine& machine) : side_(new Side{machine}) {}
ScreenUnderTest::~ScreenUnderTest() = default;
std::string ScreenUnderTest::Complaints() { return side_->machine.user.TakeComplaints(); }

bool ScreenUnderTest::Exists(WindowHandle window) {
  return side_->machine.windows.PostMessageA(window, kMessageNull, 0, 0);
}

std::wstring ScreenUnderTest::TextOf(WindowHandle window) {
  if (const ShownWindow* form = side_->Form(window)) return form->caption;
  const ShownControl* control = side_->Control(window);
  return control == nullptr ? L"" : control->text;
}

bool ScreenUnderTest::IsShown(WindowHandle window) {
  if (const ShownWindow* form = side_->Form(window)) return form->visible;
  const ShownControl* control = side_->Control(window);
  return control != nullptr && control->visible;
}

bool ScreenUnderTest::IsEnabled(WindowHandle window) {
  if (const ShownWindow* form = side_->Form(window)) return form->enabled;
  if (const ShownControl* control = side_->Control(window)) return control->enabled;
  return !side_->machine.windows.Desktop.IsBlocked(window);
}

bool ScreenUnderTest::HasFocus(WindowHandle control) {
  const ShownControl* shown = side_->Control(control);
  return shown != nullptr && shown->focused;
}

bool ScreenUnderTest::IsActive(WindowHandle form) {
  const auto active = side_->machine.windows.Desktop.Active();
  return active && active.get() == side_->Form(form);
}

bool ScreenUnderTest::IsTopMost(WindowHandle form) { return side_->Form(form)->topMost; }

WindowHandle ScreenUnderTest::OwnerOf(WindowHandle form) { return side_->Form(form)->owner; }

bool ScreenUnderTest::IsDefault(WindowHandle button) { return side_->Control(button)->isDefault; }

std::wstring ScreenUnderTest::ToolTipOf(WindowHandle control) { return side_->Control(control)->toolTip; }

Rect ScreenUnderTest::PlaceOf(WindowHandle control) {
  const ShownControl* shown = side_->Control(control);
  Rect place = shown->place;
  for (shown = side_->Control(shown->parent); shown != nullptr; shown = side_->Control(shown->parent)) {
    place = {place.left + shown->place.left, place.top + shown->place.top, place.right + shown->place.left,
             place.bottom + shown->place.top};
  }
  return place;
}

Size ScreenUnderTest::ClientOf(WindowHandle form) {
  return {side_->Form(form)->client.right, side_->Form(form)->client.bottom};
}

void ScreenUnderTest::Click(WindowHandle button) { side_->FormOf(button)->Click(TextOf(button)); }

void ScreenUnderTest::Mouse(WindowHandle form, MouseAction action, const MouseEvent& event) {
  side_->Form(form)->Mouse(0, action, event);
}

void ScreenUnderTest::LoseMouse(WindowHandle form) { side_->Form(form)->LoseMouse(); }

void ScreenUnderTest::Press(WindowHandle form, std::int32_t keyCode, std::int32_t shift) {
  side_->Form(form)->Press(keyCode, shift);
}

void ScreenUnderTest::PressAlt(WindowHandle form, wchar_t character) { side_->Form(form)->PressAlt(character); }

void ScreenUnderTest::Close(WindowHandle form) { side_->Form(form)->Close(); }

void ScreenUnderTest::Resize(WindowHandle form, std::int32_t width, std::int32_t height) {
  side_->Form(form)->Resize(width, height);
}

void ScreenUnderTest::ChangeScale(WindowHandle form, std::int32_t dpi) { side_->Form(form)->ChangeScale(dpi); }

void ScreenUnderTest::Type(WindowHandle form, const std::wstring& text) { side_->Form(form)->Type(text); }

std::pair<std::int32_t, std::int32_t> ScreenUnderTest::SelectedIn(WindowHandle box) {
  const TextSelection& selection = side_->Control(box)->selection;
  return {selection.start, selection.start + selection.length};
}

std::int32_t ScreenUnderTest::CheckOf(WindowHandle box) {
  return static_cast<std::int32_t>(side_->Control(box)->check);
}

void ScreenUnderTest::ChooseEntry(WindowHandle combo, std::int32_t index) {
  side_->FormOf(combo)->Choose(combo, index);
}

void ScreenUnderTest::ChooseTab(WindowHandle strip, std::int32_t index) { side_->FormOf(strip)->Choose(strip, index); }

std::int32_t ScreenUnderTest::TabOf(WindowHandle strip) { return side_->Control(strip)->index; }

void ScreenUnderTest::NextWindow(const std::wstring& caption, std::function<void()> script) {
  side_->machine.user.NextWindow(caption, [script = std::move(script)](ShownWindow&) { script(); });
}

// --- menus and bars

ScreenUnderTest::Titles ScreenUnderTest::MenuTexts(WindowHandle form, const Titles& path) {
  return side_->Form(form)->MenuTexts(path);
}

bool ScreenUnderTest::ChooseMenu(WindowHandle form, const Titles& path) {
  try {
    side_->Form(form)->ChooseMenu(path);
    return true;
  } catch (const std::logic_error&) {
    return false;
  }
}

void ScreenUnderTest::OpenMenuByLetter(WindowHandle form, wchar_t character) { side_->Form(form)->PressAlt(character); }

ScreenUnderTest::Titles ScreenUnderTest::SystemMenuTexts(WindowHandle form) {
  Titles texts;
  for (const SystemMenuEntry& entry : side_->Form(form)->systemMenu) {
    texts.push_back(entry.checked ? L"[x] " + entry.text : entry.text);
  }
  return texts;
}

void ScreenUnderTest::ChooseSystemMenu(WindowHandle form, const std::wstring& text) {
  side_->Form(form)->ChooseSystemMenu(text);
}

void ScreenUnderTest::NextPopup(const std::wstring& title, Titles& seen) {
  side_->machine.user.NextPopup([title, &seen](ShownPopup& popup) {
    seen = popup.Texts();
    for (std::wstring& text : seen) {
      if (text == popup.Default()) text.insert(0, L"* ");
    }
    if (!title.empty()) popup.Choose({title});
  });
}

ScreenUnderTest::Titles ScreenUnderTest::ButtonTexts(WindowHandle toolbar) {
  Titles texts;
  for (const ToolbarButtonState& button : side_->Control(toolbar)->buttons) {
    texts.push_back(button.enabled ? button.caption : button.caption + L" (disabled)");
  }
  return texts;
}

void ScreenUnderTest::ClickButton(WindowHandle toolbar, std::size_t button) {
  const ToolbarButtonState& state = side_->Control(toolbar)->buttons.at(button);
  if (state.enabled) side_->FormOf(toolbar)->ClickButton(toolbar, state.key);
}

void ScreenUnderTest::ChooseButtonMenu(WindowHandle toolbar, std::size_t button, const std::wstring& text) {
  side_->FormOf(toolbar)->ChooseButtonMenu(toolbar, side_->Control(toolbar)->buttons.at(button).key, text);
}

ScreenUnderTest::Titles ScreenUnderTest::PanelTexts(WindowHandle statusBar) {
  return side_->FormOf(statusBar)->PanelTexts(statusBar);
}

void ScreenUnderTest::NextFile(const std::wstring& title, const std::wstring& path) {
  side_->machine.user.NextFile(title, path.empty() ? std::nullopt : std::optional(path));
}

// --- lists and trees

void ScreenUnderTest::ClickRow(WindowHandle list, std::int32_t row, std::int32_t button, std::int32_t shift) {
  side_->FormOf(list)->ClickRow(list, row, button, shift);
}

void ScreenUnderTest::DoubleClickRow(WindowHandle list, std::int32_t row) {
  side_->FormOf(list)->DoubleClickRow(list, row);
}

void ScreenUnderTest::CheckRow(WindowHandle list, std::int32_t row) { side_->FormOf(list)->CheckRow(list, row); }

void ScreenUnderTest::ClickColumn(WindowHandle list, std::int32_t column) {
  side_->FormOf(list)->ClickColumn(list, column);
}

void ScreenUnderTest::DragColumn(WindowHandle list, std::int32_t column, std::int32_t width) {
  side_->FormOf(list)->DragColumn(list, column, width);
}

std::wstring ScreenUnderTest::RowsOf(WindowHandle list) {
  const ShownList& shown = *side_->Control(list)->list;
  std::wstring rows;
  for (std::size_t row = 0; row < shown.rows.size(); ++row) {
    const ListItemState& item = shown.rows[row];
    const auto is = [row](std::int32_t other) { return static_cast<std::int32_t>(row) == other; };
    rows += (row == 0 ? L"" : L" ") + item.texts.front() + Mark(item.selected, L"+") + Mark(is(shown.current), L"*") +
            Mark(item.ghosted, L"~") + Mark(item.checked, L"v") + Mark(is(shown.drop), L"<");
  }
  return rows;
}

std::wstring ScreenUnderTest::CellOf(WindowHandle list, std::int32_t row, std::int32_t column) {
  const auto& texts = side_->Control(list)->list->rows.at(static_cast<std::size_t>(row)).texts;
  return static_cast<std::size_t>(column) < texts.size() ? texts[static_cast<std::size_t>(column)] : L"";
}

std::wstring ScreenUnderTest::ColumnsOf(WindowHandle list) {
  std::wstring columns;
  for (const ListColumn& column : side_->Control(list)->list->columns) {
    const std::int32_t width = ToPixels(column.width, side_->FormOf(list)->dpi);
    columns += (columns.empty() ? L"" : L" ") + column.text + L":" + std::to_wstring(width);
  }
  return columns;
}

void ScreenUnderTest::ClickNode(WindowHandle tree, const std::wstring& text, std::int32_t button) {
  side_->FormOf(tree)->ClickNode(tree, text, button);
}

void ScreenUnderTest::DoubleClickNode(WindowHandle tree, const std::wstring& text) {
  side_->FormOf(tree)->DoubleClickNode(tree, text);
}

void ScreenUnderTest::CheckNode(WindowHandle tree, const std::wstring& text) {
  side_->FormOf(tree)->CheckNode(tree, text);
}

void ScreenUnderTest::ToggleNode(WindowHandle tree, const std::wstring& text) {
  side_->FormOf(tree)->ToggleNode(tree, text);
}

std::wstring ScreenUnderTest::NodesOf(WindowHandle tree) {
  const ShownTree& shown = *side_->Control(tree)->tree;
  std::wstring nodes;
  for (const ShownNode* node : shown.Visible()) {
    nodes += (nodes.empty() ? L"" : L" ") + std::wstring(static_cast<std::size_t>(node->Level()), L'.') + node->text +
             Mark(node == shown.selected, L"*") + Mark(node->ghosted, L"~") + Mark(node->checked, L"v") +
             Mark(node == shown.drop, L"<");
  }
  return nodes;
}

bool ScreenUnderTest::EditsLabel(WindowHandle control) { return side_->Control(control)->labelEdit.has_value(); }

void ScreenUnderTest::TypeLabel(WindowHandle control, const std::wstring& text) {
  side_->FormOf(control)->TypeLabel(text);
}

}  // namespace burrowmark
