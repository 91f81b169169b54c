// Native menus of the local machine, shown to the person at it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/local/faults.h"
#include "platform/local/local_facts.h"
#include "platform/local/menus/menu_tree.h"
#include "platform/local/menus/popup_run.h"
#include "platform/local/person/local_user.h"
#include "platform/local/screen/local_drawing.h"
#include "platform/local/screen/local_windows.h"
#include "platform/menus.h"

namespace burrowmark {

// A popup that nobody expected, that is still open after what the person does, or closes before it, throws
// std::logic_error.
class LocalMenus final : public Menus {
 public:
  // All must outlive this object.
  LocalMenus(MenuTree& tree, LocalWindows& windows, LocalDrawing& drawing, const LocalFacts& facts, LocalUser& user,
             Faults& faults);

  // For tests. The entries of a menu, none if there is no such menu; all menus that exist, those of the main window
  // (its bar and the popup in it) among them.
  const std::vector<LocalMenuEntry>& Entries(MenuHandle menu) const;
  std::size_t LiveMenus() const { return tree_.Count(); }
  // True while a popup is on the screen.
  bool IsShowing() const { return showing_; }

  MenuHandle GetMenu(WindowHandle window) override { return windows_.MenuOf(window); }
  MenuHandle GetSubMenu(MenuHandle menu, std::int32_t position) override;
  MenuHandle CreatePopupMenu() override;
  bool DestroyMenu(MenuHandle menu) override;
  bool InsertMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                   const std::wstring& text) override;
  bool ModifyMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                   const std::wstring& text) override;
  bool DeleteMenu(MenuHandle menu, std::int32_t position, std::int32_t flags) override;
  std::int32_t GetMenuItemCount(MenuHandle menu) override;
  std::int32_t GetMenuItemID(MenuHandle menu, std::int32_t position) override;
  std::int32_t TrackPopupMenu(MenuHandle menu, WindowHandle window, Color background,
                              const std::optional<Rect>& beside) override;

  std::optional<Rect> Beside;  // where the last popup stood; none for the mouse

 private:
  std::uint32_t SelectedState() const;
  void Play(PopupRun& run, const std::vector<MenuAction>& actions);

  MenuTree& tree_;
  LocalWindows& windows_;
  LocalDrawing& drawing_;
  const LocalFacts& facts_;
  LocalUser& user_;
  Faults& faults_;
  bool showing_ = false;
  const std::vector<LocalMenuEntry> none_;
};

}  // namespace burrowmark
