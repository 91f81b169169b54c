// Popups on the local machine: what the person at it does, and what the program is asked to measure and draw.
#include <algorithm>
#include <functional>
#include <vector>

#include "tests/platform/local_test.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kPlain = kMenuByPosition;
constexpr std::int32_t kGroup = kMenuByPosition | kMenuPopup;
constexpr std::int32_t kDrawn = kMenuByPosition | kMenuOwnerDrawn;
constexpr std::int32_t kLine = kMenuByPosition | kMenuSeparator;

// The root holds Alpha (1), a separator, the group Box with Apple (11) and a separator and Bread (12), Beta (2), and
// Zulu (70000, of which 16 bits are 4464). All are owner-drawn, 100 wide and 19 high; separators are 30 and 10.
class PopupTest : public LocalTest {
 protected:
  PopupTest() {
    root_ = menus_.GetSubMenu(menus_.GetMenu(window_), 0);
    menus_.DeleteMenu(root_, 0, kMenuByPosition);
    box_ = menus_.CreatePopupMenu();
    Add(root_, kPlain, 1, L"Alpha");
    Add(root_, kLine, 9, L"");
    Add(root_, kGroup, box_, L"&Box");
    Add(box_, kPlain, 11, L"Apple");
    Add(box_, kLine, 9, L"");
    Add(box_, kPlain, 12, L"Bread");
    Add(root_, kPlain, 2, L"Beta");
    Add(root_, kPlain, 70000, L"Zulu");
    machine_.windows.SetWindowHook(window_, [this](WindowMessage& message) { return Hook(message); });
  }

  void Add(MenuHandle menu, std::int32_t flags, std::int32_t id, const std::wstring& text) {
    const std::int32_t position = menus_.GetMenuItemCount(menu);
    EXPECT_TRUE(menus_.InsertMenuA(menu, position, flags, id, text));
    const std::int32_t line = flags & kMenuSeparator;
    EXPECT_TRUE(menus_.ModifyMenuA(menu, position, kDrawn | line, id, text));
  }

  MessageResult Hook(WindowMessage& message) {
    if (message.measure != nullptr) {
      const bool line = message.measure->itemID == 9;
      message.measure->itemWidth = line ? 30 : 100;
      message.measure->itemHeight = line ? 10 : 19;
    }
    if (message.number == kMessageMenuRightButtonUp) rightClicks_.push_back({message.lParam, message.wParam});
    if (message.number == kMessageCommand) commands_.push_back({message.wParam, menus_.IsShowing() ? 1 : 0});
    if (message.number == kMessageMenuChar) return charAnswer_;
    if (message.draw != nullptr && onDraw_) onDraw_(*message.draw);
    return {};
  }

  // What the commands say after a popup that meets these actions.
  std::vector<std::int64_t> Chosen(const MenuActions& actions) {
    commands_.clear();
    machine_.user.NextMenu(actions);
    menus_.TrackPopupMenu(root_, window_);
    EXPECT_TRUE(commands_.empty()) << "a command waits until the program comes back to its loop";
    machine_.windows.DoEvents();
    std::vector<std::int64_t> numbers;
    for (const Pair& command : commands_) {
      EXPECT_EQ(command.second, 0) << "the menu is gone before the command comes";
      numbers.push_back(command.first);
    }
    return numbers;
  }

  using Pair = std::pair<std::int64_t, std::int64_t>;
  using Numbers = std::vector<std::int64_t>;

  MainWindowEvents events_;
  LocalMenus& menus_ = machine_.menus;
  WindowHandle window_ = machine_.windows.CreateMainWindow(L"Test", events_);
  MenuHandle root_ = 0;
  MenuHandle box_ = 0;
  std::vector<Pair> rightClicks_;
  std::vector<Pair> commands_;
  MessageResult charAnswer_;
  std::function<void(const DrawRecord&)> onDraw_;
};

TEST_F(PopupTest, AClickedEntryArrivesAsTheLow16BitsOfItsNumber) {
  EXPECT_EQ(Chosen({L"Alpha"}), Numbers({1}));
  EXPECT_EQ(Chosen({L"Box", L"Bread"}), Numbers({12}));
  EXPECT_EQ(Chosen({L"&Box", L"Zulu"}), Numbers({70000 & 0xFFFF})) << "out of an open group and back into the root";
  EXPECT_EQ(Chosen(MenuActions().Cancel()), Numbers());
  EXPECT_EQ(Chosen(MenuActions().Click(L"").Cancel()), Numbers()) << "a separator can't be chosen";
}

