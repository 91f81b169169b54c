#include "core/menu_collection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

#include "core/text.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

using test::NamesOf;
using test::TitlesUnder;

// The store and its items.
class MenuCollection : public testing::Test {
 protected:
  ItemRef Leaf(const std::wstring& name, const std::wstring& caption, const std::wstring& owner) {
    return test::MakeItem(clock_, name, caption, owner);
  }
  ItemRef Group(const std::wstring& name, const std::wstring& caption, const std::wstring& owner) {
    return test::MakeItem(clock_, name, caption, owner, true);
  }
  // The personal group with group A, in it group B, in that the leaf "leaf".
  void FillThreeLevels() {
    store_.AddOne(Group(MIT_GROUP_USER, L"Personal", kRootOwner), true, true);
    store_.AddOne(Group(L"A", L"Alpha", MIT_GROUP_USER), true, true);
    store_.AddOne(Group(L"B", L"Beta", L"A"), true, true);
    store_.AddOne(Leaf(L"leaf", L"Leaf", L"B"), true, true);
  }

  MenuCollection() { clock_.Fixed = test::ScratchMachine::kNow; }

  LocalClock clock_;
  clsMenuCollection store_{clock_};
};

TEST_F(MenuCollection, CommandNumbersStartAtFiftyAndPassOverTakenOnes) {
  EXPECT_EQ(store_.GetNextFreeID(), 50);
  for (const std::int32_t taken : {53, 52, 51}) {
    const ItemRef item = Leaf(L"T" + std::to_wstring(taken), L"", L"x");
    item->SetID(taken);
    store_.AddOne(item, true, false);
  }
  EXPECT_EQ(store_.GetNextFreeID(), 54);  // 51, then 52 and 53 on later scans
  EXPECT_EQ(store_.GetNextFreeID(), 55);
}

TEST_F(MenuCollection, GeneratedNamesAreNeverGivenTwice) {
  store_.AddOne(Leaf(L"N1", L"x", L"g"), true, false);
  EXPECT_EQ(store_.GetNextFreeMenuName(), L"N2");
  const ItemRef unnamed = Leaf(L"", L"y", L"g");
  store_.AddOne(unnamed, true, false);
  EXPECT_EQ(unnamed->Name(), L"N3");
  store_.Remove(L"N3");
  EXPECT_EQ(store_.GetNextFreeMenuName(), L"N4");
}

TEST_F(MenuCollection, KeysIgnoreCaseAndStayWhileNamesAreExactAndMove) {
  const ItemRef item = Leaf(L"N1", L"x", L"g");
  store_.AddOne(item, true, false);
  EXPECT_EQ(store_.GetMenuItemFromName(L"n1"), item);
  EXPECT_FALSE(store_.ItemExists(L"n1"));
  EXPECT_FALSE(store_.AddOne(Leaf(L"n1", L"y", L"g"), true, false));  // the name is free, the key isn't
  EXPECT_TRUE(store_.AddOne(Leaf(L"N1", L"y", L"g"), true, false));   // a taken name is no failure
  EXPECT_EQ(store_.Count(), 1);
  {
    clsMenuCollection other(clock_);
    other.AddOne(item, true, false);
    item->SetName(L"renamed");
    EXPECT_TRUE(other.ItemExists(L"renamed"));
  }
  EXPECT_EQ(store_.GetMenuItemFromName(L"N1"), item);
  EXPECT_EQ(store_.GetMenuItemFromName(L"renamed"), nullptr);
  EXPECT_TRUE(store_.ItemExists(L"renamed"));
  EXPECT_FALSE(store_.ItemExists(L"N1"));
  store_.Remove(L"n1");
  item->SetName(L"again");  // a store that let go of an item doesn't hear of it any more
  EXPECT_EQ(store_.Count(), 0);
  EXPECT_FALSE(store_.ItemExists(L"again"));
}

TEST_F(MenuCollection, AddBeforeAndAfterNeedAKeyThatIsThere) {
  store_.AddBefore(Leaf(L"b", L"", L"g"), L"", false);
  store_.AddBefore(Leaf(L"a", L"", L"g"), L"B", false);
  store_.AddAfter(Leaf(L"c", L"", L"g"), L"b", false);
  store_.AddAfter(Leaf(L"a2", L"", L"g"), L"a", false);
  store_.AddBefore(Leaf(L"lost", L"", L"g"), L"missing", false);
  store_.AddAfter(Leaf(L"A", L"", L"g"), L"", false);
  EXPECT_EQ(NamesOf(store_), L"a a2 b c");
}

