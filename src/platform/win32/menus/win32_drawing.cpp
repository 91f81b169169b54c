#include "platform/win32/menus/win32_drawing.h"

#include <windows.h>

#include "platform/win32/handles.h"
#include "platform/win32/high_contrast.h"

namespace burrowmark {
namespace {

static_assert(kColorMenu == COLOR_MENU && kColorMenuText == COLOR_MENUTEXT && kColorHighlight == COLOR_HIGHLIGHT);
static_assert(kColorShadow == COLOR_3DSHADOW && kColor3DHighlight == COLOR_3DHIGHLIGHT);
static_assert(kTextCentered == DT_CENTER && kTextBottom == DT_BOTTOM && kBackgroundTransparent == TRANSPARENT);
static_assert(kIconNormal == DI_NORMAL);

constexpr std::int32_t kIconCount = 13;
constexpr Color kColorBits = 0x00FFFFFF;

HBRUSH ToHbrush(BrushHandle brush) { return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(brush)); }

}  // namespace

Win32Drawing::~Win32Drawing() {
  for (const auto& entry : icons_) ::DestroyIcon(entry.second);
}

Color Win32Drawing::GetSysColor(std::int32_t index) { return ::GetSysColor(index); }

bool Win32Drawing::IsHighContrast() { return HighContrastIsOn(); }

bool Win32Drawing::AppsAreDark() {
  DWORD light = 1;
  DWORD size = sizeof(light);
  ::RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                 L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
  return light == 0;
}

BrushHandle Win32Drawing::CreateSolidBrush(Color color) {
  return reinterpret_cast<INT_PTR>(::CreateSolidBrush(color & kColorBits));
}

bool Win32Drawing::DeleteObject(BrushHandle brush) { return ::DeleteObject(ToHbrush(brush)) != FALSE; }

void Win32Drawing::FillRect(DeviceContext context, const Rect& rect, BrushHandle brush) {
  const RECT area = ToRECT(rect);
  ::FillRect(ToHdc(context), &area, ToHbrush(brush));
}

void Win32Drawing::SetBkMode(DeviceContext context, std::int32_t mode) { ::SetBkMode(ToHdc(context), mode); }

void Win32Drawing::SetTextColor(DeviceContext context, Color color) {
  ::SetTextColor(ToHdc(context), color & kColorBits);
}

void Win32Drawing::DrawTextA(DeviceContext context, const std::wstring& text, const Rect& rect, std::uint32_t format) {
  RECT area = ToRECT(rect);
  ::DrawTextW(ToHdc(context), text.c_str(), static_cast<int>(text.size()), &area, format);
}

void Win32Drawing::DrawIconEx(DeviceContext context, std::int32_t x, std::int32_t y, IconHandle icon,
                              std::int32_t width, std::int32_t height, std::uint32_t flags) {
  ::DrawIconEx(ToHdc(context), x, y, ToHicon(icon), width, height, 0, nullptr, flags);
}

void Win32Drawing::ExcludeClipRect(DeviceContext context, const Rect& rect) {
  ::ExcludeClipRect(ToHdc(context), rect.left, rect.top, rect.right, rect.bottom);
}

DeviceContext Win32Drawing::MenuMeasureContext(std::int32_t dpi) { return FromHdc(font_.Context(dpi)); }

TextExtent Win32Drawing::GetTextExtentPoint32A(DeviceContext context, const std::wstring& text) {
  SIZE size = {};
  ::GetTextExtentPoint32W(ToHdc(context), text.c_str(), static_cast<int>(text.size()), &size);
  return {static_cast<std::int32_t>(size.cx), static_cast<std::int32_t>(size.cy)};
}

std::int32_t Win32Drawing::MenuIconCount() { return kIconCount; }

IconHandle Win32Drawing::LoadMenuIcon(std::int32_t number, std::int32_t size) {
  if (number < 1 || number > kIconCount || size < 1) return 0;
  const auto kept = icons_.find({number, size});
  if (kept != icons_.end()) return FromHicon(kept->second);
  const HANDLE icon =
      ::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(number), IMAGE_ICON, size, size, LR_DEFAULTCOLOR);
  if (icon == nullptr) return 0;
  icons_[{number, size}] = static_cast<HICON>(icon);
  return FromHicon(static_cast<HICON>(icon));
}

}  // namespace burrowmark
