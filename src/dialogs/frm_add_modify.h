// Type, name, path, hot key and description of an item, for a new one and for a change. The dialog looks at the store
// and changes nothing in it: its caller does, with what it gives back.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/program_form.h"
#include "ui/combo_box.h"
#include "ui/command_button.h"
#include "ui/frame.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace burrowmark {

// A second Open-All in a group is refused with this.
inline constexpr wchar_t kOneOpenAll[] =
    L"Can't add Open-All shortcut in this group. Only one Open-All shortcut can exist in a group.";

// What was entered.
struct ItemParameters {
  std::wstring Caption{};  // empty for an Open-All entry, whose title is fixed
  std::wstring FolderPath{};
  bool SubMenu = false;
  std::wstring ItemType{};
  std::wstring OpenType{};  // empty for what isn't a folder shortcut
  std::int32_t KeyboardCode = -1;
  std::wstring UserDescription{};
};

// The same for the item that is there.
ItemChange ChangeOf(const ItemParameters& parameters);

struct AddModifyRequest {
  std::int16_t Mode = 0;     // 0 new, 1 change
  std::wstring Location{};   // as it is shown
  ItemRef Item{};            // what is changed; none for a new one
  std::wstring OwnerName{};  // of the group that the item is in, or comes to
  std::wstring Kind{};       // a new item's type: MIT_GROUP_GENERAL, MIT_PATH_SHORTCUT, MIT_PATH_EXPLORER, MIT_OPENALL
  std::wstring Path{};       // a new item's, as a start
  std::wstring PresetName{};
  std::shared_ptr<clsMenuCollection> Collection{};  // that the siblings are looked for in
};

class frmAddModify final : public ProgramForm {
 public:
  explicit frmAddModify(Application& app);

  // Once, ahead of showing it.
  void Init(AddModifyRequest request);

  // The answer, once it has gone.
  bool Cancelled = true;
  ItemParameters GetParameters() const;
  // If it wasn't cancelled: the item that must lose its hot key because this one was given it. Mostly none.
  ItemRef HotKeyHolder;

  // These leave the caret behind the text.
  void SetPath(const std::wstring& path);
  void SetItemName(const std::wstring& name);
  void SetDescription(const std::wstring& description);

 private:
  void Form_Activate() override;

  void Connect();
  void ShowTips();
  void FillLists();
  std::wstring TitleOf() const;
  bool IsShortcut() const;
  // Without quotes around it; "c" is the drive "c:".
  std::wstring GetPath() const;
  std::wstring GetItemName() const;
  std::int32_t GetKeyboardCode() const;

  void ChangeType();
  void ChooseHotKey();
  bool MayTakeHotKeyOf(const clsMenuItem& holder);
  void TakeNameFromPath();
  void Browse();

  void Finish();
  bool IsThere(const std::wstring& path);
  bool TargetIsFine();
  bool NameIsFine();
  bool NameIsFree();
  bool TitleIsTaken(const std::wstring& title, bool group) const;
  // Show a box, and bring the user to what is wrong. False.
  bool Refuse(const std::wstring& text, Control& wrong);
  bool Refuse(const std::wstring& text, TextBox& wrong);

  AddModifyRequest request_;
  std::wstring name_;  // what the user entered in boxes that have another text now, for when the type lets it back in
  std::wstring path_;
  std::int32_t LastKeyboardIndex_ = 0;  // what goes back when a hot key isn't taken after all
  bool entered_ = false;

  Frame frmType{*this, L"frmType", Box{180, 120, 7440, 1290}, L"Type of Item"};
  PictureBox picIcon{frmType, L"picIcon", Box{180, 390, 480, 480}};
  Label lblTypeMain{frmType, L"lblTypeMain", Box{840, 375, 960, 240}, L"&Type:"};
  ComboBox cmbType{frmType, L"cmbType", Box{1860, 315, 5400, 315}};
  Label lblType{frmType, L"lblType", Box{1860, 720, 5400, 480}};

  Frame frmName{*this, L"frmName", Box{180, 1500, 7440, 1740}, L"Name and Location"};
  Label lblName{frmName, L"lblName", Box{180, 375, 1620, 240}, L"&Name:"};
  TextBox txtItemName{frmName, L"txtItemName", Box{1860, 315, 4080, 315}};
  CommandButton cmdDescErase{frmName, L"cmdDescErase", Box{6045, 285, 1215, 375}, L"&Reset"};
  Label lblDesc{
      frmName, L"lblDesc", Box{1860, 720, 5400, 480},
      L"If omitted, the item is named after its path. Name of Open-All items is fixed and cannot be changed."};
  Label lblLocation{frmName, L"lblLocation", Box{180, 1335, 1620, 240}, L"&Location:"};
  TextBox txtLocation{frmName, L"txtLocation", Box{1860, 1275, 5400, 315}};

  Frame frmPath{*this, L"frmPath", Box{180, 3330, 7440, 1320}, L"Target Location"};
  Label lblPath{frmPath, L"lblPath", Box{180, 300, 7080, 480},
                L"&Path of the folder this menu item opens. Applies to Folder and Windows Explorer shortcuts."};
  TextBox txtPath{frmPath, L"txtPath", Box{180, 855, 5760, 315}};
  CommandButton cmdBrowse{frmPath, L"cmdBrowse", Box{6045, 825, 1215, 375}, L"&Browse..."};

  Frame frmKeyboard{*this, L"frmKeyboard", Box{180, 4740, 7440, 1080}, L"Keyboard Shortcut (Hot Key)"};
  Label lblKeyboard{frmKeyboard, L"lblKeyboard", Box{180, 300, 7080, 240},
                    L"&Combination of keys that open this item."};
  ComboBox cmbKeyboardShortcut{frmKeyboard, L"cmbKeyboardShortcut", Box{180, 615, 2400, 315}};
  CommandButton cmdKeyboardErase{frmKeyboard, L"cmdKeyboardErase", Box{2685, 585, 1215, 375}, L"&Erase"};

  Frame frmDescription{*this, L"frmDescription", Box{180, 5910, 7440, 1080}, L"Description"};
  Label lblDescription{frmDescription, L"lblDescription", Box{180, 300, 7080, 240},
                       L"Your own personal &description of the item."};
  TextBox txtDescription{frmDescription, L"txtDescription", Box{180, 615, 7080, 315}};

  CommandButton cmdFinish{*this, L"cmdFinish", Box{5070, 7170, 1215, 375}, L"OK"};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{6405, 7170, 1215, 375}, L"Cancel"};
};

}  // namespace burrowmark
