// The dialogs that change one item, over a group P with Alpha [Inner], Beta, Gamma with a hot key, and Open-All.
#include <gtest/gtest.h>

#include "core/hot_keys.h"
#include "dialogs/frm_add_modify.h"
#include "dialogs/frm_item_exists.h"
#include "dialogs/frm_properties.h"
#include "platform/key_codes.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark::test {
namespace {

enum Field : std::int32_t { kName, kPath = 2, kTypeList, kNothing };
enum Type : std::int32_t { kGroup, kSinglePane, kDoublePane, kOpenAll };
constexpr std::int32_t kKey5 = 6;  // in the list of hot keys

using Script = std::function<void(ShownWindow&)>;

Script Click(const wchar_t* button) {
  return [=](ShownWindow& window) { window.Click(button); };
}
void Escape(ShownWindow& window) { window.Press(kKeyCodeEscape); }
void Close(ShownWindow& window) { window.Close(); }

ShownControl& Nth(ShownWindow& window, ShownKind kind, std::int32_t number) {
  for (const auto& control : window.controls) {
    if (control->kind == kind && number-- == 0) return *control;
  }
  throw std::logic_error("no such control");
}
ShownControl& At(ShownWindow& window, Field field) {
  return field == kTypeList ? Nth(window, ShownKind::kComboBox, 0) : Nth(window, ShownKind::kTextBox, field);
}
void ChooseType(ShownWindow& window, Type type) { window.Choose(At(window, kTypeList).window, type); }
void ChooseKey(ShownWindow& window, std::int32_t index) {
  window.Choose(Nth(window, ShownKind::kComboBox, 1).window, index);
}

class ItemDialogs : public testing::Test, protected ScratchMachine {
 protected:
  ItemDialogs() {
    store_.AddNewMenuItem({.Caption = L"Alpha", .OwnerName = L"P", .Name = L"A", .SubMenu = true});
    store_.AddNewMenuItem({.Caption = L"Inner", .OwnerName = L"A", .Name = L"I"});
    store_.AddNewMenuItem({.Caption = L"Beta", .OwnerName = L"P", .Name = L"B", .FolderPath = L"C:\\Beta"});
    gamma_ = store_.AddNewMenuItem({.Caption = L"Gamma", .OwnerName = L"P", .Name = L"G", .KeyboardCode = 53});
    store_.AddNewMenuItem({.OwnerName = L"P", .Name = L"O", .ItemType = MIT_OPENALL});
    machine.AddFolders(L"C:\\Beta");
    RefreshHotKeys(app, app.MainDocument.Store);
    machine.user.AnyBox = [this](const std::wstring& text, std::uint32_t style) {
      told_ += (style == kBoxCritical ? L"!" : style == kBoxInformation ? L"i" : L"?") + text;
      return BoxAnswer{text, (style & kBoxYesNoCancel) != 0 ? answer_ : kAnswerOk, {}};
    };
  }

  void Show(Form& form, const Script& script) {
    told_.clear();
    machine.user.NextWindow(form.Caption(), [&script](ShownWindow& window) {
      script(window);
      if (window.IsOpen()) window.Close();
    });
    form.Show(Modal);
  }
  // For a new shortcut, or a change of the item of that name.
  void ShowAddModify(const std::wstring& name, const Script& script) {
    const ItemRef item = store_.GetMenuItemFromName(name);
    form_.emplace(app);
    form_->Init({.Mode = static_cast<std::int16_t>(item ? 1 : 0),
                 .Item = item,
                 .OwnerName = L"P",
                 .Kind = MIT_PATH_SHORTCUT,
                 .Collection = app.MainDocument.Store});
    Show(*form_, script);
  }
  void ShowProperties(const std::wstring& name, const Script& script) {
    properties_.emplace(app);
    properties_->Init(*store_.GetMenuItemFromName(name), app.MainDocument.Store);
    properties_->Apply = [this](const ItemRef& item) { applied_ = item->Caption() + Holder(*properties_); };
    Show(*properties_, script);
  }
  // Another title from there, and the hot key if it is one.
  void Change(ShownWindow& window, const std::wstring& title, std::int32_t key = 0) {
    const std::wstring caption = L"Change Shortcut " + properties_->DohvatiMenuItem()->Caption();
    machine.user.NextWindow(caption, [title, key](ShownWindow& change) {
      change.PressAlt(L'n');
      change.Type(title);
      if (key != 0) ChooseKey(change, key);
      change.Click(L"OK");
    });
    window.Click(L"Change");
  }
  template <typename Dialog>
  std::wstring Holder(const Dialog& dialog) const {
    return dialog.HotKeyHolder ? L" instead of " + dialog.HotKeyHolder->Caption() : std::wstring();
  }

