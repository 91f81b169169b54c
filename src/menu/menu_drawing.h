// How one entry of the menu is measured and drawn. All numbers are pixels at 96 dots per inch.
#pragma once

#include <vector>

#include "core/menu_item.h"
#include "platform/drawing.h"
#include "platform/window_system.h"

namespace burrowmark {

// Everything that the looks of an entry hang on beside the entry itself.
struct MenuLook {
  std::vector<IconHandle> MenuIcons;  // by icon number; 0 repeats 1
  std::int32_t SelectedState = 1;     // the exact draw state of a selected entry
  bool ShowIcons = true;
  bool RedBar = true;  // the bar of a selected shortcut is red
  bool Dark = false;   // drawn in a dark pair of colours instead of the system's light one
  std::int32_t dpi = kDesignDpi;
};

// Whether a text on it is dark.
bool IsLight(Color color);
// The colour behind all entries.
Color MenuBackground(Drawing& drawing, const MenuLook& look);

// The width and height of an entry, in device pixels, in the record.
void MeasureMenuItem(Drawing& drawing, const MenuLook& look, const clsMenuItem& item, MeasureRecord& record);

void MenuItemDraw(Drawing& drawing, const MenuLook& look, const clsMenuItem& item, const DrawRecord& record);

}  // namespace burrowmark
