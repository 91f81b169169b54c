// What all controls have in common.
//
// The contract of this library:
// - State lives in the control. A setter compares, stores and tells the peer: the same value does nothing, and without
//   a peer nothing else happens. What the native window alone knows comes back by a door or is asked for at a named
//   moment; a getter never asks.
// - A peer is made when its form loads and shows the whole state then, so it can be thrown away and made anew at any
//   time. Later it is told what changed, and reads that again.
// - What the user does comes in by one door for each gesture (UserClick, UserClose...). Peers use it, and so does
//   everybody who stands in for the user. A door is shut while the user couldn't reach it: the control is disabled or
//   hidden, or a modal form is in front of its form.
// - Events are functions that the owner of a control puts in. They may do anything, unload their own form among it;
//   only the form object itself must stay until they return.
// - Controls are members of their form, made after the control that they are in. The order in which they are made is
//   the tab order.
// - All lengths are twips.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/peers/ui_peers.h"

namespace burrowmark {

class Control;
class ControlSite;
class OptionButton;

// What controls can be in: a form, or a control that holds others.
class ControlParent {
 public:
  virtual ControlSite& Site() = 0;
  // The window that controls in it are made in; 0 while there is none.
  virtual WindowHandle Window() const = 0;
  // The user can do something to what is in it.
  virtual bool IsReachable() const = 0;

 protected:
  ControlParent() = default;
  ControlParent(const ControlParent&) = default;
  ControlParent& operator=(const ControlParent&) = default;
  ~ControlParent() = default;
};

// What a control asks of its form.
class ControlSite : public ControlParent {
 public:
  // While it lives something of the form is running, and no window of the form goes for good.
  class Running {
   public:
    explicit Running(ControlSite& site) : site_(site) { site_.BeginEvent(); }
    ~Running() { site_.EndEvent(); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

   private:
    ControlSite& site_;
  };

  virtual void Enter(Control& control) = 0;
  virtual void Leave(Control& control) = 0;
  // All controls of the form in tab order.
  virtual const std::vector<Control*>& Controls() const = 0;

  virtual Control* ActiveControl() const = 0;
  virtual void MoveFocus(Control* control) = 0;
  // To another control if the one that has it can't be reached any more.
  virtual void HandFocusOn() = 0;
  virtual Control* DefaultButton() const = 0;
  virtual void SetDefaultButton(Control* button) = 0;
  virtual Control* CancelButton() const = 0;
  virtual void SetCancelButton(Control* button) = 0;
  // The one that Enter presses now: the default button, unless the focus is on another one.
  virtual Control* ButtonOfEnter() const = 0;

 protected:
  ControlSite() = default;
  ControlSite(const ControlSite&) = default;
  ControlSite& operator=(const ControlSite&) = default;
  ~ControlSite() = default;

 private:
  virtual void BeginEvent() = 0;
  virtual void EndEvent() = 0;
};

// Stores a value; true if it is another one than before.
template <typename Value>
bool Assign(Value& stored, Value value) {
  if (stored == value) return false;
  stored = std::move(value);
  return true;
}

// Runs an event. It works on a copy: what it does may put another function in.
template <typename... Parameters, typename... Arguments>
void Raise(std::function<void(Parameters...)> event, Arguments&&... arguments) {
  if (event) event(std::forward<Arguments>(arguments)...);
}

class Control : public virtual ControlState {
 public:
  Control(ControlParent& parent, const wchar_t* name, const Box& place);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  std::function<void()> GotFocus;  // for whatever reason
  std::function<void()> LostFocus;
  std::function<void(const MouseEvent&)> MouseDown;
  std::function<void(const MouseEvent&)> MouseMove;
  std::function<void(const MouseEvent&)> MouseUp;
  // A key code of 0 keeps the key from everybody else.
  std::function<void(std::int32_t& KeyCode, std::int32_t Shift)> KeyDown;
  // A character is typed, Enter (13), Esc (27) and Backspace (8) among it, and nobody kept its key. The control gets
  // what it is changed to, and 0 keeps it from everybody: an Enter doesn't press the form's button then.
  std::function<void(std::int32_t& KeyAscii)> KeyPress;

  // The user drags. Nothing is dragged unless `AllowedEffects` gets something. The other always follows.
  std::function<void(std::uint32_t& AllowedEffects)> OLEStartDrag;
  std::function<void(std::uint32_t Effect)> OLECompleteDrag;
  // Of what is dragged over it, also from other programs: these run inside the source's own loop, so they only look
  // and take notes. A drop that was entered leaves or is dropped.
  std::function<void(const DragEvent&, DragState, std::uint32_t& Effect)> OLEDragOver;
  std::function<void(const DragEvent&, const std::vector<std::wstring>& Files, std::uint32_t& Effect)> OLEDragDrop;

  const std::wstring& Name() const { return name_; }
  // 0 while the form isn't loaded.
  WindowHandle Window() const;

