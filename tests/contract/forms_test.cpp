// Forms: their windows, keys and buttons, unloading, and modal ones.
#include "tests/contract/ui_fixture.h"

namespace burrowmark {
namespace {

constexpr Size kClient{6000, 3000};

class TestForm final : public HearingForm {
 public:
  TestForm(WindowSystem& windows, const std::wstring& caption, Texts& heard)
      : HearingForm(windows, caption, kClient, heard) {
    cmdOne.Click = Noting("one");
    cmdTwo.Click = Noting("two");
    cmdThree.Click = Noting("three");
  }
  std::function<void()> Noting(const std::string& what) { return Saying(ToUtf8(Caption()) + " " + what); }

  Label lblText{*this, L"lblText", Box{150, 150, 3000, 255}, L"A &text"};
  CommandButton cmdOne{*this, L"cmdOne", Box{150, 600, 1215, 375}, L"&One"};
  CommandButton cmdTwo{*this, L"cmdTwo", Box{1500, 600, 1215, 375}, L"T&wo"};
  CommandButton cmdThree{*this, L"cmdThree", Box{2850, 600, 1215, 375}, L"Three && &more"};
};

class FormsContract : public UiTest {
 protected:
  void Click(const Control& control) { screen_.Click(control.Window()); }
  void Press(std::int32_t key) { screen_.Press(form_.Window(), key); }

