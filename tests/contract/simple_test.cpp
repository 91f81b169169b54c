// Text boxes, check boxes and their like, and the controls that others are in.
#include <vector>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "tests/contract/system_under_test.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace burrowmark {
namespace {

using Texts = std::vector<std::string>;
using Selected = std::pair<std::int32_t, std::int32_t>;

class EntryForm final : public Form {
 public:
  explicit EntryForm(WindowSystem& windows) : Form(windows, L"frmEntry", Size{6000, 4500}) {
    SetCaption(L"Entry");
    txtLines.SetMultiLine(true);
    cmdOk.SetDefault(true);
    cmdOk.Click = [this] { Heard.emplace_back("ok"); };
    cmdIn.Click = [this] { Heard.emplace_back("in"); };
    for (TextBox* box : {&txtName, &txtLines, &txtIn}) {
      box->Change = [this, box] { Heard.push_back(ToUtf8(box->Name()) + "=" + ToUtf8(box->Text())); };
    }
  }

  Label lblName{*this, L"lblName", Box{150, 150, 1500, 255}, L"&Name:"};
  TextBox txtName{*this, L"txtName", Box{1800, 120, 3000, 315}, L"abcdef"};
  TextBox txtLines{*this, L"txtLines", Box{1800, 600, 3000, 900}};
  PictureBox picBox{*this, L"picBox", Box{300, 1800, 4500, 1200}};
  Label lblIn{picBox, L"lblIn", Box{150, 150, 900, 255}, L"&In:"};
  TextBox txtIn{picBox, L"txtIn", Box{1500, 150, 1500, 315}};
  CommandButton cmdIn{picBox, L"cmdIn", Box{1500, 600, 1215, 375}, L"&Press"};
  CommandButton cmdOk{*this, L"cmdOk", Box{1800, 3900, 1215, 375}, L"OK"};

  Texts Heard;
};

class EntryContract : public ContractTest {
 protected:
  ~EntryContract() override {
    EXPECT_EQ(screen_.Complaints(), "");
    platform_.windows.DoEvents();
  }

  void Press(std::int32_t key, std::int32_t shift = 0) { screen_.Press(form_.Window(), key, shift); }
  void Type(const std::wstring& text) { screen_.Type(form_.Window(), text); }
  Texts Heard() { return std::exchange(form_.Heard, {}); }

