// What the user types and chooses, and the controls that others are in.
#include "tests/contract/ui_fixture.h"

namespace burrowmark {
namespace {

using Selected = std::pair<std::int32_t, std::int32_t>;

class EntryContract : public FullFormTest {
 protected:
  // Which of the options in the frame are on, as the windows and as the controls tell.
  std::string On() {
    std::string on;
    for (const OptionButton* option : {&form_.optA, &form_.optB, &form_.optC}) {
      const bool shows = screen_.CheckOf(option->Window()) == 1;
      EXPECT_EQ(shows, option->Value());
      on += shows ? ToUtf8(option->Name()).back() : '-';
    }
    return on;
  }
};

TEST_F(EntryContract, ATextIsTypedWhereTheCaretIs) {
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
  Press(kKeyCodeDelete);
  EXPECT_EQ(form_.txtName.Text(), L"Zef");
}

TEST_F(EntryContract, AnEventMayChangeTheTextOnceMore) {
  form_.txtName.Change = [this] {
    form_.Say(ToUtf8(form_.txtName.Text()));
    form_.txtName.SetText(L"kept");
  };
  form_.Show();
  form_.txtName.SetFocus();
  Type(L"x");
  EXPECT_EQ(Heard(), Texts({"xabcdef", "kept"}));
  EXPECT_EQ(screen_.TextOf(form_.txtName.Window()), L"kept");
}

TEST_F(EntryContract, EnterBeginsALineWhereThereAreMany) {
  form_.Show();
  CheckKeys(form_, {{kKeyCodeReturn, 0, {"cmdOk"}, &form_.txtName}});
  form_.txtLines.SetFocus();
  Type(L"a");
  Press(kKeyCodeReturn);
  Type(L"b");
  EXPECT_EQ(form_.txtLines.Text(), L"a\r\nb");
  Heard();
  form_.txtLines.SetReadOnly(true);
  CheckKeys(form_, {{kKeyCodeReturn, 0, {"cmdOk"}, &form_.txtLines},
                    {kKeyCodeEscape, 0, {}, &form_.txtLines},  // it closes nothing
                    {kKeyCodeTab, 0, {}, &form_.txtIn}});
}

TEST_F(EntryContract, ATextIsSelectedWhereAKeyBroughtTheFocus) {
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
  screen_.PressAlt(form_.Window(), L'm');
  EXPECT_EQ(screen_.SelectedIn(form_.txtName.Window()), Selected(0, 6));
  EXPECT_EQ(form_.txtName.SelLength(), 6);
  Press(kKeyCodeEnd);
  EXPECT_EQ(form_.txtName.SelStart(), 6);
  Press('A', kCtrlMask);
  EXPECT_EQ(form_.txtName.Selection(), (TextSelection{0, 6}));
  EXPECT_EQ(Heard(), Texts());
}

TEST_F(EntryContract, ControlsInAPictureAreTheirFormsToo) {
  form_.Show();
  form_.txtLines.SetFocus();
  CheckKeys(form_, {{kKeyCodeTab, 0, {}, &form_.txtIn},  // a picture itself is no stop
                    {kKeyCodeReturn, 0, {"cmdOk"}, &form_.txtIn},
                    {kKeyCodeTab, 0, {}, &form_.cmdIn},
                    {kKeyCodeReturn, 0, {"cmdIn"}, &form_.cmdIn},
                    {kKeyCodeTab, 0, {}, &form_.chkOne},
                    {L'i', kAltMask, {}, &form_.txtIn},
                    {L'p', kAltMask, {"cmdIn"}, &form_.cmdIn}});
  for (const auto& [dpi, place] : {std::pair(96, Rect{120, 160, 201, 185}), std::pair(192, Rect{240, 320, 402, 370})}) {
    screen_.ChangeScale(form_.Window(), dpi);
    EXPECT_EQ(screen_.PlaceOf(form_.cmdIn.Window()), place);
  }
}

TEST_F(EntryContract, TheUserReachesNothingInWhatIsDisabledOrHidden) {
  form_.optA.SetValue(true);
  form_.optOther.SetValue(true);
  form_.Show();
  form_.picBox.SetEnabled(false);
  form_.fraGroup.SetEnabled(false);
  Heard();
  for (const bool hidden : {false, true}) {
    form_.picBox.SetEnabled(hidden);
    form_.picBox.SetVisible(!hidden);
    form_.txtIn.UserText(L"no", {});
    form_.txtIn.UserType(L"no");
    form_.cmdIn.UserClick();
    form_.optB.UserClick();
    form_.optA.UserArrow(true);
    form_.txtLines.SetFocus();
    CheckKeys(form_, {{kKeyCodeTab, 0, {}, &form_.chkOne}, {kKeyCodeTab, 0, {}, &form_.optOther}});
  }
  EXPECT_EQ(On(), "A--");
  form_.picBox.SetVisible(true);
  form_.cmdIn.UserClick();
  EXPECT_EQ(Heard(), Texts({"cmdIn"}));
}

// --- choices

TEST_F(EntryContract, ACheckBoxIsTurnedByMouseAndKeys) {
  form_.Show();
  form_.chkOne.SetValue(kGrayed);
  Heard();
  Click(form_.chkOne);
  EXPECT_EQ(screen_.CheckOf(form_.chkOne.Window()), 0);
  Click(form_.chkOne);
  EXPECT_EQ(screen_.CheckOf(form_.chkOne.Window()), 1);
  EXPECT_EQ(Heard(), Texts({"chkOne", "chkOne"}));
  CheckKeys(form_, {{kKeyCodeSpace, 0, {"chkOne"}, &form_.chkOne}, {L'c', kAltMask, {"chkOne"}, &form_.chkOne}});
  EXPECT_EQ(form_.chkOne.Value(), kChecked);
}

TEST_F(EntryContract, OneOfTheOptionsOfAFrameIsOn) {
  form_.optOther.SetValue(true);
  form_.Show();
  Heard();
  Click(form_.optB);
  EXPECT_EQ(On(), "-B-");
  Click(form_.optB);
  EXPECT_EQ(Heard(), Texts({"optB"}));
  form_.optC.SetValue(true);
  EXPECT_EQ(On(), "--C");
  screen_.PressAlt(form_.Window(), L'a');
  EXPECT_EQ(On(), "A--");
  EXPECT_EQ(Heard(), Texts({"optC", "optA"}));
  form_.optA.SetValue(false);
  form_.optB.SetFocus();
  EXPECT_TRUE(form_.optB.HasFocus());
  EXPECT_EQ(On(), "---") << "the focus alone turns none on";
  EXPECT_EQ(Heard(), Texts());
  EXPECT_TRUE(form_.optOther.Value()) << "it is in another group";
}

TEST_F(EntryContract, ArrowsMoveAmongOptionsAndTabPassesThemBy) {
  form_.optB.SetValue(true);
  form_.optOther.SetValue(true);
  form_.Show();
  form_.chkOne.SetFocus();
  Heard();
  CheckKeys(form_, {{kKeyCodeTab, 0, {}, &form_.optB},
                    {kKeyCodeDown, 0, {"optC"}, &form_.optC},
                    {kKeyCodeRight, 0, {"optA"}, &form_.optA}});  // from the last one to the first
  form_.optC.SetEnabled(false);
  CheckKeys(form_, {{kKeyCodeUp, 0, {"optB"}, &form_.optB},
                    {kKeyCodeTab, 0, {}, &form_.optOther},
                    {kKeyCodeTab, kShiftMask, {}, &form_.optB}});
  EXPECT_EQ(On(), "-B-");
}

TEST_F(EntryContract, AnEntryIsChosenByMouseAndKeys) {
  form_.Show();
  EXPECT_EQ(form_.cboList.ListIndex(), -1);
  screen_.ChooseEntry(form_.cboList.Window(), 1);
  EXPECT_EQ(form_.cboList.Text(), L"one");
  Press(kKeyCodeDown);
  Press(kKeyCodeDown);
  EXPECT_EQ(form_.cboList.Text(), L"two");
  EXPECT_EQ(Heard(), Texts({"cboList", "cboList"}));
}

TEST_F(EntryContract, AChoiceCountsOnceWhenTheListCloses) {
  form_.cmdOk.SetCancel(true);
  form_.OnKey = [this](std::int32_t key, std::int32_t) {
    if (key != kKeyCodeF4) form_.Say("key " + std::to_string(key));
    return false;
  };
  form_.cboList.SetListIndex(0);
  form_.Show();
  form_.cboList.SetFocus();
  Heard();
  for (const std::int32_t end : {kKeyCodeEscape, kKeyCodeReturn}) {
    for (const std::int32_t key : {kKeyCodeF4, kKeyCodeDown, kKeyCodeDown}) Press(key);
    EXPECT_EQ(form_.cboList.Text(), L"zero") << "what is passed isn't chosen";
    Press(end);
  }
  EXPECT_EQ(Heard(), Texts({"cboList"})) << "keys of the list are nobody else's";
  EXPECT_EQ(form_.cboList.Text(), L"two");
  Press(kKeyCodeEscape);
  EXPECT_EQ(Heard(), Texts({"cmdOk"}));
}

TEST_F(EntryContract, ATypedCharacterCanBeKeptOrBecomeAnother) {
  form_.cmdOk.SetCancel(true);
  std::vector<std::int32_t> told;
  form_.txtName.KeyPress = [&told](std::int32_t& KeyAscii) {
    told.push_back(KeyAscii);
    if (KeyAscii == L'a') KeyAscii = L'A';
    if (KeyAscii < L' ' || KeyAscii == L'x') KeyAscii = 0;
  };
  form_.Show();
  form_.txtName.SetFocus();
  Type(L"xay");
  for (const std::int32_t key : {kKeyCodeReturn, kKeyCodeEscape, kKeyCodeBackspace}) Press(key);
  EXPECT_EQ(form_.txtName.Text(), L"Ayabcdef");
  EXPECT_EQ(told, (std::vector<std::int32_t>{L'x', L'a', L'y', 13, 27, 8}));
  EXPECT_EQ(Heard(), Texts({"txtName=Aabcdef", "txtName=Ayabcdef"})) << "no button is pressed by what was kept";
  int enters = 0;
  form_.txtLines.KeyPress = [&enters](std::int32_t&) { ++enters; };
  form_.txtLines.SetFocus();
  Press(kKeyCodeReturn);
  EXPECT_EQ(form_.txtLines.Text(), L"\r\n");
  EXPECT_EQ(enters, 1);
}

TEST_F(EntryContract, AToolTipIsShownAndChanged) {
  form_.cmdIn.SetToolTipText(L"Presses");
  form_.Show();
  form_.lblName.SetToolTipText(L"Marks");
  EXPECT_EQ(screen_.ToolTipOf(form_.cmdIn.Window()), L"Presses");
  EXPECT_EQ(screen_.ToolTipOf(form_.lblName.Window()), L"Marks");
  form_.cmdIn.SetToolTipText(L"");
  form_.lblName.SetToolTipText(L"Marks && more");
  EXPECT_EQ(screen_.ToolTipOf(form_.cmdIn.Window()), L"");
  EXPECT_EQ(screen_.ToolTipOf(form_.lblName.Window()), L"Marks && more");
}

TEST_F(EntryContract, ATabComesToTheFrontByMouseAndKeys) {
  form_.Show();
  EXPECT_EQ(screen_.TabOf(form_.tabAll.Window()), 0);
  screen_.ChooseTab(form_.tabAll.Window(), 1);
  EXPECT_EQ(form_.tabAll.SelectedTab(), 2);
  Press(kKeyCodeRight);
  EXPECT_EQ(form_.tabAll.SelectedTab(), 3);
  form_.cmdOk.SetFocus();
  Press(kKeyCodeTab, kCtrlMask);
  EXPECT_EQ(form_.tabAll.SelectedTab(), 1);
  Press(kKeyCodeTab, kCtrlMask | kShiftMask);
  EXPECT_EQ(screen_.TabOf(form_.tabAll.Window()), 2);
  EXPECT_TRUE(form_.cmdOk.HasFocus());
  EXPECT_EQ(Heard(), Texts(4, "tabAll"));
}

TEST_F(EntryContract, WhatIsBelowTheTabsLiesWithinTheStrip) {
  form_.Show();
  screen_.ChangeScale(form_.Window(), 192);
  const Box& strip = form_.tabAll.Place();
  const Box area = form_.tabAll.AreaBelow();
  EXPECT_TRUE(area.left > strip.left && area.left + area.width < strip.left + strip.width);
  EXPECT_TRUE(area.top > strip.top + 240 && area.top < strip.top + 600) << "a line of text is above it";
  EXPECT_LT(area.top + area.height, strip.top + strip.height);
}

TEST_F(EntryContract, AFramesMnemonicGoesToTheFirstInIt) {
  form_.Show();
  CheckKeys(form_, {{L'g', kAltMask, {}, &form_.optA}});
}

}  // namespace
}  // namespace burrowmark
