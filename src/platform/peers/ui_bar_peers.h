// Bars around a form's content, and the menus of forms.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/peers/ui_control.h"
#include "platform/peers/ui_images.h"

namespace burrowmark {

// --- toolbar

enum class ToolbarButtonStyle : std::uint8_t { kButton, kSeparator, kDropDown };

struct ToolbarMenuEntry {
  std::wstring key;
  std::wstring text;
};

struct ToolbarButtonState {
  std::wstring key;
  ToolbarButtonStyle style = ToolbarButtonStyle::kButton;
  std::wstring caption;
  std::wstring toolTip;
  std::int32_t image = 0;
  bool enabled = true;
  std::vector<ToolbarMenuEntry> menu;  // of a drop-down button
};

class ToolbarState : public virtual ControlState {
 public:
  virtual const ImageList& Images() const = 0;
  virtual const ImageList& DisabledImages() const = 0;
  virtual const std::vector<ToolbarButtonState>& Buttons() const = 0;

  virtual void UserButtonClick(std::size_t button) = 0;
  virtual void UserButtonMenuClick(std::size_t button, std::size_t entry) = 0;

 protected:
  ~ToolbarState() = default;
};

class ToolbarPeer : public ControlPeer {
 public:
  virtual void ButtonsChanged() = 0;  // images and texts: everything is shown anew
  virtual void ButtonEnabledChanged(std::size_t button) = 0;
  // Twips that the buttons need.
  virtual std::int32_t NeededHeight() const = 0;
};

// --- status bar

struct StatusPanelState {
  std::wstring text;
  std::int32_t icon = 0;   // number of the program's icon; 0 for none
  std::int32_t width = 0;  // twips; 0 takes what the others leave
};

class StatusBarState : public virtual ControlState {
 public:
  virtual const std::vector<StatusPanelState>& Panels() const = 0;
  virtual bool SizeGrip() const = 0;

 protected:
  ~StatusBarState() = default;
};

class StatusBarPeer : public ControlPeer {
 public:
  virtual void PanelChanged(std::size_t panel) = 0;
  // Twips that its texts need.
  virtual std::int32_t NeededHeight() const = 0;
};

// --- menus

// The caption of an entry that is a line.
inline constexpr wchar_t kMenuLine[] = L"-";
constexpr bool IsNotDash(std::wstring_view caption) { return caption != kMenuLine; }

struct MenuShortcut {
  std::int32_t key = 0;    // key code; 0 is none
  std::int32_t shift = 0;  // kShiftMask and its like
  friend bool operator==(const MenuShortcut&, const MenuShortcut&) = default;
};

// One with children opens them. Its peer reads it when the menu that it is in opens; a bar's entries at once.
struct MenuEntryState {
  std::wstring caption;
  MenuShortcut shortcut;
  bool visible = true;
  bool enabled = true;
  bool checked = false;
  bool radio = false;  // a check is a dot
  MenuEntryState* parent = nullptr;
  std::vector<MenuEntryState*> children;
};

// An entry of a form at the end of the window's system menu, behind a line.
struct SystemMenuEntry {
  std::int32_t id = 0;
  std::wstring text;
  bool checked = false;
  friend bool operator==(const SystemMenuEntry&, const SystemMenuEntry&) = default;
};

}  // namespace burrowmark
