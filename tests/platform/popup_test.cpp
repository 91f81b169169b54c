// Popups on the local machine: what the person at it does, and what the program is asked to measure and draw.
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
  using Pair = std::pair<std::int64_t, std::int64_t>;
  using Numbers = std::vector<std::int64_t>;

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
      ++measured_;
      const bool line = message.measure->itemID == 9;
      message.measure->itemWidth = line ? 30 : 100;
      message.measure->itemHeight = line ? 10 : 19;
    }
    if (message.number == kMessageMenuRightButtonUp) rightClicks_.push_back({message.lParam, message.wParam});
    if (message.draw != nullptr) drawn_.push_back({message.draw->itemID, message.draw->itemState});
    return {};
  }

  // What was chosen in a popup that meets these actions.
  std::int32_t Chosen(const MenuActions& actions) {
    machine_.user.NextMenu(actions);
    return menus_.TrackPopupMenu(root_, window_, 0);
  }

  MainWindowEvents events_;
  LocalMenus& menus_ = machine_.menus;
  WindowHandle window_ = machine_.windows.CreateMainWindow(L"Test", events_);
  MenuHandle root_ = 0;
  MenuHandle box_ = 0;
  std::vector<Pair> rightClicks_;
  int measured_ = 0;
  std::vector<Pair> drawn_;  // numbers and states
};

TEST_F(PopupTest, AClickedEntryArrivesAsTheLow16BitsOfItsNumber) {
  EXPECT_EQ(Chosen({L"Alpha"}), 1);
  EXPECT_EQ(Chosen({L"&Box", L"Bread"}), 12);
  EXPECT_EQ(Chosen({L"Box", L"Zulu"}), 70000 & 0xFFFF) << "out of an open group and back into the root";
  EXPECT_EQ(Chosen(MenuActions().Click(L"").Cancel()), 0) << "a separator can't be chosen";
}

TEST_F(PopupTest, KeysMoveOverSeparatorsAndAroundTheEnds) {
  using enum MenuKey;
  const std::pair<std::vector<MenuKey>, std::int32_t> rows[] = {
      {{kUp, kEnter}, 70000 & 0xFFFF},
      {{kUp, kDown, kEnter}, 1},
      {{kDown, kDown, kEnter, kUp, kEnter}, 12},
      {{kDown, kDown, kRight, kLeft, kDown, kEnter}, 2},
      {{kDown, kDown, kRight, kEscape, kUp, kEnter}, 1},
      {{kDown, kRight, kLeft, kEnter}, 1},
      {{kDown, kDown, kRight, kEscape, kEscape}, 0},
  };
  for (const auto& [keys, chosen] : rows) {
    MenuActions actions;
    for (const MenuKey key : keys) actions.Press(key);
    EXPECT_EQ(Chosen(actions), chosen) << "case " << &keys - &rows[0].first;
  }
}

TEST_F(PopupTest, ALetterMovesToTheNextEntryThatStartsWithIt) {
  EXPECT_EQ(Chosen(MenuActions().Type(L"bb").Press(MenuKey::kEnter)), 2);
  EXPECT_EQ(Chosen(MenuActions().Type(L"Bbb").Press(MenuKey::kEnter).Type(L"b").Press(MenuKey::kEnter)), 12)
      << "around the end to the group, and on in its popup";
  EXPECT_EQ(machine_.windows.Beeps(), 0U);
  EXPECT_EQ(Chosen(MenuActions().Type(L"aq").Press(MenuKey::kEnter)), 1);
  EXPECT_EQ(machine_.windows.Beeps(), 1U);
}

TEST_F(PopupTest, ARightClickTellsMenuAndPositionAndLeavesTheMenuOpen) {
  EXPECT_EQ(Chosen(MenuActions().RightClick(L"Beta").Click(L"Box").RightClick(L"Bread").Cancel()), 0);
  EXPECT_EQ(rightClicks_, std::vector<Pair>({{root_, 3}, {box_, 2}}));
}

TEST_F(PopupTest, MessagesRunWhileAMenuIsOpenAndOneOfThemCanEndIt) {
  bool ran = false;
  const auto post = [this, &ran] {
    machine_.windows.Post([this, &ran] {
      ran = menus_.IsShowing();
      menus_.TrackPopupMenu(root_, window_, 0);  // no second menu opens
    });
  };
  EXPECT_EQ(Chosen(MenuActions().Do(post).Click(L"Alpha")), 1);
  EXPECT_TRUE(ran);
  const auto cancelMode = [this] { machine_.windows.SendMessageA(window_, kMessageCancelMode, 0, 0); };
  EXPECT_EQ(Chosen(MenuActions().Click(L"Box").Do(cancelMode)), 0);
  EXPECT_EQ(Chosen({L"Alpha"}), 1) << "an earlier end doesn't touch the next menu";
  const auto leave = [this] { machine_.windows.DestroyMainWindow(window_); };
  EXPECT_EQ(Chosen(MenuActions().Click(L"Box").Do(leave)), 0);
  EXPECT_EQ(menus_.LiveMenus(), 0U) << "the window's menus go with it";
}

TEST_F(PopupTest, AnEntryIsMeasuredOnceForEachChangeAndScale) {
  const auto measured = [this] {
    measured_ = 0;
    Chosen(MenuActions().Cancel());
    return measured_;
  };
  EXPECT_EQ(measured(), 5);
  EXPECT_EQ(menus_.Entries(root_)[1].height, 10);
  EXPECT_EQ(measured(), 0);
  ASSERT_TRUE(menus_.ModifyMenuA(root_, 3, kDrawn, 3, L"Gamma"));
  EXPECT_EQ(measured(), 1);
  machine_.windows.Dpi = 144;
  EXPECT_EQ(measured(), 5);
}

TEST_F(PopupTest, EntriesAreDrawnWhenTheyShowAndWhenTheSelectionMoves) {
  Chosen(MenuActions().Press(MenuKey::kDown).Press(MenuKey::kDown).Cancel());
  EXPECT_EQ(drawn_, std::vector<Pair>({{1, 0}, {9, 0}, {box_, 0}, {2, 0}, {70000, 0}, {1, 257}, {1, 0}, {box_, 257}}));
}

TEST_F(PopupTest, WhatIsNotAsExpectedThrowsAndIsKept) {
  EXPECT_THROW(menus_.TrackPopupMenu(root_, window_, 0), std::logic_error);
  EXPECT_NE(machine_.user.TakeComplaints().find("nobody expected"), std::string::npos);
  const MenuActions wrong[] = {{L"Nowhere"}, {L"Box"}, MenuActions({L"Alpha"}).Press(MenuKey::kDown)};
  for (const MenuActions& actions : wrong) {
    machine_.user.NextMenu(actions);
    EXPECT_THROW(menus_.TrackPopupMenu(root_, window_, 0), std::logic_error) << "case " << &actions - wrong;
    EXPECT_NE(machine_.user.TakeComplaints(), "");
  }
  machine_.user.NextMenu({L"Alpha"});
  EXPECT_NE(machine_.user.TakeComplaints().find("never came"), std::string::npos);
}

}  // namespace
}  // namespace burrowmark
