// The menus of a form: those on its bar, and those that pop up.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/peers/ui_bar_peers.h"
#include "ui/menu_doors.h"

namespace burrowmark {

class Form;
class FormMenus;

class FormMenuEntry final : private MenuEntryState {
 public:
  FormMenuEntry(FormMenus& menus, std::wstring name);

  // Chosen, by the mouse, its letter or its shortcut; of one with entries below it: before they are shown.
  std::function<void()> Click;

  const std::wstring& Name() const { return name_; }
  // "&" underlines the character behind it.
  const std::wstring& Caption() const { return caption; }
  void SetCaption(std::wstring newCaption);
  bool Visible() const { return visible; }
  void SetVisible(bool on);
  bool Enabled() const { return enabled; }
  void SetEnabled(bool on);
  bool Checked() const { return checked; }
  void SetChecked(bool on);
  bool Radio() const { return radio; }
  void SetRadio(bool on);
  const MenuShortcut& Shortcut() const { return shortcut; }

 private:
  friend class FormMenus;

  FormMenus& menus_;
  std::wstring name_;
};

// A row of a table of menus. An entry lies in the nearest row above it of a lower level; those of level 0 stand on the
// bar while they are visible, and can pop up in any case.
struct MenuRow {
  std::int32_t level;
  const wchar_t* name;
  const wchar_t* caption;  // kMenuLine for a line
  MenuShortcut shortcut = {};
};

// Belongs to a form, which it must not outlive; there is one for a form.
class FormMenus final : public MenuDoors {
 public:
  FormMenus(Form& form, std::span<const MenuRow> rows);
  ~FormMenus();
  FormMenus(const FormMenus&) = delete;
  FormMenus& operator=(const FormMenus&) = delete;

  // Throws std::out_of_range for a name that no row has.
  FormMenuEntry& operator[](const std::wstring& name) const;
  // Opens an entry's children at the mouse, or at the control with the focus where the keyboard asked for it, and
  // returns when they are gone. `defaultEntry` is drawn bold. What was chosen has had its Click then.
  void PopupMenu(const std::wstring& name, const std::wstring& defaultEntry = {});

  const std::vector<MenuEntryState*>& Entries() const override { return root_.children; }
  void UserOpen(MenuEntryState& entry) override;
  void UserChoose(MenuEntryState& entry) override;
  bool UserShortcut(const MenuShortcut& shortcut) override;

 private:
  friend class FormMenuEntry;

  // Lets an entry pop up as long as it lives.
  class Popping {
   public:
    Popping(FormMenus& menus, const MenuEntryState* popup)
        : menus_(menus), before_(std::exchange(menus.popup_, popup)) {}
    ~Popping() { menus_.popup_ = before_; }
    Popping(const Popping&) = delete;
    Popping& operator=(const Popping&) = delete;

   private:
    FormMenus& menus_;
    const MenuEntryState* before_;
  };

  void Changed(const FormMenuEntry& entry);
  bool CanBeChosen(const MenuEntryState& entry) const;
  void RaiseClick(MenuEntryState& entry);

  Form& form_;
  MenuEntryState root_;
  std::vector<std::unique_ptr<FormMenuEntry>> entries_;
  std::unordered_map<std::wstring, FormMenuEntry*> byName_;
  const MenuEntryState* popup_ = nullptr;  // shows whether or not it is visible on the bar
};

}  // namespace burrowmark
