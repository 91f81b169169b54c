// What stands on a system's screen, and a person in front of it.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/drawing.h"
#include "platform/twips.h"
#include "platform/ui_control.h"
#include "platform/window_handle.h"

namespace burrowmark {

class ScreenUnderTest {
 public:
  virtual ~ScreenUnderTest() = default;

  virtual bool Exists(WindowHandle window) = 0;
  virtual std::wstring TextOf(WindowHandle window) = 0;
  virtual bool IsShown(WindowHandle window) = 0;
  virtual bool IsEnabled(WindowHandle window) = 0;
  virtual bool HasFocus(WindowHandle control) = 0;
  virtual bool IsActive(WindowHandle form) = 0;
  virtual bool IsTopMost(WindowHandle form) = 0;
  virtual WindowHandle OwnerOf(WindowHandle form) = 0;
  // Drawn as the button that Enter presses.
  virtual bool IsDefault(WindowHandle button) = 0;
  // Pixels within the form's client area.
  virtual Rect PlaceOf(WindowHandle form, WindowHandle control) = 0;
  virtual Size ClientOf(WindowHandle form) = 0;

  // All of these end when the program has handled them.
  virtual void Click(WindowHandle form, WindowHandle button) = 0;
  // A button over the form where no control is, in twips; and the system takes the mouse away meanwhile.
  virtual void Mouse(WindowHandle form, MouseAction action, const MouseEvent& event) = 0;
  virtual void LoseMouse(WindowHandle form) = 0;
  virtual void Press(WindowHandle form, std::int32_t keyCode, std::int32_t shift = 0) = 0;
  virtual void PressAlt(WindowHandle form, wchar_t character) = 0;
  virtual void Close(WindowHandle form) = 0;
  virtual void Resize(WindowHandle form, std::int32_t width, std::int32_t height) = 0;
  virtual void ChangeScale(WindowHandle form, std::int32_t dpi) = 0;

  // Types a text where the focus is.
  virtual void Type(WindowHandle form, const std::wstring& text) = 0;
  // What is selected in a text box, from the first character to the one behind the last.
  virtual std::pair<std::int32_t, std::int32_t> SelectedIn(WindowHandle box) = 0;
  // Menus: titles on the way from the bar on, without ampersands. Texts are as LookOf has them.
  using Titles = std::vector<std::wstring>;
  virtual Titles MenuTexts(WindowHandle form, const Titles& path) = 0;
  // False if there is no such entry, or it can't be chosen.
  virtual bool ChooseMenu(WindowHandle form, const Titles& path) = 0;
  // Alt and a character, and Esc when the menu is open.
  virtual void OpenMenuByLetter(WindowHandle form, wchar_t character) = 0;
  // Those that aren't the system's own.
  virtual Titles SystemMenuTexts(WindowHandle form) = 0;
  virtual void ChooseSystemMenu(WindowHandle form, const std::wstring& text) = 0;
  // What is chosen in the next menu that pops up, none for Esc; what shows of it goes into `seen`, the one drawn bold
  // with an asterisk in front.
  virtual void NextPopup(const std::wstring& title, Titles& seen) = 0;

  // Bars. A disabled button has " (disabled)" behind its text.
  virtual Titles ButtonTexts(WindowHandle toolbar) = 0;
  virtual void ClickButton(WindowHandle form, WindowHandle toolbar, std::size_t button) = 0;
  virtual void ChooseButtonMenu(WindowHandle form, WindowHandle toolbar, std::size_t button,
                                const std::wstring& text) = 0;
  virtual Titles PanelTexts(WindowHandle form, WindowHandle statusBar) = 0;
  // What is typed into the next file dialog of that title; nothing cancels it.
  virtual void NextFile(const std::wstring& title, const std::wstring& path) = 0;

  // 1 for a check box or an option that is on, 2 for a grey one.
  virtual std::int32_t CheckOf(WindowHandle box) = 0;
  virtual std::int32_t EntryCountOf(WindowHandle combo) = 0;
  // Takes an entry of a combo box or a tab of a strip with the mouse; both count from 0.
  virtual void ChooseEntry(WindowHandle form, WindowHandle combo, std::int32_t index) = 0;
  virtual void ChooseTab(WindowHandle form, WindowHandle strip, std::int32_t index) = 0;
  virtual std::int32_t TabOf(WindowHandle strip) = 0;
  // Lists: rows and columns count from 0, and row -1 is the empty space below them.
  virtual void ClickRow(WindowHandle form, WindowHandle list, std::int32_t row, std::int32_t button = kLeftButton,
                        std::int32_t shift = 0) = 0;
  virtual void DoubleClickRow(WindowHandle form, WindowHandle list, std::int32_t row) = 0;
  virtual void CheckRow(WindowHandle form, WindowHandle list, std::int32_t row) = 0;
  virtual void ClickColumn(WindowHandle form, WindowHandle list, std::int32_t column) = 0;
  // The right edge of a column's header, to a width in twips.
  virtual void DragColumn(WindowHandle form, WindowHandle list, std::int32_t column, std::int32_t width) = 0;
  // "+" behind a selected row, "*" behind the current one, "~" behind a ghost, "v" behind a checked one and "<" behind
  // the one to drop on.
  virtual std::wstring RowsOf(WindowHandle list) = 0;
  virtual std::wstring CellOf(WindowHandle list, std::int32_t row, std::int32_t column) = 0;
  virtual std::int32_t ColumnWidth(WindowHandle list, std::int32_t column) = 0;  // pixels
  virtual std::wstring ColumnText(WindowHandle list, std::int32_t column) = 0;
  // In twips, somewhere in the row's text.
  virtual MouseEvent PointOfRow(WindowHandle form, WindowHandle list, std::int32_t row) = 0;
  // Trees: a node is the first visible one with that text; no text is the empty space below all.
  virtual void ClickNode(WindowHandle form, WindowHandle tree, const std::wstring& text,
                         std::int32_t button = kLeftButton) = 0;
  virtual void DoubleClickNode(WindowHandle form, WindowHandle tree, const std::wstring& text) = 0;
  virtual void CheckNode(WindowHandle form, WindowHandle tree, const std::wstring& text) = 0;
  virtual void ToggleNode(WindowHandle form, WindowHandle tree, const std::wstring& text) = 0;
  // The visible nodes with a "." for each level, marked as rows are.
  virtual std::wstring NodesOf(WindowHandle tree) = 0;
  virtual MouseEvent PointOfNode(WindowHandle form, WindowHandle tree, const std::wstring& text) = 0;
  // Of lists and trees.
  virtual bool EditsLabel(WindowHandle control) = 0;
  virtual void TypeLabel(WindowHandle form, WindowHandle control, const std::wstring& text) = 0;

  // Runs when a modal window of that caption is up; it must go meanwhile.
  virtual void NextWindow(const std::wstring& caption, std::function<void()> script) = 0;
  // Everything that wasn't as expected.
  virtual std::string Complaints() = 0;
};

}  // namespace burrowmark
