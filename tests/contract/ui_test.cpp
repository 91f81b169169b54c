// Forms and controls: what they tell their windows, and what the user tells them.
#include <vector>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "tests/contract/system_under_test.h"
#include "ui/animation.h"
#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/label.h"

namespace burrowmark {
namespace {

using Texts = std::vector<std::string>;

constexpr Size kClient{6000, 3000};

class TestForm final : public Form {
 public:
  TestForm(WindowSystem& windows, const std::wstring& caption, Texts& heard)
      : Form(windows, L"frm" + caption, kClient), heard_(heard) {
    SetCaption(caption);
    cmdOne.Click = Noting("one");
    cmdTwo.Click = Noting("two");
    cmdThree.Click = Noting("three");
  }

  std::function<void()> Note(const std::string& what) { return Noting(what); }
  void Say(const std::string& what) { heard_.push_back(ToUtf8(Caption()) + " " + what); }

  Label lblText{*this, L"lblText", Box{150, 150, 3000, 255}, L"A &text"};
  CommandButton cmdOne{*this, L"cmdOne", Box{150, 600, 1215, 375}, L"&One"};
  CommandButton cmdTwo{*this, L"cmdTwo", Box{1500, 600, 1215, 375}, L"T&wo"};
  CommandButton cmdThree{*this, L"cmdThree", Box{2850, 600, 1215, 375}, L"Three && &more"};
  Animation aniFilm{*this, L"aniFilm", Box{150, 1200, 3000, 900}};

  std::function<void()> OnLoad;
  std::function<void()> OnUnload;
  std::function<void()> OnResize;
  std::function<void()> OnDeactivate;
  std::function<bool(std::int32_t key, std::int32_t shift)> OnKey;
  bool Refuses = false;
  UnloadMode Asked = UnloadMode::kCode;
  int Resizes = 0;

 private:
  std::function<void()> Noting(const std::string& what) {
    return [this, what] { Say(what); };
  }
  void Form_Load() override { Raise(OnLoad); }
  void Form_QueryUnload(bool& Cancel, UnloadMode mode) override {
    Asked = mode;
    Cancel = Refuses;
  }
  void Form_Unload(bool&) override {
    Say("unload");
    Raise(OnUnload);
  }
  void Form_Resize() override {
    ++Resizes;
    Raise(OnResize);
  }
  void Form_Deactivate() override { Raise(OnDeactivate); }
  void Form_MouseUp(const MouseEvent& event) override {
    Say("up " + std::to_string(event.button) + " at " + std::to_string(event.x));
  }
  void Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) override {
    if (OnKey && OnKey(KeyCode, Shift)) KeyCode = 0;
  }

  Texts& heard_;
};

class UiContract : public ContractTest {
 protected:
  ~UiContract() override {
    EXPECT_EQ(screen_.Complaints(), "");
    platform_.windows.DoEvents();
  }

  Rect Place(const TestForm& form, const Control& control) { return screen_.PlaceOf(form.Window(), control.Window()); }
  void Click(const TestForm& form, const Control& control) { screen_.Click(form.Window(), control.Window()); }
  void Press(const TestForm& form, std::int32_t key, std::int32_t shift = 0) {
    screen_.Press(form.Window(), key, shift);
  }
  // Takes what was heard so far.
  Texts Heard() { return std::exchange(heard_, {}); }

