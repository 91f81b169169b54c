// What all controls have in common.
//
// The contract of this library:
// - State lives in the control. A setter compares, stores and tells the peer: the same value does nothing, and without
// a
//   peer nothing else happens. What the native window alone knows comes back by a door or is asked for at a named
//   moment; a getter never asks.
// - A peer is made when its form loads and shows the whole state then, so it can be thrown away and made anew at any
//   time. Later it is told what changed, and reads that again.
// - What the user does comes in by one door for each gesture (UserClick, UserClose...). Peers use it, and so does
//   everybody who stands in for the user. A door is shut while the user couldn't reach it: the control is disabled or
//   hidden, or a modal form is in front of its form.
// - Events are functions that the owner of a control puts in. They may do anything, unload their own form among it;
// only
//   the form object itself must stay until they return.
// - Controls are members of their form. The order in which they are made is the tab order.
// - All lengths are twips.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/ui_peers.h"

namespace burrowmark {

class Control;

// What a control asks of its form.
class ControlSite {
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
  virtual bool IsReachable() const = 0;

  virtual Control* ActiveControl() const = 0;
  virtual void MoveFocus(Control* control) = 0;
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
template <typename... Arguments>
void Raise(std::function<void(Arguments...)> event, Arguments... arguments) {
  if (event) event(arguments...);
}

class Control : public virtual ControlState {
 public:
  Control(ControlSite& form, std::wstring name, const Box& place);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  std::function<void()> GotFocus;  // for whatever reason
  std::function<void()> LostFocus;

  const std::wstring& Name() const { return name_; }
  // 0 while the form isn't loaded.
  WindowHandle Window() const;

  const Box& Place() const final { return place_; }
  void SetPlace(const Box& place);
  bool Visible() const final { return visible_; }
  void SetVisible(bool visible);
  bool Enabled() const final { return enabled_; }
  void SetEnabled(bool enabled);
  bool TabStop() const final { return tabStop_; }
  void SetTabStop(bool tabStop);

  bool HasFocus() const;
  // Does nothing unless the form is loaded and the user could go there too.
  void SetFocus();

  void UserFocus(bool has) final;

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
  virtual void MakePeer(Peers& peers, WindowHandle parent) = 0;
  virtual std::unique_ptr<ControlPeer> TakePeer() = 0;
  // What Enter does when it is the form's button for that.
  virtual bool ShowsDefaultWithFocus() const { return false; }
  virtual void DefaultMoved() {}
  virtual void UserPress() {}

  ControlSite& form_;
  std::wstring name_;
  Box place_;
  bool visible_ = true;
  bool enabled_ = true;
  bool tabStop_ = true;
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
  ControlPeer* ThePeer() const final { return peer_.get(); }

 private:
  void MakePeer(Peers& peers, WindowHandle parent) final { peer_ = peers.MakePeer(parent, static_cast<State&>(*this)); }
  std::unique_ptr<ControlPeer> TakePeer() final { return std::move(peer_); }

  std::unique_ptr<KindPeer> peer_;
};

}  // namespace burrowmark
