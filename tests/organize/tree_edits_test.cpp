// Edits of the tree at random, against a plain idea of what a tree is; each of them is taken back as well.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

#include "core/numbers.h"
#include "organize/node_keys.h"
#include "organize/paste.h"
#include "organize/subtree.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark {
namespace {

using Owners = std::map<std::wstring, std::wstring>;  // of all items, by their names

class TreeEdits : public testing::Test {
 protected:
  TreeEdits() {
    scene_.app.AC[Appearance::kDrives] = false;
    scene_.Open();
  }

  const clsMenuCollection& Store() { return *scene_.form().WorkCollection(); }
  std::size_t Below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }

  // An item below the personal group, or the group itself; only a group if that is asked for.
  ItemRef Any(bool group) {
    std::vector<ItemRef> items = Subtree(Store(), Store().GetMenuItemFromName(MIT_GROUP_USER));
    if (group) std::erase_if(items, [](const ItemRef& item) { return !item->SubMenu(); });
    return items[Below(items.size())];
  }
  Owners OwnersNow() {
    Owners owners;
    for (std::int32_t i = 1; i <= Store().Count(); ++i) {
      owners.emplace(Store().Item(i)->Name(), Store().Item(i)->OwnerName());
    }
    return owners;
  }
  // All that the file would hold, in order.
  std::vector<std::wstring> Everything() {
    std::vector<std::wstring> lines;
    for (std::int32_t i = 1; i <= Store().Count(); ++i) {
      const clsMenuItem& item = *Store().Item(i);
      lines.push_back(item.Name() + L"|" + item.OwnerName() + L"|" + item.Caption() + L"|" + item.ItemType + L"|" +
                      item.FolderPath + L"|" + item.ItemLocation + L"|" + item.ItemPath + L"|" +
                      DecimalText(item.KeyboardCode) + L"|" + std::to_wstring(item.TimeCreated) + L"|" +
                      std::to_wstring(item.TimeModified) + L"|" + std::to_wstring(item.IconID));
    }
    return lines;
  }

  void CheckStore() {
    std::set<std::wstring> names{kRootOwner};
    std::set<std::wstring> titles;
    for (std::int32_t i = 1; i <= Store().Count(); ++i) {
      const clsMenuItem& item = *Store().Item(i);
      ASSERT_TRUE(names.contains(item.OwnerName())) << "ahead of its owner";
      ASSERT_TRUE(names.insert(item.Name()).second) << "a name twice";
      if (item.Separator()) continue;
      ASSERT_TRUE(titles.insert(item.OwnerName() + (item.SubMenu() ? L"/" : L"|") + item.Caption()).second)
          << "a title twice in one group";
      clsMenuItem& written = *Store().Item(i);
      const std::wstring location = written.ItemLocation;
      Store().ItemFullPath(written);
      ASSERT_EQ(written.ItemLocation, location);
    }
  }
  void CheckNodes() {
    std::wstring nodes = L"0 Organized Folders";
    AddNodes(kRootOwner, 1, nodes);
    ASSERT_EQ(scene_.Nodes(), nodes);
  }
  void CheckRows() {
    if (!Store().ItemExists(shown_)) Show(Any(true));
    std::multiset<std::wstring> rows;
    for (const auto& row : scene_.Control(ShownKind::kListView).list->rows) rows.insert(row.texts.front());
    std::multiset<std::wstring> expected;
    for (const ItemRef& item : Store().Children(shown_)) {
      if (item->Remark != REMARK_AUTO) expected.insert(item->Caption());
    }
    ASSERT_EQ(rows, expected);
  }
  void AddNodes(const std::wstring& owner, int level, std::wstring& nodes) {
    for (const ItemRef& item : Store().Children(owner)) {
      if (item->Remark == REMARK_AUTO) continue;
      nodes += L"|" + std::to_wstring(level) + L" " + item->Caption();
      AddNodes(item->Name(), level + 1, nodes);
    }
  }
  void Show(const ItemRef& group) {
    shown_ = group->Name();
    scene_.form().RefreshViews(KeyOfName(shown_), true);
  }

 public:
  // Each gives what the tree is then.
  Owners Delete(TreeEdit& edit, Owners owners);
  Owners Move(TreeEdit& edit, Owners owners);
  Owners Copy(TreeEdit& edit, Owners owners);
  Owners Make(TreeEdit& edit, Owners owners);
  Owners Modify(TreeEdit& edit, Owners owners);

 protected:
  test::OrganizeScene scene_;
  std::mt19937 random_{7};
  std::wstring shown_;
};

void DropSubtree(Owners& owners, const std::wstring& name) {
  owners.erase(name);
  const Owners all = owners;
  for (const auto& [other, owner] : all) {
    if (owner == name) DropSubtree(owners, other);
  }
}

Owners TreeEdits::Delete(TreeEdit& edit, Owners owners) {
  const ItemRef item = Any(false);
  if (item->Name() == MIT_GROUP_USER) return owners;
  DeleteSubtree(edit, item);
  DropSubtree(owners, item->Name());
  return owners;
}