  ScreenUnderTest& screen_ = system_->screen();
  WindowSystem& windows_ = platform_.windows;
  Texts heard_;
  TestForm form_{windows_, L"First", heard_};
  TestForm other_{windows_, L"Second", heard_};
  TestForm third_{windows_, L"Third", heard_};
};
INSTANTIATE_TEST_SUITE_P(Systems, UiContract, ::testing::ValuesIn(Systems()), KindName);

// --- state and windows

TEST_P(UiContract, StateSetWithoutAWindowShowsWhenThereIsOne) {
  form_.lblText.SetCaption(L"Before");
  form_.cmdTwo.SetEnabled(false);
  form_.cmdThree.SetVisible(false);
  form_.SetTopMost(true);
  EXPECT_EQ(form_.Window(), 0);
  EXPECT_EQ(form_.lblText.Window(), 0);
  form_.Load();
  ASSERT_TRUE(screen_.Exists(form_.Window()));
  EXPECT_FALSE(screen_.IsShown(form_.Window()));
  EXPECT_EQ(screen_.TextOf(form_.Window()), L"First");
  EXPECT_EQ(screen_.TextOf(form_.lblText.Window()), L"Before");
  EXPECT_EQ(screen_.TextOf(form_.cmdOne.Window()), L"&One");
  EXPECT_FALSE(screen_.IsEnabled(form_.cmdTwo.Window()));
  EXPECT_FALSE(screen_.IsShown(form_.cmdThree.Window()));
  EXPECT_TRUE(screen_.IsTopMost(form_.Window()));
}

TEST_P(UiContract, AChangeReachesTheWindow) {
  form_.Show();
  form_.SetCaption(L"Now");
  form_.lblText.SetCaption(L"Other");
  form_.cmdOne.SetCaption(L"Press");
  form_.cmdOne.SetEnabled(false);
  form_.cmdTwo.SetVisible(false);
  form_.cmdThree.SetPlace({1500, 1800, 1500, 450});
  form_.SetTopMost(true);
  EXPECT_EQ(screen_.TextOf(form_.Window()), L"Now");
  EXPECT_EQ(screen_.TextOf(form_.lblText.Window()), L"Other");
  EXPECT_EQ(screen_.TextOf(form_.cmdOne.Window()), L"Press");
  EXPECT_FALSE(screen_.IsEnabled(form_.cmdOne.Window()));
  EXPECT_FALSE(screen_.IsShown(form_.cmdTwo.Window()));
  EXPECT_EQ(Place(form_, form_.cmdThree), (Rect{100, 120, 200, 150}));
  EXPECT_TRUE(screen_.IsTopMost(form_.Window()));
  form_.SetTopMost(false);
  EXPECT_FALSE(screen_.IsTopMost(form_.Window()));
  form_.Hide();
  EXPECT_FALSE(screen_.IsShown(form_.Window()));
  EXPECT_TRUE(form_.Loaded());
}

TEST_P(UiContract, AWindowMadeAnewShowsTheSame) {
  form_.Show();
  form_.lblText.SetCaption(L"Later");
  form_.cmdTwo.SetFocus();
  other_.Show(Modeless, form_);
  form_.BringToFront();
  const WindowHandle before = form_.Window();
  const int resizes = form_.Resizes;
  form_.Realise();
  windows_.DoEvents();
  EXPECT_NE(form_.Window(), before);
  EXPECT_FALSE(screen_.Exists(before));
  EXPECT_TRUE(screen_.IsShown(form_.Window()));
  EXPECT_EQ(screen_.TextOf(form_.lblText.Window()), L"Later");
  EXPECT_TRUE(form_.cmdTwo.HasFocus());
  EXPECT_TRUE(screen_.HasFocus(form_.cmdTwo.Window()));
  EXPECT_EQ(screen_.OwnerOf(other_.Window()), form_.Window()) << "it would have gone with the old window";
  EXPECT_EQ(form_.Resizes, resizes);
  EXPECT_EQ(Heard(), Texts());
  Click(form_, form_.cmdOne);
  EXPECT_EQ(Heard(), Texts({"First one"}));
}

TEST_P(UiContract, AFrameThatNeedsAnotherWindowGetsOneInTheMiddleOfAnEvent) {
  form_.cmdOne.Click = [this] {
    form_.SetBorder(FormBorder::kSizable);
    form_.cmdOne.SetCaption(L"Done");
  };
  form_.Show();
  Click(form_, form_.cmdOne);
  EXPECT_EQ(screen_.TextOf(form_.cmdOne.Window()), L"Done");
  EXPECT_TRUE(screen_.IsShown(form_.Window()));
}

TEST_P(UiContract, TwipsBecomePixelsOfTheScreensScale) {
  form_.Show();
  const struct {
    std::int32_t dpi;
    Rect place;
  } cases[] = {{96, {10, 40, 91, 65}}, {144, {15, 60, 137, 98}}, {192, {20, 80, 182, 130}}, {96, {10, 40, 91, 65}}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.dpi);
    screen_.ChangeScale(form_.Window(), row.dpi);
    EXPECT_EQ(Place(form_, form_.cmdOne), row.place);
    EXPECT_EQ(screen_.TextOf(form_.cmdOne.Window()), L"&One");
    EXPECT_EQ(form_.cmdOne.Place(), (Box{150, 600, 1215, 375}));
  }
  form_.cmdOne.SetPlace({0, 0, 1500, 750});
  EXPECT_EQ(Place(form_, form_.cmdOne), (Rect{0, 0, 100, 50}));
}

