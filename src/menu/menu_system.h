// The owner-drawn popup menu: what the main window's hook does with the system's messages.
#pragma once

#include <set>

#include "core/application.h"
#include "menu/menu_drawing.h"

namespace burrowmark {

class MenuSystem {
 public:
  explicit MenuSystem(Application& app) : app_(app) {}

  // The number of the message of a hand-over between instances.
  std::uint32_t RegisteredMessage = 0;

  // Loads the icons for the current scale. Entry 0 repeats entry 1.
  void LoadMenuIcons();

  void HookMenuWindow();
  void UnhookMenuWindow();
  // Builds the native menu from the main store: everything, unhooked meanwhile, or what the filter says.
  void Build(const std::wstring& filter);
  // Makes the menu fit another scale; true if it had to change.
  bool SetScale(std::int32_t dpi);

  // Looks at the user's choice of light or dark, each time ahead of showing the menu; the colour behind its entries.
  Color ChooseColors();

  MessageResult MenuWindowProc(WindowMessage& message);

 private:
  void Measure(MeasureRecord& record);
  void Draw(const DrawRecord& record);
  void RightClick(std::int32_t position, MenuHandle menu);
  void AskedToLook(std::int64_t process);
  void HandedOver(const std::wstring& text);

  Application& app_;
  MenuLook look_;
  std::set<std::int64_t> heard_;  // processes whose text came over by itself
};

}  // namespace burrowmark