TEST_F(MenuCollection, GroupsComeFirstThenLeavesEachByUpperCasedTitle) {
  for (const wchar_t* title : {L"b", L"a", L"C"}) store_.AddOne(Leaf(L"", title, L"g"), false, false);
  for (const wchar_t* title : {L"z", L"Y"}) store_.AddOne(Group(L"", title, L"g"), false, false);
  store_.AddNewMenuItem({.Caption = L"x", .OwnerName = L"g", .ItemType = MIT_OPENALL});
  for (const wchar_t* title : {L"\x00E9", L"D"}) store_.AddOne(Leaf(L"", title, L"g"), false, false);
  EXPECT_EQ(TitlesUnder(store_, L"g"), L"Y z a b C D Open-All \x00E9");
  store_.AddNewMenuItem({.OwnerName = L"h", .Name = L"sep", .Separator = true});
  for (const auto& [name, title] : {std::pair{L"1", L"a"}, {L"2", L"A"}, {L"3", L"a"}, {L"0", L"9"}}) {
    store_.AddOne(Leaf(name, title, L"h"), false, false);
  }
  EXPECT_TRUE(NamesOf(store_).ends_with(L" sep 0 1 2 3"));  // equal titles in the order of arrival
}

TEST_F(MenuCollection, RootAndDrivesAreNotSortedAndThePersonalGroupGoesToTheTop) {
  for (const wchar_t* owner : {kRootOwner, MIT_PATHS_DRIVES}) {
    store_.AddOne(Leaf(L"", L"z", owner), false, false);
    store_.AddOne(Leaf(L"", L"a", owner), false, false);
    EXPECT_EQ(TitlesUnder(store_, owner), L"z a");
  }
  store_.AddOne(Group(MIT_GROUP_USER, L"Personal", kRootOwner), false, false);
  EXPECT_EQ(TitlesUnder(store_, kRootOwner), L"Personal z a");
}

TEST_F(MenuCollection, ANewItemGetsWhatIsGivenAndItsGroupOverridesItsType) {
  const ItemRef item = store_.AddNewMenuItem({.Caption = L"C: (x)",
                                              .OwnerName = L"g",
                                              .ItemType = MIT_DRIVE,
                                              .DriveType = kDriveCompactDisc,
                                              .CaptionAsGiven = true,
                                              .KeyboardCode = 48});
  EXPECT_EQ(item->Caption() + item->ItemType + item->Description, L"C: (x)MIT_DRIVECompact Disc");
  EXPECT_EQ(item->KeyboardCode, 48);
  const ItemRef group = store_.AddNewMenuItem({.OwnerName = L"g", .ItemType = MIT_DRIVE, .SubMenu = true});
  EXPECT_EQ(group->ItemType, MIT_GROUP_GENERAL);
}

TEST_F(MenuCollection, PathsLeaveOutThePersonalGroupAndLocationsHoldIt) {
  FillThreeLevels();
  store_.AddOne(Leaf(L"root", L"Root", kRootOwner), true, true);
  store_.AddOne(Leaf(MIT_HF_HELP, L"Help", kRootOwner), true, true);
  const wchar_t* paths[] = {L"Personal\\ \\\\",
                            L"Alpha\\ \\\\Personal",
                            L"Alpha\\Beta\\ \\\\Personal\\Alpha",
                            L"Alpha\\Beta\\ \\\\Personal\\Alpha\\Beta",
                            L"\\ \\\\",
                            L" \\\\"};
  for (std::int32_t i = 1; i <= 6; ++i) {
    EXPECT_EQ(store_.Item(i)->ItemPath + L" " + store_.Item(i)->ItemLocation, paths[i - 1]);
  }
  const ItemRef direct = Leaf(L"direct", L"Direct", MIT_GROUP_USER);
  direct->ItemPath = L"as it was";
  store_.AddOne(direct, true, true);
  EXPECT_EQ(direct->ItemPath, L"as it was");  // a leaf right under the personal group has no path of its own
}

TEST_F(MenuCollection, WalksToTheTopGoUpOnceEvenAroundACircle) {
  FillThreeLevels();
  EXPECT_EQ(store_.GetItemRootNode(*store_.Item(4)), MIT_GROUP_USER);
  EXPECT_EQ(store_.GetItemRootNode(*store_.Item(1)), kRootOwner);
  store_.Item(2)->SetOwnerName(L"B");  // A and B own each other now
  store_.ItemFullPath(*store_.Item(4));
  EXPECT_EQ(store_.Item(4)->ItemLocation, L"\\\\Alpha\\Beta");
  EXPECT_EQ(store_.GetItemRootNode(*store_.Item(4)), L"B");
  store_.Item(3)->SetOwnerName(L"B");
  store_.ItemFullPath(*store_.Item(4));
  EXPECT_EQ(store_.Item(4)->ItemPath, L"Beta\\");
}

