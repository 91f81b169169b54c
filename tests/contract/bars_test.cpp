// Menus of forms, toolbars, status bars and the dialog for files.
#include "tests/contract/ui_fixture.h"
#include "ui/common_dialog.h"

namespace burrowmark {
namespace {

class BarsContract : public FullFormTest {
 protected:
  Titles MenuTexts(const Titles& path) { return screen_.MenuTexts(form_.Window(), path); }
  bool Choose(const Titles& path) { return screen_.ChooseMenu(form_.Window(), path); }

  FormMenus& menus_ = form_.menus;
};

TEST_F(BarsContract, MenusShowWhatTheirEntriesAreWhenTheyOpen) {
  menus_[L"mnuEdit"].Click = [this] { menus_[L"mnuCut"].SetEnabled(false); };
  form_.Show();
  EXPECT_EQ(MenuTexts({}), (Titles{L"File", L"Edit"}));
  EXPECT_EQ(MenuTexts({L"File"}), (Titles{L"New\tCtrl+Shift+N", L"-", L"Quit"}));
  EXPECT_EQ(MenuTexts({L"Edit"}), (Titles{L"Cut\tCtrl+Q (disabled)", L"Delete\tDel", L"Arrange"}));
  EXPECT_EQ(MenuTexts({L"Edit", L"Arrange"}), (Titles{L"by Name & Size", L"by Date"}));
  EXPECT_EQ(Heard(), Texts({"mnuFile", "mnuArrange"}));
}

TEST_F(BarsContract, AnEntryIsChosenOnceThoseAboveItHaveOpened) {
  form_.Show();
  EXPECT_TRUE(Choose({L"Edit", L"Arrange", L"by Name & Size"}));
  EXPECT_EQ(Heard(), Texts({"mnuEdit", "mnuArrange", "mnuByName"}));
  menus_[L"mnuCut"].SetEnabled(false);
  menus_[L"mnuDelete"].SetVisible(false);
  EXPECT_FALSE(Choose({L"Edit", L"Cut"}));
  EXPECT_FALSE(Choose({L"Edit", L"Delete"}));
  menus_[L"mnuEdit"].SetEnabled(false);
  EXPECT_FALSE(Choose({L"Edit", L"Arrange", L"by Date"}));
  EXPECT_EQ(Heard(), Texts({"mnuEdit", "mnuEdit"}));
}

TEST_F(BarsContract, TheBarTakesItsHeightFromTheClientAreaWhileItShows) {
  form_.Show();
  const Size client = screen_.ClientOf(form_.Window());
  EXPECT_EQ(client, (Size{600, 600}));
  for (const bool shown : {false, true}) {
    menus_[L"mnuFile"].SetVisible(shown);
    menus_[L"mnuEdit"].SetVisible(shown);
    windows_.DoEvents();
    EXPECT_EQ(screen_.ClientOf(form_.Window()).height > client.height, !shown);
    EXPECT_EQ(form_.Client().height > 9000, !shown);
  }
}

TEST_F(BarsContract, ALetterOpensAMenuThatNoControlHas) {
  form_.Show();
  screen_.OpenMenuByLetter(form_.Window(), L'e');
  EXPECT_EQ(Heard(), Texts({"mnuEdit"}));
}

TEST_F(BarsContract, ShortcutsChooseWhatCanBeChosen) {
  form_.cmdOk.KeyDown = [this](std::int32_t& key, std::int32_t) { form_.Say("key " + std::to_string(key)); };
  form_.Show();
  form_.cmdOk.SetFocus();
  const auto press = [this](std::int32_t key, std::int32_t shift) {
    screen_.Press(form_.Window(), key, shift);
    return Heard();
  };
  EXPECT_EQ(press(L'Q', kCtrlMask), Texts({"mnuEdit", "mnuCut"}));
  EXPECT_EQ(press(L'N', kCtrlMask | kShiftMask), Texts({"mnuFile", "mnuNew"}));
  EXPECT_EQ(press(kKeyCodeDelete, 0), Texts({"mnuEdit", "mnuDelete"}));
  EXPECT_EQ(press(L'Q', 0), Texts({"key 81"}));
  EXPECT_EQ(press(L'N', kCtrlMask), Texts({"key 78"}));
  EXPECT_EQ(press(L'T', kCtrlMask), Texts({"key 84"})) << "its menu isn't on the bar";
  menus_[L"mnuEdit"].Click = [this] { menus_[L"mnuCut"].SetEnabled(false); };
  EXPECT_EQ(press(L'Q', kCtrlMask), Texts()) << "disabled, and nobody else's either";
  menus_[L"mnuCut"].SetVisible(false);
  EXPECT_EQ(press(L'Q', kCtrlMask), Texts({"key 81"}));
  form_.txtName.SetFocus();
  form_.txtName.SetSelection(0, 0);
  EXPECT_EQ(press(kKeyCodeDelete, 0), Texts({"txtName=bcdef"})) << "a text has a use for that key itself";
}

TEST_F(BarsContract, APopupTellsWhatWasChosenBeforeItReturns) {
  Titles seen;
  menus_[L"mnuCutHere"].SetEnabled(false);
  form_.Show();
  screen_.NextPopup(L"Look", seen);
  menus_.PopupMenu(L"mnuPopup", L"mnuLook");
  EXPECT_EQ(Heard(), Texts({"mnuPopup", "mnuLook"}));
  EXPECT_EQ(seen, (Titles{L"* Look", L"-", L"Cut\tCtrl+T (disabled)"}));
  menus_[L"mnuCutHere"].SetEnabled(true);
  screen_.NextPopup(L"Cut", seen);
  menus_.PopupMenu(L"mnuPopup");
  EXPECT_EQ(Heard(), Texts({"mnuPopup", "mnuCutHere"}));
  EXPECT_EQ(seen, (Titles{L"Look", L"-", L"Cut\tCtrl+T"}));
  screen_.NextPopup(L"", seen);
  menus_.PopupMenu(L"mnuEdit");
  EXPECT_EQ(Heard(), Texts({"mnuEdit"}));
  form_.Unload();
  Heard();
  menus_.PopupMenu(L"mnuPopup");
  EXPECT_EQ(Heard(), Texts()) << "nothing pops up from a form that isn't loaded";
}

TEST_F(BarsContract, AnEntryOfTheSystemMenuIsTold) {
  form_.Show();
  screen_.ChooseSystemMenu(form_.Window(), L"Always Here");
  EXPECT_EQ(Heard(), Texts({"system 555"}));
}

TEST_F(BarsContract, ToolbarButtonsAreClickedUnlessTheyAreDisabled) {
  form_.Show();
  const WindowHandle bar = form_.tlbMain.Window();
  for (const std::size_t button : {0U, 2U, 3U}) screen_.ClickButton(bar, button);
  EXPECT_EQ(Heard(), Texts({"button up", "button new"}));
  form_.tlbMain.SetButtonEnabled(L"cut", true);
  screen_.ClickButton(bar, 3);
  screen_.ChooseButtonMenu(bar, 2, L"Group");
  EXPECT_EQ(Heard(), Texts({"button cut", "entry group"}));
}

TEST_F(BarsContract, ToolbarsAreAsHighAsTheirTextsAndImagesNeed) {
  Toolbar& bar = form_.tlbMain;
  const auto height = [&] {
    bar.AlignTop(form_.Client());
    const Rect place = screen_.PlaceOf(bar.Window());
    EXPECT_EQ((Rect{place.left, place.top, place.right, 0}), (Rect{0, 0, screen_.ClientOf(form_.Window()).width, 0}));
    return place.bottom;
  };
  const auto setTexts = [&bar](bool on) {
    for (std::size_t i = 0; i < kButtons.size(); ++i) bar.SetButtonText(i, on ? kButtons[i].caption : L"", L"");
  };
  for (const std::int32_t dpi : {96, 192}) {
    SCOPED_TRACE(dpi);
    form_.Show();
    screen_.ChangeScale(form_.Window(), dpi);
    bar.SetImages({32, {2, 3}}, {32, {5, 6}});
    const std::int32_t large = height();
    bar.SetImages({16, {2, 3}}, {16, {5, 6}});
    const std::int32_t small = height();
    EXPECT_EQ(large - small, ToPixels(16 * 15, dpi));
    setTexts(false);
    const std::int32_t bare = height();
    EXPECT_GE(small - bare, ToPixels(11 * 15, dpi)) << "the row of texts";
    EXPECT_GE(bare, ToPixels(20 * 15, dpi));
    EXPECT_LE(bare, ToPixels(32 * 15, dpi));
    setTexts(true);
    EXPECT_EQ(height(), small);
  }
}

TEST_F(BarsContract, AStatusBarLiesAlongTheBottom) {
  form_.Show();
  for (const Size size : {Size{500, 300}, Size{300, 250}}) {
    screen_.Resize(form_.Window(), size.width, size.height);
    const Size client = screen_.ClientOf(form_.Window());
    const Rect place = screen_.PlaceOf(form_.stbMain.Window());
    EXPECT_EQ((Rect{place.left, 0, place.right, place.bottom}), (Rect{0, 0, client.width, client.height}));
    EXPECT_GE(place.bottom - place.top, 18);
    EXPECT_LE(place.bottom - place.top, 32);
  }
}

TEST_F(BarsContract, AFileDialogAnswersWithAPath) {
  form_.Show();
  CommonDialog dialog(platform_.dialogs, form_);
  dialog.Filter = L"Marks (*.bwmk)|*.bwmk|All Files (*.*)|*.*";
  dialog.DialogTitle = L"Save It";
  screen_.NextFile(L"Save It", In(L"Name"));
  ASSERT_TRUE(dialog.ShowSave());
  EXPECT_EQ(dialog.FileName, In(L"Name.bwmk"));
  EXPECT_EQ(dialog.FilterIndex, 1);
  ASSERT_TRUE(Make(In(L"Name.txt")));
  screen_.NextFile(L"Save It", In(L"Name.txt"));
  ASSERT_TRUE(dialog.ShowSave()) << "whether to replace it is the program's question";
  EXPECT_EQ(dialog.FileName, In(L"Name.txt"));
  dialog.DialogTitle = L"Open It";
  screen_.NextFile(L"Open It", L"");
  EXPECT_FALSE(dialog.ShowOpen());
  EXPECT_EQ(dialog.FileName, In(L"Name.txt"));
  dialog.FileName = L"no:name<";
  screen_.NextFile(L"Open It", In(L"Name.txt"));
  ASSERT_TRUE(dialog.ShowOpen());
  EXPECT_EQ(dialog.FileName, In(L"Name.txt"));
}

}  // namespace
}  // namespace burrowmark
