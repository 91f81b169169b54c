// What forms and controls show themselves with: a peer for each, and what a peer may ask of its form or control.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/twips.h"
#include "platform/window_handle.h"

namespace burrowmark {

// The state of a control as its peer reads it. Functions that start with User are the doors by which what the user did
// comes in.
class ControlState {
 public:
  virtual const Box& Place() const = 0;  // within the form, in twips
  virtual bool Visible() const = 0;
  virtual bool Enabled() const = 0;
  virtual bool TabStop() const = 0;  // the Tab key stops here, in the order in which the controls were made

  virtual void UserFocus(bool has) = 0;

 protected:
  ControlState() = default;
  ControlState(const ControlState&) = default;
  ControlState& operator=(const ControlState&) = default;
  ~ControlState() = default;
};

// A peer owns one native window, which goes with it. Its making shows the whole state; after that it is told what
// changed and reads the state again.
class Peer {
 public:
  Peer() = default;
  virtual ~Peer() = default;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  // From now on it uses no door and reads no state. A form's peer also takes its window from the screen. The peer
  // itself may go much later, when nothing of it runs any more.
  virtual void Retire() = 0;
  virtual WindowHandle Window() const = 0;
};

class ControlPeer : public Peer {
 public:
  virtual void PlaceChanged() = 0;
  virtual void VisibleChanged() = 0;
  virtual void EnabledChanged() = 0;
  virtual void TabStopChanged() = 0;
  // The form has another scale: place and font are worked out again.
  virtual void ScaleChanged() = 0;
  virtual void TakeFocus() = 0;
};

enum class Alignment : std::uint8_t { kLeft, kRight, kCenter };

class LabelState : public virtual ControlState {
 public:
  virtual const std::wstring& Caption() const = 0;
  virtual Alignment TextAlignment() const = 0;
  // "&" underlines the character behind it, and Alt with that character goes to the next tab stop.
  virtual bool UseMnemonic() const = 0;

 protected:
  ~LabelState() = default;
};

class LabelPeer : public ControlPeer {
 public:
  virtual void CaptionChanged() = 0;
  virtual void StyleChanged() = 0;  // alignment or mnemonic
};

class ButtonState : public virtual ControlState {
 public:
  virtual const std::wstring& Caption() const = 0;
  // Drawn as the one that the Enter key presses now.
  virtual bool ShowsDefault() const = 0;

  virtual void UserClick() = 0;

 protected:
  ~ButtonState() = default;
};

class ButtonPeer : public ControlPeer {
 public:
  virtual void CaptionChanged() = 0;
  virtual void DefaultChanged() = 0;
};

class AnimationState : public virtual ControlState {
 public:
  virtual const std::wstring& File() const = 0;  // an AVI file; empty for none
  virtual bool Playing() const = 0;              // over and over

 protected:
  ~AnimationState() = default;
};

// A file that can't be shown leaves the place empty.
class AnimationPeer : public ControlPeer {
 public:
  virtual void FileChanged() = 0;
  virtual void PlayingChanged() = 0;
};

enum class FormBorder : std::uint8_t { kFixedDialog, kSizable };
enum class StartUpPosition : std::uint8_t { kManual, kCenterOwner };
enum class FormWindowState : std::uint8_t { kNormal, kMinimized, kMaximized };

inline constexpr std::int32_t kPointerDefault = 0;
inline constexpr std::int32_t kPointerHourglass = 11;

// Where a window is. `place` is that of the normal window, also while it is minimised or maximised; the client area is
// as large as now, and 0 while minimised.
struct FormGeometry {
  Box place;
  Size client;
  FormWindowState state = FormWindowState::kNormal;
  friend bool operator==(const FormGeometry&, const FormGeometry&) = default;
};

class FormState {
 public:
  virtual const std::wstring& Caption() const = 0;
  virtual FormBorder Border() const = 0;
  // The whole window with its frame. Left and top count by the scale of the system, which is one for all screens; width
  // and height by that of the screen that the window is on. A width of 0: as the client area of the design needs it.
  virtual const Box& Place() const = 0;
  virtual Size DesignClient() const = 0;
  virtual StartUpPosition StartUp() const = 0;  // counts as long as nobody has moved the window
  virtual WindowHandle OwnerWindow() const = 0;
  virtual bool Visible() const = 0;
  virtual bool TakesInput() const = 0;  // enabled, and no modal form in front of it
  virtual FormWindowState WindowState() const = 0;
  virtual bool TopMost() const = 0;
  virtual std::int32_t MousePointer() const = 0;
  virtual std::int32_t Icon() const = 0;  // number of the program's icon; 0 for none

  // The window of the button that Enter presses now; 0 for none.
  virtual WindowHandle EnterButton() const = 0;

  virtual void UserClose() = 0;
  virtual void UserMove(const FormGeometry& geometry) = 0;
  virtual void UserActivate(bool active) = 0;
  // A key before the control with the focus sees it. True: nobody else shall.
  virtual bool UserKey(std::int32_t keyCode, std::int32_t shift) = 0;
  virtual void UserEscape() = 0;  // nobody wanted the Esc key
  virtual void UserScale() = 0;   // the window is on a screen of another scale
  virtual void WindowLost() = 0;  // the system took the window, with its owner's for instance

 protected:
  FormState() = default;
  FormState(const FormState&) = default;
  FormState& operator=(const FormState&) = default;
  ~FormState() = default;
};

// The window is made hidden; VisibleChanged follows when its controls are in it.
class FormPeer : public Peer {
 public:
  virtual void CaptionChanged() = 0;
  virtual void PlaceChanged() = 0;
  virtual void OwnerChanged() = 0;
  virtual void VisibleChanged() = 0;
  virtual void TakesInputChanged() = 0;
  virtual void WindowStateChanged() = 0;
  virtual void TopMostChanged() = 0;
  virtual void MousePointerChanged() = 0;
  virtual void IconChanged() = 0;
  virtual void BringToFront() = 0;
  // Keeps an owner that is no form from the user as long as a modal form is in front of it, or gives it back.
  virtual void BlockOwner(bool block) = 0;
  virtual std::int32_t Dpi() const = 0;
};

// One overload for each kind, so that a kind that a system can't show doesn't compile. `parent` is the window that the
// control is in. The state must outlive the peer, or at least its retirement.
class Peers {
 public:
  virtual ~Peers() = default;
  virtual std::unique_ptr<FormPeer> MakePeer(FormState& form) = 0;
  virtual std::unique_ptr<LabelPeer> MakePeer(WindowHandle parent, LabelState& label) = 0;
  virtual std::unique_ptr<ButtonPeer> MakePeer(WindowHandle parent, ButtonState& button) = 0;
  virtual std::unique_ptr<AnimationPeer> MakePeer(WindowHandle parent, AnimationState& animation) = 0;
};

}  // namespace burrowmark