  TestForm form_{windows_, L"First", heard_};
  TestForm other_{windows_, L"Second", heard_};
  TestForm third_{windows_, L"Third", heard_};
};

// --- windows

TEST_F(FormsContract, AWindowMadeAnewHasItsFocusItsRankAndItsForms) {
  form_.Show();
  form_.SetTopMost(true);
  EXPECT_TRUE(screen_.IsTopMost(form_.Window()));
  form_.cmdTwo.SetFocus();
  other_.Show(Modeless, form_);
  form_.BringToFront();
  const WindowHandle before = form_.Window();
  const int resizes = form_.Resizes;
  form_.Realise();
  windows_.DoEvents();
  EXPECT_FALSE(screen_.Exists(before));
  EXPECT_TRUE(screen_.IsShown(form_.Window()));
  EXPECT_TRUE(screen_.IsTopMost(form_.Window()));
  form_.SetTopMost(false);
  EXPECT_FALSE(screen_.IsTopMost(form_.Window()));
  EXPECT_TRUE(form_.cmdTwo.HasFocus());
  EXPECT_TRUE(screen_.HasFocus(form_.cmdTwo.Window()));
  EXPECT_EQ(screen_.OwnerOf(other_.Window()), form_.Window()) << "it would have gone with the old window";
  EXPECT_EQ(form_.Resizes, resizes);
  Click(form_.cmdOne);
  EXPECT_EQ(Heard(), Texts({"First one"}));
}

TEST_F(FormsContract, TwipsBecomePixelsOfTheScreensScale) {
  form_.Show();
  const struct {
    std::int32_t dpi;
    Rect place;
  } cases[] = {{144, {15, 60, 137, 98}}, {192, {20, 80, 182, 130}}, {96, {10, 40, 91, 65}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.dpi);
    screen_.ChangeScale(form_.Window(), row.dpi);
    EXPECT_EQ(screen_.PlaceOf(form_.cmdOne.Window()), row.place);
    EXPECT_EQ(form_.cmdOne.Place(), (Box{150, 600, 1215, 375}));
  }
  EXPECT_EQ(screen_.ClientOf(form_.Window()), (Size{400, 200})) << "as large as it was designed";
  EXPECT_EQ(form_.Client(), kClient);
}

TEST_F(FormsContract, APlaceStaysAsItWasSetAndResizeComesOnceForEachRealChange) {
  const Box place{1507, 1601, 7003, 4511};  // no whole pixels
  form_.SetBorder(FormBorder::kSizable);
  form_.OnLoad = [&] { form_.SetPlace(place); };
  form_.Load();
  EXPECT_EQ(form_.Resizes, 1) << "once after the loading, whatever happened in it";
  form_.Show();
  EXPECT_EQ(form_.Place(), place);
  const int shown = form_.Resizes;
  for (const std::int32_t left : {1500, 3000, 3000}) form_.SetPlace({left, 1500, 9000, 4500});
  EXPECT_EQ(form_.Resizes, shown + 1) << "a move is no change of size";
  screen_.Resize(form_.Window(), 500, 400);
  EXPECT_EQ(form_.Resizes, shown + 2);
  EXPECT_EQ((Size{form_.Place().width, form_.Place().height}), (Size{7500, 6000}));
}

TEST_F(FormsContract, AWindowKeepsItsPlaceUnderneathWhileItIsMaximised) {
  form_.SetBorder(FormBorder::kSizable);
  form_.SetPlace({1500, 1500, 7500, 4500});
  form_.SetWindowState(FormWindowState::kMaximized);
  form_.Load();
  EXPECT_EQ(form_.WindowState(), FormWindowState::kMaximized) << "it takes the state on when it shows";
  form_.Show();
  EXPECT_EQ(form_.WindowState(), FormWindowState::kMaximized);
  EXPECT_GT(form_.Client().width, 7500);
  EXPECT_EQ(form_.Place(), (Box{1500, 1500, 7500, 4500}));
  form_.SetWindowState(FormWindowState::kNormal);
  EXPECT_LT(form_.Client().width, 7500);
  form_.SetWindowState(FormWindowState::kMinimized);
  EXPECT_EQ(form_.Client(), Size());
  form_.BringToFront();
  EXPECT_EQ(form_.WindowState(), FormWindowState::kNormal);
  EXPECT_EQ(form_.Place(), (Box{1500, 1500, 7500, 4500}));
}

// --- buttons and keys

TEST_F(FormsContract, APressOnAFormHasOneEndAlsoWhereTheMouseIsTakenAway) {
  form_.Show();
  const auto mouse = [this](MouseAction action, std::int32_t x) {
    screen_.Mouse(form_.Window(), action, {kLeftButton, 0, x, 2700});
  };
  const std::function<void()> ends[] = {[&] { mouse(MouseAction::kUp, 4500); },
                                        [this] { screen_.LoseMouse(form_.Window()); }, [this] { other_.Show(); },
                                        [this] { form_.SetEnabled(false); }};
  for (const auto& end : ends) {
    mouse(MouseAction::kDown, 3000);
    mouse(MouseAction::kMove, 4500);
    end();
    EXPECT_EQ(Heard(), Texts({"up at 4500"})) << &end - ends;
    form_.SetEnabled(true);
    mouse(MouseAction::kUp, 6000);
    EXPECT_EQ(Heard(), Texts()) << &end - ends;
  }
}

TEST_F(FormsContract, AButtonIsPressedByMouseKeysAndCode) {
  form_.Show();
  Click(form_.cmdTwo);
  EXPECT_EQ(Heard(), Texts({"First two"}));
  CheckKeys(form_, {{kKeyCodeSpace, 0, {"First two"}, &form_.cmdTwo},
                    {kKeyCodeReturn, 0, {"First two"}, &form_.cmdTwo},
                    {L'o', kAltMask, {"First one"}, &form_.cmdOne},
                    {L'M', kAltMask, {"First three"}, &form_.cmdThree}});  // two marks are no mnemonic
  form_.cmdOne.SetValue(true);
  form_.cmdOne.SetValue(false);
  EXPECT_EQ(Heard(), Texts({"First one"}));
}

TEST_F(FormsContract, WhatIsDisabledHandsItsFocusOn) {
  form_.Show();
  form_.cmdThree.SetFocus();
  form_.cmdTwo.SetEnabled(false);
  EXPECT_TRUE(form_.cmdThree.HasFocus()) << "somebody else's";
  form_.cmdThree.SetEnabled(false);
  EXPECT_TRUE(screen_.HasFocus(form_.cmdOne.Window())) << "the next one behind the last is the first";
  form_.cmdThree.SetEnabled(true);
  form_.cmdTwo.SetEnabled(true);
  form_.cmdThree.SetDefault(true);
  form_.cmdOne.SetEnabled(false);
  EXPECT_TRUE(screen_.HasFocus(form_.cmdThree.Window())) << "from a button to the one that Enter presses";
}

TEST_F(FormsContract, NobodyPressesAButtonThatIsDisabledOrHidden) {
  form_.cmdOne.SetDefault(true);
  form_.cmdOne.SetEnabled(false);
  form_.cmdTwo.SetCancel(true);
  form_.cmdTwo.SetVisible(false);
  form_.Show();
  CheckKeys(form_, {{kKeyCodeEscape, 0, {}, &form_.cmdThree}, {L'o', kAltMask, {}, &form_.cmdThree}});
  form_.cmdThree.SetEnabled(false);
  Press(kKeyCodeReturn);
  form_.cmdOne.UserClick();
  form_.cmdTwo.UserClick();
  EXPECT_EQ(Heard(), Texts());
  form_.cmdOne.SetValue(true);
  EXPECT_EQ(Heard(), Texts({"First one"})) << "code can";
}

TEST_F(FormsContract, EnterPressesTheDefaultButtonAndEscTheCancelButton) {
  for (CommandButton* button : {&form_.cmdOne, &form_.cmdTwo, &form_.cmdThree}) button->SetTabStop(false);
  form_.Show();
  CheckKeys(form_, {{kKeyCodeReturn, 0, {}, nullptr}, {kKeyCodeEscape, 0, {}, nullptr}});
  form_.cmdTwo.SetDefault(true);
  form_.cmdThree.SetCancel(true);
  CheckKeys(form_, {{kKeyCodeReturn, 0, {"First two"}, nullptr}, {kKeyCodeEscape, 0, {"First three"}, nullptr}});
  form_.cmdOne.SetDefault(true);
  form_.cmdTwo.SetCancel(true);
  EXPECT_FALSE(form_.cmdTwo.Default() || form_.cmdThree.Cancel());
  CheckKeys(form_, {{kKeyCodeReturn, 0, {"First one"}, nullptr}, {kKeyCodeEscape, 0, {"First two"}, nullptr}});
  form_.cmdThree.SetFocus();
  EXPECT_FALSE(screen_.IsDefault(form_.cmdOne.Window())) << "the focus takes Enter from the default button";
  CheckKeys(form_, {{kKeyCodeReturn, 0, {"First three"}, &form_.cmdThree}});
}

TEST_F(FormsContract, TheFocusGoesThroughTheControlsAsTheyWereMade) {
  form_.cmdOne.GotFocus = form_.Noting("got one");
  form_.cmdOne.LostFocus = form_.Noting("lost one");
  form_.cmdTwo.SetTabStop(false);
  form_.Show();
  CheckKeys(form_, {{kKeyCodeTab, 0, {"First got one", "First lost one"}, &form_.cmdThree},
                    {kKeyCodeTab, 0, {"First got one"}, &form_.cmdOne}});
  form_.cmdTwo.SetTabStop(true);
  form_.cmdThree.SetEnabled(false);
  CheckKeys(form_,
            {{kKeyCodeTab, 0, {"First lost one"}, &form_.cmdTwo}, {L't', kAltMask, {"First got one"}, &form_.cmdOne}});
  form_.cmdThree.SetEnabled(true);
  form_.cmdOne.SetFocus();
  CheckKeys(form_, {{kKeyCodeTab, kShiftMask, {"First lost one"}, &form_.cmdThree}});
  EXPECT_TRUE(screen_.HasFocus(form_.cmdThree.Window()));
  if (system_->IsWine()) return;  // it takes the mark of any text for a mnemonic
  form_.lblText.SetUseMnemonic(false);
  CheckKeys(form_, {{L't', kAltMask, {}, &form_.cmdThree}});
}

TEST_F(FormsContract, AFormSeesKeysFirstAndMayKeepThem) {
  std::vector<std::int32_t> keys;
  form_.OnKey = [&keys](std::int32_t key, std::int32_t shift) {
    keys.push_back(key + 1000 * shift);
    return key == kKeyCodeReturn;
  };
  form_.Show();
  CheckKeys(form_, {{kKeyCodeReturn, 0, {"First one"}, &form_.cmdOne}});
  EXPECT_TRUE(keys.empty()) << "only if it asked for that";
  form_.SetKeyPreview(true);
  CheckKeys(form_, {{kKeyCodeReturn, 0, {}, &form_.cmdOne}, {kKeyCodeTab, kShiftMask, {}, &form_.cmdThree}});
  EXPECT_EQ(keys, (std::vector<std::int32_t>{kKeyCodeReturn, kKeyCodeTab + 1000 * kShiftMask}));
}

// --- unloading

TEST_F(FormsContract, AFormCanRefuseToGo) {
  form_.Show();
  form_.Refuses = true;
  screen_.Close(form_.Window());
  EXPECT_TRUE(form_.Visible());
  EXPECT_EQ(form_.Asked, UnloadMode::kUser);
  EXPECT_FALSE(form_.Unload());
  EXPECT_EQ(form_.Asked, UnloadMode::kCode);
  EXPECT_EQ(Heard(), Texts());
  form_.Refuses = false;
  const WindowHandle window = form_.Window();
  screen_.Close(window);
  EXPECT_FALSE(form_.Loaded());
  EXPECT_FALSE(screen_.Exists(window));
  EXPECT_EQ(Heard(), Texts({"First unload"}));
}

TEST_F(FormsContract, AFormThatUnloadedItselfCanBeShownAgainInTheSameEvent) {
  form_.cmdOne.Click = [this] {
    form_.Unload();
    form_.lblText.SetCaption(L"Again");
    form_.Show();
  };
  form_.Show();
  const WindowHandle before = form_.Window();
  Click(form_.cmdOne);
  windows_.DoEvents();
  EXPECT_NE(form_.Window(), before);
  EXPECT_FALSE(screen_.Exists(before));
  EXPECT_TRUE(screen_.IsShown(form_.Window()));
  EXPECT_EQ(screen_.TextOf(form_.lblText.Window()), L"Again");
}

TEST_F(FormsContract, AnOwnerTakesItsFormsAlongTheLastOneFirst) {
  form_.Show();
  other_.Show(Modeless, form_);
  third_.Show(Modeless, form_);
  EXPECT_EQ(screen_.OwnerOf(third_.Window()), form_.Window());
  other_.Refuses = true;
  EXPECT_FALSE(form_.Unload());
  EXPECT_EQ(Heard(), Texts({"Third unload"}));
  EXPECT_TRUE(form_.Visible());
  other_.Refuses = false;
  EXPECT_TRUE(form_.Unload());
  EXPECT_EQ(Heard(), Texts({"Second unload", "First unload"}));
}

TEST_F(FormsContract, AFormWhoseWindowTheSystemTookIsUnloaded) {
  MainWindowEvents events;
  const WindowHandle main = windows_.CreateMainWindow(L"Main", events);
  form_.Show(Modeless, main);
  EXPECT_EQ(screen_.OwnerOf(form_.Window()), main);
  windows_.DestroyMainWindow(main);
  EXPECT_FALSE(form_.Loaded());
  EXPECT_EQ(Heard(), Texts({"First unload"}));
  form_.Show();
  EXPECT_TRUE(screen_.IsShown(form_.Window()));
}

TEST_F(FormsContract, AFormGoesWithAllThatShows) {
  form_.Show();
  WindowHandle window = 0;
  {
    TestForm brief(windows_, L"Brief", heard_);
    brief.cmdOne.LostFocus = brief.Noting("lost");
    brief.cmdTwo.GotFocus = brief.Noting("got");
    brief.Show(Modeless, form_);
    window = brief.Window();
  }
  EXPECT_FALSE(screen_.Exists(window));
  EXPECT_EQ(Heard(), Texts()) << "nobody is there any more to hear of it";
  EXPECT_TRUE(form_.Unload());
}

// --- modal forms

TEST_F(FormsContract, AModalFormKeepsItsOwnerFromTheUser) {
  form_.Show();
  screen_.NextWindow(L"Second", [this] {
    EXPECT_FALSE(screen_.IsEnabled(form_.Window()));
    form_.cmdOne.UserClick();
    form_.UserClose();
    EXPECT_TRUE(other_.IsModal());
    Click(other_.cmdOne);
    screen_.Close(other_.Window());
  });
  other_.Show(Modal, form_);
  EXPECT_EQ(Heard(), Texts({"Second one", "Second unload"})) << "the owner's doors are shut";
  EXPECT_TRUE(screen_.IsEnabled(form_.Window()));
  EXPECT_TRUE(screen_.IsActive(form_.Window()));
  Click(form_.cmdOne);
  EXPECT_EQ(Heard(), Texts({"First one"}));
}

TEST_F(FormsContract, TheOwnerIsEnabledBeforeTheModalFormGoes) {
  form_.Show();
  bool enabled = false;
  other_.OnDeactivate = [this, &enabled] { enabled = screen_.IsEnabled(form_.Window()); };
  for (const bool hide : {true, false}) {
    SCOPED_TRACE(hide ? "hide" : "unload");
    other_.cmdOne.Click = [this, hide] {
      hide ? other_.Hide() : static_cast<void>(other_.Unload());
      EXPECT_TRUE(screen_.IsActive(form_.Window())) << "a disabled one would have been passed by";
    };
    screen_.NextWindow(L"Second", [this] { Click(other_.cmdOne); });
    other_.Show(Modal, form_);
    EXPECT_EQ(other_.Loaded(), hide);
    EXPECT_FALSE(other_.IsModal());
  }
  EXPECT_TRUE(enabled);
}

TEST_F(FormsContract, ModalFormsNestAndUnwindInnermostFirst) {
  form_.Show();
  other_.cmdOne.Click = [this] {
    third_.Show(Modal, other_);
    other_.Say("Second goes on");
  };
  third_.cmdOne.Click = [this] {
    // Everything goes from inside the innermost event.
    EXPECT_TRUE(form_.Unload());
    third_.Say("Third is through");
  };
  screen_.NextWindow(L"Second", [this] {
    screen_.NextWindow(L"Third", [this] {
      EXPECT_FALSE(screen_.IsEnabled(form_.Window()));
      EXPECT_FALSE(screen_.IsEnabled(other_.Window()));
      Click(third_.cmdOne);
    });
    Click(other_.cmdOne);
  });
  other_.Show(Modal, form_);
  EXPECT_EQ(Heard(), Texts({"Third unload", "Second unload", "First unload", "Third is through", "Second goes on"}));
  EXPECT_FALSE(form_.Loaded() || other_.Loaded() || third_.Loaded());
  form_.Show();
  EXPECT_TRUE(screen_.IsEnabled(form_.Window()));
}

TEST_F(FormsContract, AnOwnerThatIsNoFormIsKeptFromTheUserToo) {
  MainWindowEvents events;
  const WindowHandle main = windows_.CreateMainWindow(L"Main", events);
  screen_.NextWindow(L"First", [this, main] {
    EXPECT_FALSE(screen_.IsEnabled(main));
    screen_.NextWindow(L"Second", [this] { screen_.Close(other_.Window()); });
    other_.Show(Modal, main);
    EXPECT_FALSE(screen_.IsEnabled(main)) << "the first one still stands in front of it";
    screen_.Close(form_.Window());
  });
  form_.Show(Modal, main);
  EXPECT_TRUE(screen_.IsEnabled(main));
  windows_.DestroyMainWindow(main);
}

TEST_F(FormsContract, AFormThatUnloadsWhileLoadingIsNeverModal) {
  form_.Show();
  other_.OnLoad = [this] { other_.Unload(); };
  other_.Show(Modal, form_);
  EXPECT_FALSE(other_.Loaded());
  EXPECT_TRUE(screen_.IsEnabled(form_.Window()));
}

}  // namespace
}  // namespace burrowmark
