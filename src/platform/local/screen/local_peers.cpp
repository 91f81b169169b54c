#include "platform/local/screen/local_peers.h"

#include "platform/local/person/shown_menus.h"
#include "platform/local/screen/local_bars.h"
#include "platform/local/screen/local_container_controls.h"
#include "platform/local/screen/local_control.h"
#include "platform/local/screen/local_entry_controls.h"
#include "platform/local/screen/local_list_view.h"
#include "platform/local/screen/local_simple_controls.h"
#include "platform/local/screen/local_tree_view.h"

namespace burrowmark {
namespace {

class LocalForm final : public FormPeer {
 public:
  LocalForm(LocalProcess& process, LocalDesktop& desktop, FormState& form)
      : process_(process),
        desktop_(desktop),
        form_(form),
        shown_(std::make_shared<ShownWindow>(desktop, form)),
        handle_(process.AddHandle()) {
    shown_->window = handle_;
    shown_->owner = form.OwnerWindow();
    shown_->dpi = process.Scale();
    shown_->border = form.Border();
    shown_->caption = form.Caption();
    shown_->enabled = form.TakesInput();
    shown_->topMost = form.TopMost();
    shown_->pointer = form.MousePointer();
    shown_->icon = form.Icon();
    shown_->systemMenu = form.SystemMenuEntries();
    shown_->ShowBar();
    desktop_.Add(shown_);
    PlaceChanged();
  }
  ~LocalForm() override {
    Retire();
    desktop_.LoseOwned(handle_);
    process_.RemoveHandle(handle_);
  }
  LocalForm(const LocalForm&) = delete;
  LocalForm& operator=(const LocalForm&) = delete;

  void Retire() override {
    if (!shown_->IsOpen()) return;
    BlockOwner(false);
    shown_->Retire();
  }
  WindowHandle Window() const override { return handle_; }
  void CaptionChanged() override { shown_->caption = form_.Caption(); }
  void PlaceChanged() override {
    const std::shared_ptr<ShownWindow> owner = desktop_.Find(form_.OwnerWindow());
    const bool over = owner && owner->visible && owner->state != FormWindowState::kMinimized;
    shown_->Put(over ? owner->place : LocalDesktop::kScreen);
    shown_->Report();
  }
  void OwnerChanged() override {
    shown_->owner = form_.OwnerWindow();
    if (form_.StartUp() == StartUpPosition::kCenterOwner && !form_.Visible()) PlaceChanged();
  }
  void VisibleChanged() override {
    shown_->visible = form_.Visible();
    if (!shown_->visible) return desktop_.Deactivate(*shown_);
    WindowStateChanged();
    BringToFront();
  }
  void TakesInputChanged() override {
    shown_->enabled = form_.TakesInput();
    if (!shown_->enabled) desktop_.Deactivate(*shown_);
  }
  void WindowStateChanged() override {
    if (!shown_->visible) return;
    shown_->TakeState(form_.WindowState());
    shown_->Report();
  }
  void TopMostChanged() override { shown_->topMost = form_.TopMost(); }
  void MousePointerChanged() override { shown_->pointer = form_.MousePointer(); }
  void IconChanged() override { shown_->icon = form_.Icon(); }
  void BringToFront() override {
    desktop_.Raise(handle_);
    if (shown_->IsOpen() && shown_->visible && shown_->enabled) desktop_.Activate(shown_);
  }
  void BlockOwner(bool block) override {
    if (!block) {
      desktop_.Unblock(blocked_);
      blocked_ = 0;
    } else if (desktop_.Block(form_.OwnerWindow())) {
      blocked_ = form_.OwnerWindow();
    }
  }
  void MenusChanged() override {
    const bool before = shown_->hasBar;
    shown_->ShowBar();
    if (shown_->hasBar != before) shown_->Report();
  }
  void SystemMenuChanged() override { shown_->systemMenu = form_.SystemMenuEntries(); }
  void PopupMenu(MenuEntryState& popup, const MenuEntryState* defaultEntry) override {
    if (!shown_->IsOpen()) return;
    form_.UserOpenMenu(popup);
    if (!shown_->IsOpen()) return;
    ShownPopup shown(form_, popup, defaultEntry);
    process_.MeetPopup(shown);
    if (shown.Chosen() != nullptr && shown_->IsOpen()) form_.UserChooseMenu(*shown.Chosen());
  }
  std::int32_t Dpi() const override { return shown_->dpi; }

