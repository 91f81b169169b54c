// A person chooses a folder: in the tree, by its path, on a server, and a new one.
#include "dialogs/browse_for_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/key_codes.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

constexpr wchar_t kMissing[] = L"The specified path does not exist.\r\nCheck the path, and try again.";

class BrowseForAFolder : public testing::Test {
 protected:
  BrowseForAFolder() {
    for (const wchar_t* path :
         {L"C:\\a\\b\\c", L"C:\\a\\d", L"C:\\Hidden", L"\\\\server\\one\\deep", L"\\\\server\\two"}) {
      machine_.AddFolders(path);
    }
    machine_.files.SetFileAttributesA(L"C:\\Hidden", kFileHidden);
    machine_.AddFile(L"C:\\a\\file.txt");
    owner_.Show();
  }
  ~BrowseForAFolder() override { owner_.Unload(); }

  // What the dialog gives when `script` is done in it.
  std::wstring Browse(const wchar_t* start, std::function<void()> script) {
    parameters_.StartFolder = start;
    machine_.user.NextWindow(L"Browse for Folder", [this, script = std::move(script)](ShownWindow& shown) {
      window_ = &shown;
      script();
    });
    return BrowseForFolder(scratch_.app, owner_, parameters_);
  }
  ShownControl& Find(ShownKind kind) {
    return **std::find_if(window_->controls.begin(), window_->controls.end(),
                          [kind](const auto& control) { return control->kind == kind; });
  }
  // What shows of the tree but the folders of every machine, a dot for each level, the selected one with an asterisk.
  std::wstring Nodes() {
    std::wstring nodes;
    const ShownTree& tree = *Find(ShownKind::kTreeView).tree;
    for (const ShownNode* node : tree.Visible()) {
      if (std::wstring(L"|Program Files|Users|Windows|").find(L"|" + node->text + L"|") != std::wstring::npos) continue;
      nodes += std::wstring(static_cast<std::size_t>(node->Level()), L'.') + node->text;
      nodes += node == tree.selected ? L"* " : L" ";
    }
    return nodes;
  }
  void ClickNode(const wchar_t* text) { window_->ClickNode(Find(ShownKind::kTreeView).window, text); }
  void Toggle(const wchar_t* text) { window_->ToggleNode(Find(ShownKind::kTreeView).window, text); }
  // Instead of what stands in the box; the tree follows when the person pauses.
  void TypePath(const std::wstring& path) {
    window_->PressAlt(L'f');
    window_->Type(path);
    machine_.windows.Advance(400);
  }
  void AcceptMissing() {
    machine_.user.NextBox(kMissing, kAnswerOk);
    window_->Press(kKeyCodeReturn);
  }

  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  Form owner_{machine_.windows, L"frmOwner", {3000, 3000}};
  BrowseParameters parameters_;
  ShownWindow* window_ = nullptr;
};

TEST_F(BrowseForAFolder, InTheTreeWhichThePathFollows) {
  const auto script = [this] {
    EXPECT_EQ(window_->Find(L"Include subfolders"), nullptr);
    EXPECT_EQ(Nodes(), L"C: .a ..b* ..d ") << "neither files nor hidden folders";
    Toggle(L"b");
    ClickNode(L"c");
    EXPECT_EQ(Find(ShownKind::kTextBox).text, L"C:\\a\\b\\c");
    ClickNode(L"C:");
    EXPECT_EQ(Find(ShownKind::kTextBox).text, L"C:\\");
    window_->Press(kKeyCodeDown);
    window_->Press(kKeyCodeReturn);
  };
  EXPECT_EQ(Browse(L"C:\\a\\b", script), L"C:\\a");
  parameters_.IncludeSubfoldersCaption = L"Include subfolders";
  for (const std::wstring button : {L"Cancel", L"OK"}) {
    const auto turn = [this, &button] {
      window_->Click(L"Include subfolders");
      window_->Click(button);
    };
    EXPECT_EQ(Browse(L"C:\\a", turn), button == L"OK" ? L"C:\\a" : L"");
    EXPECT_EQ(parameters_.IncludeSubfolders, button == L"OK");
  }
}

