// Menus of forms, toolbars, status bars and the dialog for files.
#include <vector>

#include "platform/characters.h"
#include "platform/key_codes.h"
#include "tests/contract/system_under_test.h"
#include "ui/command_button.h"
#include "ui/common_dialog.h"
#include "ui/form.h"
#include "ui/menu.h"
#include "ui/status_bar.h"
#include "ui/toolbar.h"

namespace burrowmark {
namespace {

using Texts = std::vector<std::string>;
using Titles = ScreenUnderTest::Titles;

constexpr Size kClient{6000, 3000};
constexpr std::int32_t kKeyDelete = 46;
constexpr std::int32_t kSystemEntry = 555;

constexpr MenuRow kMenus[] = {
    {0, L"mnuFile", L"&File"},
    {1, L"mnuNew", L"&New", {L'N', kCtrlMask | kShiftMask}},
    {1, L"mnuLine", kMenuLine},
    {1, L"mnuQuit", L"&Quit"},
    {0, L"mnuEdit", L"&Edit"},
    {1, L"mnuCut", L"Cu&t", {L'X', kCtrlMask}},
    {1, L"mnuDelete", L"&Delete", {kKeyDelete}},
    {1, L"mnuArrange", L"&Arrange"},
    {2, L"mnuByName", L"by &Name && Size"},
    {2, L"mnuByDate", L"by &Date"},
    {0, L"mnuPopup", L""},
    {1, L"mnuLook", L"&Look"},
    {1, L"mnuPopupLine", kMenuLine},
    {1, L"mnuCutHere", L"Cu&t", {L'T', kCtrlMask}},
};

const std::vector<ToolbarButtonState> kButtons = {
    {L"up", ToolbarButtonStyle::kButton, L"Up", L"One up", 1, true, {}},
    {L"line", ToolbarButtonStyle::kSeparator, L"", L"", 0, true, {}},
    {L"new", ToolbarButtonStyle::kDropDown, L"New", L"A new one", 2, true, {{L"file", L"File"}, {L"group", L"Group"}}},
    {L"cut", ToolbarButtonStyle::kButton, L"Cut", L"Cut it", 1, false, {}},
};

// A control that has a use for one key itself.
class KeyUser final : public ControlOf<ButtonState, ButtonPeer> {
 public:
  explicit KeyUser(ControlParent& parent) : ControlOf(parent, L"Key", Box{1500, 1200, 1215, 375}) {}

  const std::wstring& Caption() const override { return Name(); }
  bool ShowsDefault() const override { return false; }
  bool UsesKey(std::int32_t key, std::int32_t shift) const override { return key == L'X' && shift == kCtrlMask; }
  void UserClick() override {}
};

class BarForm final : public Form {
 public:
  BarForm(WindowSystem& windows, Texts& heard) : Form(windows, L"frmBars", kClient), heard_(heard) {
    SetCaption(L"Bars");
    SetBorder(FormBorder::kSizable);
    menus[L"mnuPopup"].SetVisible(false);
    for (const MenuRow& row : kMenus) menus[row.name].Click = [this, &row] { Say(row.name); };
    tlbMain.ButtonClick = [this](const std::wstring& key) { Say(L"button " + key); };
    tlbMain.ButtonMenuClick = [this](const std::wstring& key) { Say(L"entry " + key); };
    tlbMain.SetImages({16, {2, 3}}, {16, {5, 6}});
    AddSystemMenuEntry({kSystemEntry, L"Always Here"});
  }

  FormMenus menus{*this, kMenus};
  Toolbar tlbMain{*this, L"tlbMain", kButtons};
  CommandButton cmdOne{*this, L"cmdOne", Box{150, 1200, 1215, 375}, L"&One"};
  KeyUser ctlKey{*this};
  StatusBar stbMain{*this, L"stbMain", {{L"First", 0, 1500}, {L"Spring", 2, 0}, {L"Last", 0, 1500}}};

  void Say(const std::wstring& what) { heard_.push_back(ToUtf8(what)); }