 private:
  LocalProcess& process_;
  LocalDesktop& desktop_;
  FormState& form_;
  std::shared_ptr<ShownWindow> shown_;
  WindowHandle handle_;
  WindowHandle blocked_ = 0;
};

}  // namespace

std::unique_ptr<FormPeer> LocalPeers::MakePeer(FormState& form) {
  return std::make_unique<LocalForm>(process_, desktop_, form);
}

std::unique_ptr<LabelPeer> LocalPeers::MakePeer(WindowHandle parent, LabelState& label) {
  return std::make_unique<LocalLabel>(process_, desktop_, parent, label);
}

std::unique_ptr<ButtonPeer> LocalPeers::MakePeer(WindowHandle parent, ButtonState& button) {
  return std::make_unique<LocalButton>(process_, desktop_, parent, button);
}

std::unique_ptr<AnimationPeer> LocalPeers::MakePeer(WindowHandle parent, AnimationState& animation) {
  return std::make_unique<LocalAnimation>(process_, desktop_, parent, animation);
}

std::unique_ptr<ToolbarPeer> LocalPeers::MakePeer(WindowHandle parent, ToolbarState& toolbar) {
  return std::make_unique<LocalToolbar>(process_, desktop_, parent, toolbar);
}

std::unique_ptr<StatusBarPeer> LocalPeers::MakePeer(WindowHandle parent, StatusBarState& bar) {
  return std::make_unique<LocalStatusBar>(process_, desktop_, parent, bar);
}

std::unique_ptr<TextBoxPeer> LocalPeers::MakePeer(WindowHandle parent, TextBoxState& box) {
  return std::make_unique<LocalTextBox>(process_, desktop_, parent, box);
}

std::unique_ptr<PicturePeer> LocalPeers::MakePeer(WindowHandle parent, PictureState& picture) {
  return std::make_unique<LocalPicture>(process_, desktop_, parent, picture);
}

std::unique_ptr<ListViewPeer> LocalPeers::MakePeer(WindowHandle parent, ListViewState& list) {
  return std::make_unique<LocalListView>(process_, desktop_, parent, list);
}

std::unique_ptr<TreeViewPeer> LocalPeers::MakePeer(WindowHandle parent, TreeViewState& tree) {
  return std::make_unique<LocalTreeView>(process_, desktop_, parent, tree);
}

std::unique_ptr<LinePeer> LocalPeers::MakePeer(WindowHandle parent, LineState& line) {
  return std::make_unique<LocalLine>(process_, desktop_, parent, line);
}

std::unique_ptr<CheckBoxPeer> LocalPeers::MakePeer(WindowHandle parent, CheckBoxState& box) {
  return std::make_unique<LocalCheckBox>(process_, desktop_, parent, box);
}

std::unique_ptr<OptionPeer> LocalPeers::MakePeer(WindowHandle parent, OptionState& option) {
  return std::make_unique<LocalOption>(process_, desktop_, parent, option);
}

std::unique_ptr<ComboBoxPeer> LocalPeers::MakePeer(WindowHandle parent, ComboBoxState& box) {
  return std::make_unique<LocalComboBox>(process_, desktop_, parent, box);
}

std::unique_ptr<FramePeer> LocalPeers::MakePeer(WindowHandle parent, FrameState& frame) {
  return std::make_unique<LocalFrame>(process_, desktop_, parent, frame);
}

std::unique_ptr<TabStripPeer> LocalPeers::MakePeer(WindowHandle parent, TabStripState& strip) {
  return std::make_unique<LocalTabStrip>(process_, desktop_, parent, strip);
}

}  // namespace burrowmark
