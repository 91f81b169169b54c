// The Tip of the Day, as the editor shows it.
#include <gtest/gtest.h>

#include "core/registry_keys.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark::test {
namespace {

class Tip : public testing::Test {
 protected:
  Tip() { scene_.Open(); }
  void Show(const std::function<void(ShownWindow&)>& script) {
    scene_.machine.user.NextWindow(L"Tip of the Day", [&script](ShownWindow& window) {
      script(window);
      window.Press(kKeyCodeEscape);
    });
    scene_.Window().ChooseMenu({L"Help", L"Tip of the Day..."});
  }
  void Write(const std::string& bytes) { scene_.machine.AddFile(scene_.app.AppPath + L"\\TIPOFDAY.TXT", bytes); }
  static std::wstring Shown(const ShownWindow& window) {
    std::wstring texts = window.LabelTexts();
    for (const auto& control : window.controls) {
      if (control->kind == ShownKind::kTextBox) texts += control->text;
    }
    return texts;
  }
  std::wstring Kept(const wchar_t* name) { return scene_.Registered(kSettingsKey, name); }

  OrganizeScene scene_;
};

TEST_F(Tip, TheOneOfTheLastTimeShowsAgainAndTheyGoRound) {
  Write("one\r\n\r\nthree\rfour\nlast");
  for (const auto& [kept, shown] : {std::pair(L"", L"Tip 1 of 5\none"),
                                    {L"-3", L"Tip 1 of 5\none"},
                                    {L"99999", L"Tip 1 of 5\none"},
                                    {L"2", L"Tip 2 of 5\n"},
                                    {L"9", L"Tip 5 of 5\nlast"}}) {
    scene_.Register(kSettingsKey, L"CURRTIP", kept);
    Show([shown = shown](ShownWindow& window) { EXPECT_EQ(Shown(window), shown); });
  }
  Show([](ShownWindow& window) {
    window.Click(L"Next >");
    EXPECT_EQ(Shown(window), L"Tip 1 of 5\none");
    window.Click(L"< Previous");
    window.Click(L"< Previous");
    EXPECT_EQ(Shown(window), L"Tip 4 of 5\nfour");
  });
  EXPECT_EQ(Kept(L"CURRTIP"), L"4");
}

TEST_F(Tip, WithoutTipsNothingIsForgotten) {
  scene_.Register(kSettingsKey, L"CURRTIP", L"7");
  for (const bool file : {false, true}) {
    if (file) Write("");
    Show([](ShownWindow& window) {
      for (const wchar_t* button : {L"Next >", L"< Previous"}) {
        window.Click(button);
        EXPECT_EQ(Shown(window), L"Tip 1 of 0\n");
      }
    });
    EXPECT_EQ(Kept(L"CURRTIP"), L"7");
  }
}

TEST_F(Tip, ItOpensWithTheEditorUntilTheUserDoesNotWantIt) {
  scene_.app.ShowTips = true;
  for (int opening = 0; opening < 2; ++opening) {
    scene_.form().Unload();
    if (scene_.app.ShowTips) {
      scene_.machine.user.NextWindow(L"Tip of the Day", [this](ShownWindow& window) {
        EXPECT_EQ(window.owner, scene_.form().Window());
        window.Click(L"Show Tips when opening Organize Folders window");
        window.Click(L"Close");
      });
    }
    scene_.Open();
    scene_.app.Requests.RunAtRest();
    EXPECT_EQ(Kept(L"TIP"), L"0");
  }
}

}  // namespace
}  // namespace burrowmark::test
