// The windows of the program that are open.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/window_handle.h"

namespace burrowmark {

class ProgramForm;

// A row for each window of the program.
enum class ProgramWindow : std::uint8_t {
  kProgress,
  kOptions,
  kOrganize,
  kAddModify,
  kProperties,
  kPropertiesConfigFile,
  kNetworkDrives,
  kPersonalNetworkInfo,
  kWizard,
  kAbout,
  kTip,
};

class ProgramWindows {
 public:
  // The last one opened of that kind; none if there is none.
  ProgramForm* Find(ProgramWindow window) const;
  bool IsOpen(ProgramWindow window) const { return Find(window) != nullptr; }
  // The one in front of the user: the last one opened, the progress window left out. None if there is none.
  ProgramForm* Innermost() const;

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
    std::vector<ProgramForm*> forms_;
  };

  // For the windows themselves.
  void Enter(ProgramForm& form) { open_.push_back(&form); }
  void Leave(const ProgramForm& form);

 private:
  bool Has(const ProgramForm* form) const;

  std::vector<ProgramForm*> open_;  // in the order in which they were opened
};

}  // namespace burrowmark