// A clash is answered at random; what was replaced leaves what it held to the one that took its place.
Owners TreeEdits::Move(TreeEdit& edit, Owners owners) {
  ItemClipboard clipboard;
  clipboard.Mode = PasteMode::kMove;
  const ItemRef item = Any(false);
  if (item->Name() == MIT_GROUP_USER) return owners;
  clipboard.Take(scene_.machine.clock, Store(), item);
  const PastePlace place = FindPastePlace(Store(), clipboard, Any(false)->Name(), false);
  if (place.Refusal != PasteRefusal::kNone) return owners;
  std::wstring replaced;
  bool cancelled = false;
  std::vector<ItemRef> pasted;
  const PasteTalk talk{[&](const clsMenuItem& existing, const clsMenuItem&) {
                         const auto answer = static_cast<ClashAnswer>(Below(3));
                         if (answer == ClashAnswer::kReplace) replaced = existing.Name();
                         cancelled = answer == ClashAnswer::kCancel;
                         return answer;
                       },
                       [&] { cancelled = true; }};
  PasteItems(edit, clipboard, place.Text, talk, pasted);
  if (cancelled) return owners;
  owners[item->Name()] = place.Text;
  if (!replaced.empty()) {
    owners.erase(replaced);
    for (auto& [name, owner] : owners) {
      if (owner == replaced) owner = item->Name();
    }
  }
  return owners;
}

Owners TreeEdits::Copy(TreeEdit& edit, Owners owners) {
  ItemClipboard clipboard;
  const ItemRef item = Any(false);
  if (item->Name() == MIT_GROUP_USER) return owners;
  clipboard.Take(scene_.machine.clock, Store(), item);
  const std::size_t size = clipboard.Trees.front().Items.size();
  const PastePlace place = FindPastePlace(Store(), clipboard, Any(false)->Name(), false);
  std::vector<ItemRef> pasted;
  const PasteTalk talk{[](const clsMenuItem&, const clsMenuItem&) { return ClashAnswer::kRename; }, [] {}};
  if (place.Refusal == PasteRefusal::kNone) PasteItems(edit, clipboard, place.Text, talk, pasted);
  if (pasted.empty()) return owners;
  const std::vector<ItemRef> copies = Subtree(Store(), pasted.front());
  EXPECT_EQ(copies.size(), size);
  for (const ItemRef& copy : copies) {
    EXPECT_EQ(copy->KeyboardCode, -1);
    EXPECT_TRUE(owners.emplace(copy->Name(), copy->OwnerName()).second);
  }
  EXPECT_EQ(pasted.front()->OwnerName(), place.Text);
  return owners;
}

Owners TreeEdits::Make(TreeEdit& edit, Owners owners) {
  const ItemRef group = Any(true);
  const bool makesGroup = Below(2) == 0;
  const std::wstring title = L"T" + std::to_wstring(Below(6));
  if (Store().CaptionExists(title, group->Name(), makesGroup, {})) return owners;
  const ItemRef made = edit.AddNew({.Caption = title,
                                    .OwnerName = group->Name(),
                                    .FolderPath = makesGroup ? L"" : L"C:\\Beta",
                                    .ItemType = makesGroup ? MIT_GROUP_GENERAL : MIT_PATH,
                                    .SubMenu = makesGroup});
  owners.emplace(made->Name(), group->Name());
  return owners;
}

// A title, and with nothing in it also another kind.
Owners TreeEdits::Modify(TreeEdit& edit, Owners owners) {
  const ItemRef item = Any(false);
  const bool turns = !Store().HasChildren(item->Name()) && item->Name() != MIT_GROUP_USER && Below(2) == 0;
  const bool group = item->SubMenu() != turns;
  const std::wstring title = L"T" + std::to_wstring(Below(6));
  if (Store().CaptionExists(title, item->OwnerName(), group, item->Name())) return owners;
  ModifyItem(edit, item,
             {.Caption = title,
              .FolderPath = L"C:\\Beta",
              .ItemType = group ? MIT_GROUP_GENERAL : MIT_PATH,
              .SubMenu = group,
              .RefreshIcon = true,
              .KeyboardCode = item->KeyboardCode});
  return owners;
}

TEST_F(TreeEdits, TheTreeIsWhatAPlainTreeWouldBeAndCanBeTakenBack) {
  using Edit = Owners (TreeEdits::*)(TreeEdit&, Owners);
  constexpr Edit kEdits[] = {&TreeEdits::Make, &TreeEdits::Make,   &TreeEdits::Move,
                             &TreeEdits::Copy, &TreeEdits::Modify, &TreeEdits::Delete};
  std::vector<std::vector<std::wstring>> before;
  for (int step = 0; step < 1500; ++step) {
    if (step % 7 == 0) Show(Any(true));
    if (Below(4) == 0 && !before.empty()) {
      scene_.Window().Press('Z', kCtrlMask);
      ASSERT_EQ(Everything(), before.back()) << step;
      before.pop_back();
      ASSERT_NO_FATAL_FAILURE(CheckNodes()) << step;
      Show(Any(true));
    } else {
      const std::vector<std::wstring> now = Everything();
      scene_.machine.clock.Fixed = LocalClock::Split(1000000000 + 60 * step);
      const Edit edit = Store().Count() > 60 ? &TreeEdits::Delete : kEdits[Below(std::size(kEdits))];
      Owners expected;
      scene_.form().EditTree(L"Edit", [&](TreeEdit& tree) { expected = (this->*edit)(tree, OwnersNow()); });
      ASSERT_EQ(OwnersNow(), expected) << step;
      if (Everything() != now) before.push_back(now);
      if (before.size() > EditHistory::kDepth) before.erase(before.begin());
    }
    ASSERT_NO_FATAL_FAILURE(CheckStore()) << step;
    ASSERT_NO_FATAL_FAILURE(CheckNodes()) << step;
    ASSERT_NO_FATAL_FAILURE(CheckRows()) << step;
  }
}

}  // namespace
}  // namespace burrowmark
