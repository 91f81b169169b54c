// Popup menus: entries, positions, numbers, popups below popups.
#include <algorithm>
#include <string>
#include <vector>

#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kLeaf = kMenuByPosition;
constexpr std::int32_t kGroup = kMenuByPosition | kMenuPopup;
constexpr std::int32_t kDrawn = kMenuByPosition | kMenuOwnerDrawn;
constexpr std::int32_t kLine = kMenuByPosition | kMenuSeparator;

class MenusContract : public ContractTest {
 protected:
  ~MenusContract() override { menus_.DestroyMenu(root_); }

  std::vector<std::int32_t> Numbers(MenuHandle menu) {
    std::vector<std::int32_t> numbers;
    const std::int32_t count = menus_.GetMenuItemCount(menu);
    numbers.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (std::int32_t i = 0; i < count; ++i) numbers.push_back(menus_.GetMenuItemID(menu, i));
    return numbers;
  }
  void Fill(MenuHandle menu, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) {
      ASSERT_TRUE(menus_.InsertMenuA(menu, i, kLeaf, 100 + i, L"Entry " + std::to_wstring(i)));
    }
  }
  // A popup with two entries at a position of the root.
  MenuHandle AddGroup(std::int32_t position) {
    const MenuHandle popup = menus_.CreatePopupMenu();
    EXPECT_TRUE(menus_.InsertMenuA(root_, position, kGroup, popup, L"Group"));
    Fill(popup, 2);
    return popup;
  }
  bool Exists(MenuHandle menu) { return menus_.GetMenuItemCount(menu) >= 0; }

  using Ids = std::vector<std::int32_t>;

  Menus& menus_ = platform_.menus;
  MenuHandle root_ = menus_.CreatePopupMenu();
};
INSTANTIATE_TEST_SUITE_P(Systems, MenusContract, ::testing::ValuesIn(Systems()), KindName);

TEST_P(MenusContract, EachNewPopupIsEmptyAndAnotherOne) {
  ASSERT_NE(root_, 0);
  EXPECT_EQ(menus_.GetMenuItemCount(root_), 0);
  const MenuHandle other = menus_.CreatePopupMenu();
  EXPECT_NE(other, 0);
  EXPECT_NE(other, root_);
  EXPECT_TRUE(menus_.DestroyMenu(other));
  EXPECT_FALSE(Exists(other));
  EXPECT_TRUE(Exists(root_));
}

TEST_P(MenusContract, AMenuThatIsNotThereTakesNothing) {
  const MenuHandle gone = menus_.CreatePopupMenu();
  ASSERT_TRUE(menus_.DestroyMenu(gone));
  for (const MenuHandle menu : {MenuHandle{0}, MenuHandle{-1}, gone}) {
    SCOPED_TRACE(menu);
    EXPECT_FALSE(menus_.InsertMenuA(menu, 0, kLeaf, 100, L"Entry"));
    EXPECT_FALSE(menus_.ModifyMenuA(menu, 0, kLeaf, 100, L"Entry"));
    EXPECT_FALSE(menus_.DeleteMenu(menu, 0, kMenuByPosition));
    EXPECT_FALSE(menus_.DestroyMenu(menu));
    EXPECT_EQ(menus_.GetMenuItemCount(menu), -1);
    EXPECT_EQ(menus_.GetMenuItemID(menu, 0), -1);
    EXPECT_EQ(menus_.GetSubMenu(menu, 0), 0);
  }
}

TEST_P(MenusContract, APositionThatIsNotThereChangesNothing) {
  Fill(root_, 2);
  for (const std::int32_t position : {-2, -1, 2, 3, 0x400, 0x7FFFFFFF}) {
    SCOPED_TRACE(position);
    EXPECT_FALSE(menus_.ModifyMenuA(root_, position, kLeaf, 7, L"Entry"));
    EXPECT_FALSE(menus_.DeleteMenu(root_, position, kMenuByPosition));
    EXPECT_EQ(menus_.GetMenuItemID(root_, position), -1);
    EXPECT_EQ(menus_.GetSubMenu(root_, position), 0);
  }
  EXPECT_EQ(Numbers(root_), Ids({100, 101}));
}

