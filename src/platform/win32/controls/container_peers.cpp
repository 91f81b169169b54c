#include "platform/win32/controls/container_peers.h"

#include <commctrl.h>

namespace burrowmark {
namespace {

// Pixels of the design beside the caption, in the line of the frame.
constexpr SIZE kAroundFrameCaption{20, 0};

DWORD BorderOf(const PictureState& picture) { return picture.Border() ? WS_EX_STATICEDGE : 0; }

int TextColorOn(std::int32_t background) { return background == kColorWindow ? COLOR_WINDOWTEXT : COLOR_BTNTEXT; }

bool AsksForBackground(UINT message) { return message == WM_CTLCOLORSTATIC || message == WM_CTLCOLORBTN; }

}  // namespace

Win32Picture::Win32Picture(const ChildPlace& place, PictureState& picture)
    : ChildPeer(PictureClass::kName, L"", WS_CLIPCHILDREN, place, picture, WS_EX_CONTROLPARENT | BorderOf(picture)),
      picture_(picture) {}

void Win32Picture::IconChanged() {
  iconDpi_ = 0;
  ::InvalidateRect(Handle(), nullptr, TRUE);
}

void Win32Picture::BackColorChanged() {
  ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Win32Picture::BorderChanged() {
  const auto now = static_cast<DWORD>(::GetWindowLongPtrW(Handle(), GWL_EXSTYLE));
  const DWORD style = (now & ~static_cast<DWORD>(WS_EX_STATICEDGE)) | BorderOf(picture_);
  ::SetWindowLongPtrW(Handle(), GWL_EXSTYLE, static_cast<LONG_PTR>(style));
  ::SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

std::optional<LRESULT> Win32Picture::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = ReflectToControl(message, wParam, lParam)) return *result;
  if (AsksForBackground(message)) return BehindTexts(reinterpret_cast<HDC>(wParam));
  switch (message) {
    case WM_ERASEBKGND:
    case WM_PRINTCLIENT:
      Draw(reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_SIZE:
      // The icon is in another place.
      ::InvalidateRect(Handle(), nullptr, TRUE);
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

int Win32Picture::IconPixels() const { return Scaled(picture_.IconSize(), Dpi(), kDesignDpi); }

void Win32Picture::Draw(HDC context) {
  RECT client = {};
  ::GetClientRect(Handle(), &client);
  ::FillRect(context, &client, ::GetSysColorBrush(picture_.BackColor()));
  const int size = IconPixels();
  if (iconDpi_ != Dpi()) icon_ = LoadIconImage(picture_.Icon(), size);
  iconDpi_ = Dpi();
  if (!icon_) return;
  ::DrawIconEx(context, (client.right - size) / 2, (client.bottom - size) / 2, icon_.get(), size, size, 0, nullptr,
               DI_NORMAL);
}

LRESULT Win32Picture::BehindTexts(HDC context) const {
  ::SetBkColor(context, ::GetSysColor(picture_.BackColor()));
  ::SetTextColor(context, ::GetSysColor(TextColorOn(picture_.BackColor())));
  return reinterpret_cast<LRESULT>(::GetSysColorBrush(picture_.BackColor()));
}

// --- frames

Win32Frame::Win32Frame(const ChildPlace& place, FrameState& frame)
    : ChildPeer(WC_BUTTONW, frame.Caption(), BS_GROUPBOX | WS_CLIPCHILDREN, place, frame, WS_EX_CONTROLPARENT),
      frame_(frame) {}

Size Win32Frame::NeededSize() const { return NeededByText(frame_.Caption(), DT_SINGLELINE, kAroundFrameCaption); }

std::optional<LRESULT> Win32Frame::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = ReflectToControl(message, wParam, lParam)) return *result;
  if (AsksForBackground(message)) return AskBackground(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
  // A group box leaves what is behind it to the window that it is in, which doesn't draw where this one is.
  if (message != WM_ERASEBKGND) return std::nullopt;
  Erase(reinterpret_cast<HDC>(wParam));
  return 1;
}

LRESULT Win32Frame::AskBackground(HDC context, HWND control) const {
  return ::SendMessageW(::GetParent(Handle()), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context),
                        reinterpret_cast<LPARAM>(control));
}

void Win32Frame::Erase(HDC context) const {
  RECT client = {};
  ::GetClientRect(Handle(), &client);
  ::FillRect(context, &client, reinterpret_cast<HBRUSH>(AskBackground(context, Handle())));
}

}  // namespace burrowmark
