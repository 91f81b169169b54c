// What all controls of the local machine have in common.
#pragma once

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>

#include "platform/local/person/local_process.h"
#include "platform/local/screen/local_desktop.h"
#include "platform/local/screen/text_needs.h"
#include "platform/peers/ui_peers.h"

namespace burrowmark {

// What a window of a system's own would be: it shows what its control's state says.
template <typename KindPeer, typename State>
class LocalControl : public KindPeer {
 public:
  LocalControl(LocalProcess& process, LocalDesktop& desktop, WindowHandle parent, ShownKind kind, State& state)
      : process_(process), desktop_(desktop), form_(desktop.FormOf(parent)), state_(&state) {
    if (!form_) throw std::runtime_error("a control without a form's window");
    shown_->kind = kind;
    shown_->window = process_.AddHandle();
    shown_->parent = parent;
    shown_->enabled = state.Enabled();
    shown_->visible = state.Visible();
    shown_->tabStop = state.TabStop();
    shown_->UserFocus = [&state](bool has) { state.UserFocus(has); };
    shown_->UserMouse = [&state](MouseAction action, const MouseEvent& event) { state.UserMouse(action, event); };
    shown_->UserKeyDown = [&state](std::int32_t keyCode, std::int32_t shift) {
      return state.UserKeyDown(keyCode, shift);
    };
    shown_->UserKeyPress = [&state](std::int32_t character) { return state.UserKeyPress(character); };
    shown_->oleDrop = state.OLEDrop();
    shown_->UserStartDrag = [&state](const auto& run) { state.UserStartDrag(run); };
    shown_->UserDragOver = [&state](const DragEvent& event, DragState drag) { return state.UserDragOver(event, drag); };
    shown_->UserDragDrop = [&state](const DragEvent& event, const std::vector<std::wstring>& files) {
      return state.UserDragDrop(event, files);
    };
    ToolTipChanged();
    PlaceChanged();
    form_->controls.push_back(shown_);
  }
  ~LocalControl() override {
    Retire();
    process_.RemoveHandle(shown_->window);
    std::erase(form_->controls, shown_);
  }
  LocalControl(const LocalControl&) = delete;
  LocalControl& operator=(const LocalControl&) = delete;

  void Retire() final {
    shown_->UserFocus = nullptr;
    shown_->UserMouse = nullptr;
    shown_->UserKeyDown = nullptr;
    shown_->UserKeyPress = nullptr;
    shown_->UserStartDrag = nullptr;
    shown_->UserDragOver = nullptr;
    shown_->UserDragDrop = nullptr;
    shown_->UserClick = nullptr;
    shown_->PressKey = nullptr;
    shown_->UserButtonClick = nullptr;
    shown_->UserButtonMenuClick = nullptr;
    shown_->UserType = nullptr;
    shown_->UserChoose = nullptr;
    shown_->Entered = nullptr;
    shown_->labelEdit.reset();
    shown_->EndLabelEdit = nullptr;
    if (shown_->list) shown_->list->Retire();
    if (shown_->tree) shown_->tree->Retire();
    retired_ = true;
  }
  WindowHandle Window() const final { return shown_->window; }
  void PlaceChanged() final { shown_->place = ToPixels(state_->Place(), form_->dpi); }
  void VisibleChanged() final {
    shown_->visible = state_->Visible();
    LeaveIfUnusable();
  }
  void EnabledChanged() final {
    shown_->enabled = state_->Enabled();
    LeaveIfUnusable();
  }
  void TabStopChanged() final { shown_->tabStop = state_->TabStop(); }
  void ToolTipChanged() final { shown_->toolTip = state_->ToolTipText(); }
  void ScaleChanged() final { PlaceChanged(); }
  void TakeFocus() final {
    if (desktop_.Active() == form_) form_->SetFocus(shown_.get());
  }

 protected:
  ShownControl& Shown() { return *shown_; }
  State& Control() const { return *state_; }
  ShownWindow& FormWindow() const { return *form_; }
  LocalProcess& Process() const { return process_; }
  bool IsRetired() const { return retired_; }
  // Twips; `around` is what the control adds to the text, and `width` that in which it wraps, 0 if it doesn't.
  Size NeededByText(const std::wstring& text, const Size& around, std::int32_t width = 0) const {
    const Size needed = EstimateText(shown_->useMnemonic ? WithoutMarks(text) : text, width);
    return {needed.width + around.width, needed.height + around.height};
  }
  bool HasFile(const std::wstring& path) const { return process_.HasFile(path); }

 private:
  void LeaveIfUnusable() {
    const ShownControl* focused = form_->Focused();
    if (focused != nullptr && !form_->CanBeUsed(*focused)) form_->SetFocus(nullptr);
  }

  LocalProcess& process_;
  LocalDesktop& desktop_;
  std::shared_ptr<ShownWindow> form_;
  State* state_;
  std::shared_ptr<ShownControl> shown_ = std::make_shared<ShownControl>();
  bool retired_ = false;
};

}  // namespace burrowmark
