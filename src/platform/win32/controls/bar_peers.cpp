#include "platform/win32/controls/bar_peers.h"

#include <commctrl.h>

#include <algorithm>
#include <numeric>

#include "platform/win32/menus/entry_menus.h"

namespace burrowmark {
namespace {

// Pixels at 96 dots per inch.
constexpr int kButtonMarginX = 14;
constexpr int kButtonMarginY = 8;
constexpr int kTextMarginX = 10;
constexpr int kTextGap = 2;
constexpr int kBarMargin = 4;
constexpr int kSeparatorWidth = 8;
constexpr int kStatusMargin = 8;
constexpr int kStatusIcon = 16;
constexpr int kStatusIconMargin = 4;

constexpr DWORD kToolbarStyle =
    TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_TOP | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN;
constexpr DWORD kStatusBarStyle = CCS_BOTTOM | CCS_NORESIZE | CCS_NOPARENTALIGN;

// Measures texts in a font.
class TextMeasure {
 public:
  explicit TextMeasure(HFONT font) : context_(::GetDC(nullptr)), before_(::SelectObject(context_, font)) {}
  ~TextMeasure() {
    ::SelectObject(context_, before_);
    ::ReleaseDC(nullptr, context_);
  }
  TextMeasure(const TextMeasure&) = delete;
  TextMeasure& operator=(const TextMeasure&) = delete;

  int Height() const {
    TEXTMETRICW metrics = {};
    ::GetTextMetricsW(context_, &metrics);
    return metrics.tmHeight;
  }
  int Width(const std::wstring& text) const {
    SIZE size = {};
    ::GetTextExtentPoint32W(context_, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
  }

 private:
  HDC context_;
  HGDIOBJ before_;
};

// Buttons have numbers from 1 on: 0 would be that of no button.
int ItemOf(std::size_t button) { return static_cast<int>(button) + 1; }
std::size_t IndexOf(int item) { return static_cast<std::size_t>(item) - 1; }

BYTE StyleOf(ToolbarButtonStyle style) {
  switch (style) {
    case ToolbarButtonStyle::kSeparator:
      return BTNS_SEP;
    case ToolbarButtonStyle::kDropDown:
      return BTNS_DROPDOWN;
    case ToolbarButtonStyle::kButton:
      break;
  }
  return BTNS_BUTTON;
}

DWORD StyleOf(const ChildPlace& place, const StatusBarState& bar) {
  const bool sizable = (::GetWindowLongPtrW(ToHwnd(place.form.Window()), GWL_STYLE) & WS_THICKFRAME) != 0;
  return sizable && bar.SizeGrip() ? kStatusBarStyle | SBARS_SIZEGRIP : kStatusBarStyle;
}

}  // namespace

// --- toolbar

Win32Toolbar::Win32Toolbar(const ChildPlace& place, ToolbarState& toolbar)
    : ChildPeer(TOOLBARCLASSNAMEW, L"", kToolbarStyle, place, toolbar), toolbar_(toolbar) {
  Send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  Send(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
  ShowAll();
}

LRESULT Win32Toolbar::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return ::SendMessageW(ChildWindow::Handle(), message, wParam, lParam);
}

const ToolbarButtonState* Win32Toolbar::ButtonOf(int item) const {
  const auto& buttons = toolbar_.Buttons();
  return IndexOf(item) < buttons.size() ? &buttons[IndexOf(item)] : nullptr;
}

bool Win32Toolbar::HasText() const {
  const auto& buttons = toolbar_.Buttons();
  return std::any_of(buttons.begin(), buttons.end(), [](const auto& button) { return !button.caption.empty(); });
}

SIZE Win32Toolbar::ButtonSize() const {
  const TextMeasure measure(TheForm().Font());
  const auto scaled = [this](int pixels) { return Scaled(pixels, Dpi(), kDesignDpi); };
  const int image = scaled(toolbar_.Images().size);
  SIZE size = {image + scaled(kButtonMarginX), image + scaled(kButtonMarginY)};
  if (!HasText()) return size;
  size.cy += measure.Height() + scaled(kTextGap);
  for (const ToolbarButtonState& button : toolbar_.Buttons()) {
    size.cx = std::max<LONG>(size.cx, measure.Width(button.caption) + scaled(kTextMarginX));
  }
  return size;
}

// Everything anew: whether there is a row for texts is found out when buttons come in.
void Win32Toolbar::ShowAll() {
  Send(WM_SETREDRAW, FALSE, 0);
  while (Send(TB_DELETEBUTTON, 0, 0) != 0) {
  }
  ShowImages();
  const SIZE size = ButtonSize();
  Send(TB_SETMAXTEXTROWS, HasText() ? 1 : 0, 0);
  Send(TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy));
  AddButtons();
  Send(TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy));
  Send(WM_SETREDRAW, TRUE, 0);
  ::InvalidateRect(ChildWindow::Handle(), nullptr, TRUE);
}

void Win32Toolbar::ShowImages() {
  ShownImages wanted{toolbar_.Images(), toolbar_.DisabledImages(), Dpi()};
  if (shown_ == wanted) return;
  ImageListHandle images = MakeImageList(toolbar_.Images(), Dpi());
  ImageListHandle disabled = MakeImageList(toolbar_.DisabledImages(), Dpi());
  Send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
  Send(TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(disabled.get()));
  images_ = std::move(images);
  disabledImages_ = std::move(disabled);
  shown_ = std::move(wanted);
}

