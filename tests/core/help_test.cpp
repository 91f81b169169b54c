// F1, and the page that each window has in the help.
#include "core/help.h"

#include <gtest/gtest.h>

#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark::test {
namespace {

// A page that was renamed would open as an empty one.
TEST(Help, TheHelpHasThePageOfEveryWindow) {
  const std::wstring pages = L"|" HELP_PAGES L"|";
  for (std::uint8_t window = 0; const wchar_t* page = HelpPage(ProgramWindow{window}); ++window) {
    EXPECT_NE(pages.find(L"|" + std::wstring(page) + L"|"), std::wstring::npos) << window;
  }
}

TEST(Help, F1OpensThePageOfTheWindowInFront) {
  OrganizeScene scene;
  LocalUser& user = scene.machine.user;
  const std::vector<HelpCall>& calls = scene.machine.shell.HelpCalls;
  const auto expectLast = [&](const wchar_t* page) {
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.back().path, scene.app.HelpFile + L"::/" + page);
    EXPECT_EQ(calls.back().command, 0);
  };
  scene.Open();
  user.NextBox(L"Burrowmark help file is missing. Unable to display help.", kAnswerOk);
  scene.Window().Press(kKeyCodeF1);
  scene.machine.AddFile(scene.app.HelpFile);
  scene.Window().Press(kKeyCodeF1);
  expectLast(L"editor.html");
  user.NextWindow(L"About Burrowmark", [&](ShownWindow& window) {
    window.Press(kKeyCodeF1, kCtrlMask);
    EXPECT_EQ(calls.size(), 1U);
    scene.machine.shell.HelpOpens = false;
    window.Press(kKeyCodeF1);
    expectLast(L"start.html");
    EXPECT_EQ(scene.machine.shell.Launches.back().file, scene.app.HelpFile);
    window.Press(kKeyCodeEscape);
  });
  scene.Window().ChooseMenu({L"Help", L"About Burrowmark..."});
}

}  // namespace
}  // namespace burrowmark::test
