#include "options/frm_options.h"

#include <utility>

#include "core/form_services.h"
#include "core/settings.h"
#include "groups/system_folders.h"
#include "projection/organized_folders.h"

namespace burrowmark {
namespace {

constexpr Size kClient{6960, 6105};

template <typename Name>
std::wstring NameAt(std::size_t index) {
  return SettingName(static_cast<Name>(index));
}

}  // namespace

frmOptions::frmOptions(Application& app)
    : ProgramForm(app, ProgramWindow::kOptions, L"frmOptions", kClient),
      applied_(TakeOptions(app)),
      pages_{
          {picGeneral, tvGeneral, lblInfGeneral, GeneralRows(), app.GC.All(), NameAt<General>,
           L"Use this dialog to adjust general Burrowmark settings."},
          {picAppearance, tvAppearance, lblInfAppearance, AppearanceRows(), app.AC.All(), NameAt<Appearance>,
           L"Use this dialog to adjust Burrowmark appearance."},
          {picAdvanced, tvAdvanced, lblInfAdvanced, AdvancedRows(), app.ADVC.All(), NameAt<Advanced>,
           L"Use this dialog to adjust advanced Burrowmark options and integration with Windows operating system."}} {
  SetCaption(L"Options");
  GoForCommands();
  ConnectPages();
  cmdFinish.SetDefault(true);
  cmdCancel.SetCancel(true);
  cmdFinish.SetToolTipText(L"Accept changes");
  cmdCancel.SetToolTipText(L"Don't accept changes");
  cmdApply.SetToolTipText(L"Apply changes");
  cmdRestore.SetToolTipText(L"Restore default values");
  cmdCloseFO.SetToolTipText(L"Exit and close Burrowmark application");

  SSTab1.Click = [this] { ShowPage(); };
  cmdCloseFO.Click = [this] { ExitProgram(); };
  cmdRestore.Click = [this] { RestoreDefaults(); };
  cmdFinish.Click = [this] {
    if (Accept()) Unload();
  };
  cmdCancel.Click = [this] { Unload(); };
  cmdApply.Click = [this] {
    if (Accept()) cmdApply.SetEnabled(false);
  };
}

void frmOptions::ConnectPages() {
  for (const Page& page : pages_) {
    page.picture.SetBackColor(kColorWindow);  // as the system draws the page of a tab
    page.tree.SetCheckBoxes(true);
    page.tree.NodeCheck = [this, &page](TreeNode& node) { Check(page, node); };
    page.tree.NodeClick = [&page](TreeNode& node) { Describe(page, node); };
    // The system selects a node then, and doesn't tell of it as of a click.
    page.tree.GotFocus = [&page] {
      if (page.tree.SelectedItem() == nullptr) page.tree.SetSelectedItem(page.tree.Item(1));
      Describe(page, *page.tree.SelectedItem());
    };
  }
}

void frmOptions::Init(const Document& document, std::function<void(const OptionSteps& steps)> run) {
  document_ = &document;
  run_ = std::move(run);
}

void frmOptions::Form_Load() {
  CheckOrganizedFoldersExist(app_);
  CopySettings(false);
  for (const Page& page : pages_) FillPage(page);
  ShowChecks();
  cmdApply.SetEnabled(false);
  ShowPage();
}

void frmOptions::Form_Resize() {
  for (const Page& page : pages_) page.picture.SetPlace(SSTab1.AreaBelow());
}

// What was applied is the same by then.
void frmOptions::Form_Unload(bool&) { CopySettings(true); }

// --- what the pages show

// The option of the hot keys isn't there where the system can't watch the keys.
bool frmOptions::IsOffered(const bool& value) const {
  return !app_.Os.NoLowLevelHook || &value != &app_.ADVC[Advanced::kHotKeys];
}

void frmOptions::FillPage(const Page& page) {
  page.tree.Clear();
  for (std::size_t i = 0; i < page.rows.size(); ++i) {
    if (!IsOffered(page.values[i])) continue;
    page.tree.Add(nullptr, TreeRelation::kChild, page.name(i), page.rows[i].caption);
  }
}

void frmOptions::ShowChecks() {
  for (const Page& page : pages_) {
    for (std::size_t i = 0; i < page.rows.size(); ++i) {
      if (TreeNode* node = page.tree.Find(page.name(i))) node->SetChecked(page.values[i]);
    }
  }
}

void frmOptions::ShowPage() {
  const Page& shown = pages_[SSTab1.SelectedTab() - 1];
  shown.picture.SetVisible(true);
  for (const Page& page : pages_) {
    if (page.tree.HasFocus() && &page != &shown) shown.tree.SetFocus();
  }
  for (const Page& page : pages_) {
    page.picture.SetVisible(&page == &shown);
    page.label.SetCaption(page.description);
  }
}

std::size_t frmOptions::IndexOf(const Page& page, const TreeNode& node) {
  std::size_t index = 0;
  while (page.name(index) != node.Key()) ++index;
  return index;
}

void frmOptions::Describe(const Page& page, const TreeNode& node) {
  page.label.SetCaption(page.rows[IndexOf(page, node)].description);
}

void frmOptions::Check(const Page& page, TreeNode& node) {
  page.values[IndexOf(page, node)] = node.Checked();
  cmdApply.SetEnabled(true);
  page.tree.SetSelectedItem(&node);
  Describe(page, node);
}

// --- what becomes of it

void frmOptions::CopySettings(bool Restore) {
  if (Restore) {
    PutOptions(app_, applied_);
  } else {
    applied_ = TakeOptions(app_);
  }
}

void frmOptions::RestoreDefaults() {
  for (const Page& page : pages_) {
    for (std::size_t i = 0; i < page.rows.size(); ++i) {
      if (IsOffered(page.values[i])) page.values[i] = page.rows[i].recommended;
    }
  }
  ShowChecks();
  cmdApply.SetEnabled(true);
}

// False: the user wants to think about it.
bool frmOptions::Accept() {
  if (!MayRemoveUsersItems()) return false;
  const Hourglass busy(*this);
  ApplyChanges();
  SaveSettings(app_);
  CopySettings(false);
  ShowChecks();  // an option may have gone off by itself
  return true;
}

// No keeps the group. False: nothing shall be applied.
bool frmOptions::MayRemoveUsersItems() {
  const bool goes = applied_.AC[Appearance::kSystemFolders] && !app_.AC[Appearance::kSystemFolders];
  if (!goes || !HoldsUsersItems(app_, *document_->Store)) return true;
  const std::int32_t answer = app_.platform.dialogs.MessageBoxA(Window(), DeleteGroupQuestion(L"System Folders"),
                                                                L"Burrowmark", kBoxYesNoCancel | kBoxWarning);
  if (answer == kAnswerNo) app_.AC[Appearance::kSystemFolders] = true;
  return answer != kAnswerCancel;
}

void frmOptions::ApplyChanges() {
  const OptionValues wanted = TakeOptions(app_);
  const bool watches = wanted.ADVC[Advanced::kHotKeys];
  if (watches != applied_.ADVC[Advanced::kHotKeys]) {
    if (app_.Calls.WatchHotKeys) app_.Calls.WatchHotKeys(watches);
    Changed = true;
  }
  const OptionSteps steps = StepsBetween(applied_, wanted);
  if (steps.None()) return;
  run_(steps);
  Changed = true;
}

void frmOptions::ExitProgram() {
  const std::int32_t answer =
      app_.platform.dialogs.MessageBoxA(Window(), L"Are you sure you want to exit and close Burrowmark?",
                                        L"Exit Burrowmark", kBoxYesNoCancel | kBoxWarning);
  if (answer != kAnswerYes) return;
  app_.Requests.EndProgram();
  Unload();
}

bool ShowOptionsOfMenu(Application& app) {
  frmOptions dialog(app);
  dialog.Init(app.MainDocument, [&](const OptionSteps& steps) { RunOptionStepsOnMenu(app, steps, dialog); });
  dialog.Show(Modal, app.MainWindow);
  return dialog.Changed;
}

}  // namespace burrowmark
