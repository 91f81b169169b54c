#include "platform/local/screen/local_desktop.h"

#include <algorithm>
#include <iterator>

namespace burrowmark {

std::vector<std::shared_ptr<ShownWindow>> LocalDesktop::Visible() const {
  std::vector<std::shared_ptr<ShownWindow>> visible;
  for (const bool topMost : {true, false}) {
    std::copy_if(order_.rbegin(), order_.rend(), std::back_inserter(visible),
                 [topMost](const auto& window) { return window->visible && window->topMost == topMost; });
  }
  return visible;
}

std::shared_ptr<ShownWindow> LocalDesktop::Find(WindowHandle window) const {
  const auto found = std::find_if(all_.begin(), all_.end(), [window](const auto& candidate) {
    return candidate->window == window && candidate->IsOpen();
  });
  return found == all_.end() ? nullptr : *found;
}

std::shared_ptr<ShownWindow> LocalDesktop::FormOf(WindowHandle window) const {
  const auto found = std::find_if(all_.begin(), all_.end(), [window](const auto& candidate) {
    return candidate->IsOpen() && (candidate->window == window || candidate->WithWindow(window) != nullptr);
  });
  return found == all_.end() ? nullptr : *found;
}

std::shared_ptr<ShownWindow> LocalDesktop::WithCaption(const std::wstring& caption) const {
  for (const auto& window : Visible()) {
    if (window->caption == caption) return window;
  }
  return nullptr;
}

std::shared_ptr<ShownWindow> LocalDesktop::Active() const { return active_.lock(); }

void LocalDesktop::Add(const std::shared_ptr<ShownWindow>& window) {
  all_.push_back(window);
  order_.push_back(window);
}

void LocalDesktop::Raise(WindowHandle window) {
  const auto isPart = [window](const auto& other) { return other->window == window; };
  const auto isOwned = [window](const auto& other) { return other->owner == window && other->IsOpen(); };
  std::stable_partition(order_.begin(), order_.end(), [&](const auto& other) { return !isPart(other); });
  for (const auto& other : std::vector<std::shared_ptr<ShownWindow>>(order_)) {
    if (isOwned(other)) Raise(other->window);
  }
}

void LocalDesktop::RunGesture(WindowHandle window, const std::function<void()>& gesture) {
  process_.RunGesture([this, window, gesture] {
    const std::shared_ptr<ShownWindow> shown = Find(window);
    if (!shown || !shown->visible || !shown->enabled) return;
    Raise(window);
    Activate(shown);
    if (shown->IsOpen()) gesture();
  });
}

void LocalDesktop::LoseOwned(WindowHandle owner) {
  for (const auto& window : std::vector<std::shared_ptr<ShownWindow>>(all_)) {
    if (window->owner == owner && window->IsOpen()) window->Form()->WindowLost();
  }
}

void LocalDesktop::Activate(const std::shared_ptr<ShownWindow>& window) {
  const std::shared_ptr<ShownWindow> before = active_.lock();
  if (before == window) return;
  active_ = window;
  if (before) before->Activate(false);
  if (window && active_.lock() == window) window->Activate(true);
}

void LocalDesktop::Deactivate(const ShownWindow& window) {
  if (active_.lock().get() != &window) return;
  const std::shared_ptr<ShownWindow> owner = Find(window.owner);
  if (owner && owner->visible && owner->enabled) return Activate(owner);
  const auto visible = Visible();
  const auto next = std::find_if(visible.begin(), visible.end(), [](const auto& other) { return other->enabled; });
  Activate(next == visible.end() ? nullptr : *next);
}

}  // namespace burrowmark