TEST_F(PopupTest, KeysMoveOverSeparatorsAndAroundTheEnds) {
  using enum MenuKey;
  const struct {
    std::vector<MenuKey> keys;
    Numbers chosen;
  } cases[] = {
      {{kDown, kEnter}, {1}},
      {{kUp, kEnter}, {70000 & 0xFFFF}},
      {{kDown, kDown, kDown, kEnter}, {2}},
      {{kDown, kUp, kEnter}, {70000 & 0xFFFF}},
      {{kUp, kDown, kEnter}, {1}},
      {{kDown, kDown, kRight, kEnter}, {11}},
      {{kDown, kDown, kEnter, kDown, kEnter}, {12}},
      {{kDown, kDown, kEnter, kUp, kEnter}, {12}},
      {{kDown, kDown, kRight, kLeft, kDown, kEnter}, {2}},
      {{kDown, kDown, kRight, kEscape, kUp, kEnter}, {1}},
      {{kDown, kRight, kLeft, kEnter}, {1}},
      {{kEscape}, {}},
      {{kDown, kDown, kRight, kEscape, kEscape}, {}},
      {{kEnter}, {}},
  };
  for (const auto& row : cases) {
    MenuActions actions;
    for (const MenuKey key : row.keys) actions.Press(key);
    EXPECT_EQ(Chosen(actions), row.chosen) << "case " << &row - cases;
  }
}

TEST_F(PopupTest, ALetterMovesToTheNextEntryThatStartsWithIt) {
  EXPECT_EQ(Chosen(MenuActions().Type(L"z").Press(MenuKey::kEnter)), Numbers({70000 & 0xFFFF}));
  EXPECT_EQ(Chosen(MenuActions().Type(L"bb").Press(MenuKey::kEnter)), Numbers({2}));
  EXPECT_EQ(Chosen(MenuActions().Type(L"Bb").Type(L"b").Press(MenuKey::kEnter).Type(L"b").Press(MenuKey::kEnter)),
            Numbers({12}))
      << "around the end to the group, and on in its popup";
  EXPECT_EQ(machine_.windows.Beeps(), 0U);
  EXPECT_EQ(Chosen(MenuActions().Type(L"aq").Press(MenuKey::kEnter)), Numbers({1}));
  EXPECT_EQ(machine_.windows.Beeps(), 1U);
}

TEST_F(PopupTest, TheProgramMayAnswerALetterItself) {
  constexpr std::int64_t kPositionOfBeta = 3;
  charAnswer_ = {true, 0x20000 + kPositionOfBeta};
  EXPECT_EQ(Chosen(MenuActions().Type(L"x")), Numbers({2}));
  charAnswer_ = {true, 0x30000 + kPositionOfBeta};
  EXPECT_EQ(Chosen(MenuActions().Type(L"x").Press(MenuKey::kDown).Press(MenuKey::kEnter)), Numbers({70000 & 0xFFFF}));
  charAnswer_ = {true, 0x10000};
  EXPECT_EQ(Chosen(MenuActions().Type(L"x")), Numbers());
  charAnswer_ = {true, 0};
  EXPECT_EQ(Chosen(MenuActions().Type(L"a").Cancel()), Numbers());
  EXPECT_EQ(machine_.windows.Beeps(), 1U) << "an ignored letter beeps, and is no longer looked for";
}

TEST_F(PopupTest, ARightClickTellsMenuAndPositionAndLeavesTheMenuOpen) {
  EXPECT_EQ(Chosen(MenuActions().RightClick(L"Beta").Click(L"Box").RightClick(L"Bread").Cancel()), Numbers());
  EXPECT_EQ(rightClicks_, std::vector<Pair>({{root_, 3}, {box_, 2}}));
}

TEST_F(PopupTest, TheProgramCanEndItsMenu) {
  const auto cancelMode = [this] { machine_.windows.SendMessageA(window_, kMessageCancelMode, 0, 0); };
  EXPECT_EQ(Chosen(MenuActions().Click(L"Box").Do(cancelMode)), Numbers());
  EXPECT_EQ(Chosen({L"Alpha"}), Numbers({1})) << "an earlier end doesn't touch the next menu";
  const auto leave = [this] { machine_.windows.DestroyMainWindow(window_); };
  EXPECT_EQ(Chosen(MenuActions().Click(L"Box").Do(leave)), Numbers());
  EXPECT_EQ(menus_.LiveMenus(), 0U) << "the window's menus go with it";
}

TEST_F(PopupTest, MessagesRunWhileAMenuIsOpenButNoSecondMenuOpens) {
  bool ran = false;
  const auto post = [this, &ran] {
    machine_.windows.Post([this, &ran] {
      ran = menus_.IsShowing();
      menus_.TrackPopupMenu(root_, window_);
    });
  };
  EXPECT_EQ(Chosen(MenuActions().Do(post).Click(L"Alpha")), Numbers({1}));
  EXPECT_TRUE(ran);
}

