#include "menu/menu_drawing.h"

#include <algorithm>

#include "core/text.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kEntryHeight = 19;  // or the font's and kTextRoom, where that is more
constexpr std::int32_t kTextRoom = 4;
constexpr std::int32_t kEntryRoom = 35;  // beside the text
constexpr std::int32_t kGroupRoom = 30;  // more, for the arrow
constexpr std::int32_t kSeparatorWidth = 30;
constexpr std::int32_t kSeparatorHeight = 10;
constexpr std::int32_t kStub = 35;  // of the line on each side of a separator's title
constexpr std::int32_t kIconSize = 16;
constexpr std::int32_t kArrowWidth = 4;
constexpr std::int32_t kArrowRoom = 12;  // from the arrow's left to the entry's right

constexpr Color kWhite = 0xFFFFFF;
constexpr Color kRed = 0x0000FF;
// The high-bit form of the index of the menu-text colour. The call takes it for a colour, which is close to black.
constexpr Color kNearBlack = 0x80000007;
constexpr std::int32_t kColorHighlightText = 14;
constexpr Color kDarkBackground = 0x2B2B2B;
constexpr Color kDarkText = 0xFFFFFF;
constexpr Color kDarkShadow = 0x151515;
constexpr Color kDarkHighlight = 0x555555;

// Draws one entry. Its rectangle's edges are `l_`, `t_`, `r_` and `b_`.
class EntryDrawing {
 public:
  EntryDrawing(Drawing& drawing, const MenuLook& look, const clsMenuItem& item, const DrawRecord& record)
      : drawing_(drawing),
        look_(look),
        item_(item),
        context_(record.context),
        selected_(record.itemState == static_cast<std::uint32_t>(look.SelectedState)),
        l_(record.rect.left),
        t_(record.rect.top),
        r_(record.rect.right),
        b_(record.rect.bottom) {}

  void Draw() {
    drawing_.SetBkMode(context_, kBackgroundTransparent);
    drawing_.SetTextColor(context_, TextColor());
    if (selected_) {
      DrawBar();
    } else if (item_.Separator()) {
      DrawSeparator();
    } else {
      Fill({l_, t_, r_, b_}, MenuBackground(drawing_, look_));
    }
    if (!item_.Separator()) DrawTitleAndIcon();
    if (look_.Dark && item_.SubMenu()) DrawArrow();
  }

 private:
  std::int32_t Scaled(std::int32_t pixels) const { return (pixels * look_.dpi + kDesignDpi / 2) / kDesignDpi; }

  void Fill(const Rect& rect, Color color) {
    const BrushHandle brush = drawing_.CreateSolidBrush(color);
    drawing_.FillRect(context_, rect, brush);
    drawing_.DeleteObject(brush);
  }

  Color TextColor() const {
    if (drawing_.IsHighContrast()) return drawing_.GetSysColor(selected_ ? kColorHighlightText : kColorMenuText);
    if (selected_) return kWhite;
    if (look_.Dark) return kDarkText;
    return IsLight(drawing_.GetSysColor(kColorMenu)) ? kNearBlack : drawing_.GetSysColor(kColorMenuText);
  }

  bool HasRedBar() const {
    if (!look_.RedBar || drawing_.IsHighContrast()) return false;
    return item_.ItemType == MIT_PATH || item_.ItemType == MIT_DRIVE || item_.ItemType == MIT_OPENALL;
  }

  // The 3-D highlight must be told from what the menu is filled with.
  bool IconFrameAllowed() const { return Highlight() != MenuBackground(drawing_, look_); }

  // The system's are made for a light ground.
  Color Shadow() const { return look_.Dark ? kDarkShadow : drawing_.GetSysColor(kColorShadow); }
  Color Highlight() const { return look_.Dark ? kDarkHighlight : drawing_.GetSysColor(kColor3DHighlight); }

  void DrawBar() {
    const bool frame = look_.ShowIcons && IconFrameAllowed();
    if (frame) DrawIconFrame();
    Fill({frame ? l_ + Scaled(24) : l_, t_, r_, b_}, HasRedBar() ? kRed : drawing_.GetSysColor(kColorHighlight));
  }

