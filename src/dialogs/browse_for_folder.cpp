#include "dialogs/browse_for_folder.h"

#include <algorithm>

#include "core/file_names.h"
#include "core/folder_tests.h"
#include "dialogs/new_folder.h"
#include "platform/drive_letter.h"

namespace burrowmark {
namespace {

constexpr Size kClient{5700, 6300};
constexpr std::int32_t kEdge = 180;  // around everything
constexpr std::int32_t kGap = 120;
constexpr std::int32_t kTextHeight = 240;
constexpr std::int32_t kBoxHeight = 315;
constexpr std::int32_t kLabelWidth = 840;
constexpr Size kButton{1215, 375};
constexpr std::int32_t kPause = 400;  // milliseconds without a key, after which what was typed is looked for
constexpr std::int32_t kProgramIcon = 1;
constexpr wchar_t kMissing[] = L"The specified path does not exist.\r\nCheck the path, and try again.";
constexpr wchar_t kNewFolderTip[] = L"Creates a new folder in the currently selected directory";

std::wstring TextOr(const std::wstring& text, const wchar_t* usual) { return text.empty() ? usual : text; }

std::wstring WithMnemonic(const std::wstring& caption) {
  return caption.empty() || caption.find(L'&') != std::wstring::npos ? caption : L"&" + caption;
}

Size NeededBy(const Control& control) { return control.NeededSize(); }

// One way to write a path: a drive is its root, and nothing else ends in a backslash.
std::wstring CleanFolder(const std::wstring& text) {
  std::wstring path = PathArgument(text);
  std::replace(path.begin(), path.end(), L'/', L'\\');
  if (const auto letter = DriveLetter(path)) return {*letter, L':', L'\\'};
  path.resize(path.find_last_not_of(L'\\') + 1);
  return path.ends_with(L':') ? path + L"\\" : path;
}

// The name of a server of which nobody knows whether it ends there.
bool IsHalfTyped(const std::wstring& text) {
  const std::wstring path = PathArgument(text);
  return path.starts_with(L"\\\\") && path.find_first_of(L"\\/", 2) == std::wstring::npos;
}

}  // namespace

frmBrowseFolder::frmBrowseFolder(Application& app, const BrowseParameters& parameters)
    : ProgramForm(app, ProgramWindow::kBrowseFolder, L"frmBrowseFolder", kClient),
      start_(CleanFolder(parameters.StartFolder)) {
  SetBorder(FormBorder::kSizable);
  SetIcon(kProgramIcon);
  SetCaption(TextOr(parameters.Title, L"Browse for Folder"));
  lblPrompt.SetCaption(TextOr(parameters.Prompt, L"Select a folder"));
  lblPrompt.SetUseMnemonic(false);
  cmdOK.SetCaption(TextOr(parameters.OkCaption, L"OK"));
  cmdCancel.SetCaption(TextOr(parameters.CancelCaption, L"Cancel"));
  cmdNewFolder.SetCaption(WithMnemonic(TextOr(parameters.NewFolderCaption, L"New Folder")));
  cmdNewFolder.SetToolTipText(kNewFolderTip);
  chkSubfolders.SetVisible(!parameters.IncludeSubfoldersCaption.empty());
  chkSubfolders.SetCaption(WithMnemonic(parameters.IncludeSubfoldersCaption));
  chkSubfolders.SetValue(parameters.IncludeSubfolders ? kChecked : kUnchecked);

  cmdOK.SetDefault(true);
  cmdCancel.SetCancel(true);
  cmdOK.Click = [this] { Accept(); };
  cmdCancel.Click = [this] { Unload(); };
  cmdNewFolder.Click = [this] { MakeFolder(); };
  tree_.FolderChosen = [this](const std::wstring& path) { ShowFolder(path); };
  tmrTyped.SetInterval(kPause);
  tmrTyped.Tick = [this] { LookForTyped(); };
  txtFolder.LostFocus = [this] {
    if (tmrTyped.Enabled()) LookForTyped();
  };
  txtFolder.Change = [this] {
    if (showing_) return;
    tree_.Stay();
    tmrTyped.SetEnabled(false);
    tmrTyped.SetEnabled(true);
  };
}

void frmBrowseFolder::Form_Load() {
  ShowFolder(start_);
  tree_.GoTo(start_);
  tree_.ReadDrives();
}

// --- place

void frmBrowseFolder::Form_Resize() {
  const std::int32_t width = std::max(Client().width - 2 * kEdge, 0);
  lblPrompt.SetPlace({kEdge, 150, width, kTextHeight});
  const std::int32_t promptHeight = std::max(NeededBy(lblPrompt).height, kTextHeight);
  lblPrompt.SetPlace({kEdge, 150, width, promptHeight});
  std::int32_t bottom = Client().height - kEdge - kButton.height;
  PlaceButtons(bottom);
  if (chkSubfolders.Visible()) {
    bottom -= kGap + 300;
    chkSubfolders.SetPlace({kEdge, bottom, width, 300});
  }
  bottom -= kGap + kBoxHeight;
  lblFolder.SetPlace({kEdge, bottom + 45, kLabelWidth, kTextHeight});
  txtFolder.SetPlace({kEdge + kLabelWidth, bottom, std::max(width - kLabelWidth, 0), kBoxHeight});
  const std::int32_t top = 150 + promptHeight + kGap;
  tvFolders.SetPlace({kEdge, top, width, std::max(bottom - kGap - top, 0)});
}

void frmBrowseFolder::PlaceButtons(std::int32_t top) {
  const std::int32_t newWidth = std::max(NeededBy(cmdNewFolder).width + 240, kButton.width);
  const std::int32_t right = Client().width - kEdge;
  cmdNewFolder.SetPlace({kEdge, top, newWidth, kButton.height});
  cmdOK.SetPlace({right - 2 * kButton.width - kGap, top, kButton.width, kButton.height});
  cmdCancel.SetPlace({right - kButton.width, top, kButton.width, kButton.height});
}

// --- the folder

void frmBrowseFolder::ShowFolder(const std::wstring& path) {
  tmrTyped.SetEnabled(false);
  showing_ = true;
  txtFolder.SetText(path);
  txtFolder.SetSelection(static_cast<std::int32_t>(path.size()), 0);
  showing_ = false;
}

void frmBrowseFolder::LookForTyped() {
  tmrTyped.SetEnabled(false);
  if (!IsHalfTyped(txtFolder.Text())) tree_.GoTo(CleanFolder(txtFolder.Text()));
}

bool frmBrowseFolder::IsThere(const std::wstring& path) {
  SetMousePointer(kPointerHourglass);
  const FolderAnswer answer = FolderTests(app_.platform).TestContent(path);
  SetMousePointer(kPointerDefault);
  if (answer == FolderAnswer::kThere) return true;
  app_.platform.dialogs.MessageBoxA(Window(), kMissing, L"Burrowmark", kBoxWarning);
  txtFolder.SetFocus();
  txtFolder.SelectAll();
  return false;
}

void frmBrowseFolder::MakeFolder() {
  const std::wstring folder = CleanFolder(txtFolder.Text());
  if (!IsThere(folder)) return;
  frmNewFolder dialog(app_, folder);
  dialog.Show(Modal, *this);
  if (dialog.NewFolder.empty() || !Loaded()) return;
  ShowFolder(dialog.NewFolder);
  tree_.GoTo(dialog.NewFolder);
  tvFolders.SetFocus();
}

void frmBrowseFolder::Accept() {
  const std::wstring folder = CleanFolder(txtFolder.Text());
  if (!IsThere(folder)) return;
  Chosen = folder;
  Unload();
}

std::wstring BrowseForFolder(Application& app, Form& owner, BrowseParameters& parameters) {
  frmBrowseFolder dialog(app, parameters);
  dialog.Show(Modal, owner);
  if (!dialog.Chosen.empty()) parameters.IncludeSubfolders = dialog.IncludesSubfolders();
  return dialog.Chosen;
}

}  // namespace burrowmark
