// The native window of a form.
#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>

#include "platform/peers/ui_peers.h"
#include "platform/win32/controls/control_fonts.h"
#include "platform/win32/controls/icon_image.h"
#include "platform/win32/menus/entry_menus.h"
#include "platform/win32/system_library.h"
#include "platform/win32/windows/mouse_message.h"
#include "platform/win32/windows/screen_dpi.h"
#include "platform/win32/windows/tip_window.h"

namespace burrowmark {

class FormWindow;

// What a form hears of its controls goes back to them, with this on top of the message.
inline constexpr UINT kReflected = WM_APP;

// Sends a control's command or notification back to it, for windows that controls are in. None if it is neither.
std::optional<LRESULT> ReflectToControl(UINT message, WPARAM wParam, LPARAM lParam);
// The brush behind a text or a button, for the same windows; none for another message.
std::optional<LRESULT> BackgroundOfControl(UINT message, WPARAM wParam);

// What the windows of forms share; all of it outlives them.
struct FormWindowParts {
  const ScreenDpi& dpi;
  ControlFonts& fonts;
  std::map<HWND, FormWindow*>& all;
};

class FormWindow final : public FormPeer {
 public:
  static constexpr wchar_t kClassName[] = L"BurrowmarkForm";
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  FormWindow(FormState& form, const FormWindowParts& parts);
  ~FormWindow() override;

  // Keys that move about between controls, and press buttons. True if the message is done with.
  bool Translate(MSG& message);
  HFONT Font() const { return parts_.fonts.At(dpi_); }
  // A number that no other control of the form has.
  int NextId() { return ++lastId_; }
  // Windows of controls; keys in others, as that of a label edit, are nobody's business.
  void AddControl(HWND control) { controls_.insert(control); }
  void RemoveControl(HWND control);
  // Shows a text while the mouse rests on a control; none for an empty one.
  void ShowTip(HWND control, const std::wstring& text);
  // The edit of a label, for which Enter and Esc are nothing of the form's; none for no edit.
  void LeaveKeysTo(HWND labelEdit) { labelEdit_ = labelEdit; }
  // The same for a combo box with an open list, save for Tab.
  void LeaveKeysToList(HWND comboBox) { openList_ = comboBox; }

  void Retire() override;
  WindowHandle Window() const override;
  void CaptionChanged() override;
  void PlaceChanged() override;
  void OwnerChanged() override;
  void VisibleChanged() override;
  void TakesInputChanged() override;
  void WindowStateChanged() override;
  void TopMostChanged() override;
  void MousePointerChanged() override;
  void IconChanged() override;
  void BringToFront() override;
  void MenusChanged() override;
  void SystemMenuChanged() override;
  void PopupMenu(MenuEntryState& popup, const MenuEntryState* defaultEntry) override;
  void BlockOwner(bool block) override;
  std::int32_t Dpi() const override { return dpi_; }

 private:
  LRESULT Receive(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Answer(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT EnterButtonId() const;
  bool AreKeysLeftTo(const MSG& message) const;
  bool PreviewKey(const MSG& message) const;
  void NoteInput(UINT message);
  void Mouse(const MouseMessage& mouse);
  void Lost();
  void RunCommand(UINT command);
  bool OpenMenu(HMENU menu);
  bool RunSystemCommand(WPARAM command) const;
  POINT PopupPoint() const;

  bool IsCentred() const;
  RECT CentredRect();
  RECT PlacedRect() const;
  SIZE OuterSize() const;
  void Put(const RECT& rect);
  void PutUnderneath(const RECT& rect);
  void Report();
  FormGeometry Measure() const;
  void FollowScale(std::int32_t dpi, const RECT& suggested);
  void FollowColors() const;

  void Activate(bool active);
  void FocusSomething();
  HWND NextControl(bool backwards) const;
  void MoveToControl(WPARAM wParam, LPARAM lParam);
  bool ShowPointer() const;
  void ScaleTips() const;
  IconImage IconOfSize(int designSize) const;

  FormState* form_;  // none after the retirement
  FormWindowParts parts_;
  SystemLibrary user_{L"user32.dll"};
  HWND window_ = nullptr;
  std::int32_t dpi_ = kDesignDpi;
  int lastId_ = 100;  // the low numbers are those of Enter and Esc
  bool making_ = true;
  std::set<HWND> controls_;
  HWND labelEdit_ = nullptr;
  HWND openList_ = nullptr;
  HWND focusBefore_ = nullptr;  // had it when the window was left
  HWND blockedOwner_ = nullptr;
  EntryMenus menus_;
  TipWindow tips_;
  bool releasing_ = false;    // the capture, by itself
  bool keyCameLast_ = false;  // not a button of the mouse
  IconImage bigIcon_;
  IconImage smallIcon_;
};

}  // namespace burrowmark