TEST_F(PopupTest, AnEntryIsMeasuredOnceForEachChangeAndScale) {
  const auto measured = [this] {
    EXPECT_EQ(Chosen(MenuActions().Cancel()), Numbers());
    std::vector<std::int32_t> items;
    for (const EntryMeasuring& row : menus_.History().measurings) items.push_back(row.record.itemID);
    return items;
  };
  EXPECT_EQ(measured(), std::vector<std::int32_t>({1, 9, box_, 2, 70000}));
  EXPECT_EQ(measured(), std::vector<std::int32_t>());
  ASSERT_TRUE(menus_.ModifyMenuA(root_, 3, kDrawn, 3, L"Gamma"));
  ASSERT_TRUE(menus_.InsertMenuA(root_, 0, kDrawn, 4, L"New"));
  EXPECT_EQ(measured(), std::vector<std::int32_t>({4, 3}));
  machine_.windows.Dpi = 144;
  EXPECT_EQ(measured().size(), 6U);
}

TEST_F(PopupTest, EntriesAreDrawnBelowEachOtherAndAgainWhenTheSelectionMoves) {
  Chosen(MenuActions().Press(MenuKey::kDown).Press(MenuKey::kDown).Cancel());
  const PopupHistory& history = menus_.History();
  ASSERT_EQ(history.popups.size(), 1U);
  const PopupView& view = history.popups[0];
  ASSERT_EQ(view.rects.size(), 5U);
  for (std::size_t i = 0; i < view.rects.size(); ++i) {
    EXPECT_EQ(view.rects[i].bottom - view.rects[i].top, i == 1 ? 10 : 19);
    EXPECT_EQ(view.rects[i].left, view.rects[0].left);
    EXPECT_GE(view.rects[i].right - view.rects[i].left, 100) << "as wide as the widest";
    if (i == 0) continue;
    EXPECT_EQ(view.rects[i].top, view.rects[i - 1].bottom);
  }
  std::vector<Pair> drawn;  // position and state
  for (const EntryDrawing& row : history.drawings) {
    EXPECT_EQ(row.record.controlType, kControlMenu);
    EXPECT_EQ(row.record.rect, view.rects[static_cast<std::size_t>(row.position)]);
    drawn.push_back({row.position, row.record.itemState});
  }
  EXPECT_EQ(drawn, std::vector<Pair>({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {0, 257}, {0, 0}, {2, 257}}));
}

TEST_F(PopupTest, OldSystemsHaveAnotherStateForSelected) {
  machine_.facts.Version = {4, 0, 1381, kPlatformNT};
  Chosen({L"Alpha"});
  EXPECT_EQ(menus_.History().drawings.back().record.itemState, 1U);
}

TEST_F(PopupTest, AGroupsPopupIsMeasuredAndDrawnWhenItOpens) {
  Chosen({L"Box", L"Apple"});
  const PopupHistory& history = menus_.History();
  ASSERT_EQ(history.popups.size(), 2U);
  EXPECT_EQ(history.popups[1].menu, box_);
  EXPECT_EQ(history.popups[1].selected, 0);
  EXPECT_EQ(std::count_if(history.measurings.begin(), history.measurings.end(),
                          [this](const EntryMeasuring& row) { return row.menu == box_; }),
            3);
}

TEST_F(PopupTest, EachDrawingStartsAfreshAndLeavesItsPixels) {
  LocalDrawing& drawing = machine_.drawing;
  const BrushHandle brush = drawing.CreateSolidBrush(0x123456);
  onDraw_ = [&](const DrawRecord& record) {
    if (record.itemID != 1) return;
    drawing.SetBkMode(record.context, kBackgroundTransparent);
    drawing.FillRect(record.context, record.rect, brush);
  };
  Chosen({L"Alpha"});
  const PopupHistory& history = menus_.History();
  const EntryDrawing& last = history.drawings.back();
  ASSERT_EQ(last.calls.size(), 2U);
  EXPECT_EQ(last.calls[0], (DrawCall{.name = "SetBkMode", .mode = kBackgroundTransparent}));
  EXPECT_EQ(last.calls[1], (DrawCall{.name = "FillRect", .rect = last.record.rect, .color = 0x123456U}));
  const Canvas& pixels = drawing.Pixels(last.record.context);
  EXPECT_EQ(pixels.At(last.record.rect.left, last.record.rect.top), 0x123456U);
  EXPECT_EQ(pixels.At(last.record.rect.right, last.record.rect.top), drawing.Colors[kColorMenu]);
  EXPECT_EQ(pixels.At(last.record.rect.left, last.record.rect.bottom), drawing.Colors[kColorMenu]);
  EXPECT_TRUE(drawing.DeleteObject(brush));
}