TEST_P(MenusContract, AnEntryGoesInAheadOfItsPositionOrAtTheEnd) {
  const struct {
    std::int32_t position;
    Ids after;
  } steps[] = {{0, {1}},          {0, {2, 1}},           {1, {2, 3, 1}},
               {3, {2, 3, 1, 4}}, {-1, {2, 3, 1, 4, 5}}, {99, {2, 3, 1, 4, 5, 6}}};
  std::int32_t id = 0;
  for (const auto& step : steps) {
    EXPECT_TRUE(menus_.InsertMenuA(root_, step.position, kLeaf, ++id, L"Entry"));
    EXPECT_EQ(Numbers(root_), step.after);
  }
}

TEST_P(MenusContract, NumbersUpToSixteenBitsAreKept) {
  for (const std::int32_t id : {1, 50, 0x7FFF, 0x8000, 0xEFFF}) {
    EXPECT_TRUE(menus_.InsertMenuA(root_, -1, kLeaf, id, L"Entry"));
  }
  EXPECT_EQ(Numbers(root_), Ids({1, 50, 0x7FFF, 0x8000, 0xEFFF}));
}

TEST_P(MenusContract, DeletingMovesTheOthersUp) {
  Fill(root_, 4);
  EXPECT_TRUE(menus_.DeleteMenu(root_, 1, kMenuByPosition));
  EXPECT_EQ(Numbers(root_), Ids({100, 102, 103}));
  EXPECT_TRUE(menus_.DeleteMenu(root_, 2, kMenuByPosition));
  EXPECT_TRUE(menus_.DeleteMenu(root_, 0, kMenuByPosition));
  EXPECT_EQ(Numbers(root_), Ids({102}));
}

TEST_P(MenusContract, AGroupHasAPopupAndNoNumber) {
  Fill(root_, 2);
  const MenuHandle popup = AddGroup(1);
  EXPECT_EQ(menus_.GetSubMenu(root_, 1), popup);
  EXPECT_EQ(menus_.GetSubMenu(root_, 0), 0);
  EXPECT_EQ(Numbers(root_), Ids({100, -1, 101}));
  EXPECT_EQ(Numbers(popup), Ids({100, 101}));
}

TEST_P(MenusContract, APopupThatIsNotThereMakesNoGroup) {
  Fill(root_, 1);
  EXPECT_FALSE(menus_.InsertMenuA(root_, 0, kGroup, 0, L"Group"));
  EXPECT_FALSE(menus_.ModifyMenuA(root_, 0, kGroup, 0, L"Group"));
  EXPECT_EQ(Numbers(root_), Ids({100}));
}

TEST_P(MenusContract, AnOwnerDrawnGroupKeepsItsPopupWithAllInIt) {
  const MenuHandle popup = AddGroup(0);
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kDrawn, popup, L"Group"));
  EXPECT_EQ(menus_.GetSubMenu(root_, 0), popup);
  EXPECT_EQ(menus_.GetMenuItemID(root_, 0), -1);
  EXPECT_EQ(Numbers(popup), Ids({100, 101}));
}

TEST_P(MenusContract, AnOwnerDrawnLeafOrSeparatorKeepsItsPlaceAndNumber) {
  Fill(root_, 1);
  ASSERT_TRUE(menus_.InsertMenuA(root_, 1, kLine, 101, L""));
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kDrawn, 100, L"Entry"));
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 1, kDrawn | kMenuSeparator, 101, L"Title"));
  EXPECT_EQ(Numbers(root_), Ids({100, 101}));
  EXPECT_EQ(menus_.GetSubMenu(root_, 0), 0);
}

TEST_P(MenusContract, AnEntryThatBecomesALeafLosesItsPopup) {
  const MenuHandle popup = AddGroup(0);
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kLeaf, 7, L"Leaf"));
  EXPECT_EQ(Numbers(root_), Ids({7}));
  EXPECT_EQ(menus_.GetSubMenu(root_, 0), 0);
  EXPECT_FALSE(Exists(popup));
}

