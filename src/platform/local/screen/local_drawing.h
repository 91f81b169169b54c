// Drawing on the local machine: a record of the calls, and pixels.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/drawing.h"
#include "platform/local/screen/canvas.h"

namespace burrowmark {

// One call that drew on a context or set it. Fields that a call doesn't have stay as they are here.
struct DrawCall {
  std::string name;                 // as the seam has it: "FillRect"
  Rect rect = {};                   // of an icon its place and size
  std::optional<Color> color = {};  // of the brush (none: no such brush), set, or that a text is drawn in
  std::int32_t mode = 0;            // of SetBkMode
  std::wstring text = {};           // of DrawTextA
  std::uint32_t format = 0;         // of DrawTextA; the flags of DrawIconEx
  IconHandle icon = 0;              // of DrawIconEx
  friend bool operator==(const DrawCall&, const DrawCall&) = default;
};

class LocalDrawing final : public Drawing {
 public:
  // Starts with the colours of a Windows 10.
  LocalDrawing();

  // For tests, which change any of these.
  std::map<std::int32_t, Color> Colors;  // by index; one that is missing is 0
  bool HighContrast = false;
  bool DarkApps = false;
  std::int32_t IconCount = 13;
  std::int32_t MenuFontHeight = 13;  // at kDesignDpi

  // A context to draw on, of an empty canvas; it stays until it is closed.
  DeviceContext OpenContext(std::int32_t dpi, std::int32_t width, std::int32_t height, Color background);
  void CloseContext(DeviceContext context);
  // Background mode and text colour as a fresh context has them, and the record empty. The pixels stay.
  void StartDrawing(DeviceContext context);
  // Both empty for a context that isn't there.
  const std::vector<DrawCall>& Calls(DeviceContext context) const;
  const Canvas& Pixels(DeviceContext context) const;

  std::size_t LiveBrushes() const { return brushes_.size(); }
  std::size_t FailedDeletes() const { return failedDeletes_; }
  std::int32_t TextWidth(const std::wstring& text, std::int32_t dpi) const;
  std::int32_t TextHeight(std::int32_t dpi) const;
  static std::int32_t IconNumber(IconHandle icon);
  static std::int32_t IconSize(IconHandle icon);
  // An icon is drawn as a block of this colour.
  static Color IconColor(std::int32_t number);

  Color GetSysColor(std::int32_t index) override;
  bool IsHighContrast() override { return HighContrast; }
  bool AppsAreDark() override { return DarkApps; }
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
  std::int32_t MenuIconCount() override { return IconCount; }
  IconHandle LoadMenuIcon(std::int32_t number, std::int32_t size) override;

 private:
  struct Page {
    std::int32_t dpi = kDesignDpi;
    std::int32_t mode = 0;
    Color textColor = 0;
    Canvas canvas;
    std::vector<DrawCall> calls;
  };

  Page* Find(DeviceContext context);
  const Page& Look(DeviceContext context) const;
  void DrawBlocks(Page& page, const std::wstring& seen, const Rect& clip, std::int32_t x, std::int32_t y) const;

  std::map<BrushHandle, Color> brushes_;
  BrushHandle lastBrush_ = 0x1000;
  std::size_t failedDeletes_ = 0;
  std::map<DeviceContext, Page> pages_;
  DeviceContext lastContext_ = 0x100;
  DeviceContext measureContext_ = 0;
  const Page noPage_;
};

}  // namespace burrowmark
