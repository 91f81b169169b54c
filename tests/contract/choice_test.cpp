// Check boxes, options, combo boxes and tabs, and the frames that they are in.
#include <vector>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "tests/contract/system_under_test.h"
#include "ui/check_box.h"
#include "ui/combo_box.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/frame.h"
#include "ui/line.h"
#include "ui/option_button.h"
#include "ui/tab_strip.h"

namespace burrowmark {
namespace {

using Texts = std::vector<std::string>;

class ChoiceForm final : public Form {
 public:
  explicit ChoiceForm(WindowSystem& windows) : Form(windows, L"frmChoice", Size{6000, 6000}) {
    SetCaption(L"Choice");
    Listen(tabAll);
    Listen(chkOne);
    for (OptionButton* option : {&optA, &optB, &optC, &optOther}) Listen(*option);
    Listen(cboList);
    for (const wchar_t* item : {L"zero", L"one", L"two"}) cboList.AddItem(item);
  }
  template <typename Kind>
  void Listen(Kind& control) {
    control.Click = [this, &control] { Heard.push_back(ToUtf8(control.Name())); };
  }

  TabStrip tabAll{*this, L"tabAll", Box{60, 60, 5800, 4800}, {L"First", L"Second", L"Third"}};
  CheckBox chkOne{*this, L"chkOne", Box{300, 600, 2400, 255}, L"&Check"};
  Line linUnder{*this, L"linUnder", Box{300, 900, 2400, 30}};
  Frame fraGroup{*this, L"fraGroup", Box{300, 1200, 4500, 1500}, L"&Group"};
  OptionButton optA{fraGroup, L"optA", Box{150, 300, 2400, 255}, L"&A"};
  OptionButton optB{fraGroup, L"optB", Box{150, 600, 2400, 255}, L"&B"};
  OptionButton optC{fraGroup, L"optC", Box{150, 900, 2400, 255}, L"C"};
  OptionButton optOther{*this, L"optOther", Box{300, 3000, 2400, 255}, L"Other"};
  ComboBox cboList{*this, L"cboList", Box{300, 3400, 2400, 345}};
  CommandButton cmdLast{*this, L"cmdLast", Box{300, 5400, 1215, 375}, L"Last"};

  Texts Heard;
};

class ChoiceContract : public ContractTest {
 protected:
  ~ChoiceContract() override {
    EXPECT_EQ(screen_.Complaints(), "");
    platform_.windows.DoEvents();
  }

  void Press(std::int32_t key, std::int32_t shift = 0) { screen_.Press(form_.Window(), key, shift); }
  void Click(const Control& control) { screen_.Click(form_.Window(), control.Window()); }
  Texts Heard() { return std::exchange(form_.Heard, {}); }
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

