// What File, Information shows and writes.
#include <gtest/gtest.h>

#include "config/config_file.h"
#include "platform/key_codes.h"
#include "tests/organize/organize_scene.h"

namespace burrowmark {
namespace {

constexpr wchar_t kFile[] = L"C:\\default.bwmk";

class Information : public testing::Test {
 protected:
  Information() {
    app_.MainDocument.Summary.SummaryTitle = L"Old title";
    scene_.Open();
  }
  void Show(const std::function<void(ShownWindow&)>& script) {
    machine_.user.NextWindow(L"Information", script);
    scene_.Window().ChooseMenu({L"File", L"Information..."});
  }
  static void TypeTitle(ShownWindow& window, const std::wstring& text) {
    ChooseTab(window, 1);
    window.PressAlt(L't');
    window.Type(text);
  }
  static void ChooseTab(ShownWindow& window, std::int32_t tab) {
    for (const auto& control : window.controls) {
      if (control->kind == ShownKind::kTabStrip) return window.Choose(control->window, tab);
    }
  }
  std::wstring TitleInFile() {
    return ConfigFileRead(app_, kFile).value_or(OpenedConfig{}).document.Summary.SummaryTitle;
  }

  test::OrganizeScene scene_;
  LocalMachine& machine_ = scene_.machine;
  Application& app_ = scene_.app;
};

TEST_F(Information, TheFileIsShownInItsSizeAndWithItsAttributes) {
  for (const auto& [size, text] :
       {std::pair(512U, L".5 KB (512 bytes)"), std::pair(1048575U, L"1024.0 KB (1,048,575 bytes)"),
        std::pair(1048576U, L"1.0 MB (1,048,576 bytes)")}) {
    machine_.AddFile(kFile, std::string(size, 'x'));
    machine_.files.SetFileAttributesA(kFile, kFileReadOnly | kFileSystem);
    Show([&, text = std::wstring(text)](ShownWindow& window) {
      EXPECT_TRUE(window.LabelTexts().starts_with(
          L"default.bwmk\nType:\nBurrowmark Configuration File\nLocation:\nC:\\\nSize:\n" + text +
          L"\nMS-DOS name:\ndefault.bwmk\nCreated:\n"));
      for (const auto& [name, on] : {std::pair(L"Read-only", true), std::pair(L"Hidden", false),
                                     std::pair(L"Archive", false), std::pair(L"System", true)}) {
        EXPECT_EQ(window.Find(name)->check == CheckValue::kChecked, on) << ::testing::PrintToString(std::wstring(name));
        EXPECT_FALSE(window.Find(name)->enabled);
      }
      window.Press(kKeyCodeEscape);
    });
  }
}

TEST_F(Information, TheTreeIsCounted) {
  Show([](ShownWindow& window) {
    ChooseTab(window, 2);
    std::wstring values;
    for (const auto& control : window.controls) {
      if (control->kind != ShownKind::kListView) continue;
      for (const auto& row : control->list->rows) values += row.texts.at(0) + L"=" + row.texts.at(1) + L"|";
    }
    EXPECT_EQ(
        values,
        L"Number of shortcuts=3|Number of Folder Shortcuts=2|Number of Windows Explorer Shortcuts=1|Number of "
        L"Open-All shortcuts=0|Number of groups=3|Show System Folders group=No|Show Drives group in menu=Yes|Show "
        L"Help in menu=Yes|Show Options in menu=Yes|");
    window.Close();
  });
}

TEST_F(Information, EveryEndButCancelWritesWhatWasChangedAndNothingElseIsWritten) {
  const std::string before = machine_.BytesOf(kFile);
  Show([](ShownWindow& window) { window.Click(L"OK"); });
  Show([](ShownWindow& window) {
    TypeTitle(window, L"Unwanted");
    window.Click(L"Cancel");
  });
  EXPECT_EQ(machine_.BytesOf(kFile), before);
  using End = void (*)(ShownWindow&);
  for (const auto& [text, end] : {std::pair(L"By OK", End([](ShownWindow& window) { window.Click(L"OK"); })),
                                  std::pair(L"By Esc", End([](ShownWindow& window) { window.Press(kKeyCodeEscape); })),
                                  std::pair(L"By the cross", End([](ShownWindow& window) { window.Close(); }))}) {
    Show([text = std::wstring(text), end = end](ShownWindow& window) {
      TypeTitle(window, text);
      end(window);
    });
    EXPECT_EQ(TitleInFile(), text);
    EXPECT_EQ(app_.MainDocument.Summary.SummaryTitle, text) << "the menu's next save would bring the old one back";
  }
  EXPECT_FALSE(scene_.form().Edited.Changed);
}

TEST_F(Information, TextsThatCannotBeWrittenAreKept) {
  machine_.files.SetFileAttributesA(kFile, kFileReadOnly);
  machine_.user.NextBox(L"default.bwmk", kAnswerOk);
  Show([](ShownWindow& window) {
    TypeTitle(window, L"New title");
    window.Click(L"OK");
  });
  EXPECT_EQ(TitleInFile(), L"Old title");
  EXPECT_TRUE(scene_.form().Edited.Changed);
  machine_.files.SetFileAttributesA(kFile, 0);
  machine_.files.DeleteFileA(kFile);
  machine_.user.NextBox(L"File C:\\default.bwmk doesn't exist.", kAnswerOk);
  Show([](ShownWindow& window) {
    EXPECT_TRUE(window.LabelTexts().starts_with(L"\nType:\n"));
    EXPECT_NE(window.Find(L"New title"), nullptr);
    window.Close();
  });
  EXPECT_FALSE(machine_.files.FileExists(kFile));
}

}  // namespace
}  // namespace burrowmark
