// One popup from its opening until it is gone.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/local/menus/menu_actions.h"
#include "platform/local/menus/menu_tree.h"
#include "platform/local/screen/local_drawing.h"
#include "platform/local/screen/local_windows.h"

namespace burrowmark {

// A popup as it is on the screen.
struct PopupView {
  MenuHandle menu = 0;
  DeviceContext context = 0;
  std::vector<Rect> rects;     // of its entries
  std::int32_t selected = -1;  // position; -1 for none
};

struct PopupLook {
  WindowHandle window = 0;          // hears of measuring and drawing
  std::uint32_t selectedState = 0;  // what an entry's state is while it is selected
  Color background = 0;
};

// Owner-drawn entries are measured when a popup opens for the first time after they or the scale changed, and drawn by
// the window's hook on a canvas that has the background's colour.
class PopupRun {
 public:
  // All must outlive this object.
  PopupRun(MenuTree& tree, LocalWindows& windows, LocalDrawing& drawing, const PopupLook& look);
  ~PopupRun() { CloseFrom(0); }
  PopupRun(const PopupRun&) = delete;
  PopupRun& operator=(const PopupRun&) = delete;

  void Open(MenuHandle menu);
  // False if there is no entry of this title to click on.
  bool Perform(const MenuAction& action);
  bool IsOpen() const { return !levels_.empty(); }
  // The number of the entry that was chosen, once the menu is gone.
  std::optional<std::int32_t> Chosen() const { return chosen_; }

 private:
  struct Spot {
    std::size_t level = 0;
    std::int32_t position = 0;
  };

  PopupView& Top() { return levels_.back(); }
  const LocalMenuEntry* Selected();
  std::optional<Spot> FindTitle(const std::wstring& title) const;
  std::int32_t NextStartingWith(wchar_t letter);
  std::int32_t NextSelectable(std::int32_t from, std::int32_t step);

  void Measure(MenuHandle menu);
  void LayOut(PopupView& view) const;
  void Draw(const PopupView& view, std::int32_t position);
  void Select(std::int32_t position);
  bool MoveMouseTo(const std::wstring& title);
  void RightClick();
  void Press(MenuKey key);
  void Type(wchar_t letter);
  void OpenSelected(bool byKey);
  // Opens the selected entry if it is a group, otherwise chooses it.
  void Execute(bool byKey);
  // Closes the popups from this level on.
  void CloseFrom(std::size_t level);
  void CloseLevel() { CloseFrom(levels_.size() - 1); }
  void LetOthersRun();

  MenuTree& tree_;
  LocalWindows& windows_;
  LocalDrawing& drawing_;
  PopupLook look_;
  std::size_t cancelModes_;
  std::vector<PopupView> levels_;  // open popups from the root on
  std::optional<std::int32_t> chosen_;
};

}  // namespace burrowmark