  clsMenuCollection& store_ = app.MainStore();
  ItemRef gamma_;
  std::optional<frmAddModify> form_;
  std::optional<frmProperties> properties_;
  std::wstring applied_;
  std::wstring told_;                 // by boxes: "!", "i" or "?" and the words
  std::int32_t answer_ = kAnswerYes;  // to questions
};

TEST_F(ItemDialogs, WhatIsWrongIsToldInOrderAndTheRestComesBackAsItIsMeant) {
  const std::wstring gone = L" doesn't exist.\r\nDo you want to create shortcut to it anyway?";
  const std::wstring taken = L" already exists in this group. Please choose another name.";
  const std::wstring noName =
      L"!Please specify Name for the item. Each item must have a name that uniquely identifies it in its group.";
  const std::wstring bad =
      L"!An item's Name cannot contain any of the following characters: \r\n\t\\ / : * ? \\\" < > |";
  const struct {
    const wchar_t* item;  // that is changed; none: a new one
    Type type;
    const wchar_t* name;
    const wchar_t* path;
    std::int32_t answer;
    std::wstring outcome;  // the boxes, or title, path, type and way of opening
    Field wrong = kNothing;
  } rows[] = {
      {L"", kSinglePane, L"a:b", L" ", 0, L"!Please specify a path for the Target Location.", kPath},
      {L"", kDoublePane, L"a:b", L"C:\\gone", kAnswerNo, L"?Folder C:\\gone" + gone, kPath},
      {L"", kDoublePane, L"a:b", L"C:\\gone", kAnswerCancel, L"?Folder C:\\gone" + gone, kPath},
      {L"", kDoublePane, L"a:b", L"C:\\gone", kAnswerYes, L"?Folder C:\\gone" + gone + bad, kName},
      {L"", kSinglePane, L"", L"\\", kAnswerYes, L"?Folder \\:" + gone + noName, kName},
      {L"", kGroup, L"  ", L"C:\\gone", 0, noName, kName},
      {L"", kGroup, L"Alpha", L"", 0, L"!Group Alpha" + taken, kName},
      {L"", kGroup, L"Beta", L"", 0, L"!Group Beta" + taken, kName},
      {L"A", kSinglePane, L"Beta", L"C:", 0, L"!Item Alpha containts shortcuts. Only groups can contain shortcuts.",
       kTypeList},
      {L"", kOpenAll, L"", L"", 0,
       L"!Can't add Open-All shortcut in this group. Only one Open-All shortcut can exist in a group.", kTypeList},
      {L"", kSinglePane, L" Beta", L"C:\\Beta", 0, L"!A folder shortcut Beta" + taken, kName},
      {L"", kSinglePane, L"Alpha", L" \"C:\\Beta\" ", 0, L"Alpha|C:\\Beta|MIT_PATH|MIT_PATH_SHORTCUT"},
      {L"", kDoublePane, L" a\tb ", L"c", 0, L"a\tb|c:|MIT_PATH|MIT_PATH_EXPLORER"},
      {L"", kSinglePane, L" ", L"C:\\Users\\", 0, L"Users|C:\\Users\\|MIT_PATH|MIT_PATH_SHORTCUT"},
      {L"", kSinglePane, L"", L"C:\\", 0, L"C|C:\\|MIT_PATH|MIT_PATH_SHORTCUT"},
      {L"", kGroup, L"New", L"C:\\Beta", 0, L"New||MIT_GROUP_GENERAL|"},
      {L"O", kOpenAll, L"", L"C:\\Beta", 0, L"||MIT_OPENALL|"},
      {L"B", kDoublePane, L"Beta", L"C:\\Beta", 0, L"Beta|C:\\Beta|MIT_PATH|MIT_PATH_EXPLORER"},
      {L"A", kGroup, L"Alpha", L"", 0, L"Alpha||MIT_GROUP_GENERAL|"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(&row - rows);
    answer_ = row.answer;
    ShowAddModify(row.item, [&](ShownWindow& window) {
      ChooseType(window, row.type);
      form_->SetItemName(row.name);
      form_->SetPath(row.path);
      window.Click(L"OK");
      if (row.wrong != kNothing) {
        EXPECT_EQ(window.Focused(), &At(window, row.wrong));
      }
    });
    EXPECT_EQ(form_->Cancelled, row.wrong != kNothing);
    const ItemParameters result = form_->GetParameters();
    EXPECT_EQ(form_->Cancelled
                  ? told_
                  : result.Caption + L"|" + result.FolderPath + L"|" + result.ItemType + L"|" + result.OpenType,
              row.outcome);
    EXPECT_EQ(result.SubMenu, row.type == kGroup);
  }
}

TEST_F(ItemDialogs, PassingThroughTheTypesBringsNameAndPathBackAndEnterInTheirBoxesEndsNothing) {
  ShowAddModify(L"B", [](ShownWindow& window) {
    for (const auto& [type, expected] : {std::pair{kGroup, L"Beta||name "},
                                         {kOpenAll, L"Open-All||key"},
                                         {kGroup, L"Beta||name "},
                                         {kDoublePane, L"Beta|C:\\Beta|name path key"}}) {
      ChooseType(window, type);
      const std::wstring usable = std::wstring(At(window, kName).enabled ? L"name " : L"") +
                                  (At(window, kPath).enabled ? L"path " : L"") +
                                  (window.Find(L"Erase")->enabled ? L"key" : L"");
      EXPECT_EQ(At(window, kName).text + L"|" + At(window, kPath).text + L"|" + usable, expected);
    }
    for (const wchar_t letter : {L'n', L'p', L'd'}) {
      ASSERT_TRUE(window.IsOpen());
      window.PressAlt(letter);
      window.Press(kKeyCodeReturn);
    }
  });
  EXPECT_FALSE(form_->Cancelled);
}

TEST_F(ItemDialogs, AHotKeyIsTakenFromItsHolderWithTheUsersConsentOnly) {
  const std::wstring question =
      L"?Keyboard shortcut Shift+Ctrl+5 is already associated with folder shortcut Gamma.\r\n"
      L"Do you want to associate the keyboard shortcut to this item?";
  const struct {
    std::wstring item;
    std::int32_t answer;
    std::int32_t then;  // is chosen
    std::wstring told;
    std::wstring outcome;
  } rows[] = {{L"B", kAnswerYes, kKey5, question, L"53 instead of Gamma"},
              {L"B", kAnswerNo, 0, question, L"-1"},
              {L"B", kAnswerCancel, 0, question, L"-1"},
              {L"B", kAnswerYes, 0, question, L"-1"},
              {L"B", kAnswerYes, kKey5 + 1, question, L"54"},
              {L"G", 0, kKey5 + 1, L"", L"54"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(&row - rows);
    answer_ = row.answer;
    ShowAddModify(row.item, [&](ShownWindow& window) {
      form_->SetPath(L"C:\\Beta");
      ChooseKey(window, 0);
      ChooseKey(window, kKey5);
      ChooseKey(window, row.then);
      window.Click(L"OK");
    });
    EXPECT_EQ(told_, row.told);
    EXPECT_EQ(std::to_wstring(form_->GetParameters().KeyboardCode) + Holder(*form_), row.outcome);
    EXPECT_EQ(gamma_->KeyboardCode, 53) << "the dialog itself changes nothing";
  }
}

TEST_F(ItemDialogs, AnswersAboutATakenTitle) {
  const auto enter = [](ShownWindow& window) { window.Press(kKeyCodeReturn); };
  const std::tuple<Script, bool, bool> rows[] = {
      {Click(L"Replace"), true, false}, {Click(L"Rename"), false, true}, {enter, false, true},
      {Click(L"Cancel"), false, false}, {Escape, false, false},          {Close, false, false}};
  store_.ModifyMenuItem(0, {.Name = L"B", .FolderPath = L"C:\\R&D"});
  for (const auto& [gesture, replace, rename] : rows) {
    frmItemExists form(app);
    form.Init(*store_.GetMenuItemFromName(L"A"), *store_.GetMenuItemFromName(L"B"));
    Show(form, [&act = gesture](ShownWindow& window) {
      EXPECT_EQ(window.LabelTexts(),
                L"This group already contains an item named Alpha.\nWould you like to replace the existing item\n"
                L"created: 11/5/2003 2:07:09 PM\n\nwith this new one?\n"
                L"created: 11/5/2003 2:07:09 PM, modified: 11/5/2003 2:07:09 PM\nC:\\R&D\n"
                L"Or you would like to rename the new item?\n");
      act(window);
      EXPECT_FALSE(window.IsOpen());
    });
    EXPECT_EQ(form.Replace, replace);
    EXPECT_EQ(form.Rename, rename);
  }
}

TEST_F(ItemDialogs, PropertiesShowWhatTheItemIsWhereTheyStoodLast) {
  ShowProperties(L"B", [](ShownWindow& window) {
    EXPECT_EQ(window.LabelTexts(),
              L"Beta\nType:\nFolder Shortcut (single pane)\n&Location:\nTarget Location:\nC:\\Beta\nHot key:\n\n"
              L"Created:\nWednesday, November 5, 2003 2:07:09 PM\nModified:\nNever\nAccessed:\nNever\n");
    window.MoveTo(210, 90);
  });
  store_.AddNewMenuItem({.Caption = L"Personal", .OwnerName = kRootOwner, .Name = MIT_GROUP_USER, .SubMenu = true});
  ShowProperties(MIT_GROUP_USER, [](ShownWindow& window) {
    EXPECT_FALSE(window.Find(L"Change")->enabled);
    EXPECT_TRUE(window.LabelTexts().ends_with(L"Modified:\nNever\nAccessed:\n\n")) << "nobody opens a group";
    EXPECT_EQ(window.place.left, 210);
  });
}

TEST_F(ItemDialogs, WhatEachEndOfThePropertiesGives) {
  const struct {
    bool apply;  // between two changes, of which the first takes Gamma's key
    Script end;
    std::wstring outcome;  // none: it is cancelled
  } rows[] = {{false, Click(L"OK"), L"Second instead of Gamma"},
              {false, Escape, L""},
              {false, Close, L""},
              {true, Click(L"OK"), L"Second"},
              {true, Close, L"First"},
              {true, Escape, L"First"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(&row - rows);
    applied_.clear();
    ShowProperties(L"B", [&](ShownWindow& window) {
      EXPECT_FALSE(window.Find(L"Apply")->enabled);
      Change(window, L"First", kKey5);
      if (row.apply) window.Click(L"Apply");
      Change(window, L"Second");
      row.end(window);
      EXPECT_FALSE(window.IsOpen());
    });
    EXPECT_EQ(applied_, row.apply ? L"First instead of Gamma" : L"");
    const std::wstring given = properties_->DohvatiMenuItem()->Caption() + Holder(*properties_);
    EXPECT_EQ(properties_->Cancelled ? L"" : given, row.outcome);
  }
  EXPECT_EQ(store_.GetMenuItemFromName(L"B")->Caption(), L"Beta") << "a copy was changed";
}

TEST_F(ItemDialogs, ATargetGoesToTheClipboardIfThereIsOneAndTheClipboardIsFree) {
  machine.clipboard.Text = L"before";
  for (const auto& [item, held, text, told] :
       {std::tuple{L"A", false, L"before", L""},
        {L"B", true, L"before", L"!The data couldn't be copied to the Clipboard."},
        {L"B", false, L"C:\\Beta", L"iThe data has been copied to the Clipboard."}}) {
    machine.clipboard.IsHeld = held;
    ShowProperties(item, Click(L"Copy Target Location"));
    EXPECT_EQ(machine.clipboard.Text, text);
    EXPECT_EQ(told_, told);
  }
  EXPECT_EQ(machine.windows.Beeps(), 1U);
}

}  // namespace
}  // namespace burrowmark::test