TEST_F(PopupTest, WhatIsNotAsExpectedThrowsAndIsKept) {
  LocalUser& user = machine_.user;
  EXPECT_THROW(menus_.TrackPopupMenu(root_, window_), std::logic_error);
  EXPECT_NE(user.TakeComplaints().find("nobody expected"), std::string::npos);
  const MenuActions wrong[] = {{L"Nowhere"},
                               {L"Box"},
                               MenuActions(),
                               MenuActions({L"Alpha"}).Press(MenuKey::kDown),
                               MenuActions().RightClick(L"Apple").Cancel()};
  for (const MenuActions& actions : wrong) {
    user.NextMenu(actions);
    EXPECT_THROW(menus_.TrackPopupMenu(root_, window_), std::logic_error) << "case " << &actions - wrong;
    EXPECT_NE(user.TakeComplaints(), "");
    EXPECT_FALSE(menus_.IsShowing());
  }
  user.NextMenu({L"Alpha"});
  EXPECT_NE(user.Complaints().find("never came"), std::string::npos);
  menus_.TrackPopupMenu(box_ + 1, window_);
  menus_.TrackPopupMenu(root_, window_ + 1);
  EXPECT_NE(user.TakeComplaints(), "") << "a menu that can't be shown meets nobody";
  EXPECT_EQ(user.Complaints(), "");
}

TEST_F(PopupTest, MenusThatNoEntryHoldsAreCountedUntilTheyAreDestroyed) {
  EXPECT_EQ(menus_.LiveMenus(), 3U);  // bar, root, box
  const MenuHandle outer = menus_.CreatePopupMenu();
  const MenuHandle inner = menus_.CreatePopupMenu();
  EXPECT_GT(outer, 0x10000);
  ASSERT_TRUE(menus_.InsertMenuA(outer, -1, kGroup, inner, L"Inner"));
  EXPECT_FALSE(menus_.InsertMenuA(inner, -1, kGroup, outer, L"Ring"));
  EXPECT_FALSE(menus_.InsertMenuA(root_, -1, kGroup, inner, L"Twice"));
  EXPECT_FALSE(menus_.InsertMenuA(root_, -1, kGroup, menus_.GetMenu(window_), L"Bar"));
  EXPECT_FALSE(menus_.DestroyMenu(inner)) << "it belongs to its entry";
  EXPECT_EQ(menus_.LiveMenus(), 5U);
  EXPECT_TRUE(menus_.DestroyMenu(outer));
  EXPECT_EQ(menus_.LiveMenus(), 3U);
  EXPECT_TRUE(menus_.DeleteMenu(root_, 2, kMenuByPosition));
  EXPECT_EQ(menus_.LiveMenus(), 2U);
  EXPECT_EQ(menus_.GetMenuItemCount(box_), -1);
}

TEST_F(PopupTest, ATestReadsTheEntriesOfAMenu) {
  const std::vector<LocalMenuEntry>& entries = menus_.Entries(root_);
  ASSERT_EQ(entries.size(), 5U);
  EXPECT_EQ(entries[0].text, L"Alpha");
  EXPECT_EQ(entries[0].id, 1);
  EXPECT_TRUE(entries[0].IsOwnerDrawn());
  EXPECT_TRUE(entries[1].IsSeparator());
  EXPECT_EQ(entries[2].popup, box_);
  EXPECT_TRUE(menus_.Entries(root_ + 1000).empty());
}

TEST_F(PopupTest, MenuCallsCanBeMadeToFailWithoutCountingAmongThoseOfFiles) {
  const std::size_t fileCalls = machine_.faults.Calls();
  machine_.uiFaults.FailFrom(1);
  EXPECT_EQ(menus_.CreatePopupMenu(), 0);
  EXPECT_FALSE(menus_.InsertMenuA(root_, -1, kPlain, 5, L"New"));
  EXPECT_FALSE(menus_.ModifyMenuA(root_, 0, kPlain, 5, L"New"));
  EXPECT_FALSE(menus_.DeleteMenu(root_, 0, kMenuByPosition));
  EXPECT_EQ(machine_.uiFaults.Record(),
            std::vector<std::string>({"CreatePopupMenu ", "InsertMenuA New", "ModifyMenuA New", "DeleteMenu "}));
  machine_.uiFaults.Clear();
  EXPECT_EQ(machine_.faults.Calls(), fileCalls);
  EXPECT_EQ(menus_.Entries(root_).size(), 5U);
  EXPECT_EQ(menus_.Entries(root_)[0].text, L"Alpha");
}

}  // namespace
}  // namespace burrowmark
