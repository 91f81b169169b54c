// What drawing one entry of a menu needs. Lengths are device pixels.
#pragma once

#include <cstdint>
#include <string>

namespace burrowmark {

// Where a drawing goes, a brush and an icon; 0 is none.
using DeviceContext = std::int64_t;
using BrushHandle = std::int64_t;
using IconHandle = std::int64_t;

// A colour as the system writes it: 0x00BBGGRR.
using Color = std::uint32_t;

struct Rect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;   // the first pixel that isn't in it
  std::int32_t bottom = 0;  // likewise
  friend bool operator==(const Rect&, const Rect&) = default;
};

// How much room a text takes.
struct TextExtent {
  std::int32_t width = 0;
  std::int32_t height = 0;  // of a line in the context's font, whatever the text
};

// Indices of system colours (winuser.h).
inline constexpr std::int32_t kColorMenu = 4;
inline constexpr std::int32_t kColorMenuText = 7;
inline constexpr std::int32_t kColorHighlight = 13;
inline constexpr std::int32_t kColorShadow = 16;
inline constexpr std::int32_t kColor3DHighlight = 20;

// Formats of DrawTextA, which may be added up, and other values of its family (winuser.h, wingdi.h).
inline constexpr std::uint32_t kTextCentered = 1;
inline constexpr std::uint32_t kTextBottom =
    8;  // counts for single lines only: without that flag text stays at the top
inline constexpr std::int32_t kBackgroundTransparent = 1;
inline constexpr std::uint32_t kIconNormal = 3;

// Dots per inch at which one pixel of a design is one device pixel.
inline constexpr std::int32_t kDesignDpi = 96;

class Drawing {
 public:
  virtual ~Drawing() = default;

  virtual Color GetSysColor(std::int32_t index) = 0;
  // True if the user asked for high contrast.
  virtual bool IsHighContrast() = 0;
  // True if the user wants dark apps, which changes no system colour.
  virtual bool AppsAreDark() = 0;

  // A brush must be deleted by whoever made it.
  virtual BrushHandle CreateSolidBrush(Color color) = 0;
  virtual bool DeleteObject(BrushHandle brush) = 0;

  virtual void FillRect(DeviceContext context, const Rect& rect, BrushHandle brush) = 0;
  virtual void SetBkMode(DeviceContext context, std::int32_t mode) = 0;
  // A colour above 0x00FFFFFF is taken for what its low 24 bits say.
  virtual void SetTextColor(DeviceContext context, Color color) = 0;
  // An ampersand underlines the character behind it and isn't drawn; two are one that is.
  virtual void DrawTextA(DeviceContext context, const std::wstring& text, const Rect& rect, std::uint32_t format) = 0;
  virtual void DrawIconEx(DeviceContext context, std::int32_t x, std::int32_t y, IconHandle icon, std::int32_t width,
                          std::int32_t height, std::uint32_t flags) = 0;
  // Nothing is drawn in there any more, neither by the program nor by the system, until the drawing is over.
  virtual void ExcludeClipRect(DeviceContext context, const Rect& rect) = 0;

  // A context with the font of menus at a scale, for measuring alone. It stays until the next call with another scale.
  virtual DeviceContext MenuMeasureContext(std::int32_t dpi) = 0;
  // Of a single line in which an ampersand is a character like any other. Characters that the font hasn't got count
  // with the width of the font that the system takes for them.
  virtual TextExtent GetTextExtentPoint32A(DeviceContext context, const std::wstring& text) = 0;

  // The program's icons, from 1; 0 beyond their count or on failure. An icon stays until the program ends.
  virtual std::int32_t MenuIconCount() = 0;
  virtual IconHandle LoadMenuIcon(std::int32_t number, std::int32_t size) = 0;
};

}  // namespace burrowmark