  ScreenUnderTest& screen_ = system_->screen();
  ChoiceForm form_{platform_.windows};
};
INSTANTIATE_TEST_SUITE_P(Systems, ChoiceContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(ChoiceContract, ACheckBoxTurnsForTheUserAndForCode) {
  form_.Show();
  Click(form_.chkOne);
  EXPECT_EQ(form_.chkOne.Value(), kChecked);
  EXPECT_EQ(screen_.CheckOf(form_.chkOne.Window()), 1);
  Press(kKeyCodeSpace);
  EXPECT_EQ(form_.chkOne.Value(), kUnchecked);
  screen_.PressAlt(form_.Window(), L'c');
  EXPECT_EQ(form_.chkOne.Value(), kChecked);
  EXPECT_EQ(Heard(), Texts({"chkOne", "chkOne", "chkOne"}));
  form_.chkOne.SetValue(kGrayed);
  form_.chkOne.SetValue(kGrayed);
  EXPECT_EQ(screen_.CheckOf(form_.chkOne.Window()), 2);
  EXPECT_EQ(Heard(), Texts({"chkOne"}));
  Click(form_.chkOne);
  EXPECT_EQ(screen_.CheckOf(form_.chkOne.Window()), 0);
}

TEST_P(ChoiceContract, OneOfTheOptionsOfAFrameIsOn) {
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
  EXPECT_EQ(On(), "---");
  EXPECT_EQ(Heard(), Texts());
  EXPECT_TRUE(form_.optOther.Value()) << "it is in another group";
}

TEST_P(ChoiceContract, TheFocusAloneTurnsNoOptionOn) {
  form_.Show();
  form_.optB.SetFocus();
  EXPECT_TRUE(form_.optB.HasFocus());
  EXPECT_EQ(On(), "---");
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(ChoiceContract, ArrowsMoveAmongOptionsAndTabPassesThemBy) {
  form_.optB.SetValue(true);
  form_.optOther.SetValue(true);
  form_.Show();
  form_.chkOne.SetFocus();
  Heard();
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.optB.HasFocus());
  Press(kKeyCodeDown);
  EXPECT_EQ(On(), "--C");
  Press(kKeyCodeRight);
  EXPECT_TRUE(form_.optA.HasFocus()) << "and from the last one to the first";
  form_.optC.SetEnabled(false);
  Press(kKeyCodeUp);
  EXPECT_EQ(On(), "-B-");
  EXPECT_EQ(Heard(), Texts({"optC", "optA", "optB"}));
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.optOther.HasFocus());
  Press(kKeyCodeTab, kShiftMask);
  EXPECT_TRUE(form_.optB.HasFocus());
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(ChoiceContract, AnEntryIsChosenByMouseKeysAndCode) {
  form_.Show();
  EXPECT_EQ(form_.cboList.ListIndex(), -1);
  screen_.ChooseEntry(form_.Window(), form_.cboList.Window(), 1);
  EXPECT_EQ(form_.cboList.ListIndex(), 1);
  EXPECT_EQ(screen_.TextOf(form_.cboList.Window()), L"one");
  EXPECT_EQ(Heard(), Texts({"cboList"}));
  Press(kKeyCodeDown);
  Press(kKeyCodeDown);
  EXPECT_EQ(form_.cboList.Text(), L"two");
  form_.cboList.SetListIndex(0);
  form_.cboList.SetListIndex(0);
  form_.cboList.SetListIndex(7);
  EXPECT_EQ(screen_.TextOf(form_.cboList.Window()), L"zero");
  EXPECT_EQ(Heard(), Texts({"cboList", "cboList"}));
  form_.cboList.AddItem(L"three");
  EXPECT_EQ(screen_.EntryCountOf(form_.cboList.Window()), 4);
  EXPECT_EQ(screen_.TextOf(form_.cboList.Window()), L"zero");
  form_.cboList.Clear();
  EXPECT_EQ(screen_.EntryCountOf(form_.cboList.Window()), 0);
  EXPECT_EQ(form_.cboList.ListIndex(), -1);
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(ChoiceContract, ATabComesToTheFrontForMouseKeysAndCode) {
  form_.Show();
  EXPECT_EQ(screen_.TabOf(form_.tabAll.Window()), 0);
  screen_.ChooseTab(form_.Window(), form_.tabAll.Window(), 1);
  EXPECT_EQ(form_.tabAll.SelectedTab(), 2);
  Press(kKeyCodeRight);
  EXPECT_EQ(form_.tabAll.SelectedTab(), 3);
  form_.cmdLast.SetFocus();
  Press(kKeyCodeTab, kCtrlMask);
  EXPECT_EQ(form_.tabAll.SelectedTab(), 1);
  Press(kKeyCodeTab, kCtrlMask | kShiftMask);
  EXPECT_EQ(screen_.TabOf(form_.tabAll.Window()), 2);
  EXPECT_TRUE(form_.cmdLast.HasFocus());
  EXPECT_EQ(Heard(), Texts(4, "tabAll"));
  form_.tabAll.SetSelectedTab(2);
  form_.tabAll.SetSelectedTab(2);
  form_.tabAll.SetSelectedTab(4);
  EXPECT_EQ(screen_.TabOf(form_.tabAll.Window()), 1);
  EXPECT_EQ(Heard(), Texts(1, "tabAll"));
}

TEST_P(ChoiceContract, WhatIsBelowTheTabsLiesWithinTheStrip) {
  EXPECT_EQ(form_.tabAll.AreaBelow(), form_.tabAll.Place());
  form_.Show();
  const Box& strip = form_.tabAll.Place();
  for (const std::int32_t dpi : {96, 192}) {
    screen_.ChangeScale(form_.Window(), dpi);
    const Box area = form_.tabAll.AreaBelow();
    EXPECT_GT(area.left, strip.left);
    EXPECT_GT(area.top, strip.top + 240) << "a line of text is above it";
    EXPECT_LT(area.top, strip.top + 600);
    EXPECT_LT(area.left + area.width, strip.left + strip.width);
    EXPECT_LT(area.top + area.height, strip.top + strip.height);
  }
}

TEST_P(ChoiceContract, AFrameIsTheWindowOfWhatIsInIt) {
  form_.Show();
  EXPECT_EQ(screen_.PlaceOf(form_.Window(), form_.optA.Window()), (Rect{30, 100, 190, 117}));
  form_.fraGroup.SetPlace({600, 1200, 4500, 1500});
  EXPECT_EQ(screen_.PlaceOf(form_.Window(), form_.optA.Window()), (Rect{50, 100, 210, 117}));
  screen_.ChangeScale(form_.Window(), 144);
  EXPECT_EQ(screen_.PlaceOf(form_.Window(), form_.optA.Window()), (Rect{75, 150, 315, 176}));
  form_.fraGroup.SetCaption(L"Other &names");
  screen_.PressAlt(form_.Window(), L'n');
  EXPECT_TRUE(form_.optA.HasFocus());
  form_.fraGroup.SetEnabled(false);
  form_.chkOne.SetFocus();
  Press(kKeyCodeTab);
  EXPECT_TRUE(form_.optOther.HasFocus());
  form_.optB.UserClick();
  form_.optA.UserArrow(true);
  EXPECT_EQ(On(), "A--") << "doors are shut in a frame that is disabled";
}

TEST_P(ChoiceContract, ChoicesAreShownAgainByWindowsMadeAnew) {
  form_.Show();
  form_.chkOne.SetValue(kGrayed);
  form_.optC.SetValue(true);
  form_.cboList.SetListIndex(2);
  form_.tabAll.SetSelectedTab(3);
  Heard();
  form_.Realise();
  EXPECT_EQ(screen_.CheckOf(form_.chkOne.Window()), 2);
  EXPECT_EQ(On(), "--C");
  EXPECT_EQ(screen_.TextOf(form_.cboList.Window()), L"two");
  EXPECT_EQ(screen_.TabOf(form_.tabAll.Window()), 2);
  EXPECT_EQ(screen_.TextOf(form_.fraGroup.Window()), L"&Group");
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(ChoiceContract, AFormUnloadsFromWithinAChoice) {
  const struct {
    std::string what;
    std::function<void()> act;
  } cases[] = {
      {"check", [this] { Click(form_.chkOne); }},
      {"option", [this] { Click(form_.optB); }},
      {"arrow", [this] { form_.optC.SetFocus(); }},
      {"entry", [this] { screen_.ChooseEntry(form_.Window(), form_.cboList.Window(), 1); }},
      {"tab", [this] { screen_.ChooseTab(form_.Window(), form_.tabAll.Window(), 1); }},
      {"key", [this] { Press(kKeyCodeTab, kCtrlMask); }},
  };
  const auto unload = [this] { form_.Unload(); };
  form_.chkOne.Click = unload;
  form_.optB.Click = unload;
  form_.optC.Click = unload;
  form_.cboList.Click = unload;
  form_.tabAll.Click = unload;
  for (const auto& row : cases) {
    SCOPED_TRACE(row.what);
    form_.Show();
    row.act();
    platform_.windows.DoEvents();
    EXPECT_FALSE(form_.Loaded());
  }
}

}  // namespace
}  // namespace burrowmark