TEST_P(UiContract, TheClientAreaIsAsLargeAsItWasDesigned) {
  form_.Show();
  EXPECT_EQ(screen_.ClientOf(form_.Window()), (Size{400, 200}));
  EXPECT_EQ(form_.Client(), kClient);
  EXPECT_GT(form_.Place().width, kClient.width) << "the frame counts";
}

TEST_P(UiContract, APlaceStaysAsItWasSetThoughPixelsRoundIt) {
  form_.SetBorder(FormBorder::kSizable);
  form_.Load();
  const Box place{1507, 1601, 7003, 4511};
  form_.SetPlace(place);
  EXPECT_EQ(form_.Place(), place);
  form_.Show();
  EXPECT_EQ(form_.Place(), place);
  screen_.Resize(form_.Window(), 500, 400);
  EXPECT_EQ(form_.Place().width, 7500);
  EXPECT_EQ(form_.Place().height, 6000);
}

TEST_P(UiContract, ResizeComesOnceForEachRealChange) {
  form_.SetBorder(FormBorder::kSizable);
  form_.OnLoad = [this] { form_.SetPlace({1500, 1500, 7500, 4500}); };
  form_.Load();
  EXPECT_EQ(form_.Resizes, 1) << "once after the loading, whatever happened in it";
  form_.Show();
  const int shown = form_.Resizes;
  form_.SetPlace({1500, 1500, 9000, 4500});
  EXPECT_EQ(form_.Resizes, shown + 1);
  form_.SetPlace({3000, 1500, 9000, 4500});
  EXPECT_EQ(form_.Resizes, shown + 1) << "a move is no change of size";
  form_.SetPlace({3000, 1500, 9000, 4500});
  EXPECT_EQ(form_.Resizes, shown + 1);
  screen_.Resize(form_.Window(), 500, 400);
  EXPECT_EQ(form_.Resizes, shown + 2);
}

TEST_P(UiContract, AWindowKeepsItsPlaceUnderneathWhileItIsMaximised) {
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

TEST_P(UiContract, AFilmThatIsMissingIsNoError) {
  form_.aniFilm.Open(system_->Folder() + L"\\missing.avi");
  form_.aniFilm.Play();
  form_.Show();
  EXPECT_TRUE(screen_.IsShown(form_.aniFilm.Window()));
  form_.aniFilm.Open(system_->Folder() + L"\\missing too.avi");
  EXPECT_FALSE(form_.aniFilm.Playing()) << "another film starts still";
  form_.aniFilm.Play();
  form_.aniFilm.Stop();
  form_.aniFilm.Open({});
  Click(form_, form_.cmdOne);
  EXPECT_EQ(Heard(), Texts({"First one"}));
}

// --- buttons and keys

TEST_P(UiContract, APressOnAFormHasOneEndAlsoWhereTheMouseIsTakenAway) {
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
    EXPECT_EQ(Heard(), Texts({"First up 1 at 4500"})) << &end - ends;
    form_.SetEnabled(true);
    mouse(MouseAction::kUp, 6000);
    EXPECT_EQ(Heard(), Texts()) << &end - ends;
  }
}

