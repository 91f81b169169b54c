// No text of a form is cut off, whatever the scale of the screen.
#include <functional>
#include <memory>
#include <vector>

#include "config/frm_properties_config_file.h"
#include "core/application.h"
#include "core/progress.h"
#include "dialogs/frm_add_modify.h"
#include "dialogs/frm_item_exists.h"
#include "dialogs/frm_properties.h"
#include "groups/frm_wizard.h"
#include "options/frm_options.h"
#include "organize/frm_organize.h"
#include "platform/characters.h"
#include "tests/contract/system_under_test.h"
#include "tools/tip.h"
#include "ui/check_box.h"
#include "ui/frame.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kScales[] = {96, 120, 144, 192};

// A form to look at, and how it is made.
struct FormKind {
  std::string name;
  std::function<std::unique_ptr<Form>(Application& app)> make;
};

// All forms whose captions are known when they are made. One line each.
std::vector<FormKind> FormKinds() {
  return {
      {"frmPause", [](Application& app) { return std::make_unique<frmPause>(app); }},
      {"frmOrganize", [](Application& app) { return std::make_unique<frmOrganize>(app); }},
      {"frmItemExists", [](Application& app) { return std::make_unique<frmItemExists>(app); }},
      {"frmProperties", [](Application& app) { return std::make_unique<frmProperties>(app); }},
      {"frmOptions", [](Application& app) { return std::make_unique<frmOptions>(app); }},
      {"frmPropertiesConfigFile", [](Application& app) { return std::make_unique<frmPropertiesConfigFile>(app); }},
      {"frmTip", [](Application& app) { return std::make_unique<frmTip>(app); }},
      {"frmWizard",
       [](Application& app) {
         auto form = std::make_unique<frmWizard>(app);
         form->Init(WizardMode::kPersonal);
         return form;
       }},
      {"frmAddModify",
       [](Application& app) {
         auto form = std::make_unique<frmAddModify>(app);
         form->Init({.Kind = MIT_PATH_SHORTCUT});
         return form;
       }},
  };
}

// Captions that need more room than their controls have, with the scale; a pixel more is nothing that anybody sees.
std::vector<std::string> CutOff(ScreenUnderTest& screen, Form& form) {
  std::vector<std::string> found;
  form.Show();
  for (const std::int32_t dpi : kScales) {
    screen.ChangeScale(form.Window(), dpi);
    for (const Control* control : form.Controls()) {
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