  void DrawIconFrame() {
    const Color light = Highlight();
    const Color dark = Shadow();
    Fill({l_, t_, l_ + Scaled(22), t_ + Scaled(1)}, light);
    Fill({l_, t_, l_ + Scaled(1), t_ + Scaled(18)}, light);
    Fill({l_ + Scaled(22), t_, l_ + Scaled(23), t_ + Scaled(19)}, dark);
    Fill({l_, t_ + Scaled(18), l_ + Scaled(23), t_ + Scaled(19)}, dark);
  }

  void DrawSeparator() {
    const std::int32_t left = l_ + Scaled(2);
    const std::int32_t right = r_ - Scaled(2);
    if (item_.CaptionMenu().empty()) {
      DrawLine(left, right);
      return;
    }
    DrawLine(left, left + Scaled(kStub));
    DrawLine(right - Scaled(kStub), right);
    DrawTitle({l_, t_ - Scaled(3), r_, b_ + Scaled(3)}, kTextCentered | kTextBottom);
  }

  // A shadow over a highlight.
  void DrawLine(std::int32_t left, std::int32_t right) {
    Fill({left, t_ + Scaled(4), right, t_ + Scaled(5)}, Shadow());
    Fill({left, t_ + Scaled(5), right, t_ + Scaled(6)}, Highlight());
  }

  void DrawTitle(const Rect& rect, std::uint32_t format) {
    drawing_.DrawTextA(context_, WithDoubledAmpersands(item_.CaptionMenu()), rect, format);
  }

  void DrawTitleAndIcon() {
    DrawTitle({l_ + Scaled(26), t_ + Scaled(2), r_, b_}, kTextBottom);
    const auto icon = static_cast<std::size_t>(item_.IconID);
    if (!look_.ShowIcons || item_.IconID <= 0 || icon >= look_.MenuIcons.size()) return;
    drawing_.DrawIconEx(context_, l_ + Scaled(4), t_ + Scaled(2), look_.MenuIcons[icon], Scaled(kIconSize),
                        Scaled(kIconSize), kIconNormal);
  }

  // The system's own arrow is dark.
  void DrawArrow() {
    const std::int32_t width = Scaled(kArrowWidth);
    const std::int32_t left = r_ - Scaled(kArrowRoom);
    const std::int32_t middle = (t_ + b_) / 2;
    for (std::int32_t x = 0; x < width; ++x) {
      const std::int32_t half = width - 1 - x;
      Fill({left + x, middle - half, left + x + 1, middle + half + 1}, TextColor());
    }
    drawing_.ExcludeClipRect(context_, {l_, t_, r_, b_});
  }

  Drawing& drawing_;
  const MenuLook& look_;
  const clsMenuItem& item_;
  DeviceContext context_;
  bool selected_;
  std::int32_t l_, t_, r_, b_;
};

}  // namespace

bool IsLight(Color color) {
  constexpr Color kByte = 0xFF;
  constexpr Color kHalf = 3 * 128;
  return (color & kByte) + ((color >> 8) & kByte) + ((color >> 16) & kByte) >= kHalf;
}

Color MenuBackground(Drawing& drawing, const MenuLook& look) {
  return look.Dark ? kDarkBackground : drawing.GetSysColor(kColorMenu);
}

void MeasureMenuItem(Drawing& drawing, const MenuLook& look, const clsMenuItem& item, MeasureRecord& record) {
  const auto scaled = [&look](std::int32_t pixels) { return (pixels * look.dpi + kDesignDpi / 2) / kDesignDpi; };
  if (item.Separator()) {
    record.itemWidth = scaled(kSeparatorWidth);
    record.itemHeight = scaled(kSeparatorHeight);
    return;
  }
  // The text as a whole: characters of other fonts than the menu's are wider than these would be.
  const TextExtent text = drawing.GetTextExtentPoint32A(drawing.MenuMeasureContext(look.dpi), item.CaptionMenu());
  record.itemWidth = scaled(kEntryRoom) + text.width + (item.SubMenu() ? scaled(kGroupRoom) : 0);
  record.itemHeight = std::max(scaled(kEntryHeight), text.height + scaled(kTextRoom));
}

void MenuItemDraw(Drawing& drawing, const MenuLook& look, const clsMenuItem& item, const DrawRecord& record) {
  if (record.controlType == kControlMenu) EntryDrawing(drawing, look, item, record).Draw();
}

}  // namespace burrowmark