void Win32Toolbar::AddButtons() {
  const bool hasText = HasText();
  std::vector<TBBUTTON> natives;
  for (const ToolbarButtonState& button : toolbar_.Buttons()) {
    const bool separator = button.style == ToolbarButtonStyle::kSeparator;
    TBBUTTON native = {};
    native.iBitmap = button.image > 0 ? button.image : I_IMAGENONE;
    if (separator) native.iBitmap = Scaled(kSeparatorWidth, Dpi(), kDesignDpi);
    native.idCommand = ItemOf(natives.size());
    native.fsState = button.enabled ? TBSTATE_ENABLED : 0;
    native.fsStyle = StyleOf(button.style);
    // Without a row for texts none is drawn: it is what screen readers call the button.
    const std::wstring& text = hasText ? button.caption : button.toolTip;
    native.iString = text.empty() || separator ? -1 : reinterpret_cast<INT_PTR>(text.c_str());
    natives.push_back(native);
  }
  Send(TB_ADDBUTTONSW, natives.size(), reinterpret_cast<LPARAM>(natives.data()));
}

void Win32Toolbar::ButtonEnabledChanged(std::size_t button) {
  Send(TB_ENABLEBUTTON, static_cast<WPARAM>(ItemOf(button)), toolbar_.Buttons()[button].enabled ? TRUE : FALSE);
}

std::int32_t Win32Toolbar::NeededHeight() const {
  const int height = HIWORD(Send(TB_GETBUTTONSIZE, 0, 0));
  return ToTwips(height + Scaled(kBarMargin, Dpi(), kDesignDpi), Dpi());
}

void Win32Toolbar::CommandFrom(UINT item, UINT) { toolbar_.UserButtonClick(IndexOf(static_cast<int>(item))); }

LRESULT Win32Toolbar::Notify(NMHDR& record) {
  if (record.code == static_cast<UINT>(TBN_DROPDOWN)) DropDown(reinterpret_cast<NMTOOLBARW&>(record).iItem);
  if (record.code == static_cast<UINT>(TBN_GETINFOTIPW)) {
    const auto& tip = reinterpret_cast<NMTBGETINFOTIPW&>(record);
    const ToolbarButtonState* button = ButtonOf(tip.iItem);
    if (button != nullptr) ::lstrcpynW(tip.pszText, button->toolTip.c_str(), tip.cchTextMax);
  }
  return TBDDRET_DEFAULT;
}

void Win32Toolbar::DropDown(int item) {
  const ToolbarButtonState* button = ButtonOf(item);
  if (button == nullptr || button->menu.empty()) return;
  const NativeMenu menu(::CreatePopupMenu());
  for (std::size_t i = 0; i < button->menu.size(); ++i) {
    ::AppendMenuW(menu.get(), MF_STRING, static_cast<UINT_PTR>(ItemOf(i)), button->menu[i].text.c_str());
  }
  RECT rect = {};
  Send(TB_GETRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&rect));
  ::MapWindowPoints(ChildWindow::Handle(), nullptr, reinterpret_cast<POINT*>(&rect), 2);
  const HWND form = ToHwnd(TheForm().Window());
  // The form may go while the menu is open, and this object with it.
  const std::weak_ptr<Alive> alive = alive_;
  const BOOL chosen = ::TrackPopupMenu(menu.get(), TPM_RETURNCMD, rect.left, rect.bottom, 0, form, nullptr);
  if (chosen == 0 || alive.expired() || IsRetired()) return;
  toolbar_.UserButtonMenuClick(IndexOf(item), IndexOf(chosen));
}

// --- status bar

Win32StatusBar::Win32StatusBar(const ChildPlace& place, StatusBarState& bar)
    : ChildPeer(STATUSCLASSNAMEW, L"", StyleOf(place, bar), place, bar), bar_(bar), icons_(bar.Panels().size()) {
  ShowAll();
}

void Win32StatusBar::ShowAll() {
  RECT client = {};
  ::GetClientRect(ChildWindow::Handle(), &client);
  Divide(client.right);
  for (std::size_t i = 0; i < bar_.Panels().size(); ++i) PanelChanged(i);
}

int Win32StatusBar::IconSize() const { return Scaled(kStatusIcon, Dpi(), kDesignDpi); }

// One panel takes what the others leave.
void Win32StatusBar::Divide(int width) const {
  std::vector<int> widths;
  for (const StatusPanelState& panel : bar_.Panels()) widths.push_back(ToPixels(panel.width, Dpi()));
  const int rest = std::max(0, width - std::accumulate(widths.begin(), widths.end(), 0));
  std::vector<int> edges;
  edges.reserve(widths.size());
  for (const int panel : widths) edges.push_back((edges.empty() ? 0 : edges.back()) + (panel == 0 ? rest : panel));
  if (std::find(widths.begin(), widths.end(), 0) != widths.end()) edges.back() = -1;  // up to the end
  ::SendMessageW(ChildWindow::Handle(), SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
}

void Win32StatusBar::PanelChanged(std::size_t panel) {
  const StatusPanelState& state = bar_.Panels()[panel];
  IconImage icon = LoadIconImage(state.icon, IconSize());
  ::SendMessageW(ChildWindow::Handle(), SB_SETICON, panel, reinterpret_cast<LPARAM>(icon.get()));
  icons_[panel] = std::move(icon);
  ::SendMessageW(ChildWindow::Handle(), SB_SETTEXTW, panel, reinterpret_cast<LPARAM>(state.text.c_str()));
}

std::int32_t Win32StatusBar::NeededHeight() const {
  const auto scaled = [this](int pixels) { return Scaled(pixels, Dpi(), kDesignDpi); };
  const int text = TextMeasure(TheForm().Font()).Height() + scaled(kStatusMargin);
  return ToTwips(std::max(text, IconSize() + scaled(kStatusIconMargin)), Dpi());
}

std::optional<LRESULT> Win32StatusBar::Handle(UINT message, WPARAM, LPARAM lParam) {
  if (message == WM_SIZE) Divide(LOWORD(lParam));
  return std::nullopt;
}

}  // namespace burrowmark
