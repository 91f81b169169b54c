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

  using Ids = std::vector<std::int32_t>;

  Ids Numbers(MenuHandle menu) {
    Ids numbers;
    for (std::int32_t i = 0; i < menus_.GetMenuItemCount(menu); ++i) numbers.push_back(menus_.GetMenuItemID(menu, i));
    return numbers;
  }
  void Fill(MenuHandle menu, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) EXPECT_TRUE(menus_.InsertMenuA(menu, i, kLeaf, 100 + i, L"Entry"));
  }
  // A popup with two entries at a position of the root.
  MenuHandle AddGroup(std::int32_t position) {
    const MenuHandle popup = menus_.CreatePopupMenu();
    EXPECT_TRUE(menus_.InsertMenuA(root_, position, kGroup, popup, L"Group"));
    Fill(popup, 2);
    return popup;
  }
  bool Exists(MenuHandle menu) { return menus_.GetMenuItemCount(menu) >= 0; }

  Menus& menus_ = platform_.menus;
  MenuHandle root_ = menus_.CreatePopupMenu();
};

TEST_F(MenusContract, AnEntryGoesInAheadOfItsPositionOrAtTheEnd) {
  for (const auto& [position, id] : {std::pair{0, 1}, {0, 50}, {1, 0x7FFF}, {-1, 0x8000}, {99, 0xEFFF}}) {
    EXPECT_TRUE(menus_.InsertMenuA(root_, position, kLeaf, id, L"Entry"));
  }
  EXPECT_EQ(Numbers(root_), Ids({50, 0x7FFF, 1, 0x8000, 0xEFFF}));
}

TEST_F(MenusContract, DeletingMovesTheOthersUpAndWhatCannotBeChangesNothing) {
  Fill(root_, 4);
  EXPECT_TRUE(menus_.DeleteMenu(root_, 1, kMenuByPosition));
  EXPECT_TRUE(menus_.DeleteMenu(root_, 2, kMenuByPosition));
  for (const std::int32_t position : {-1, 2, 0x400}) {
    EXPECT_FALSE(menus_.ModifyMenuA(root_, position, kLeaf, 7, L"Entry")) << position;
    EXPECT_FALSE(menus_.DeleteMenu(root_, position, kMenuByPosition)) << position;
    EXPECT_EQ(menus_.GetMenuItemID(root_, position), -1);
    EXPECT_EQ(menus_.GetSubMenu(root_, position), 0);
  }
  EXPECT_FALSE(menus_.InsertMenuA(root_, 0, kGroup, 0, L"A group without a popup"));
  EXPECT_FALSE(menus_.ModifyMenuA(root_, 0, kGroup, 0, L"A group without a popup"));
  EXPECT_EQ(Numbers(root_), Ids({100, 102}));
}

TEST_F(MenusContract, OwnerDrawnEntriesKeepNumberAndPopup) {
  Fill(root_, 2);
  ASSERT_TRUE(menus_.InsertMenuA(root_, 2, kLine, 102, L""));
  const MenuHandle popup = AddGroup(1);
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kDrawn, 100, L"Entry"));
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 1, kDrawn, popup, L"Group"));
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 3, kDrawn | kMenuSeparator, 102, L"Title"));
  EXPECT_EQ(Numbers(root_), Ids({100, -1, 101, 102})) << "a group has a popup and no number";
  EXPECT_EQ(menus_.GetSubMenu(root_, 0), 0);
  EXPECT_EQ(menus_.GetSubMenu(root_, 1), popup);
  EXPECT_EQ(Numbers(popup), Ids({100, 101}));
}

// One that stayed behind would be one of the few thousand that a process may hold.
TEST_F(MenusContract, APopupGoesWithItsEntryAndAllBelowIt) {
  const MenuHandle leaf = AddGroup(0);
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kLeaf, 7, L"Leaf"));
  EXPECT_FALSE(Exists(leaf));
  EXPECT_EQ(Numbers(root_), Ids({7}));
  const MenuHandle first = menus_.CreatePopupMenu();
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kGroup, first, L"Group"));
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kGroup, first, L"The same popup"));
  EXPECT_TRUE(Exists(first));
  const MenuHandle second = menus_.CreatePopupMenu();
  EXPECT_TRUE(menus_.ModifyMenuA(root_, 0, kGroup, second, L"Group"));
  EXPECT_EQ(menus_.GetSubMenu(root_, 0), second);
  EXPECT_FALSE(Exists(first));
  const MenuHandle deeper = menus_.CreatePopupMenu();
  ASSERT_TRUE(menus_.InsertMenuA(second, 0, kGroup, deeper, L"Deeper"));
  EXPECT_TRUE(menus_.DeleteMenu(root_, 0, kMenuByPosition));
  EXPECT_FALSE(Exists(second) || Exists(deeper));
  const MenuHandle last = AddGroup(0);
  EXPECT_TRUE(menus_.DestroyMenu(root_));
  EXPECT_FALSE(Exists(root_) || Exists(last));
}

TEST_F(MenusContract, TheMainWindowHasABarWithOnePopupOfOneEntry) {
  MainWindowEvents events;
  const WindowHandle window = platform_.windows.CreateMainWindow(L"Contract", events);
  const MenuHandle bar = menus_.GetMenu(window);
  EXPECT_EQ(menus_.GetMenuItemCount(bar), 1);
  const MenuHandle popup = menus_.GetSubMenu(bar, 0);
  EXPECT_EQ(menus_.GetMenuItemCount(popup), 1);
  EXPECT_TRUE(menus_.ModifyMenuA(popup, 0, kDrawn, 60, L"First"));
  EXPECT_EQ(Numbers(popup), Ids({60}));
  platform_.windows.DestroyMainWindow(window);
  EXPECT_FALSE(Exists(popup) || Exists(bar));
}

}  // namespace
}  // namespace burrowmark