  const Box& Place() const final { return place_; }
  void SetPlace(const Box& place);
  bool Visible() const final { return visible_; }
  void SetVisible(bool visible);
  bool Enabled() const final { return enabled_; }
  // One that has the focus, or has what has it in it, hands it on when it is disabled: a button to the form's default
  // button, and all others, or where that can't take it, to the next in tab order.
  void SetEnabled(bool enabled);
  bool TabStop() const final { return tabStop_; }
  void SetTabStop(bool tabStop);
  const std::wstring& ToolTipText() const final { return toolTip_; }
  void SetToolTipText(std::wstring_view text);
  bool OLEDrop() const final { return oleDrop_; }
  // Holds for the windows that are made from then on.
  void SetOLEDrop(bool on) { oleDrop_ = on; }

  bool HasFocus() const;
  // Does nothing unless the form is loaded and the user could go there too.
  void SetFocus();

  ControlParent& Parent() const { return parent_; }
  // It needs this key itself, so that it is no shortcut of the form's menus.
  virtual bool UsesKey(std::int32_t, std::int32_t) const { return false; }
  // What its caption needs at the scale of now; 0 without a caption, and while the form isn't loaded.
  virtual Size NeededSize() const = 0;
  // With the mark of its mnemonic, if it is of a kind that has one and uses it; none for a kind without a caption.
  virtual const std::wstring* CaptionText() const = 0;
  virtual bool MarksMnemonic() const = 0;
  // Screen readers call the control behind it by its caption.
  virtual bool NamesNext() const { return false; }

  void UserFocus(bool has) final;
  void UserMouse(MouseAction action, const MouseEvent& event) final;
  bool UserKeyDown(std::int32_t keyCode, std::int32_t shift) final;
  std::int32_t UserKeyPress(std::int32_t character) final;
  void UserStartDrag(const std::function<std::uint32_t(std::uint32_t allowed)>& run) final;
  std::uint32_t UserDragOver(const DragEvent& event, DragState state) final;
  std::uint32_t UserDragDrop(const DragEvent& event, const std::vector<std::wstring>& files) final;

 protected:
  ~Control() = default;
  // For the last moment in which the control's peer is there.
  void LeaveForm();
  void StartWithoutTabStop() { tabStop_ = false; }
  ControlSite& Site() const { return form_; }
  // The user can do something to it.
  bool IsReachable() const;

  virtual ControlPeer* ThePeer() const = 0;

 private:
  friend class Form;  // which makes the peers and takes them away
  friend class OptionButton;
  virtual void MakePeer(Peers& peers) = 0;
  virtual std::unique_ptr<ControlPeer> TakePeer() = 0;
  // What was going on in the native window ended with it.
  virtual void PeerTaken() {}
  // A key wherever the focus is on its form. True: nobody else shall have it.
  virtual bool UserFormKey(std::int32_t, std::int32_t) { return false; }
  // What Enter does when it is the form's button for that.
  virtual bool ShowsDefaultWithFocus() const { return false; }
  virtual void DefaultMoved() {}
  virtual void UserPress() {}
  // None for controls of other kinds.
  virtual OptionButton* AsOption() { return nullptr; }

  ControlParent& parent_;
  ControlSite& form_;
  std::wstring name_;
  Box place_;
  bool visible_ = true;
  bool enabled_ = true;
  bool tabStop_ = true;
  bool oleDrop_ = false;
  bool dragIn_ = false;  // something that is dragged has entered
  std::wstring toolTip_;
};

// A control of one kind: what its peer reads, and the peer.
template <typename State, typename KindPeer>
class ControlOf : public Control, public State {
 protected:
  using Control::Control;
  ~ControlOf() { LeaveForm(); }

  void Tell(void (KindPeer::*change)()) {
    if (peer_) (peer_.get()->*change)();
  }
  // None while the form isn't loaded.
  KindPeer* KindsPeer() const { return peer_.get(); }
  Size NeededSize() const final {
    if constexpr (kHasCaption) {
      if (peer_) return peer_->NeededSize();
    }
    return {};
  }
  const std::wstring* CaptionText() const final {
    if constexpr (kHasCaption) return &static_cast<const State&>(*this).Caption();
    return nullptr;
  }
  bool MarksMnemonic() const final {
    if constexpr (requires(const State& state) { state.UseMnemonic(); }) {
      return static_cast<const State&>(*this).UseMnemonic();
    }
    return kHasCaption;
  }
  ControlPeer* ThePeer() const final { return peer_.get(); }

 private:
  static constexpr bool kHasCaption = std::is_base_of_v<CaptionPeer, KindPeer>;

  void MakePeer(Peers& peers) final { peer_ = peers.MakePeer(Parent().Window(), static_cast<State&>(*this)); }
  std::unique_ptr<ControlPeer> TakePeer() final { return std::move(peer_); }

  std::unique_ptr<KindPeer> peer_;
};

// A control of a kind that other controls can be in.
template <typename State, typename KindPeer>
class ContainerOf : public ControlOf<State, KindPeer>, public ControlParent {
 public:
  ControlSite& Site() final { return Control::Site(); }
  WindowHandle Window() const final { return Control::Window(); }
  bool IsReachable() const final { return Control::IsReachable(); }

 protected:
  using ControlOf<State, KindPeer>::ControlOf;
  ~ContainerOf() = default;
};

}  // namespace burrowmark