TEST_F(MenuCollection, ChildrenAreTheDirectOnesBehindTheirOwner) {
  FillThreeLevels();
  EXPECT_EQ(store_.ChildrenNumber(MIT_GROUP_USER), 1);
  EXPECT_TRUE(store_.HasChildren(L"B"));
  EXPECT_FALSE(store_.HasChildren(L"leaf"));
  store_.Remove(L"a");  // what a group held stays
  EXPECT_EQ(NamesOf(store_), L"MIT_GROUP_USER B leaf");
}

TEST_F(MenuCollection, FreeTitlesAreCountedUp) {
  for (const wchar_t* name : {L"1", L"2", L"3"}) {
    const ItemRef item = Leaf(name, L"X", L"g");
    store_.GetNewItemCaption(*item);
    store_.AddOne(item, true, false);
    store_.AddNewMenuItem({.Caption = L"Y", .OwnerName = L"h", .RenameOnConflict = true});
  }
  EXPECT_EQ(TitlesUnder(store_, L"g"), L"X Copy of X Copy (1) of X");
  EXPECT_EQ(TitlesUnder(store_, L"h"), L"Y Y3 Y2");  // at the place of the title that was given
}

TEST_F(MenuCollection, ChangingThroughTheStoreFindsByPositionOrNameAndWorksOutThePath) {
  FillThreeLevels();
  store_.Item(2)->UserDescription = L"kept";
  store_.ModifyMenuItem(2, {.Caption = L"New", .SubMenu = true, .UserDescription = L"not written"});
  EXPECT_EQ(store_.Item(2)->ItemPath, L"New\\");
  EXPECT_EQ(store_.Item(2)->UserDescription, L"kept");
  store_.ModifyMenuItem(0, {.Caption = L"Leaf2", .Name = L"LEAF"});
  EXPECT_EQ(store_.Item(4)->Caption(), L"Leaf2");
  EXPECT_EQ(store_.Item(4)->Name(), L"LEAF");  // the name finds the item and is written to it
  store_.ModifyMenuItem(0, {.Caption = L"nobody"});
  store_.ModifyMenuItem(9, {.Caption = L"nobody"});
}

TEST_F(MenuCollection, TitlesPastFiftyCharactersAreShortenedInTheMenuAlone) {
  clsMenuItem item(clock_);
  const std::wstring head(22, L'h');
  const std::wstring tail(25, L't');
  item.SetCaption(head + L"mid" + tail);
  EXPECT_EQ(item.CaptionMenu(), head + L"mid" + tail);
  item.SetCaption(head + L"midd" + tail);
  EXPECT_EQ(item.CaptionMenu(), head + L"..." + tail);
}

TEST_F(MenuCollection, GroupAndSeparatorExcludeEachOther) {
  clsMenuItem item(clock_);
  item.SetSeparator(true);
  item.SetSubMenu(true);
  EXPECT_FALSE(item.Separator());
  item.SetSeparator(true);
  EXPECT_FALSE(item.SubMenu());
}

TEST_F(MenuCollection, AChangeKeepsWhatItDoesNotName) {
  clsMenuItem item(clock_);
  item.SetCaption(L"Old");
  item.SetOwnerName(MIT_GROUP_USER);
  item.FolderPath = L"C:\\x";
  item.UserDescription = L"mine";
  item.KeyboardCode = 50;
  item.ModifyMenuItem({});
  EXPECT_EQ(item.Caption() + item.OwnerName() + item.FolderPath + item.UserDescription, L"OldMIT_GROUP_USERC:\\xmine");
  EXPECT_EQ(item.KeyboardCode, -1);
  EXPECT_EQ(PackDateText(item.TimeModified), L"5|11|2003|14|7|9|");
  item.ModifyMenuItem({.UserDescription = L""});
  EXPECT_EQ(item.UserDescription, L"");
}

