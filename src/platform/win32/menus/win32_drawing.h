// Drawing on the real system.
#pragma once

#include <map>
#include <utility>

#include "platform/drawing.h"
#include "platform/win32/menus/menu_font.h"

namespace burrowmark {

class Win32Drawing final : public Drawing {
 public:
  explicit Win32Drawing(MenuFont& font) : font_(font) {}
  ~Win32Drawing() override;
  Win32Drawing(const Win32Drawing&) = delete;
  Win32Drawing& operator=(const Win32Drawing&) = delete;

  Color GetSysColor(std::int32_t index) override;
  bool IsHighContrast() override;
  bool AppsAreDark() override;
  BrushHandle CreateSolidBrush(Color color) override;
  bool DeleteObject(BrushHandle brush) override;
  void FillRect(DeviceContext context, const Rect& rect, BrushHandle brush) override;
  void SetBkMode(DeviceContext context, std::int32_t mode) override;
  void SetTextColor(DeviceContext context, Color color) override;
  void DrawTextA(DeviceContext context, const std::wstring& text, const Rect& rect, std::uint32_t format) override;
  void DrawIconEx(DeviceContext context, std::int32_t x, std::int32_t y, IconHandle icon, std::int32_t width,
                  std::int32_t height, std::uint32_t flags) override;
  void ExcludeClipRect(DeviceContext context, const Rect& rect) override;
  DeviceContext MenuMeasureContext(std::int32_t dpi) override;
  TextExtent GetTextExtentPoint32A(DeviceContext context, const std::wstring& text) override;
  std::int32_t MenuIconCount() override;
  IconHandle LoadMenuIcon(std::int32_t number, std::int32_t size) override;

 private:
  MenuFont& font_;
  std::map<std::pair<std::int32_t, std::int32_t>, HICON> icons_;  // by number and size
};

}  // namespace burrowmark
