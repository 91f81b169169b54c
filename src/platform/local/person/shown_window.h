// What stands on the screen of the local machine.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/local/person/shown_menus.h"
#include "platform/local/person/shown_views.h"
#include "platform/peers/ui_peers.h"

namespace burrowmark {

class ShownDrag;
class ShownWindow;

// The desktop that a window is on.
class WindowStack {
 public:
  static constexpr Rect kScreen{0, 0, 1920, 1040};
  static constexpr std::int32_t kSystemDpi = kDesignDpi;

  // Runs a gesture of the person at a window, which comes to the front with it.
  virtual void RunGesture(WindowHandle window, const std::function<void()>& gesture) = 0;
  // The window has gone from the screen, or takes no input any more: another one gets the focus if it had it.
  virtual void Deactivate(const ShownWindow& window) = 0;

 protected:
  WindowStack() = default;
  WindowStack(const WindowStack&) = default;
  WindowStack& operator=(const WindowStack&) = default;
  ~WindowStack() = default;
};

enum class ShownKind : std::uint8_t {
  kLabel,
  kButton,
  kAnimation,
  kToolbar,
  kStatusBar,
  kTextBox,
  kPicture,
  kListView,
  kTreeView,
  kLine,
  kCheckBox,
  kOption,
  kComboBox,
  kFrame,
  kTabStrip,
};

struct ShownControl {
  ShownKind kind = ShownKind::kLabel;
  WindowHandle window = 0;
  std::wstring text;  // of an animation: its file
  Rect place;         // pixels within what it is in
  bool visible = true;
  bool enabled = true;
  bool tabStop = true;
  bool focused = false;
  bool isDefault = false;   // the button that Enter presses
  bool useMnemonic = true;  // "&" of the text marks a character
  bool playing = false;     // an animation whose file is there
  Alignment alignment = Alignment::kLeft;
  std::wstring toolTip;

  TextSelection selection;                    // of a text box
  bool multiLine = false;                     // likewise
  bool oleDrop = false;                       // something may be dropped on it
  bool readOnly = false;                      // of a text box
  bool wantsEnter = false;                    // has a use of its own for the Enter key
  std::int32_t icon = 0;                      // of a picture, by its number
  std::int32_t backColor = 0;                 // likewise, a system colour
  bool border = false;                        // likewise
  CheckValue check = CheckValue::kUnchecked;  // of a check box or an option
  std::vector<std::wstring> items;            // of a combo box; the tabs of a strip
  std::int32_t index = -1;                    // which of them is chosen, or marked in an open list
  bool listOpen = false;                      // of a combo box: keys go nowhere else

  WindowHandle parent = 0;  // the form, or the control that it is in

  std::vector<ToolbarButtonState> buttons;  // of a toolbar
  ImageList images;
  std::vector<StatusPanelState> panels;  // of a status bar
  std::function<void(std::size_t button)> UserButtonClick;
  std::function<void(std::size_t button, std::size_t entry)> UserButtonMenuClick;

  std::function<void(bool)> UserFocus;  // doors; empty where there is none, and once the control has gone
  std::function<void(MouseAction, const MouseEvent&)> UserMouse;
  std::function<bool(std::int32_t keyCode, std::int32_t shift)> UserKeyDown;
  std::function<std::int32_t(std::int32_t character)> UserKeyPress;  // the character to go on with
  std::function<void()> UserClick;
  std::function<void(const std::function<std::uint32_t(std::uint32_t allowed)>& run)> UserStartDrag;
  std::function<std::uint32_t(const DragEvent&, DragState)> UserDragOver;
  std::function<std::uint32_t(const DragEvent&, const std::vector<std::wstring>& files)> UserDragDrop;
  std::function<void(std::int32_t keyCode, std::int32_t shift)> PressKey;  // what the control itself does with a key
  std::function<void(const std::wstring&)> UserType;
  std::function<void(std::int32_t index)> UserChoose;
  std::function<void()> Entered;  // the Tab key or a mnemonic brought the focus

  // Lists and trees.
  std::shared_ptr<ShownList> list;
  std::shared_ptr<ShownTree> tree;
  std::optional<std::wstring> labelEdit;                                      // the text in an open label edit
  std::function<void(const std::optional<std::wstring>& text)> EndLabelEdit;  // none: given up
};

// Gestures reach the program by its message queue, and run at once unless the program is busy. One that can't be made
// throws std::logic_error.
class ShownWindow {
 public:
  ShownWindow(WindowStack& stack, FormState& form) : stack_(stack), form_(&form) {}
  ShownWindow(const ShownWindow&) = delete;
  ShownWindow& operator=(const ShownWindow&) = delete;

  WindowHandle window = 0;
  WindowHandle owner = 0;
  std::wstring caption;
  Rect place;   // of the whole window, in pixels
  Rect client;  // its client area, from 0, 0
  std::int32_t dpi = kDesignDpi;
  bool visible = false;
  bool enabled = true;
  bool topMost = false;
  FormBorder border = FormBorder::kFixedDialog;
  FormWindowState state = FormWindowState::kNormal;
  std::int32_t pointer = kPointerDefault;
  std::int32_t icon = 0;
  bool hasBar = false;  // of menus
  std::vector<SystemMenuEntry> systemMenu;
  std::vector<std::shared_ptr<ShownControl>> controls;  // in tab order

  // Pixels around the client area of a normal window at 96 dots per inch.
  static constexpr Rect kFrame{8, 31, 8, 8};
  // The same for a bar of menus.
  static constexpr std::int32_t kBarHeight = 20;

