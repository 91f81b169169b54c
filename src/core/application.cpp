#include "core/application.h"

namespace burrowmark {

Platform Application::WithBoxes(const Platform& system) {
  return {system.registry,  system.files,   system.system, system.clock, system.windows,
          system.menus,     system.drawing, system.shell,  dialogs_,     system.keyboard,
          system.clipboard, system.workers, system.network};
}

void Application::BringForward() {
  OpenWindow* front = Windows.Innermost();
  if (front == nullptr && Requests.IsBusy()) front = Windows.LastReport();
  if (front != nullptr) {
    front->ComeForward();
  } else if (MainWindow != 0 && Requests.IsBusyWith(BusyWith::kBox)) {
    platform.windows.SetForegroundWindow(MainWindow);
  }
}

}  // namespace burrowmark