  ScreenUnderTest& screen_ = system_->screen();
  EntryForm form_{platform_.windows};
};
INSTANTIATE_TEST_SUITE_P(Systems, EntryContract, ::testing::ValuesIn(Systems()), KindName);

// --- text boxes

TEST_P(EntryContract, ATextIsTypedWhereTheCaretIs) {
  form_.Show();
  form_.txtName.SetFocus();
  form_.txtName.SetSelection(3, 0);
  Type(L"XY");
  EXPECT_EQ(form_.txtName.Text(), L"abcXYdef");
  EXPECT_EQ(form_.txtName.SelStart(), 5);
  EXPECT_EQ(Heard(), Texts({"txtName=abcXdef", "txtName=abcXYdef"}));
  form_.txtName.SetSelection(0, 5);
  Type(L"Z");
  EXPECT_EQ(screen_.TextOf(form_.txtName.Window()), L"Zdef");
  form_.txtName.SetMaxLength(5);
  Type(L"1234");
  EXPECT_EQ(form_.txtName.Text(), L"Z1def");
  Press(kKeyCodeDelete);
  EXPECT_EQ(form_.txtName.Text(), L"Z1ef");
  Heard();
  form_.txtName.SetReadOnly(true);
  Type(L"9");
  Press(kKeyCodeDelete);
  EXPECT_EQ(screen_.TextOf(form_.txtName.Window()), L"Z1ef");
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(EntryContract, ATextSetByCodeChangesOnce) {
  for (const bool shown : {false, true}) {
    SCOPED_TRACE(shown);
    if (shown) form_.Show();
    form_.txtName.SetText(L"one");
    form_.txtName.SetText(L"one");
    form_.txtLines.SetText(L"a\nb\r\nc\rd");
    EXPECT_EQ(Heard(), Texts({"txtName=one", "txtLines=a\r\nb\r\nc\r\nd"}));
    form_.txtName.SetText(L"two");
    form_.txtLines.SetText(L"");
    Heard();
  }
  EXPECT_EQ(screen_.TextOf(form_.txtName.Window()), L"two");
}

TEST_P(EntryContract, AnEventMayChangeTheTextOnceMore) {
  form_.txtName.Change = [this] {
    form_.Heard.push_back(ToUtf8(form_.txtName.Text()));
    form_.txtName.SetText(L"kept");
  };
  form_.Show();
  form_.txtName.SetFocus();
  Type(L"x");
  EXPECT_EQ(Heard(), Texts({"xabcdef", "kept"}));
  EXPECT_EQ(screen_.TextOf(form_.txtName.Window()), L"kept");
}

TEST_P(EntryContract, EnterBeginsALineWhereThereAreMany) {
  form_.Show();
  form_.txtName.SetFocus();
  Press(kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts({"ok"}));
  form_.txtLines.SetFocus();
  Type(L"a");
  Press(kKeyCodeReturn);
  Type(L"b");
  EXPECT_EQ(form_.txtLines.Text(), L"a\r\nb");
  Heard();
  form_.txtLines.SetReadOnly(true);
  Press(kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts({"ok"}));
  Press(kKeyCodeEscape);
  EXPECT_TRUE(form_.Visible()) << "Esc is nothing to a text, and closes nothing";
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.txtIn.HasFocus());
}

TEST_P(EntryContract, ATextIsSelectedWhereAKeyBroughtTheFocus) {
  form_.Show();
  form_.cmdOk.SetFocus();
  Press(kKeyCodeTab);
  ASSERT_TRUE(form_.txtName.HasFocus());
  EXPECT_EQ(form_.txtName.SelLength(), 6);
  form_.txtName.SetSelection(2, 3);
  EXPECT_EQ(screen_.SelectedIn(form_.txtName.Window()), Selected(2, 5));
  form_.cmdOk.SetFocus();
  form_.txtName.SetFocus();
  EXPECT_EQ(screen_.SelectedIn(form_.txtName.Window()), Selected(2, 5)) << "code leaves it as it is";
  form_.cmdOk.SetFocus();
  screen_.PressAlt(form_.Window(), L'n');
  EXPECT_EQ(screen_.SelectedIn(form_.txtName.Window()), Selected(0, 6));
  EXPECT_EQ(form_.txtName.SelLength(), 6);
  Press(kKeyCodeEnd);
  EXPECT_EQ(form_.txtName.SelStart(), 6);
  Press('A', kCtrlMask);
  EXPECT_EQ(form_.txtName.Selection(), (TextSelection{0, 6}));
  form_.txtName.SetSelection(4, 99);
  EXPECT_EQ(form_.txtName.SelLength(), 2);
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(EntryContract, ATextBoxMadeAnewShowsTheSame) {
  form_.Show();
  form_.txtName.SetFocus();
  Type(L"new ");
  form_.txtName.SetSelection(1, 2);
  form_.txtName.SetReadOnly(true);
  form_.picBox.SetEnabled(false);
  Heard();
  form_.Realise();
  EXPECT_EQ(screen_.TextOf(form_.txtName.Window()), L"new abcdef");
  EXPECT_EQ(screen_.SelectedIn(form_.txtName.Window()), Selected(1, 3));
  Type(L"x");
  EXPECT_EQ(form_.txtName.Text(), L"new abcdef");
  EXPECT_FALSE(screen_.IsEnabled(form_.picBox.Window()));
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(EntryContract, KeysOfATextAreNoShortcuts) {
  const struct {
    std::int32_t key, shift;
    bool ofOneLine, ofMany;
  } cases[] = {{'C', kCtrlMask, true, true},          {'C', 0, false, false},
               {'O', kCtrlMask, false, false},        {'C', kCtrlMask | kAltMask, false, false},
               {kKeyCodeDelete, 0, true, true},       {kKeyCodeBackspace, 0, true, true},
               {kKeyCodeLeft, kCtrlMask, true, true}, {kKeyCodeReturn, 0, false, true},
               {kKeyCodeEscape, 0, false, false}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.key);
    EXPECT_EQ(form_.txtName.UsesKey(row.key, row.shift), row.ofOneLine);
    EXPECT_EQ(form_.txtLines.UsesKey(row.key, row.shift), row.ofMany);
  }
}

// --- what is in something else

TEST_P(EntryContract, ControlsInAPictureAreTheirFormsToo) {
  form_.Show();
  EXPECT_EQ(screen_.PlaceOf(form_.Window(), form_.cmdIn.Window()), (Rect{120, 160, 201, 185}));
  form_.txtLines.SetFocus();
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.txtIn.HasFocus()) << "a picture itself is no stop";
  Type(L"x");
  Press(kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts({"txtIn=x", "ok"}));
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.cmdIn.HasFocus());
  Press(kKeyCodeReturn);
  screen_.PressAlt(form_.Window(), L'p');
  screen_.Click(form_.Window(), form_.cmdIn.Window());
  EXPECT_EQ(Heard(), Texts({"in", "in", "in"}));
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.cmdOk.HasFocus());
  screen_.PressAlt(form_.Window(), L'i');
  EXPECT_TRUE(form_.txtIn.HasFocus());
  form_.cmdIn.SetDefault(true);
  Press(kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts({"in"}));
  screen_.ChangeScale(form_.Window(), 192);
  EXPECT_EQ(screen_.PlaceOf(form_.Window(), form_.cmdIn.Window()), (Rect{240, 320, 402, 370}));
}

TEST_P(EntryContract, DoorsAreShutWhereTheUserCannotReach) {
  form_.Show();
  const auto knock = [this] {
    form_.txtIn.UserText(L"no", {});
    form_.txtIn.UserType(L"no");
    form_.cmdIn.UserClick();
  };
  form_.picBox.SetEnabled(false);
  knock();
  form_.picBox.SetEnabled(true);
  form_.picBox.SetVisible(false);
  knock();
  EXPECT_EQ(form_.txtIn.Text(), L"");
  EXPECT_EQ(Heard(), Texts());
  form_.txtLines.SetFocus();
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.cmdOk.HasFocus());
  form_.picBox.SetVisible(true);
  knock();
  EXPECT_EQ(Heard(), Texts({"txtIn=no", "txtIn=nono", "in"}));
}

}  // namespace
}  // namespace burrowmark
