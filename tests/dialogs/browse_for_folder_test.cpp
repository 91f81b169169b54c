// A person chooses a folder: in the tree, by its path, on a server, and a new one.
#include "dialogs/browse_for_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/characters.h"
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
  std::wstring Browse(const std::wstring& start, std::function<void()> script) {
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
  WindowHandle Tree() { return Find(ShownKind::kTreeView).window; }
  std::wstring Folder() { return Find(ShownKind::kTextBox).text; }
  // What shows of the tree, a dot for each level, and the selected one with an asterisk.
  std::wstring Nodes() {
    std::wstring nodes;
    const ShownTree& tree = *Find(ShownKind::kTreeView).tree;
    for (const ShownNode* node : tree.Visible()) {
      nodes += (nodes.empty() ? L"" : L" ") + std::wstring(static_cast<std::size_t>(node->Level()), L'.') + node->text +
               (node == tree.selected ? L"*" : L"");
    }
    return nodes;
  }
  // Instead of what stands in the box; the tree follows when the person pauses.
  void TypePath(const std::wstring& path, std::int64_t pause = 400) {
    window_->PressAlt(L'f');
    window_->Type(path);
    machine_.windows.Advance(pause);
  }
  void Click(const wchar_t* button) { window_->Click(button); }

  test::ScratchMachine scratch_;
  LocalMachine& machine_ = scratch_.machine;
  Form owner_{machine_.windows, L"frmOwner", {3000, 3000}};
  BrowseParameters parameters_;
  ShownWindow* window_ = nullptr;
};

TEST_F(BrowseForAFolder, InTheTreeWhichThePathFollows) {
  EXPECT_EQ(Browse(L"C:\\a\\b",
                   [this] {
                     EXPECT_EQ(window_->Find(L"Include subfolders"), nullptr);
                     EXPECT_EQ(Nodes(), L"C: .a ..b* ..d .Program Files .Users .Windows")
                         << "neither files nor hidden folders";
                     EXPECT_EQ(Folder(), L"C:\\a\\b");
                     window_->ToggleNode(Tree(), L"b");
                     EXPECT_EQ(Nodes(), L"C: .a ..b* ...c ..d .Program Files .Users .Windows");
                     window_->ClickNode(Tree(), L"c");
                     EXPECT_EQ(Folder(), L"C:\\a\\b\\c");
                     window_->ClickNode(Tree(), L"C:");
                     EXPECT_EQ(Folder(), L"C:\\");
                     window_->Press(kKeyCodeDown);
                     window_->Press(kKeyCodeReturn);
                   }),
            L"C:\\a");
}

TEST_F(BrowseForAFolder, ByItsPathWhichTheTreeFollows) {
  const std::wstring name(120, L'\u0416');
  const std::wstring deep = L"C:\\" + name + L"\\" + name + L"\\" + name;
  machine_.AddFolders(deep);
  EXPECT_EQ(
      Browse({},
             [this, &deep, &name] {
               TypePath(L"c:\\HIDDEN\\");
               EXPECT_EQ(Nodes(), L"C: .a .Hidden* .Program Files .Users .Windows ." + name);
               TypePath(L"C:\\a\\nothing");
               EXPECT_NE(Nodes().find(L"Hidden*"), std::wstring::npos) << "the selection stays";
               for (const wchar_t* wrong : {L"C:\\a\\nothing", L"C:\\a\\file.txt", L"a", L"", L"\\\\server", L"Q:"}) {
                 TypePath(L" ");
                 TypePath(wrong, 0);
                 machine_.user.NextBox(kMissing, kAnswerOk);
                 window_->Press(kKeyCodeReturn);
               }
               TypePath(deep);
               EXPECT_NE(Nodes().find(L"..." + name + L"*"), std::wstring::npos);
               Click(L"OK");
             }),
      deep);
  for (const auto& [typed, path] : {std::pair(L"c:", L"C:\\"), {L"C", L"C:\\"}, {L" \"C:/a/d/\" ", L"C:\\a\\d"}}) {
    EXPECT_EQ(Browse(L"C:\\a",
                     [this, text = typed] {
                       TypePath(text, 0);
                       Click(L"OK");
                     }),
              path);
  }
}

TEST_F(BrowseForAFolder, OnAServerThatWasTyped) {
  machine_.faults.SilentPlaces = {L"\\\\DEAD"};
  EXPECT_EQ(Browse(L"C:\\",
                   [this] {
                     TypePath(L"\\\\nowhere\\share");
                     EXPECT_EQ(Nodes(), L"C:*") << "a server without shares goes again";
                     TypePath(L"\\\\dead\\share");
                     TypePath(L"\\\\server\\one\\deep");
                     EXPECT_EQ(Nodes(), L"C: \\\\dead \\\\server .one ..deep* .two");
                     machine_.user.NextBox(kMissing, kAnswerOk);
                     TypePath(L"\\\\dead\\share");
                     Click(L"OK");
                     window_->ClickNode(Tree(), L"two");
                     machine_.workers.Takes = 100;
                     window_->ToggleNode(Tree(), L"two");
                     EXPECT_NE(Nodes().find(L"..Reading..."), std::wstring::npos);
                     Click(L"OK");
                   }),
            L"\\\\server\\two");
  machine_.windows.Advance(200);  // what is read too late is nobody's
}

TEST_F(BrowseForAFolder, ThatIsMadeThere) {
  const auto name = [this](const wchar_t* text, const wchar_t* box) {
    if (box != nullptr) machine_.user.NextBox(box, kAnswerOk);
    machine_.user.Window(L"New Folder").Press('A', kCtrlMask);
    machine_.user.Window(L"New Folder").Type(text);
    machine_.user.Window(L"New Folder").Press(kKeyCodeReturn);
  };
  EXPECT_EQ(Browse(L"C:\\a",
                   [this, &name] {
                     EXPECT_EQ(window_->Find(L"New Folder")->toolTip,
                               L"Creates a new folder in the currently selected directory");
                     machine_.user.NextWindow(L"New Folder", [&name](const ShownWindow& prompt) {
                       EXPECT_NE(prompt.Find(L"Enter a name for your new folder"), nullptr);
                       name(L"B", L"A Folder of that name already exists.\r\nEnter a different name and try again.");
                       name(L"x\\y", L"Folder x\\y can't be made.");
                       name(L"cc ", nullptr);
                     });
                     Click(L"New Folder");
                     EXPECT_TRUE(machine_.files.FolderExists(L"C:\\a\\cc"));
                     EXPECT_EQ(Nodes(), L"C: .a ..b ..cc* ..d .Program Files .Users .Windows");
                     Click(L"OK");
                   }),
            L"C:\\a\\cc");
}

TEST_F(BrowseForAFolder, WithASwitchWhereTheCallerWantsIt) {
  parameters_.IncludeSubfoldersCaption = L"Include subfolders";
  for (const bool cancelled : {true, false}) {
    EXPECT_EQ(Browse(L"C:\\a",
                     [this, cancelled] {
                       Click(L"Include subfolders");
                       window_->Resize(700, 600);
                       cancelled ? window_->Press(kKeyCodeEscape) : Click(L"OK");
                     }),
              cancelled ? L"" : L"C:\\a");
    EXPECT_EQ(parameters_.IncludeSubfolders, !cancelled);
  }
  Browse(L"C:\\a", [this] {
    EXPECT_EQ(Find(ShownKind::kCheckBox).check, CheckValue::kChecked);
    EXPECT_EQ(window_->place.right - window_->place.left, 700);
    window_->Close();
  });
}

}  // namespace
}  // namespace burrowmark
