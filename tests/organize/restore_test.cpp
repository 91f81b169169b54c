// The wizard that makes the personal group or the System Folders group anew.
#include <gtest/gtest.h>

#include <utility>

#include "groups/system_folders.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark {
namespace {

constexpr wchar_t kNodes[] = L"0 Organized Folders|1 Personal|2 Alpha|3 Inner|2 Beta|2 Gamma|1 Drives";
constexpr wchar_t kTitle[] = L"Restore Personal Group Wizard";
constexpr wchar_t kDone[] = L"The content of Personal group has been successfully restored.";

class Restore : public testing::Test {
 protected:
  Restore() {
    app_.RecentFolder = L"C:\\Recent";
    machine_.AddFolders(L"C:\\Recent");
    machine_.shell.WriteShellLink(L"C:\\Recent\\a.lnk", {L"C:\\Windows", {}, 1});
    machine_.drives.Add(L'D');
    machine_.drives.SetFacts(L'D', {kDriveTypeFixed, L"Data", {}});
    for (const wchar_t* folder : {L"D:\\one", L"D:\\two", L"D:\\hidden"}) machine_.AddFolders(folder);
    machine_.files.SetFileAttributesA(L"D:\\hidden", kFileHidden);
    machine_.drives.SetFacts(L'C', {kDriveTypeRemovable, {}, {}});
    scene_.Open();
  }
  void Show(const std::function<void(ShownWindow&)>& script) {
    user_.NextWindow(kTitle, script);
    scene_.Window().ChooseMenu({L"Tools", L"Restore", L"Personal Group..."});
  }

  test::OrganizeScene scene_;
  LocalMachine& machine_ = scene_.machine;
  LocalUser& user_ = machine_.user;
  Application& app_ = scene_.app;
};

TEST_F(Restore, EveryChoiceFillsTheGroupAndCtrlZBringsTheOldOneBack) {
  const std::pair<wchar_t, const wchar_t*> rows[] = {
      {L'b', L""},
      {L's', L"|2 My Group|3 Desktop|3 Start Menu|3 Open-All|2 My Documents"},
      {L'f', L"|2 D_one|2 D_two"},
      {L'd', L"|2 D (Data)|3 one|3 two"},
      {L'r', L"|2 Windows"},
      {L'\0', L"|2 Windows"},  // as it opens
  };
  for (const auto& [letter, filled] : rows) {
    user_.NextBox(kDone, kAnswerOk);
    Show([letter = letter](ShownWindow& window) {
      if (letter != L'\0') window.PressAlt(letter);
      window.Press(kKeyCodeReturn);
    });
    EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal" + std::wstring(filled) + L"|1 Drives");
    EXPECT_EQ(scene_.Window().MenuTexts({L"Edit"}).front(), L"Undo Restore\tCtrl+Z");
    EXPECT_TRUE(app_.HotKeyItems.Items.empty());
    scene_.Window().Press(L'Z', kCtrlMask);
    EXPECT_EQ(scene_.Nodes(), kNodes);
    EXPECT_EQ(app_.HotKeyItems.Items.size(), 1U);
  }
  Show([](ShownWindow& window) { window.Press(kKeyCodeEscape); });
  EXPECT_EQ(scene_.Nodes(), kNodes);
}

TEST_F(Restore, FromThePopupOfTheSystemFolders) {
  app_.AC[Appearance::kSystemFolders] = true;
  scene_.form().EditTree(L"Add", [this](TreeEdit& edit) {
    edit.Around([this](clsMenuCollection& store) { SetupSystemFolders(app_, store); });
  });
  const std::wstring whole = scene_.Nodes();
  app_.GC[General::kAskBeforeDeleting] = false;
  scene_.Window().ClickNode(scene_.Tree(), L"System Folders");
  scene_.ClickRow(L"Windows");
  scene_.Window().Press(kKeyCodeDelete);
  EXPECT_NE(scene_.Nodes(), whole);
  user_.NextWindow(L"Restore System Folders Group Wizard", [this](ShownWindow& window) {
    EXPECT_FALSE(window.Find(L"Blank content")->visible);
    user_.NextBox(L"The content of System Folders group has been successfully restored.", kAnswerOk);
    window.Click(L"Finish");
  });
  user_.NextPopup({L"Restore..."});
  scene_.Window().ClickNode(scene_.Tree(), L"System Folders", kRightButton);
  EXPECT_EQ(scene_.Nodes(), whole);
}

// The folder that is hidden lets messages run.
TEST_F(Restore, WhileItReadsNothingIsRemovedAndNobodyGetsThrough) {
  bool ended = false;
  app_.Requests.End = [&ended] { ended = true; };
  Show([&](ShownWindow& window) {
    window.PressAlt(L'f');
    bool met = false;
    machine_.windows.Yielding = [&](YieldPoint point) {
      if (std::exchange(met, true)) return;
      EXPECT_EQ(point, YieldPoint::kDoEvents);
      EXPECT_EQ(scene_.Nodes(), kNodes);
      EXPECT_FALSE(window.enabled);
      EXPECT_FALSE(scene_.Window().enabled);
      app_.Requests.EndProgram();
    };
    window.Press(kKeyCodeReturn);
    machine_.windows.Yielding = {};
    EXPECT_TRUE(met);
    EXPECT_FALSE(window.IsOpen()) << "the end of the program closes it";
  });
  EXPECT_EQ(scene_.Nodes(), L"0 Organized Folders|1 Personal|2 D_one|2 D_two|1 Drives") << "the work came to its end";
  machine_.windows.DoEvents();
  app_.Requests.RunAtRest();
  EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace burrowmark