  // False once the program has taken it away; what it showed last stays to be read.
  bool IsOpen() const { return form_ != nullptr; }
  // None if there is no control with such a text; "&" doesn't count.
  ShownControl* Find(const std::wstring& text) const;
  ShownControl* WithWindow(WindowHandle handle) const { return Shared(handle).get(); }
  std::shared_ptr<ShownControl> Shared(WindowHandle handle) const;
  ShownControl* Focused() const;
  // The control whose label is being edited; mostly none.
  ShownControl* Edited() const;
  // The form and all that it is in are visible and enabled.
  bool CanBeUsed(const ShownControl& control) const;
  // Texts of the visible labels, one below the other.
  std::wstring LabelTexts() const;

  // What the person does.
  void Click(const std::wstring& button);
  void Press(std::int32_t keyCode, std::int32_t shift = 0);
  // Types a text where the focus is.
  void Type(const std::wstring& text);
  // Takes one of the entries of a combo box, or of the tabs of a strip, from 0.
  void Choose(WindowHandle control, std::int32_t index);
  // Alt and a character.
  void PressAlt(wchar_t character);
  void Close();
  // Menus of the bar: the titles on the way, as {L"Edit", L"Copy"}.
  void ChooseMenu(const MenuPath& path);
  void ChooseSystemMenu(const std::wstring& text);
  // What shows of the bar itself, or of the menu that opens at the end of the way.
  std::vector<std::wstring> MenuTexts(const MenuPath& path = {});
  // A button of a toolbar by its key, and an entry of its menu by its text.
  void ClickButton(WindowHandle toolbar, const std::wstring& key);
  void ChooseButtonMenu(WindowHandle toolbar, const std::wstring& key, const std::wstring& text);
  // Texts of a status bar's panels.
  std::vector<std::wstring> PanelTexts(WindowHandle statusBar) const;
  // The mouse at a point of a control, or of the client area for 0; in twips from its corner.
  void Mouse(WindowHandle control, MouseAction action, const MouseEvent& event);
  // The system takes the mouse from the form while a button is held.
  void LoseMouse();

  // In a list; rows and columns count from 0, and a row of -1 is the empty space below them.
  void ClickRow(WindowHandle list, std::int32_t row, std::int32_t button = kLeftButton, std::int32_t shift = 0);
  void DoubleClickRow(WindowHandle list, std::int32_t row);
  void CheckRow(WindowHandle list, std::int32_t row);
  void ClickColumn(WindowHandle list, std::int32_t column);
  // To a width in twips.
  void DragColumn(WindowHandle list, std::int32_t column, std::int32_t width);
  // In a tree; the node is the first with that text that no closed node hides, none for the empty space below them.
  void ClickNode(WindowHandle tree, const std::wstring& text, std::int32_t button = kLeftButton,
                 std::int32_t shift = 0);
  void DoubleClickNode(WindowHandle tree, const std::wstring& text);
  void CheckNode(WindowHandle tree, const std::wstring& text);
  // The button that opens or closes it.
  void ToggleNode(WindowHandle tree, const std::wstring& text);
  // Presses there and drags: `way` is what happens until the button is let go, by Drop, or given up.
  void DragRow(WindowHandle list, std::int32_t row, const std::function<void(ShownDrag& drag)>& way);
  void DragNode(WindowHandle tree, const std::wstring& text, const std::function<void(ShownDrag& drag)>& way);
  // Into the open label edit, instead of what is there. Enter takes it, Esc gives it up.
  void TypeLabel(const std::wstring& text);

  void MoveTo(std::int32_t left, std::int32_t top);
  void Resize(std::int32_t width, std::int32_t height);
  void SetState(FormWindowState newState);
  void ChangeScale(std::int32_t newDpi);

  // For the peers.
  void Retire();
  void SetFocus(ShownControl* control);
  void Activate(bool active);
  // Takes on the place of the form's state; its centre is that of `around` if nobody has placed it.
  void Put(const Rect& around);
  // Takes on a state of the window, and the size of the client area that comes of it.
  void TakeState(FormWindowState newState);
  void Report();
  FormState* Form() const { return form_; }
  void ShowBar();

 private:
  void CheckUsable() const;
  ShownControl& Usable(WindowHandle handle) const;
  bool OpenFromBar(wchar_t character);
  std::int32_t FrameHeight() const { return kFrame.top + kFrame.bottom + (hasBar ? kBarHeight : 0); }
  void Do(const std::function<void()>& gesture);
  void ClickOn(const ShownControl* control) const;
  ShownControl& Get(WindowHandle control) const;
  ShownControl& GetList(WindowHandle control) const;
  ShownControl& GetTree(WindowHandle control) const;
  void Press(WindowHandle control, const MouseEvent& event);
  void PressTwice(WindowHandle control, const MouseEvent& event);
  void DragFrom(WindowHandle control, const MouseEvent& event, const std::function<void(ShownDrag& drag)>& way);
  void RunEditKey(ShownControl& edited, std::int32_t keyCode);
  void RunKey(std::int32_t keyCode, std::int32_t shift);
  void RunOwnKey(std::int32_t keyCode, std::int32_t shift);
  void TypeCharacter(wchar_t character) const;
  void RunMnemonic(wchar_t character);
  void MoveFocus(bool backwards);
  void EnterByKey(ShownControl* control);
  void PressEnter();
  Rect PlacedRect() const;
  void FitClient();
  std::vector<ShownControl*> TabStops() const;

  WindowStack& stack_;
  FormState* form_;
  std::weak_ptr<ShownControl> focusBefore_;
};

}  // namespace burrowmark