// The rules told plainly: every look-up walks over a list.
TEST_F(MenuCollection, EveryLookUpAgreesWithAWalkOverTheList) {
  std::vector<std::pair<std::wstring, ItemRef>> list;
  std::mt19937 random(7);
  const auto below = [&](unsigned end) { return static_cast<std::int32_t>(random() % end); };
  const auto name = [&] { return (below(2) == 0 ? L"n" : L"N") + std::to_wstring(below(40)); };
  const auto owner = [&] { return below(4) == 0 ? std::wstring(kRootOwner) : L"n" + std::to_wstring(below(6)); };
  const auto title = [&] { return std::wstring(1, L"abcdefABCDEF"[below(12)]); };
  const auto find = [&](auto fits) { return std::find_if(list.begin(), list.end(), fits); };
  const auto key = [&](const std::wstring& text) {
    return find([&](auto& entry) { return entry.first == UpperCaseText(text); });
  };
  const auto itemAt = [&](auto at) { return at == list.end() ? nullptr : at->second; };
  for (int step = 0; step < 20000; ++step) {
    const ItemRef any = store_.Count() == 0 ? nullptr : store_.Item(1 + below(static_cast<unsigned>(store_.Count())));
    switch (any == nullptr ? 0 : below(7)) {
      case 0: {
        const ItemRef item = test::MakeItem(clock_, name(), title(), owner(), below(3) == 0);
        const auto isSibling = [&](auto& other) {
          return !other.Separator() && other.OwnerName() == item->OwnerName();
        };
        auto place = item->OwnerName() == kRootOwner ? list.end() : find([&](auto& entry) {
          const clsMenuItem& other = *entry.second;
          return isSibling(other) && other.SubMenu() == item->SubMenu() && other.SortCaption() > item->SortCaption();
        });
        if (place == list.end() && item->SubMenu() && item->OwnerName() != kRootOwner) {
          place = find([&](auto& entry) { return isSibling(*entry.second) && !entry.second->SubMenu(); });
        }
        const auto at = place == list.end() ? place : key(place->second->Name());
        const bool lost = place != list.end() && at == list.end();  // the sibling has another key than its name
        const bool taken = store_.ItemExists(item->Name()) || key(item->Name()) != list.end();
        if (!lost && !taken) list.insert(at, {UpperCaseText(item->Name()), item});
        store_.AddOne(item, false, false);
        break;
      }
      case 1: {
        const std::wstring gone = name();
        store_.Remove(gone);
        if (const auto at = key(gone); at != list.end()) list.erase(at);
        break;
      }
      case 2:
        any->SetName(name());
        break;
      case 3:
        any->SetOwnerName(owner());
        break;
      case 4:
        any->SetCaption(title());
        break;
      case 5:
        below(2) == 0 ? any->SetSubMenu(below(2) == 0) : any->SetSeparator(below(2) == 0);
        break;
      default:
        any->SetID(below(60));
    }
    const std::wstring n = name(), o = owner(), t = title();
    const std::int32_t id = below(60);
    const auto numbered = find([&](auto& entry) { return entry.second->ID() == id; });
    const auto same = find([&](auto& entry) {
      const clsMenuItem& item = *entry.second;
      return item.OwnerName() == o && item.Caption() == t && item.Name() != n && item.SubMenu();
    });
    const auto owned = [&](auto& entry) { return entry.second->OwnerName() == o; };
    for (std::size_t i = 0; i < list.size(); ++i)
      ASSERT_EQ(store_.Item(static_cast<int>(i) + 1), list[i].second) << step;
    ASSERT_EQ(store_.Count(), static_cast<std::int32_t>(list.size())) << step;
    ASSERT_EQ(store_.ItemExists(n), find([&](auto& entry) { return entry.second->Name() == n; }) != list.end()) << step;
    ASSERT_EQ(store_.GetMenuItemFromName(n), itemAt(key(n))) << step;
    ASSERT_EQ(store_.GetMenuItemFromID(id), itemAt(numbered)) << step;
    ASSERT_EQ(store_.ChildrenNumber(o), std::count_if(list.begin(), list.end(), owned)) << step;
    ASSERT_EQ(store_.CaptionExists2(t, o, true, n), itemAt(same)) << step;
  }
}

TEST_F(MenuCollection, AChangeIsWrittenInTheOrderOfItsFields) {
  clsMenuItem item(clock_);
  item.ModifyMenuItem({.Caption = L"G:", .IconID = 9, .FolderPath = L"C:\\x", .ItemType = MIT_DRIVE, .SubMenu = true});
  EXPECT_EQ(item.Caption() + item.FolderPath, L"G");
  EXPECT_EQ(item.ItemType, MIT_GROUP_GENERAL);  // the group comes after the type
  item.ModifyMenuItem({.Caption = L"x", .FolderPath = L"C:\\x", .ItemType = MIT_OPENALL, .RefreshIcon = true});
  EXPECT_EQ(item.Caption() + item.FolderPath, L"Open-All");
}

}  // namespace
}  // namespace burrowmark
