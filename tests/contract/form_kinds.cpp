#include "tests/contract/form_kinds.h"

#include "config/frm_properties_config_file.h"
#include "core/progress.h"
#include "dialogs/browse_for_folder.h"
#include "dialogs/frm_add_modify.h"
#include "dialogs/frm_item_exists.h"
#include "dialogs/frm_properties.h"
#include "dialogs/new_folder.h"
#include "groups/frm_wizard.h"
#include "options/frm_options.h"
#include "organize/frm_organize.h"
#include "tools/about.h"
#include "tools/frm_folder_report.h"
#include "tools/frm_network_drives.h"
#include "tools/frm_personal_network_info.h"
#include "tools/frm_shortcuts_list.h"
#include "tools/tip.h"

namespace burrowmark {
namespace {

template <typename Kind>
std::unique_ptr<Form> Make(Application& app) {
  return std::make_unique<Kind>(app);
}

template <>
std::unique_ptr<Form> Make<frmAddModify>(Application& app) {
  auto form = std::make_unique<frmAddModify>(app);
  form->Init({.Kind = MIT_PATH_SHORTCUT});
  return form;
}

template <>
std::unique_ptr<Form> Make<frmBrowseFolder>(Application& app) {
  BrowseParameters parameters;
  parameters.IncludeSubfoldersCaption = L"Include subfolders";
  return std::make_unique<frmBrowseFolder>(app, parameters);
}

template <>
std::unique_ptr<Form> Make<frmNewFolder>(Application& app) {
  return std::make_unique<frmNewFolder>(app, L"C:\\");
}

template <>
std::unique_ptr<Form> Make<frmShortcutsList>(Application& app) {
  auto form = std::make_unique<frmShortcutsList>(app);
  form->Init(std::make_shared<clsMenuCollection>(app.platform.clock), {});
  return form;
}

template <>
std::unique_ptr<Form> Make<frmWizard>(Application& app) {
  auto form = std::make_unique<frmWizard>(app);
  form->Init(WizardMode::kPersonal);
  return form;
}

constexpr FormKind kFormKinds[] = {
    {"frmAbout", Make<frmAbout>},
    {"frmAddModify", Make<frmAddModify>},
    {"frmBrowseFolder", Make<frmBrowseFolder>},
    {"frmFolderReport", Make<frmFolderReport>},
    {"frmItemExists", Make<frmItemExists>},
    {"frmNetworkDrives", Make<frmNetworkDrives>},
    {"frmNewFolder", Make<frmNewFolder>},
    {"frmOptions", Make<frmOptions>},
    {"frmOrganize", Make<frmOrganize>},
    {"frmPause", Make<frmPause>},
    {"frmPersonalNetworkInfo", Make<frmPersonalNetworkInfo>},
    {"frmProperties", Make<frmProperties>},
    {"frmPropertiesConfigFile", Make<frmPropertiesConfigFile>},
    {"frmShortcutsList", Make<frmShortcutsList>},
    {"frmTip", Make<frmTip>},
    {"frmWizard", Make<frmWizard>},
};

}  // namespace

std::span<const FormKind> FormKinds() { return kFormKinds; }

}  // namespace burrowmark
