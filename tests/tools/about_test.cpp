// The About box, as the editor's Help menu opens it.
#include <gtest/gtest.h>

#include "core/registry.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark::test {
namespace {

class About : public testing::Test {
 protected:
  About() { scene_.Open(); }
  // Opens it, and closes it after `look` by that key.
  void Show(const std::function<void(ShownWindow&)>& look, std::int32_t closingKey = kKeyCodeEscape) {
    scene_.machine.user.NextWindow(L"About Burrowmark", [&look, closingKey](ShownWindow& window) {
      look(window);
      window.Press(closingKey);
    });
    scene_.Window().ChooseMenu({L"Help", L"About Burrowmark..."});
  }

  OrganizeScene scene_;
  LocalMachine& machine_ = scene_.machine;
};

TEST_F(About, TellsWhereTheProgramAndTheTreeAreAndGoesByEnterAndEsc) {
  for (const std::int32_t key : {kKeyCodeReturn, kKeyCodeEscape}) {
    Show(
        [this](ShownWindow& window) {
          EXPECT_EQ(window.owner, scene_.form().Window());
          for (const std::wstring& path :
               {machine_.facts.GetModuleFileNameA(), scene_.app.MainDocument.CurrentConfigFile}) {
            const ShownControl* box = window.Find(path);
            ASSERT_NE(box, nullptr);
            EXPECT_TRUE(box->readOnly);
          }
        },
        key);
  }
}

// The places are looked at in this order; each row adds one ahead of those before it.
TEST_F(About, SystemInformationIsStartedFromTheFirstPlaceThatHasIt) {
  const auto start = [](ShownWindow& window) { window.Click(L"System Information..."); };
  machine_.user.NextBox(L"System Information is unavailable at this time.", kAnswerOk);
  Show(start);
  clsRegHandler registry(machine_.registry);
  const std::wstring key = L"Software\\Microsoft\\Shared Tools";
  registry.SetKeyValue(RegistryKey::kLocalMachine, key + L"\\MSINFO", L"PATH", L"C:\\first\\info.exe");
  registry.SetKeyValue(RegistryKey::kLocalMachine, key + L" Location", L"MSINFO", L"C:\\second");
  for (const std::wstring& path : {machine_.facts.GetSystemDirectoryA() + L"\\MSINFO32.EXE",
                                   std::wstring(L"C:\\second\\MSINFO32.EXE"), std::wstring(L"C:\\first\\info.exe")}) {
    machine_.AddFile(path);
    Show(start);
    ASSERT_FALSE(machine_.shell.Launches.empty());
    EXPECT_EQ(machine_.shell.Launches.back().file, path);
  }
  machine_.shell.LaunchResult = 2;
  machine_.user.NextBox(L"System Information is unavailable at this time.", kAnswerOk);
  Show(start);
}

}  // namespace
}  // namespace burrowmark::test
