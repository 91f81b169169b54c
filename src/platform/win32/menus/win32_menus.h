// Popup menus of the real system.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

#include "platform/menus.h"
#include "platform/win32/menus/entry_names.h"
#include "platform/win32/menus/menu_font.h"
#include "platform/win32/windows/screen_dpi.h"

namespace burrowmark {

struct DeleteBrush {
  void operator()(HBRUSH brush) const { ::DeleteObject(brush); }
};
using Brush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, DeleteBrush>;

class Win32Menus final : public Menus {
 public:
  Win32Menus(const ScreenDpi& dpi, const MenuFont& font) : dpi_(dpi), font_(font) {}

  MenuHandle GetMenu(WindowHandle window) override;
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

 private:
  void ShowBackground(HMENU menu, Color background);
  bool IsMeasuredFor(std::int32_t dpi) const { return dpi == measuredDpi_ && font_.Changes() == measuredChanges_; }

  const ScreenDpi& dpi_;
  const MenuFont& font_;
  EntryNames names_;
  Brush background_;  // of the popups since the last showing
  std::int32_t measuredDpi_ = 0;
  std::uint32_t measuredChanges_ = 0;
};

}  // namespace burrowmark
