// No text of a form is cut off, whatever the scale of the screen.
#include <memory>
#include <vector>

#include "platform/characters.h"
#include "tests/contract/form_kinds.h"
#include "tests/contract/system_under_test.h"
#include "ui/check_box.h"
#include "ui/command_button.h"
#include "ui/frame.h"
#include "ui/label.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kScales[] = {96, 120, 144, 192};

// Captions that need more room than their controls have, with the scale; a pixel more is nothing that anybody sees.
std::vector<std::string> CutOff(ScreenUnderTest& screen, Form& form) {
  std::vector<std::string> found;
  form.Show();
  for (const std::int32_t dpi : kScales) {
    screen.ChangeScale(form.Window(), dpi);
    for (const Control* control : form.Controls()) {
      if (control->Place() == Box{}) continue;  // a name for screen readers alone
      const Size needed = control->NeededSize();
      const bool wide = ToPixels(needed.width, dpi) > ToPixels(control->Place().width, dpi) + 1;
      const bool high = ToPixels(needed.height, dpi) > ToPixels(control->Place().height, dpi) + 1;
      if (wide || high) found.push_back(ToUtf8(control->Name()) + " at " + std::to_string(dpi));
    }
  }
  form.Unload();
  return found;
}

class NarrowForm final : public Form {
 public:
  explicit NarrowForm(WindowSystem& windows) : Form(windows, L"frmNarrow", Size{6000, 3000}) {}

  Label lblNarrow{*this, L"lblNarrow", Box{150, 450, 600, 255}, L"A text of many words in one line"};
  Frame fraFits{*this, L"fraFits", Box{150, 1950, 3000, 900}, L"&Frame"};
  CheckBox chkNarrow{fraFits, L"chkNarrow", Box{150, 300, 700, 255}, L"Check everything"};
  CommandButton cmdNarrow{*this, L"cmdNarrow", Box{3300, 1950, 600, 375}, L"Press here"};
};

class FitContract : public ContractTest {
 protected:
  Application app_{platform_};
};

TEST_F(FitContract, NoCaptionIsCutOff) {
  for (const FormKind& kind : FormKinds()) {
    SCOPED_TRACE(kind.name);
    const std::unique_ptr<Form> form = kind.make(app_);
    EXPECT_EQ(CutOff(system_->screen(), *form), std::vector<std::string>());
  }
}

TEST_F(FitContract, ACaptionThatIsCutOffIsFound) {
  NarrowForm form(platform_.windows);
  std::vector<std::string> expected;
  for (const std::int32_t dpi : kScales) {
    for (const char* name : {"lblNarrow", "chkNarrow", "cmdNarrow"}) {
      expected.push_back(std::string(name) + " at " + std::to_string(dpi));
    }
  }
  EXPECT_EQ(CutOff(system_->screen(), form), expected);
}

}  // namespace
}  // namespace burrowmark
