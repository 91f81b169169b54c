// The Options dialog over the menu's tree and over the editor's, and what follows from its check marks.
#include <gtest/gtest.h>

#include "core/registry_keys.h"
#include "core/settings.h"
#include "groups/system_folders.h"
#include "options/frm_options.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark {
namespace {

constexpr const wchar_t* kStepNames[] = {L"-Help",      L"+Help",      L"-Options", L"+Options", L"-System", L"+System",
                                         L"-Drives",    L"+Drives",    L"-Desktop", L"+Desktop", L"-SendTo", L"+SendTo",
                                         L"-Favorites", L"+Favorites", L"-Verbs",   L"+Verbs"};

std::wstring TextOf(const OptionSteps& steps) {
  std::wstring text;
  for (std::size_t i = 0; i < std::size(kStepNames); ++i) {
    if (steps.Has(static_cast<OptionStep>(i))) text += kStepNames[i];
  }
  return text;
}

bool& ValueOf(OptionValues& values, const std::wstring& name) {
  const std::size_t index = static_cast<std::size_t>(name.back() - L'0');
  if (name.starts_with(L"GC")) return values.GC.All()[index];
  return name.starts_with(L"ADVC") ? values.ADVC.All()[index] : values.AC.All()[index];
}

TEST(OptionStepsTable, EachOptionLeadsToItsOwnStepsInOrder) {
  const struct {
    std::vector<std::wstring> names;  // those that change; the last rows together
    std::vector<std::wstring> on;     // beside them
    const wchar_t* goOn;
    const wchar_t* goOff;
  } rows[] = {
      {{L"GC0"}, {}, L"", L""},
      {{L"GC1"}, {}, L"", L""},
      {{L"GC2"}, {}, L"", L""},
      {{L"AC0"}, {}, L"+System", L"-System"},
      {{L"AC1"}, {}, L"+Drives", L"-Drives"},
      {{L"AC2"}, {}, L"+Help", L"-Help"},
      {{L"AC3"}, {}, L"+Options", L"-Options"},
      {{L"AC4"}, {L"AC0", L"ADVC2"}, L"", L""},
      {{L"AC5"}, {}, L"", L""},
      {{L"AC5"}, {L"AC0", L"ADVC3"}, L"-System+System-SendTo+SendTo", L"-System+System-SendTo+SendTo"},
      {{L"AC6"}, {}, L"", L""},
      {{L"ADVC0"}, {}, L"", L""},
      {{L"ADVC1"}, {}, L"+Verbs", L"-Verbs"},
      {{L"ADVC2"}, {}, L"+Desktop", L"-Desktop"},
      {{L"ADVC3"}, {}, L"+SendTo", L"-SendTo"},
      {{L"ADVC4"}, {}, L"+Favorites", L"-Favorites"},
      {{L"ADVC5"}, {L"AC0", L"ADVC4"}, L"-Favorites+Favorites", L"-Favorites+Favorites"},
      {{L"ADVC6"}, {L"ADVC2"}, L"", L""},
      {{L"ADVC7"}, {}, L"", L""},
      {{L"ADVC1", L"ADVC2", L"AC1", L"AC0", L"AC5", L"AC3", L"AC2"},
       {},
       L"+Help+Options-System+System+Drives-Desktop+Desktop+Verbs",
       L"-Help-Options-System-Drives-Desktop-Verbs"},
  };
  for (const auto& row : rows) {
    OptionValues off{SettingValues<General>(false), SettingValues<Appearance>(false), SettingValues<Advanced>(false)};
    for (const std::wstring& name : row.on) ValueOf(off, name) = true;
    OptionValues on = off;
    for (const std::wstring& name : row.names) ValueOf(on, name) = true;
    EXPECT_EQ(TextOf(StepsBetween(off, on)), row.goOn);
    EXPECT_EQ(TextOf(StepsBetween(on, off)), row.goOff);
  }
}

using Script = std::function<void(ShownWindow&)>;

class Options : public testing::Test, protected test::OrganizeScene {
 protected:
  Options() {
    app.WindowsFolder = L"C:\\Windows";
    app.AppCommand = L"\"C:\\b.exe\"";
    InitOrganizedFoldersPaths(app);
    app.Calls.ShowOptions = [this] { return ShowOptionsOfMenu(app); };
    app.Calls.WatchHotKeys = [this](bool on) { watched_ += on ? L"on " : L"off "; };
  }
  void FromMenu(const Script& script) {
    machine.user.NextWindow(L"Options", script);
    Choose({L"Options"});
  }
  void FromEditor(const Script& script) {
    machine.user.NextWindow(L"Options", script);
    Window().ChooseMenu({L"File", L"Options..."});
  }
  static ShownControl& Shown(ShownWindow& window, ShownKind kind) {
    for (const auto& control : window.controls) {
      if (control->kind == kind && window.CanBeUsed(*control)) return *control;
    }
    throw std::logic_error("no such control");
  }
  static void Tab(ShownWindow& window, std::int32_t tab) {
    window.Choose(Shown(window, ShownKind::kTabStrip).window, tab);
  }
  static void Check(ShownWindow& window, std::int32_t tab, const wchar_t* caption) {
    Tab(window, tab);
    window.CheckNode(Shown(window, ShownKind::kTreeView).window, caption);
  }
  std::wstring Setting(const wchar_t* name) { return Registered(kSettingsKey, name); }

