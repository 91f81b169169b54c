// The windows of the program that are open.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/window_handle.h"

namespace burrowmark {

// A row for each window of the program.
enum class ProgramWindow : std::uint8_t {
  kProgress,
  kOptions,
  kOrganize,
  kAddModify,
  kItemExists,
  kProperties,
  kPropertiesConfigFile,
  kShortcutsList,
  kFolderReport,
  kNetworkDrives,
  kPersonalNetworkInfo,
  kWizard,
  kAbout,
  kTip,
  kBrowseFolder,
  kNewFolder,
};

// What the table asks of a window.
class OpenWindow {
 public:
  virtual ProgramWindow Kind() const = 0;
  virtual bool IsShown() const = 0;
  virtual WindowHandle Handle() const = 0;
  virtual void ComeForward() = 0;
  // As code asks for it; false if it refused.
  virtual bool Close() = 0;
  // The user is in the middle of something in it: nothing from outside may come now.
  virtual bool InGesture() const = 0;
  virtual void CancelGesture() = 0;
  // So many more (or fewer) keep it from the user.
  virtual void Hold(int holders) = 0;

 protected:
  OpenWindow() = default;
  OpenWindow(const OpenWindow&) = default;
  OpenWindow& operator=(const OpenWindow&) = default;
  ~OpenWindow() = default;
};

class ProgramWindows {
 public:
  // The last one opened of that kind; none if there is none.
  OpenWindow* Find(ProgramWindow window) const;
  bool IsOpen(ProgramWindow window) const { return Find(window) != nullptr; }
  // The one that the user is to see to: the last one opened. The progress window is none of them, and report wizards,
  // which stand beside all others and keep nothing from going on. None if there is none.
  OpenWindow* Innermost() const;
  // The report wizard that was opened last and is shown.
  OpenWindow* LastReport() const;

  // A label is being edited, or something dragged.
  bool AnyInGesture() const;
  void CancelGestures() const;

  // While it lives none of the windows that were open at its beginning takes input, the progress window left out.
  class Blocked {
   public:
    explicit Blocked(ProgramWindows& windows);
    ~Blocked();
    Blocked(const Blocked&) = delete;
    Blocked& operator=(const Blocked&) = delete;

   private:
    ProgramWindows& windows_;
    std::vector<OpenWindow*> held_;
  };

  // For the windows themselves.
  void Enter(OpenWindow& window) { open_.push_back(&window); }
  void Leave(const OpenWindow& window);

 private:
  bool Has(const OpenWindow* window) const;

  std::vector<OpenWindow*> open_;  // in the order in which they were opened
};

}  // namespace burrowmark
