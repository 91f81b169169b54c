// What the windows of lists and trees have in common.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

#include "platform/win32/windows/child_window.h"

namespace burrowmark {

// The system's lists and trees run loops of their own while a button is held, and swallow its release there. Here all
// comes in the order that the seam wants, and after the system has done its part.
class ViewWindow : public ChildWindow {
 public:
  ViewWindow(const wchar_t* className, DWORD style, const ChildPlace& place, ControlState& control);
  using ChildWindow::Handle;

 protected:
  // While it lives the code changes the window, and what the window tells of is no user's doing.
  class Telling {
   public:
    explicit Telling(ViewWindow& window) : window_(window) { ++window_.telling_; }
    ~Telling() { --window_.telling_; }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

   private:
    ViewWindow& window_;
  };
  bool IsTelling() const { return telling_ > 0; }
  // A button or a key is being handled.
  bool IsInGesture() const { return inGesture_; }
  bool IsUpdating() const { return updates_ > 0; }
  void StartUpdate();
  // True for the outermost.
  bool StopUpdate();

  // The control says that the user begins to drag.
  void Drag();
  // The control's notifications of clicks.
  void NoteClick() { clicked_ = true; }
  void NoteDoubleClick() { doubleClicked_ = true; }

  // Opens a label edit by one of the messages for that.
  void EditLabel(UINT message, WPARAM wParam, LPARAM lParam);
  bool IsEditAsked() const { return editAsked_; }
  void LabelEditBegins(UINT getEdit);
  void LabelEditEnds() { TheForm().LeaveKeysTo(nullptr); }

  std::optional<LRESULT> Mouse(const MouseMessage& mouse, UINT message, WPARAM wParam, LPARAM lParam) override;
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  // A button has gone down, and the system has selected what it selects.
  virtual void Pressed(const MouseEvent& event) = 0;
  virtual void Clicked(const MouseEvent& event) = 0;
  virtual void DoubleClicked() = 0;
  // A key has been handled by the system.
  virtual void KeyHandled() = 0;
  // The current row or node; where one is; and that it is pressed once more.
  virtual std::optional<std::intptr_t> Current() const = 0;
  virtual RECT RectOf(std::intptr_t current) const = 0;
  virtual void PressAgain(std::intptr_t current) = 0;

  LRESULT RunNative(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Press(const MouseEvent& event, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT LetGo(const MouseEvent& event, UINT message, WPARAM wParam, LPARAM lParam);
  void Finish(MouseEvent event);
  bool IsHeldStill() const;
  void ContextKey();
  LRESULT EditTold(WPARAM wParam, LPARAM lParam);

  ControlState& state_;
  int telling_ = 0;
  int updates_ = 0;
  bool inGesture_ = false;
  bool editAsked_ = false;
  std::int32_t held_ = 0;  // the button that is down
  bool clicked_ = false;
  bool doubleClicked_ = false;
  bool dragged_ = false;  // the press went over into a drag, which swallows its release
};

}  // namespace burrowmark