  std::wstring watched_;
};

enum : std::int32_t { kGeneral, kAppearance, kAdvanced };
constexpr wchar_t kHelp[] = L"Show Help";
constexpr wchar_t kSystem[] = L"Show System Folders";
constexpr wchar_t kImportant[] = L"Show more important system shortcuts before the others";
constexpr wchar_t kDesktop[] = L"Show Organized Folders on Desktop";
constexpr wchar_t kQuestion[] = L"Do you want to delete System Folders group?";

TEST_F(Options, EveryWayOutButOkTakesBackWhatWasNotApplied) {
  bool ended = false;
  app.Requests.End = [&] { ended = true; };
  const Script ways[] = {[](ShownWindow& window) { window.Click(L"Cancel"); },
                         [](ShownWindow& window) { window.Press(kKeyCodeEscape); },
                         [](ShownWindow& window) { window.Close(); },
                         [&](ShownWindow& window) {
                           machine.user.NextBox(L"Are you sure you want to exit and close Burrowmark?", kAnswerNo);
                           window.Click(L"Exit");
                           EXPECT_TRUE(window.IsOpen());
                           machine.user.NextBox(L"Are you sure you want to exit and close Burrowmark?", kAnswerYes);
                           window.Click(L"Exit");
                         }};
  for (const Script& way : ways) {
    FromMenu([&](ShownWindow& window) {
      EXPECT_FALSE(window.Find(L"Apply")->enabled);
      window.Click(L"Default");
      Check(window, kGeneral, L"Ask before deleting items");
      EXPECT_FALSE(app.GC[General::kAskBeforeDeleting]);  // at once
      EXPECT_TRUE(app.ADVC[Advanced::kOnDesktop] && window.Find(L"Apply")->enabled);
      way(window);
    });
    EXPECT_TRUE(app.GC[General::kAskBeforeDeleting]);
    EXPECT_FALSE(app.ADVC[Advanced::kOnDesktop] || app.AC[Appearance::kSystemFolders]);
    EXPECT_EQ(Setting(L"GC0") + watched_, L"");
  }
  EXPECT_TRUE(ended);
}

TEST_F(Options, DefaultAndOkBringWhatIsRecommended) {
  for (const bool canWatch : {false, true}) {
    app.Os.NoLowLevelHook = !canWatch;
    FromMenu([&](ShownWindow& window) {
      Tab(window, kAdvanced);
      EXPECT_EQ(Shown(window, ShownKind::kTreeView).tree->top.children.size(), canWatch ? 8U : 7U);
      window.Click(L"Default");
      window.Click(L"OK");
    });
    EXPECT_EQ(watched_, canWatch ? L"on " : L"");
  }
  for (const wchar_t* name : {L"GC2", L"AC0", L"AC6", L"ADVC0", L"ADVC3", L"ADVC7"}) EXPECT_EQ(Setting(name), L"-1");
  EXPECT_EQ(Setting(L"ADVC4") + Setting(L"ADVC5"), L"00");
  EXPECT_EQ(Registered(kRunKey, kRunValue), L"\"C:\\b.exe\"");
  for (const ProjectionTarget& target : kProjectionTargets) {
    EXPECT_EQ(OrganizedFoldersExist(app, target), app.ADVC[target.option]);
  }
  EXPECT_NE(NativeTexts().find(L"Personal[Alpha[Inner] Beta Gamma] System Folders["), std::wstring::npos);
}

TEST_F(Options, ApplyFollowsAtOnceAlsoWhereTheRegistryRefuses) {
  machine.faults.RefusedKeys = {L"HKEY_CURRENT_USER\\SOFTWARE"};
  FromMenu([&](ShownWindow& window) {
    for (const wchar_t* caption : {kHelp, L"Show Options", L"Show Drives"}) Check(window, kAppearance, caption);
    EXPECT_NE(window.LabelTexts().find(L"Specifies whether to display Drives group, or not. If"), std::wstring::npos);
    Tab(window, kGeneral);
    EXPECT_NE(window.LabelTexts().find(L"adjust general Burrowmark settings."), std::wstring::npos);
    window.Click(L"Apply");
    EXPECT_EQ(NativeTexts(), L"Personal[Alpha[Inner] Beta Gamma] - Organize Folders");
    EXPECT_FALSE(window.Find(L"Apply")->enabled);
    Check(window, kAppearance, kHelp);
    window.Close();
  });
  EXPECT_FALSE(app.AC[Appearance::kHelp]);
  EXPECT_EQ(Setting(L"AC2"), L"");
}

TEST_F(Options, SystemFoldersAreMadeAnewAroundWhatTheUserPutThere) {
  FromMenu([&](ShownWindow& window) {
    Check(window, kAppearance, kSystem);
    window.Click(L"OK");
  });
  AddShortcut(L"mine", L"Mine", L"C:\\Mine", MIT_PATHS_SYSTEM_P);
  app.MainStore().CaptionExists2(L"Desktop", MIT_PATHS_SYSTEM, false, L"")->KeyboardCode = 54;
  FromMenu([&](ShownWindow& window) {
    Check(window, kAppearance, kImportant);
    window.Click(L"Apply");
    EXPECT_EQ(test::TitlesUnder(app.MainStore(), MIT_PATHS_SYSTEM), L"All Users Personal Windows");
    EXPECT_NE(test::TitlesUnder(app.MainStore(), MIT_PATHS_SYSTEM_P).find(L" Mine "), std::wstring::npos);
    EXPECT_EQ(app.MainStore().CaptionExists2(L"Desktop", MIT_PATHS_SYSTEM_P, false, L"")->KeyboardCode, 54);
    EXPECT_NE(machine.BytesOf(app.ConfigFile).find("Mine"), std::string::npos);  // a start reads them so
    for (const std::int32_t answer : {kAnswerCancel, kAnswerNo, kAnswerYes}) {
      EXPECT_TRUE(app.MainStore().ItemExists(L"mine"));
      if (app.AC[Appearance::kSystemFolders]) Check(window, kAppearance, kSystem);
      machine.user.NextBox(kQuestion, answer);
      window.Click(L"Apply");
      EXPECT_EQ(app.AC[Appearance::kSystemFolders], answer == kAnswerNo);
    }
    window.Close();
  });
  EXPECT_FALSE(app.MainStore().ItemExists(MIT_PATHS_SYSTEM));
}

TEST_F(Options, AFolderOfSomebodyElsesIsKeptAndTheOptionGoesOff) {
  machine.AddFile(app.OrganizedFoldersDesktop + L"\\letter.txt");
  FromMenu([&](ShownWindow& window) {
    Check(window, kAdvanced, kDesktop);
    machine.user.NextBox(L"isn't Burrowmark's", kAnswerNo, [this] {
      EXPECT_EQ(machine.user.Window(L"Saving Changes...").LabelTexts(),
                L"Saving Organized Folders on the Desktop...\n");
    });
    window.Click(L"Apply");
    EXPECT_FALSE(Shown(window, ShownKind::kTreeView).tree->Find(kDesktop)->checked);
    window.Click(L"OK");
  });
  EXPECT_EQ(Setting(L"ADVC2"), L"0");
  EXPECT_TRUE(machine.files.FileExists(app.OrganizedFoldersDesktop + L"\\letter.txt"));
}

TEST_F(Options, TheEditorsTreeFollowsAndTheMenuWhenItsEditsAreDiscarded) {
  Open();
  form().EditTree(L"New", [](TreeEdit& edit) {
    edit.AddNew({.Caption = L"New", .OwnerName = MIT_GROUP_USER, .FolderPath = L"C:\\Beta"});
  });
  FromEditor([&](ShownWindow& window) {
    Check(window, kAppearance, kSystem);
    Check(window, kAppearance, kHelp);
    Check(window, kAdvanced, kDesktop);
    window.Click(L"OK");
  });
  EXPECT_NE(Nodes().find(L"|1 System Folders|"), std::wstring::npos);
  EXPECT_TRUE(machine.files.FileExists(app.OrganizedFoldersDesktop + L"\\New.lnk") &&
              app.AC[Appearance::kHelp] == false);
  Window().Press(L'Z', kCtrlMask);  // all of it is one step
  EXPECT_EQ(Nodes(), L"0 Organized Folders|1 Personal|2 Alpha|3 Inner|2 Beta|2 Gamma|2 New|1 Drives");
  EXPECT_TRUE(app.AC[Appearance::kHelp] && !app.AC[Appearance::kSystemFolders]);
  FromEditor([&](ShownWindow& window) {
    Check(window, kAppearance, kSystem);
    window.Click(L"OK");
  });
  machine.user.NextBox(L"exit and lose any changes", kAnswerYes);
  Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_NE(NativeTexts().find(L"Help - Personal[Alpha[Inner] Beta Gamma] System Folders["), std::wstring::npos);
  EXPECT_FALSE(machine.files.FileExists(app.OrganizedFoldersDesktop + L"\\New.lnk"));
  EXPECT_TRUE(machine.files.FileExists(app.OrganizedFoldersDesktop + L"\\Beta.lnk"));
}

TEST_F(Options, ADeletedGroupComesBackByDiscardingUnlessTheDialogChoseOtherwise) {
  Open();
  Window().ClickNode(Tree(), L"Drives");
  machine.user.NextBox(L"Do you want to delete Drives group?", kAnswerYes);
  Window().Press(kKeyCodeDelete);
  FromEditor([&](ShownWindow& window) {
    Check(window, kAppearance, kSystem);
    window.Click(L"OK");
  });
  machine.user.NextBox(L"exit and lose any changes", kAnswerYes);
  Window().ChooseMenu({L"File", L"Exit Discarding Changes"});
  EXPECT_TRUE(app.AC[Appearance::kDrives] && app.AC[Appearance::kSystemFolders]);
  EXPECT_NE(NativeTexts().find(L"System Folders["), std::wstring::npos);
  EXPECT_NE(NativeTexts().find(L"Drives["), std::wstring::npos);
}

}  // namespace
}  // namespace burrowmark