TEST_P(UiContract, AButtonIsPressedByMouseKeysAndCode) {
  form_.Show();
  Click(form_, form_.cmdTwo);
  EXPECT_EQ(Heard(), Texts({"First two"}));
  EXPECT_TRUE(form_.cmdTwo.HasFocus());
  Press(form_, kKeyCodeSpace);
  EXPECT_EQ(Heard(), Texts({"First two"}));
  Press(form_, kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts({"First two"}));
  screen_.PressAlt(form_.Window(), L'o');
  EXPECT_EQ(Heard(), Texts({"First one"}));
  screen_.PressAlt(form_.Window(), L'M');
  EXPECT_EQ(Heard(), Texts({"First three"})) << "two marks are no mnemonic";
  form_.cmdOne.SetValue(true);
  EXPECT_EQ(Heard(), Texts({"First one"}));
  form_.cmdOne.SetValue(false);
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(UiContract, NobodyPressesAButtonThatIsDisabledOrHidden) {
  form_.cmdOne.SetDefault(true);
  form_.cmdOne.SetEnabled(false);
  form_.cmdTwo.SetCancel(true);
  form_.cmdTwo.SetVisible(false);
  form_.cmdThree.SetEnabled(false);
  form_.Show();
  Press(form_, kKeyCodeReturn);
  Press(form_, kKeyCodeEscape);
  screen_.PressAlt(form_.Window(), L'o');
  form_.cmdOne.UserClick();
  form_.cmdTwo.UserClick();
  EXPECT_EQ(Heard(), Texts());
  form_.cmdOne.SetValue(true);
  EXPECT_EQ(Heard(), Texts({"First one"})) << "code can";
}

TEST_P(UiContract, EnterPressesTheDefaultButtonAndEscTheCancelButton) {
  for (CommandButton* button : {&form_.cmdOne, &form_.cmdTwo, &form_.cmdThree}) button->SetTabStop(false);
  form_.Show();
  Press(form_, kKeyCodeReturn);
  Press(form_, kKeyCodeEscape);
  EXPECT_EQ(Heard(), Texts());
  form_.cmdTwo.SetDefault(true);
  form_.cmdThree.SetCancel(true);
  Press(form_, kKeyCodeReturn);
  Press(form_, kKeyCodeEscape);
  EXPECT_EQ(Heard(), Texts({"First two", "First three"}));
  form_.cmdOne.SetDefault(true);
  form_.cmdTwo.SetCancel(true);
  EXPECT_FALSE(form_.cmdTwo.Default());
  EXPECT_FALSE(form_.cmdThree.Cancel());
  Press(form_, kKeyCodeReturn);
  Press(form_, kKeyCodeEscape);
  EXPECT_EQ(Heard(), Texts({"First one", "First two"}));
}

TEST_P(UiContract, TheFocusTakesEnterFromTheDefaultButton) {
  form_.cmdOne.SetDefault(true);
  form_.Show();
  form_.cmdTwo.SetFocus();
  EXPECT_FALSE(screen_.IsDefault(form_.cmdOne.Window()));
  EXPECT_TRUE(screen_.IsDefault(form_.cmdTwo.Window()));
  Press(form_, kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts({"First two"}));
  form_.cmdOne.SetFocus();
  EXPECT_TRUE(screen_.IsDefault(form_.cmdOne.Window()));
  EXPECT_FALSE(screen_.IsDefault(form_.cmdTwo.Window()));
}

TEST_P(UiContract, TabGoesThroughTheControlsAsTheyWereMade) {
  form_.cmdTwo.SetTabStop(false);
  form_.Show();
  EXPECT_TRUE(form_.cmdOne.HasFocus());
  Press(form_, kKeyCodeTab);
  EXPECT_TRUE(form_.cmdThree.HasFocus());
  Press(form_, kKeyCodeTab);
  EXPECT_TRUE(form_.cmdOne.HasFocus());
  form_.cmdTwo.SetTabStop(true);
  form_.cmdThree.SetEnabled(false);
  Press(form_, kKeyCodeTab);
  EXPECT_TRUE(form_.cmdTwo.HasFocus());
  form_.cmdThree.SetEnabled(true);
  form_.cmdOne.SetFocus();
  Press(form_, kKeyCodeTab, kShiftMask);
  EXPECT_TRUE(form_.cmdThree.HasFocus());
  EXPECT_TRUE(screen_.HasFocus(form_.cmdThree.Window()));
}

TEST_P(UiContract, AMnemonicOfATextGoesToWhatTheTextStandsInFrontOf) {
  form_.Show();
  form_.cmdThree.SetFocus();
  screen_.PressAlt(form_.Window(), L't');
  EXPECT_TRUE(form_.cmdOne.HasFocus());
  EXPECT_EQ(Heard(), Texts()) << "it presses nothing";
  if (system_->IsWine()) return;  // it takes the mark of any text for a mnemonic
  form_.cmdThree.SetFocus();
  form_.lblText.SetUseMnemonic(false);
  screen_.PressAlt(form_.Window(), L't');
  EXPECT_TRUE(form_.cmdThree.HasFocus());
}

TEST_P(UiContract, FocusEventsComeOnceForEachMove) {
  form_.cmdOne.GotFocus = form_.Note("got one");
  form_.cmdOne.LostFocus = form_.Note("lost one");
  form_.cmdTwo.GotFocus = form_.Note("got two");
  form_.Show();
  EXPECT_EQ(Heard(), Texts({"First got one"}));
  form_.cmdTwo.SetFocus();
  EXPECT_EQ(Heard(), Texts({"First lost one", "First got two"}));
  form_.cmdTwo.SetFocus();
  EXPECT_EQ(Heard(), Texts());
}

TEST_P(UiContract, AFormSeesKeysFirstAndMayKeepThem) {
  std::vector<std::int32_t> keys;
  form_.OnKey = [&keys](std::int32_t key, std::int32_t shift) {
    keys.push_back(key + 1000 * shift);
    return key == kKeyCodeReturn;
  };
  form_.Show();
  Press(form_, kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts({"First one"}));
  EXPECT_TRUE(keys.empty()) << "only if it asked for that";
  form_.SetKeyPreview(true);
  Press(form_, kKeyCodeReturn);
  EXPECT_EQ(Heard(), Texts());
  Press(form_, kKeyCodeTab, kShiftMask);
  EXPECT_TRUE(form_.cmdThree.HasFocus());
  EXPECT_EQ(keys, (std::vector<std::int32_t>{kKeyCodeReturn, kKeyCodeTab + 1000 * kShiftMask}));
}

// --- unloading

TEST_P(UiContract, AFormCanRefuseToGo) {
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

TEST_P(UiContract, AFormUnloadsFromWithinItsOwnEvents) {
  const struct {
    std::string what;
    std::function<void()> prepare;
    std::function<void()> act;
  } cases[] = {
      {"click", [this] { form_.cmdOne.Click = [this] { form_.Unload(); }; }, [this] { Click(form_, form_.cmdOne); }},
      {"space", [] {}, [this] { Press(form_, kKeyCodeSpace); }},
      {"enter", [] {}, [this] { Press(form_, kKeyCodeReturn); }},
      {"mnemonic", [] {}, [this] { screen_.PressAlt(form_.Window(), L'o'); }},
      {"escape", [this] { form_.cmdOne.SetCancel(true); }, [this] { Press(form_, kKeyCodeEscape); }},
      {"focus", [this] { form_.cmdTwo.GotFocus = [this] { form_.Unload(); }; }, [this] { Press(form_, kKeyCodeTab); }},
      {"key",
       [this] {
         form_.SetKeyPreview(true);
         form_.OnKey = [this](std::int32_t, std::int32_t) { return form_.Unload(); };
       },
       [this] { Press(form_, kKeyCodeTab); }},
      {"resize", [this] { form_.OnResize = [this] { form_.Visible() && form_.Unload(); }; },
       [this] { screen_.Resize(form_.Window(), 333, 222); }},
      {"load", [this] { form_.OnLoad = [this] { form_.Unload(); }; }, [] {}},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.what);
    row.prepare();
    form_.Show();
    const WindowHandle window = form_.Window();
    row.act();
    windows_.DoEvents();
    EXPECT_FALSE(form_.Loaded());
    EXPECT_FALSE(form_.Visible());
    EXPECT_FALSE(window != 0 && screen_.Exists(window));
    EXPECT_EQ(Heard(), Texts({"First unload"}));
  }
}

TEST_P(UiContract, AWindowGoesFromTheScreenAtOnceAndForGoodFromTheLoop) {
  form_.cmdOne.Click = [this] { form_.Unload(); };
  form_.Show();
  const WindowHandle window = form_.Window();
  const WindowHandle button = form_.cmdOne.Window();
  form_.cmdOne.UserClick();
  EXPECT_FALSE(screen_.IsShown(window));
  EXPECT_TRUE(screen_.Exists(window) && screen_.Exists(button)) << "it may be in the middle of what called the door";
  windows_.DoEvents();
  EXPECT_FALSE(screen_.Exists(window) || screen_.Exists(button));
}

TEST_P(UiContract, AFormThatUnloadedItselfCanBeShownAgainInTheSameEvent) {
  form_.cmdOne.Click = [this] {
    form_.Unload();
    form_.lblText.SetCaption(L"Again");
    form_.Show();
  };
  form_.Show();
  const WindowHandle before = form_.Window();
  Click(form_, form_.cmdOne);
  windows_.DoEvents();
  EXPECT_NE(form_.Window(), before);
  EXPECT_FALSE(screen_.Exists(before));
  EXPECT_TRUE(screen_.IsShown(form_.Window()));
  EXPECT_EQ(screen_.TextOf(form_.lblText.Window()), L"Again");
}

TEST_P(UiContract, AnOwnerTakesItsFormsAlongTheLastOneFirst) {
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

TEST_P(UiContract, AFormWhoseWindowTheSystemTookIsUnloaded) {
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

// --- modal forms

TEST_P(UiContract, AModalFormKeepsItsOwnerFromTheUser) {
  form_.Show();
  screen_.NextWindow(L"Second", [this] {
    EXPECT_FALSE(screen_.IsEnabled(form_.Window()));
    form_.cmdOne.UserClick();
    form_.UserClose();
    EXPECT_TRUE(other_.IsModal());
    Click(other_, other_.cmdOne);
    screen_.Close(other_.Window());
  });
  other_.Show(Modal, form_);
  EXPECT_EQ(Heard(), Texts({"Second one", "Second unload"})) << "the owner's doors are shut";
  EXPECT_TRUE(screen_.IsEnabled(form_.Window()));
  EXPECT_TRUE(screen_.IsActive(form_.Window()));
  Click(form_, form_.cmdOne);
  EXPECT_EQ(Heard(), Texts({"First one"}));
}

TEST_P(UiContract, TheOwnerIsEnabledBeforeTheModalFormGoes) {
  form_.Show();
  bool enabled = false;
  other_.OnDeactivate = [this, &enabled] { enabled = screen_.IsEnabled(form_.Window()); };
  for (const bool hide : {true, false}) {
    SCOPED_TRACE(hide ? "hide" : "unload");
    other_.cmdOne.Click = [this, hide] {
      hide ? other_.Hide() : static_cast<void>(other_.Unload());
      EXPECT_TRUE(screen_.IsActive(form_.Window())) << "a disabled one would have been passed by";
    };
    screen_.NextWindow(L"Second", [this] { Click(other_, other_.cmdOne); });
    other_.Show(Modal, form_);
    EXPECT_EQ(other_.Loaded(), hide);
    EXPECT_FALSE(other_.IsModal());
  }
  EXPECT_TRUE(enabled);
}

TEST_P(UiContract, ModalFormsNestAndUnwindInnermostFirst) {
  form_.Show();
  other_.cmdOne.Click = [this] {
    third_.Show(Modal, other_);
    other_.Say("goes on");
  };
  third_.cmdOne.Click = [this] {
    // Everything goes from inside the innermost event.
    EXPECT_TRUE(form_.Unload());
    third_.Say("is through");
  };
  screen_.NextWindow(L"Second", [this] {
    screen_.NextWindow(L"Third", [this] {
      EXPECT_FALSE(screen_.IsEnabled(form_.Window()));
      EXPECT_FALSE(screen_.IsEnabled(other_.Window()));
      Click(third_, third_.cmdOne);
    });
    Click(other_, other_.cmdOne);
  });
  other_.Show(Modal, form_);
  EXPECT_EQ(Heard(), Texts({"Third unload", "Second unload", "First unload", "Third is through", "Second goes on"}));
  EXPECT_FALSE(form_.Loaded() || other_.Loaded() || third_.Loaded());
  form_.Show();
  EXPECT_TRUE(screen_.IsEnabled(form_.Window()));
}

TEST_P(UiContract, AnInnerModalFormGivesBackItsOwnerAlone) {
  form_.Show();
  other_.cmdOne.Click = [this] { third_.Show(Modal, other_); };
  screen_.NextWindow(L"Second", [this] {
    screen_.NextWindow(L"Third", [this] { screen_.Close(third_.Window()); });
    Click(other_, other_.cmdOne);
    EXPECT_TRUE(screen_.IsEnabled(other_.Window()));
    EXPECT_FALSE(screen_.IsEnabled(form_.Window()));
    screen_.Close(other_.Window());
  });
  other_.Show(Modal, form_);
  EXPECT_TRUE(screen_.IsEnabled(form_.Window()));
}

TEST_P(UiContract, AnOwnerThatIsNoFormIsKeptFromTheUserToo) {
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

TEST_P(UiContract, AFormThatUnloadsWhileLoadingIsNeverModal) {
  form_.Show();
  other_.OnLoad = [this] { other_.Unload(); };
  other_.Show(Modal, form_);
  EXPECT_FALSE(other_.Loaded());
  EXPECT_TRUE(screen_.IsEnabled(form_.Window()));
}

TEST_P(UiContract, AFormGoesWithAllThatShows) {
  form_.Show();
  WindowHandle window = 0;
  {
    TestForm brief(windows_, L"Brief", heard_);
    brief.cmdOne.LostFocus = brief.Note("lost");
    brief.cmdTwo.GotFocus = brief.Note("got");
    brief.Show(Modeless, form_);
    window = brief.Window();
  }
  EXPECT_FALSE(screen_.Exists(window));
  EXPECT_EQ(Heard(), Texts()) << "nobody is there any more to hear of it";
  EXPECT_TRUE(form_.Unload());
}

}  // namespace
}  // namespace burrowmark