TEST_P(MenusContract, AnEntryTakesAnotherPopupAndTheOldOneGoes) {
  Fill(root_, 1);
  const MenuHandle first = menus_.CreatePopupMenu();
  const MenuHandle second = menus_.CreatePopupMenu();
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kGroup, first, L"Group"));
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kGroup, first, L"The same popup"));
  EXPECT_TRUE(Exists(first));
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kGroup, second, L"Group"));
  EXPECT_EQ(menus_.GetSubMenu(root_, 0), second);
  EXPECT_FALSE(Exists(first));
}

TEST_P(MenusContract, APopupGoesWithItsEntryAndAllBelowIt) {
  const MenuHandle popup = AddGroup(0);
  const MenuHandle deeper = menus_.CreatePopupMenu();
  ASSERT_TRUE(menus_.InsertMenuA(popup, 0, kGroup, deeper, L"Deeper"));
  EXPECT_TRUE(menus_.DeleteMenu(root_, 0, kMenuByPosition));
  EXPECT_FALSE(Exists(popup));
  EXPECT_FALSE(Exists(deeper));
  EXPECT_EQ(menus_.GetMenuItemCount(root_), 0);

  const MenuHandle again = AddGroup(0);
  EXPECT_TRUE(menus_.DestroyMenu(root_));
  EXPECT_FALSE(Exists(again));
}

TEST_P(MenusContract, LongMenusKeepTheirOrder) {
  for (const std::int32_t count : {300, 3000}) {
    const MenuHandle popup = menus_.CreatePopupMenu();
    Fill(popup, count);
    for (std::int32_t i = 0; i < count; ++i) {
      ASSERT_TRUE(menus_.ModifyMenuA(popup, i, kDrawn, 100 + i, L"Entry " + std::to_wstring(i)));
    }
    ASSERT_TRUE(menus_.InsertMenuA(popup, count / 2, kLeaf, 7, L"Between"));
    EXPECT_EQ(menus_.GetMenuItemCount(popup), count + 1);
    EXPECT_EQ(menus_.GetMenuItemID(popup, count / 2 - 1), 100 + count / 2 - 1);
    EXPECT_EQ(menus_.GetMenuItemID(popup, count / 2), 7);
    EXPECT_EQ(menus_.GetMenuItemID(popup, count), 100 + count - 1);
    EXPECT_TRUE(menus_.DestroyMenu(popup));
  }
}

// More rounds than a process may hold menus: one that stays behind in each would use them up.
TEST_P(MenusContract, NoPopupIsLeftBehind) {
  constexpr std::int32_t kRounds = 40'000;
  Fill(root_, 1);
  for (std::int32_t i = 0; i < kRounds; ++i) {
    const MenuHandle popup = menus_.CreatePopupMenu();
    ASSERT_TRUE(popup != 0 && menus_.ModifyMenuA(root_, 0, kGroup, popup, L"Group")) << "round " << i;
    if (i % 2 != 0) continue;
    ASSERT_TRUE(menus_.ModifyMenuA(root_, 0, kLeaf, 7, L"Leaf"));
  }
}

TEST_P(MenusContract, TheMainWindowHasABarWithOnePopupOfOneEntry) {
  MainWindowEvents events;
  const WindowHandle window = platform_.windows.CreateMainWindow(L"Contract", events);
  ASSERT_NE(window, 0);
  const MenuHandle bar = menus_.GetMenu(window);
  EXPECT_EQ(menus_.GetMenuItemCount(bar), 1);
  const MenuHandle popup = menus_.GetSubMenu(bar, 0);
  EXPECT_EQ(menus_.GetMenuItemCount(popup), 1);
  EXPECT_EQ(menus_.GetSubMenu(popup, 0), 0);
  EXPECT_EQ(menus_.GetSubMenu(bar, 1), 0);
  EXPECT_TRUE(menus_.ModifyMenuA(popup, 0, kDrawn, 60, L"First"));
  EXPECT_EQ(Numbers(popup), Ids({60}));

  platform_.windows.DestroyMainWindow(window);
  EXPECT_FALSE(Exists(popup));
  EXPECT_FALSE(Exists(bar));
  EXPECT_EQ(menus_.GetMenu(window), 0);
  EXPECT_EQ(menus_.GetMenu(0), 0);
}

}  // namespace
}  // namespace burrowmark
