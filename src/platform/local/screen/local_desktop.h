// The windows of the local machine, one above the other.
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/local/person/local_process.h"
#include "platform/local/person/shown_window.h"

namespace burrowmark {

class LocalDesktop final : public WindowStack {
 public:
  // `process` must outlive this object.
  explicit LocalDesktop(LocalProcess& process) : process_(process) {}
  LocalDesktop(const LocalDesktop&) = delete;
  LocalDesktop& operator=(const LocalDesktop&) = delete;

  // All windows that there ever were, in the order in which they were made.
  const std::vector<std::shared_ptr<ShownWindow>>& History() const { return all_; }
  // Those on the screen, the topmost first.
  std::vector<std::shared_ptr<ShownWindow>> Visible() const;
  // None if there is no such window any more.
  std::shared_ptr<ShownWindow> Find(WindowHandle window) const;
  // The form that this window is, or that this control is in; none if there is no such one any more.
  std::shared_ptr<ShownWindow> FormOf(WindowHandle window) const;
  // The topmost one on the screen with that caption.
  std::shared_ptr<ShownWindow> WithCaption(const std::wstring& caption) const;
  std::shared_ptr<ShownWindow> Active() const;

  // True while a modal form is in front of that window, which is no form's.
  bool IsBlocked(WindowHandle window) const { return blocked_.contains(window); }

  // For the peers.
  bool Block(WindowHandle window) { return blocked_.insert(window).second; }
  void Unblock(WindowHandle window) { blocked_.erase(window); }
  // The window goes, and with it all that it owns.
  void LoseOwned(WindowHandle owner);
  void Add(const std::shared_ptr<ShownWindow>& window);
  // To the top of the windows that are as it is, topmost or not, with what it owns above it.
  void Raise(WindowHandle window);
  void Activate(const std::shared_ptr<ShownWindow>& window);
  void RunGesture(WindowHandle window, const std::function<void()>& gesture) override;
  void Deactivate(const ShownWindow& window) override;

 private:
  LocalProcess& process_;
  std::vector<std::shared_ptr<ShownWindow>> all_;
  std::vector<std::shared_ptr<ShownWindow>> order_;  // from the bottom to the top
  std::weak_ptr<ShownWindow> active_;
  std::set<WindowHandle> blocked_;
};

}  // namespace burrowmark
