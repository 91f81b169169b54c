// What stands on a system's screen, and a user in front of it. One class with two sources, of which each build has one:
// local_screen.cpp natively and win32_screen*.cpp in a Windows build.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/drawing.h"
#include "platform/peers/ui_control.h"
#include "platform/twips.h"
#include "platform/window_handle.h"

namespace burrowmark {

class LocalMachine;
class WindowSystem;

class ScreenUnderTest {
 public:
  explicit ScreenUnderTest(LocalMachine& machine);  // the local one
  explicit ScreenUnderTest(WindowSystem& windows);  // the real one
  ~ScreenUnderTest();
  ScreenUnderTest(const ScreenUnderTest&) = delete;
  ScreenUnderTest& operator=(const ScreenUnderTest&) = delete;

  bool Exists(WindowHandle window);
  std::wstring TextOf(WindowHandle window);
  bool IsShown(WindowHandle window);
  bool IsEnabled(WindowHandle window);
  bool HasFocus(WindowHandle control);
  bool IsActive(WindowHandle form);
  bool IsTopMost(WindowHandle form);
  WindowHandle OwnerOf(WindowHandle form);
  // Drawn as the button that Enter presses.
  bool IsDefault(WindowHandle button);
  // What shows while the mouse rests on a control; empty for nothing.
  std::wstring ToolTipOf(WindowHandle control);
  // Pixels within the form's client area.
  Rect PlaceOf(WindowHandle control);
  Size ClientOf(WindowHandle form);

  // Gestures end when the program has handled them.
  void Click(WindowHandle control);
  // A button over the form where no control is, in twips; and the system takes the mouse away meanwhile.
  void Mouse(WindowHandle form, MouseAction action, const MouseEvent& event);
  void LoseMouse(WindowHandle form);
  void Press(WindowHandle form, std::int32_t keyCode, std::int32_t shift = 0);
  void PressAlt(WindowHandle form, wchar_t character);
  // Types a text where the focus is.
  void Type(WindowHandle form, const std::wstring& text);
  void Close(WindowHandle form);
  void Resize(WindowHandle form, std::int32_t width, std::int32_t height);
  void ChangeScale(WindowHandle form, std::int32_t dpi);

  // What is selected in a text box, from the first character to the one behind the last.
  std::pair<std::int32_t, std::int32_t> SelectedIn(WindowHandle box);
  // 1 for a check box or an option that is on, 2 for a grey one.
  std::int32_t CheckOf(WindowHandle box);
  std::int32_t TabOf(WindowHandle strip);
  // Takes an entry of a combo box or a tab of a strip with the mouse; both count from 0.
  void ChooseEntry(WindowHandle combo, std::int32_t index);
  void ChooseTab(WindowHandle strip, std::int32_t index);

  // Menus: titles on the way from the bar on, without ampersands. Texts are as LookOf has them.
  using Titles = std::vector<std::wstring>;
  Titles MenuTexts(WindowHandle form, const Titles& path);
  // False if there is no such entry, or it can't be chosen.
  bool ChooseMenu(WindowHandle form, const Titles& path);
  // Alt and a character, and Esc when the menu is open.
  void OpenMenuByLetter(WindowHandle form, wchar_t character);
  // Those that aren't the system's own.
  Titles SystemMenuTexts(WindowHandle form);
  void ChooseSystemMenu(WindowHandle form, const std::wstring& text);
  // What is chosen in the next menu that pops up, none for Esc; what shows of it goes into `seen`, the one drawn bold
  // with an asterisk in front.
  void NextPopup(const std::wstring& title, Titles& seen);

  // Bars. A disabled button has " (disabled)" behind its text.
  Titles ButtonTexts(WindowHandle toolbar);
  void ClickButton(WindowHandle toolbar, std::size_t button);
  void ChooseButtonMenu(WindowHandle toolbar, std::size_t button, const std::wstring& text);
  Titles PanelTexts(WindowHandle statusBar);
  // What is typed into the next file dialog of that title; nothing cancels it.
  void NextFile(const std::wstring& title, const std::wstring& path);

  // Lists: rows and columns count from 0, and row -1 is the empty space below them.
  void ClickRow(WindowHandle list, std::int32_t row, std::int32_t button = kLeftButton, std::int32_t shift = 0);
  void DoubleClickRow(WindowHandle list, std::int32_t row);
  void CheckRow(WindowHandle list, std::int32_t row);
  void ClickColumn(WindowHandle list, std::int32_t column);
  // The right edge of a column's header, to a width in twips.
  void DragColumn(WindowHandle list, std::int32_t column, std::int32_t width);
  // "+" behind a selected row, "*" behind the current one, "~" behind a ghost, "v" behind a checked one and "<" behind
  // the one to drop on.
  std::wstring RowsOf(WindowHandle list);
  std::wstring CellOf(WindowHandle list, std::int32_t row, std::int32_t column);
  // The texts of the columns with their widths in pixels, as L"Name:100 Type:50".
  std::wstring ColumnsOf(WindowHandle list);
  // Trees: a node is the first visible one with that text; no text is the empty space below all.
  void ClickNode(WindowHandle tree, const std::wstring& text, std::int32_t button = kLeftButton);
  void DoubleClickNode(WindowHandle tree, const std::wstring& text);
  void CheckNode(WindowHandle tree, const std::wstring& text);
  void ToggleNode(WindowHandle tree, const std::wstring& text);
  // The visible nodes with a "." for each level, marked as rows are.
  std::wstring NodesOf(WindowHandle tree);
  // Of lists and trees. A label's text is typed over the one that is there.
  bool EditsLabel(WindowHandle control);
  void TypeLabel(WindowHandle control, const std::wstring& text);

  // Runs when a modal window of that caption is up; it must go meanwhile.
  void NextWindow(const std::wstring& caption, std::function<void()> script);
  // Everything that wasn't as expected.
  std::string Complaints();

 private:
  struct Side;
  std::unique_ptr<Side> side_;
};

}  // namespace burrowmark
