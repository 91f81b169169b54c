#include "organize/frm_organize.h"

#include <utility>

#include "config/config_file.h"
#include "core/file_names.h"
#include "core/form_state.h"
#include "core/hot_keys.h"
#include "core/services.h"
#include "core/store_copy.h"
#include "core/text.h"
#include "groups/drives.h"
#include "organize/node_keys.h"
#include "platform/key_codes.h"
#include "tools/tip.h"

namespace burrowmark {
namespace {

constexpr Size kDesign{12000, 8000};
constexpr wchar_t kTitle[] = L"Organize Folders";
constexpr wchar_t kMessageTitle[] = L"Burrowmark";
constexpr std::int32_t kIcon = 7;  // "Organize Folders" in the menu

std::vector<ToolbarButtonState> ToolbarButtons() {
  ToolbarButtonState properties = ToolbarButton(L"keyProperties", L"", 9);
  properties.style = ToolbarButtonStyle::kDropDown;
  properties.menu = {{L"keyProperties1", L"Shortcut"}, {L"keyProperties2", L"Target Location"}};
  return {ToolbarButton(L"keyNew", L"", 1),
          ToolbarButton(L"keyChange", L"", 2),
          ToolbarButton(L"keyUp", L"", 3),
          ToolbarSeparator(),
          ToolbarButton(L"keyWindowsExplorer", L"", 4),
          ToolbarSeparator(),
          ToolbarButton(L"keyCut", L"", 5),
          ToolbarButton(L"keyCopy", L"", 6),
          ToolbarButton(L"keyPaste", L"", 7),
          ToolbarButton(L"keyDelete", L"", 8),
          ToolbarSeparator(),
          std::move(properties)};
}

// The window may have gone by then.
void ShowTip(Application& app) {
  const OpenWindow* editor = app.Windows.Find(ProgramWindow::kOrganize);
  if (editor != nullptr) frmTip(app).Show(Modal, editor->Handle());
}

}  // namespace

frmOrganize::frmOrganize(Application& app)
    : ProgramForm(app, ProgramWindow::kOrganize, L"frmOrganize", kDesign),
      optionsOfMenu_(TakeOptions(app)),
      tlbMain(*this, L"tlbMain", ToolbarButtons()),
      menus_(*this, MenuRows()) {
  SetBorder(FormBorder::kSizable);
  SetCaption(kTitle);
  SetIcon(kIcon);
  SetKeyPreview(true);
  ConnectPanes();
  ConnectLabels();
  ConnectBars();
  ConnectMenus();
  AddAlwaysOnTopItem();
}

Size frmOrganize::FirstSize() const {
  const Size screen = ScreenSize(app_);
  return {screen.width * 4 / 5, screen.height * 4 / 5};
}

void frmOrganize::Form_Load() {
  LoadLayout();
  AdoptDefaultFile();
  Edited = app_.MainDocument;
  Edited.Store = std::make_shared<clsMenuCollection>(app_.platform.clock);
  CopyStore(app_.platform.clock, app_.MainStore(), *Edited.Store);
  RefreshDefaultCommands();
  SetFormCaption();
  RefreshViews({}, true);
  StayOnTop(false);
  RefreshHotKeys(app_, WorkCollection());
  optionsOfMenu_ = TakeOptions(app_);
  FirstActivate_ = true;
}

// A file that has come to the place where the menu's tree belongs is what the user wants there. One that can't be read
// is kept under another name.
void frmOrganize::AdoptDefaultFile() {
  Document& document = app_.MainDocument;
  const bool madeUp = document.Content == FileContent::kNone || document.Content == FileContent::kUnreadable;
  if (madeUp && FileExists(app_.platform.files, document.CurrentConfigFile) && TakeDefaultFile()) return;
  if (document.Content != FileContent::kNone) KeepOldFile(app_, document);
}

void frmOrganize::Form_Activate() {
  if (!std::exchange(FirstActivate_, false)) return;
  const std::wstring notice = std::exchange(app_.MainDocument.Notice, {});
  if (!notice.empty()) {
    app_.Requests.Add([&app = app_, notice] {
      app.platform.dialogs.MessageBoxA(app.MainWindow, notice, kMessageTitle, kBoxWarning);
    });
  }
  if (app_.ShowTips) app_.Requests.Add([&app = app_] { ShowTip(app); });
}

bool frmOrganize::InGesture() const {
  return tree_.View.EditedNode() != nullptr || list_.View.EditedItem() != nullptr || splitter_.Dragging() ||
         drag_.SourcePane >= 0;
}

void frmOrganize::CancelGesture() {
  tree_.View.CancelLabelEdit();
  list_.View.CancelLabelEdit();
  splitter_.CancelDrag();
}

void frmOrganize::Init(const std::wstring& Command) {
  constexpr std::wstring_view kAdd = L"/ADD";
  constexpr std::wstring_view kOpen = L"/OPEN";
  const std::wstring command = Trim(Command);
  if (command.starts_with(kAdd)) {
    NewItemInGroup(GroupForAdding(), MIT_PATH_EXPLORER, PathArgument(command.substr(kAdd.size())));
  } else if (command.starts_with(kOpen)) {
    OpenConfigFile(PathArgument(command.substr(kOpen.size())));
  }
}

void frmOrganize::SetFormCaption() {
  SetCaption(EditsDefaultFile() ? kTitle : kTitle + (L" - " + GetFileName(Edited.CurrentConfigFile)));
}

void frmOrganize::Form_KeyDown(std::int32_t& KeyCode, std::int32_t Shift) {
  if (KeyCode != kKeyCodeF6 || Shift != 0) return;
  KeyCode = 0;
  tree_.View.HasFocus() ? list_.View.SetFocus() : tree_.View.SetFocus();
}

}  // namespace burrowmark
