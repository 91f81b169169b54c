#include "core/program_windows.h"

#include <algorithm>

namespace burrowmark {

OpenWindow* ProgramWindows::Find(ProgramWindow window) const {
  const auto found =
      std::find_if(open_.rbegin(), open_.rend(), [window](const OpenWindow* open) { return open->Kind() == window; });
  return found == open_.rend() ? nullptr : *found;
}

OpenWindow* ProgramWindows::Innermost() const {
  const auto found = std::find_if(open_.rbegin(), open_.rend(), [](const OpenWindow* open) {
    return open->Kind() != ProgramWindow::kProgress && open->Kind() != ProgramWindow::kFolderReport && open->IsShown();
  });
  return found == open_.rend() ? nullptr : *found;
}

OpenWindow* ProgramWindows::LastReport() const {
  OpenWindow* const report = Find(ProgramWindow::kFolderReport);
  return report != nullptr && report->IsShown() ? report : nullptr;
}

bool ProgramWindows::AnyInGesture() const {
  return std::any_of(open_.begin(), open_.end(), [](const OpenWindow* open) { return open->InGesture(); });
}

void ProgramWindows::CancelGestures() const {
  for (OpenWindow* window : std::vector<OpenWindow*>(open_)) {
    if (Has(window)) window->CancelGesture();
  }
}

bool ProgramWindows::Has(const OpenWindow* window) const {
  return std::find(open_.begin(), open_.end(), window) != open_.end();
}

void ProgramWindows::Leave(const OpenWindow& window) { std::erase(open_, &window); }

ProgramWindows::Blocked::Blocked(ProgramWindows& windows) : windows_(windows), held_(windows.open_) {
  std::erase_if(held_, [](const OpenWindow* open) { return open->Kind() == ProgramWindow::kProgress; });
  for (OpenWindow* window : held_) window->Hold(1);
}

ProgramWindows::Blocked::~Blocked() {
  for (OpenWindow* window : held_) {
    if (windows_.Has(window)) window->Hold(-1);
  }
}

}  // namespace burrowmark
