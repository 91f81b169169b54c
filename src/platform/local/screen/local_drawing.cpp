#include "platform/local/screen/local_drawing.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/local/menus/menu_text.h"

namespace burrowmark {
namespace {

constexpr Color kColorBits = 0x00FFFFFF;
constexpr Color kWhite = 0xFFFFFF;
constexpr std::int32_t kBackgroundOpaque = 2;
constexpr std::uint32_t kTextSingleLine = 0x20;
constexpr std::uint32_t kIconAsIs = 3;     // both halves of kIconNormal: shape and picture
constexpr std::int32_t kSizeStep = 0x100;  // an icon's handle is its size and its number
constexpr std::int32_t kMostIcons = kSizeStep - 1;
constexpr IconHandle kIconBase = 0x1000000;

// Widths at kDesignDpi of characters that are narrower or wider than the others.
struct WidthRow {
  std::wstring_view characters;
  std::int32_t width;
};
constexpr WidthRow kWidths[] = {{L"ijl'|", 2},     {L"I !.,:;()[]/\\ftr\"-", 3},
                                {L"ckszvxyJ*", 5}, {L"ABCDEFGHKLNPRSTUVXYZ+=<>~", 7},
                                {L"OQw&", 8},      {L"mMW@%", 10}};
constexpr std::int32_t kOtherWidth = 6;

std::int32_t Scaled(std::int32_t pixels, std::int32_t dpi) { return (pixels * dpi + kDesignDpi / 2) / kDesignDpi; }

std::int32_t CharWidth(wchar_t character, std::int32_t dpi) {
  const auto* row = std::find_if(std::begin(kWidths), std::end(kWidths), [character](const WidthRow& candidate) {
    return candidate.characters.find(character) != std::wstring_view::npos;
  });
  return Scaled(row == std::end(kWidths) ? kOtherWidth : row->width, dpi);
}

std::int32_t WidthOf(const std::wstring& seen, std::int32_t dpi) {
  std::int32_t width = 0;
  for (const wchar_t c : seen) width += CharWidth(c, dpi);
  return width;
}

}  // namespace

LocalDrawing::LocalDrawing()
    : Colors{{kColorMenu, 0xF0F0F0},
             {kColorMenuText, 0x000000},
             {kColorHighlight, 0xD77800},
             {kColorShadow, 0xA0A0A0},
             {kColor3DHighlight, 0xFFFFFF}} {}

DeviceContext LocalDrawing::OpenContext(std::int32_t dpi, std::int32_t width, std::int32_t height, Color background) {
  Page page;
  page.dpi = dpi;
  page.canvas = Canvas(width, height, background);
  pages_[++lastContext_] = std::move(page);
  StartDrawing(lastContext_);
  return lastContext_;
}

void LocalDrawing::CloseContext(DeviceContext context) { pages_.erase(context); }

void LocalDrawing::StartDrawing(DeviceContext context) {
  Page* page = Find(context);
  if (page == nullptr) return;
  page->mode = kBackgroundOpaque;
  page->textColor = 0;
  page->calls.clear();
}

const std::vector<DrawCall>& LocalDrawing::Calls(DeviceContext context) const { return Look(context).calls; }

const Canvas& LocalDrawing::Pixels(DeviceContext context) const { return Look(context).canvas; }

LocalDrawing::Page* LocalDrawing::Find(DeviceContext context) {
  const auto found = pages_.find(context);
  return found == pages_.end() ? nullptr : &found->second;
}

const LocalDrawing::Page& LocalDrawing::Look(DeviceContext context) const {
  const auto found = pages_.find(context);
  return found == pages_.end() ? noPage_ : found->second;
}

std::int32_t LocalDrawing::TextWidth(const std::wstring& text, std::int32_t dpi) const {
  return WidthOf(WithoutPrefixes(text), dpi);
}

std::int32_t LocalDrawing::TextHeight(std::int32_t dpi) const { return Scaled(MenuFontHeight, dpi); }

std::int32_t LocalDrawing::IconNumber(IconHandle icon) {
  return icon > kIconBase ? static_cast<std::int32_t>((icon - kIconBase) % kSizeStep) : 0;
}

std::int32_t LocalDrawing::IconSize(IconHandle icon) {
  return icon > kIconBase ? static_cast<std::int32_t>((icon - kIconBase) / kSizeStep) : 0;
}

Color LocalDrawing::IconColor(std::int32_t number) {
  constexpr Color kFarApart = 0x4B2F17;
  return static_cast<Color>(number) * kFarApart & kColorBits;
}

Color LocalDrawing::GetSysColor(std::int32_t index) {
  const auto found = Colors.find(index);
  return found == Colors.end() ? 0 : found->second;
}

BrushHandle LocalDrawing::CreateSolidBrush(Color color) {
  brushes_[++lastBrush_] = color & kColorBits;
  return lastBrush_;
}

bool LocalDrawing::DeleteObject(BrushHandle brush) {
  const bool deleted = brushes_.erase(brush) > 0;
  if (!deleted) ++failedDeletes_;
  return deleted;
}

void LocalDrawing::FillRect(DeviceContext context, const Rect& rect, BrushHandle brush) {
  Page* page = Find(context);
  if (page == nullptr) return;
  const auto found = brushes_.find(brush);
  DrawCall call{.name = "FillRect", .rect = rect};
  if (found != brushes_.end()) {
    call.color = found->second;
    page->canvas.Fill(rect, found->second);
  }
  page->calls.push_back(std::move(call));
}

void LocalDrawing::SetBkMode(DeviceContext context, std::int32_t mode) {
  Page* page = Find(context);
  if (page == nullptr) return;
  page->mode = mode;
  page->calls.push_back({.name = "SetBkMode", .mode = mode});
}

void LocalDrawing::SetTextColor(DeviceContext context, Color color) {
  Page* page = Find(context);
  if (page == nullptr) return;
  page->textColor = color & kColorBits;
  page->calls.push_back({.name = "SetTextColor", .color = color});
}

void LocalDrawing::DrawBlocks(Page& page, const std::wstring& seen, const Rect& clip, std::int32_t x,
                              std::int32_t y) const {
  const std::int32_t bottom = y + TextHeight(page.dpi);
  if (page.mode != kBackgroundTransparent) {
    page.canvas.Fill(Intersection(clip, {x, y, x + WidthOf(seen, page.dpi), bottom}), kWhite);
  }
  for (const wchar_t c : seen) {
    const std::int32_t next = x + CharWidth(c, page.dpi);
    if (c != L' ') page.canvas.Fill(Intersection(clip, {x, y, next, bottom}), page.textColor);
    x = next;
  }
}

void LocalDrawing::DrawTextA(DeviceContext context, const std::wstring& text, const Rect& rect, std::uint32_t format) {
  Page* page = Find(context);
  if (page == nullptr) return;
  page->calls.push_back({.name = "DrawTextA", .rect = rect, .color = page->textColor, .text = text, .format = format});
  const std::wstring seen = WithoutPrefixes(text);
  const bool centered = (format & kTextCentered) != 0;
  const bool low = (format & kTextBottom) != 0 && (format & kTextSingleLine) != 0;
  const std::int32_t room = rect.right - rect.left - WidthOf(seen, page->dpi);
  DrawBlocks(*page, seen, rect, rect.left + (centered ? room / 2 : 0),
             low ? rect.bottom - TextHeight(page->dpi) : rect.top);
}

void LocalDrawing::DrawIconEx(DeviceContext context, std::int32_t x, std::int32_t y, IconHandle icon,
                              std::int32_t width, std::int32_t height, std::uint32_t flags) {
  Page* page = Find(context);
  if (page == nullptr) return;
  const std::int32_t size = IconSize(icon);
  const Rect rect{x, y, x + (width > 0 ? width : size), y + (height > 0 ? height : size)};
  page->calls.push_back({.name = "DrawIconEx", .rect = rect, .format = flags, .icon = icon});
  if (size > 0 && (flags & kIconAsIs) == kIconAsIs) page->canvas.Fill(rect, IconColor(IconNumber(icon)));
}

// What the system draws by itself isn't drawn here.
void LocalDrawing::ExcludeClipRect(DeviceContext context, const Rect& rect) {
  if (Page* page = Find(context)) page->calls.push_back({.name = "ExcludeClipRect", .rect = rect});
}

DeviceContext LocalDrawing::MenuMeasureContext(std::int32_t dpi) {
  if (dpi <= 0) return 0;
  const Page* page = Find(measureContext_);
  if (page != nullptr && page->dpi == dpi) return measureContext_;
  CloseContext(measureContext_);
  measureContext_ = OpenContext(dpi, 0, 0, 0);
  return measureContext_;
}

TextExtent LocalDrawing::GetTextExtentPoint32A(DeviceContext context, const std::wstring& text) {
  const Page* page = Find(context);
  if (page == nullptr) return {};
  return {WidthOf(text, page->dpi), TextHeight(page->dpi)};
}

IconHandle LocalDrawing::LoadMenuIcon(std::int32_t number, std::int32_t size) {
  if (number < 1 || number > IconCount || number > kMostIcons || size <= 0) return 0;
  return kIconBase + static_cast<IconHandle>(size) * kSizeStep + number;
}

}  // namespace burrowmark