 private:
  void Form_Resize() override {
    tlbMain.AlignTop(Client());
    stbMain.AlignBottom(Client());
  }
  void Form_SystemCommand(std::int32_t id) override { Say(L"system " + std::to_wstring(id)); }

  Texts& heard_;
};

class BarsContract : public ContractTest {
 protected:
  ~BarsContract() override {
    EXPECT_EQ(screen_.Complaints(), "");
    platform_.windows.DoEvents();
  }

  Titles MenuTexts(const Titles& path) { return screen_.MenuTexts(form_.Window(), path); }
  bool Choose(const Titles& path) { return screen_.ChooseMenu(form_.Window(), path); }
  // Takes what was heard so far.
  Texts Heard() { return std::exchange(heard_, {}); }

  ScreenUnderTest& screen_ = system_->screen();
  Texts heard_;
  BarForm form_{platform_.windows, heard_};
  FormMenus& menus_ = form_.menus;
};
INSTANTIATE_TEST_SUITE_P(Systems, BarsContract, ::testing::ValuesIn(Systems()), KindName);

// --- menus

TEST_P(BarsContract, MenusShowWhatTheirEntriesAreWhenTheyOpen) {
  menus_[L"mnuEdit"].Click = [this] {
    menus_[L"mnuCut"].SetEnabled(false);
    menus_[L"mnuDelete"].SetVisible(false);
    menus_[L"mnuArrange"].SetCaption(L"&Sort");
  };
  menus_[L"mnuNew"].SetChecked(true);
  menus_[L"mnuByDate"].SetRadio(true);
  menus_[L"mnuByDate"].SetChecked(true);
  form_.Show();
  EXPECT_EQ(MenuTexts({}), (Titles{L"File", L"Edit"}));
  EXPECT_EQ(MenuTexts({L"File"}), (Titles{L"[x] New\tCtrl+Shift+N", L"-", L"Quit"}));
  EXPECT_EQ(MenuTexts({L"Edit"}), (Titles{L"Cut\tCtrl+X (disabled)", L"Sort"}));
  EXPECT_EQ(MenuTexts({L"Edit", L"Sort"}), (Titles{L"by Name & Size", L"(o) by Date"}));
  EXPECT_EQ(Heard(), Texts({"mnuFile", "mnuArrange"}));
  menus_[L"mnuDelete"].SetVisible(true);
  menus_[L"mnuEdit"].Click = nullptr;
  EXPECT_EQ(MenuTexts({L"Edit"}), (Titles{L"Cut\tCtrl+X (disabled)", L"Delete\tDel", L"Sort"}));
}

TEST_P(BarsContract, AnEntryIsChosenOnceThoseAboveItHaveOpened) {
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

TEST_P(BarsContract, TheBarFollowsItsEntriesAndTakesHeightFromTheClientArea) {
  form_.Show();
  const Size client = screen_.ClientOf(form_.Window());
  EXPECT_EQ(client, (Size{400, 200}));
  EXPECT_EQ(form_.Client(), kClient);
  menus_[L"mnuFile"].SetVisible(false);
  menus_[L"mnuEdit"].SetCaption(L"&Change");
  EXPECT_EQ(MenuTexts({}), (Titles{L"Change"}));
  menus_[L"mnuEdit"].SetEnabled(false);
  EXPECT_EQ(MenuTexts({}), (Titles{L"Change (disabled)"}));
  EXPECT_EQ(screen_.ClientOf(form_.Window()), client);
  menus_[L"mnuEdit"].SetVisible(false);
  platform_.windows.DoEvents();
  EXPECT_GT(screen_.ClientOf(form_.Window()).height, client.height);
  EXPECT_GT(form_.Client().height, kClient.height);
  menus_[L"mnuFile"].SetVisible(true);
  platform_.windows.DoEvents();
  EXPECT_EQ(screen_.ClientOf(form_.Window()), client);
}

TEST_P(BarsContract, AMenuThatUnloadsItsFormIsTheLastThingItDoes) {
  menus_[L"mnuQuit"].Click = [this] { form_.Unload(); };
  form_.Show();
  EXPECT_TRUE(Choose({L"File", L"Quit"}));
  EXPECT_FALSE(form_.Loaded());
  form_.Show();
  EXPECT_EQ(MenuTexts({L"File"}).size(), 3U);
  menus_[L"mnuEdit"].Click = [this] { form_.Unload(); };
  MenuTexts({L"Edit"});
  EXPECT_FALSE(form_.Loaded());
}

TEST_P(BarsContract, ALetterOpensAMenuThatNoControlHas) {
  form_.Show();
  screen_.OpenMenuByLetter(form_.Window(), L'e');
  EXPECT_EQ(Heard(), Texts({"mnuEdit"}));
}

TEST_P(BarsContract, ShortcutsChooseWhatCanBeChosen) {
  form_.cmdOne.KeyDown = [this](std::int32_t& key, std::int32_t) { form_.Say(L"key " + std::to_wstring(key)); };
  form_.Show();
  const auto press = [this](std::int32_t key, std::int32_t shift) {
    screen_.Press(form_.Window(), key, shift);
    return Heard();
  };
  EXPECT_EQ(press(L'X', kCtrlMask), Texts({"mnuEdit", "mnuCut"}));
  EXPECT_EQ(press(L'N', kCtrlMask | kShiftMask), Texts({"mnuFile", "mnuNew"}));
  EXPECT_EQ(press(kKeyDelete, 0), Texts({"mnuEdit", "mnuDelete"}));
  EXPECT_EQ(press(L'X', 0), Texts({"key 88"}));
  EXPECT_EQ(press(L'N', kCtrlMask), Texts({"key 78"}));
  EXPECT_EQ(press(L'T', kCtrlMask), Texts({"key 84"})) << "its menu isn't on the bar";
  menus_[L"mnuEdit"].Click = [this] { menus_[L"mnuCut"].SetEnabled(false); };
  EXPECT_EQ(press(L'X', kCtrlMask), Texts()) << "disabled, and nobody else's either";
  menus_[L"mnuCut"].SetVisible(false);
  EXPECT_EQ(press(L'X', kCtrlMask), Texts({"key 88"}));
}

TEST_P(BarsContract, AKeyThatTheControlWithTheFocusNeedsIsNoShortcut) {
  form_.ctlKey.KeyDown = [this](std::int32_t& key, std::int32_t) { form_.Say(L"key " + std::to_wstring(key)); };
  form_.Show();
  form_.ctlKey.SetFocus();
  screen_.Press(form_.Window(), L'X', kCtrlMask);
  EXPECT_EQ(Heard(), Texts({"key 88"}));
  screen_.Press(form_.Window(), kKeyDelete, 0);
  EXPECT_EQ(Heard(), Texts({"mnuEdit", "mnuDelete"}));
}

TEST_P(BarsContract, APopupTellsWhatWasChosenBeforeItReturns) {
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
  menus_[L"mnuLook"].Click = [this] { form_.Unload(); };
  screen_.NextPopup(L"Look", seen);
  menus_.PopupMenu(L"mnuPopup");
  EXPECT_FALSE(form_.Loaded());
  menus_.PopupMenu(L"mnuPopup");
  EXPECT_EQ(Heard(), Texts({"mnuPopup"})) << "nothing pops up from a form that isn't loaded";
}

TEST_P(BarsContract, EntriesOfTheSystemMenuOutliveTheWindow) {
  const auto texts = [this] { return screen_.SystemMenuTexts(form_.Window()); };
  form_.Show();
  EXPECT_EQ(texts(), (Titles{L"Always Here"}));
  screen_.ChooseSystemMenu(form_.Window(), L"Always Here");
  EXPECT_EQ(Heard(), Texts({"system 555"}));
  form_.SetSystemMenuChecked(kSystemEntry, true);
  form_.SetSystemMenuChecked(1, true);
  EXPECT_EQ(texts(), (Titles{L"[x] Always Here"}));
  form_.Realise();
  EXPECT_EQ(texts(), (Titles{L"[x] Always Here"}));
  EXPECT_TRUE(Choose({L"Edit", L"Delete"})) << "the bar is there again too";
  EXPECT_EQ(Heard(), Texts({"mnuEdit", "mnuDelete"}));
  form_.AddSystemMenuEntry({560, L"Another"});
  EXPECT_EQ(texts(), (Titles{L"[x] Always Here", L"Another"}));
  form_.SetSystemMenuChecked(kSystemEntry, false);
  EXPECT_EQ(texts(), (Titles{L"Always Here", L"Another"}));
}

// --- bars

TEST_P(BarsContract, ToolbarButtonsShowAndClick) {
  Toolbar& bar = form_.tlbMain;
  form_.Show();
  EXPECT_EQ(screen_.ButtonTexts(bar.Window()), (Titles{L"Up", L"", L"New", L"Cut (disabled)"}));
  const auto click = [&](std::size_t button) {
    screen_.ClickButton(form_.Window(), bar.Window(), button);
    return Heard();
  };
  EXPECT_EQ(click(0), Texts({"button up"}));
  EXPECT_EQ(click(2), Texts({"button new"}));
  EXPECT_EQ(click(3), Texts());
  bar.SetButtonEnabled(L"cut", true);
  bar.SetButtonEnabled(L"up", false);
  bar.SetButtonEnabled(L"missing", true);
  EXPECT_EQ(click(3), Texts({"button cut"}));
  EXPECT_EQ(click(0), Texts());
  EXPECT_FALSE(bar.ButtonEnabled(L"up") || bar.ButtonEnabled(L"missing"));
  screen_.ChooseButtonMenu(form_.Window(), bar.Window(), 2, L"Group");
  EXPECT_EQ(Heard(), Texts({"entry group"}));
  bar.SetButtonText(0, L"Upwards", L"Tip");
  EXPECT_EQ(screen_.ButtonTexts(bar.Window()), (Titles{L"Upwards (disabled)", L"", L"New", L"Cut"}));
  bar.ButtonClick = [this](const std::wstring&) { form_.Unload(); };
  EXPECT_EQ(click(3), Texts());
  EXPECT_FALSE(form_.Loaded());
}

TEST_P(BarsContract, ToolbarsAreAsHighAsTheirTextsAndImagesNeed) {
  Toolbar& bar = form_.tlbMain;
  const auto height = [&] {
    bar.AlignTop(form_.Client());
    const Rect place = screen_.PlaceOf(form_.Window(), bar.Window());
    EXPECT_EQ((Rect{place.left, place.top, place.right, 0}), (Rect{0, 0, screen_.ClientOf(form_.Window()).width, 0}));
    return place.bottom;
  };
  const auto setTexts = [&bar](bool on) {
    for (std::size_t i = 0; i < kButtons.size(); ++i) bar.SetButtonText(i, on ? kButtons[i].caption : L"", L"");
  };
  for (const std::int32_t dpi : {96, 144, 192, 96}) {
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

TEST_P(BarsContract, StatusBarsShowTheirPanelsAlongTheBottom) {
  StatusBar& bar = form_.stbMain;
  bar.SetPanelText(1, L"Before");
  form_.Show();
  const auto texts = [&] { return screen_.PanelTexts(form_.Window(), bar.Window()); };
  EXPECT_EQ(texts(), (Titles{L"Before", L"Spring", L"Last"}));
  bar.SetPanelText(2, L"Middle");
  bar.SetPanelIcon(3, 1);
  bar.SetPanelText(0, L"None");
  bar.SetPanelText(4, L"None");
  EXPECT_EQ(texts(), (Titles{L"Before", L"Middle", L"Last"}));
  EXPECT_EQ(bar.PanelText(2) + bar.PanelText(4), L"Middle");
  for (const Size size : {Size{500, 300}, Size{300, 250}}) {
    screen_.Resize(form_.Window(), size.width, size.height);
    const Size client = screen_.ClientOf(form_.Window());
    const Rect place = screen_.PlaceOf(form_.Window(), bar.Window());
    EXPECT_EQ((Rect{place.left, 0, place.right, place.bottom}), (Rect{0, 0, client.width, client.height}));
    EXPECT_GE(place.bottom - place.top, 18);
    EXPECT_LE(place.bottom - place.top, 32);
  }
}

// --- files

TEST_P(BarsContract, AFileDialogAnswersWithAPath) {
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