TEST_F(BrowseForAFolder, ByItsPathWhichTheTreeFollows) {
  const std::wstring name(120, L'\u0416');
  const std::wstring deep = L"C:\\" + name + L"\\" + name + L"\\" + name;
  machine_.AddFolders(deep);
  const auto script = [this, &deep, &name] {
    TypePath(L"c:\\HIDDEN\\");
    EXPECT_EQ(Nodes(), L"C: .a .Hidden* ." + name + L" ");
    for (const wchar_t* wrong : {L"C:\\a\\nothing", L"C:\\a\\file.txt", L"a", L" ", L"\\\\server", L"Q:"}) {
      TypePath(wrong);
      AcceptMissing();
    }
    EXPECT_NE(Nodes().find(L"Hidden*"), std::wstring::npos) << "the selection stays";
    machine_.workers.Takes = 1000;
    TypePath(L"C:\\a\\d");
    TypePath(deep);  // while the other is still looked for
    machine_.windows.Advance(5000);
    EXPECT_NE(Nodes().find(L"..." + name + L"*"), std::wstring::npos);
    window_->Click(L"OK");
  };
  EXPECT_EQ(Browse(L"", script), deep);
  for (const auto& [typed, path] : {std::pair(L"c:", L"C:\\"), {L"C", L"C:\\"}, {L" \"C:/a/d/\" ", L"C:\\a\\d"}}) {
    EXPECT_EQ(Browse(typed, [this] { window_->Click(L"OK"); }), path);
  }
}

TEST_F(BrowseForAFolder, OnAServerThatWasTyped) {
  machine_.faults.SilentPlaces = {L"\\\\DEAD"};
  const auto script = [this] {
    TypePath(L"\\\\nowhere\\share");
    EXPECT_EQ(Nodes(), L"C:* ") << "a server without shares goes again";
    TypePath(L"\\\\dead\\share");
    AcceptMissing();
    TypePath(L"\\\\server\\");
    EXPECT_EQ(Nodes(), L"C: \\\\dead \\\\server* .one .two ");
    TypePath(L"\\\\server\\one\\deep");
    EXPECT_EQ(Nodes(), L"C: \\\\dead \\\\server .one ..deep* .two ");
    ClickNode(L"two");
    machine_.workers.Takes = 100;
    Toggle(L"two");
    EXPECT_NE(Nodes().find(L"..Reading..."), std::wstring::npos);
    window_->Click(L"OK");
  };
  EXPECT_EQ(Browse(L"C:\\", script), L"\\\\server\\two");
  machine_.windows.Advance(200);  // what is read too late is nobody's
}

TEST_F(BrowseForAFolder, ThatIsMadeThere) {
  const auto name = [](ShownWindow& prompt) {
    EXPECT_NE(prompt.Find(L"Enter a name for your new folder"), nullptr);
    for (const wchar_t* text : {L"B", L"x\\y", L"cc "}) {
      prompt.Press('A', kCtrlMask);
      prompt.Type(text);
      prompt.Press(kKeyCodeReturn);
    }
  };
  const auto script = [this, &name] {
    machine_.user.NextWindow(L"New Folder", name);
    machine_.user.NextBox(L"A Folder of that name already exists.\r\nEnter a different name and try again.", kAnswerOk);
    machine_.user.NextBox(L"Folder x\\y can't be made.", kAnswerOk);
    window_->Click(L"New Folder");
    EXPECT_EQ(Nodes(), L"C: .a ..b ..cc* ..d ");
    window_->Click(L"OK");
  };
  EXPECT_EQ(Browse(L"C:\\a", script), L"C:\\a\\cc");
}

}  // namespace
}  // namespace burrowmark
