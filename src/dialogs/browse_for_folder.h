// "Browse for Folder": the choice of a folder from a tree, or by its path.
#pragma once

#include <string>

#include "core/program_form.h"
#include "dialogs/folder_tree.h"
#include "ui/check_box.h"
#include "ui/command_button.h"
#include "ui/label.h"
#include "ui/text_box.h"
#include "ui/timer.h"
#include "ui/tree_view.h"

namespace burrowmark {

// Texts that are empty become those of an ordinary choice, but for the switch: it is there only with a caption.
struct BrowseParameters {
  std::wstring Title;
  std::wstring Prompt;
  std::wstring StartFolder;
  std::wstring IncludeSubfoldersCaption;
  std::wstring OkCaption;
  std::wstring CancelCaption;
  std::wstring NewFolderCaption;
  bool IncludeSubfolders = false;  // the switch, in and out
};

// Asks for a folder that exists, modal in front of `owner`. The path as it is spelt in the tree or was typed, of a
// drive its root ("C:\"); empty for Cancel, and then the switch stays as it was.
std::wstring BrowseForFolder(Application& app, Form& owner, BrowseParameters& parameters);

class frmBrowseFolder final : public ProgramForm {
 public:
  frmBrowseFolder(Application& app, const BrowseParameters& parameters);

  std::wstring Chosen;
  bool IncludesSubfolders() const { return chkSubfolders.Value() == kChecked; }

 private:
  void Form_Load() override;
  void Form_Resize() override;
  void PlaceButtons(std::int32_t top);

  void ShowFolder(const std::wstring& path);
  void LookForTyped();
  bool IsThere(const std::wstring& path);
  void MakeFolder();
  void Accept();

  Label lblPrompt{*this, L"lblPrompt", Box{180, 150, 5340, 240}};
  TreeView tvFolders{*this, L"tvFolders", Box{180, 480, 5340, 4200}};
  Label lblFolder{*this, L"lblFolder", Box{180, 4860, 840, 240}, L"&Folder :"};
  TextBox txtFolder{*this, L"txtFolder", Box{1020, 4800, 4500, 315}};
  CheckBox chkSubfolders{*this, L"chkSubfolders", Box{180, 5250, 5340, 300}, {}};
  CommandButton cmdNewFolder{*this, L"cmdNewFolder", Box{180, 5700, 1500, 375}, {}};
  CommandButton cmdOK{*this, L"cmdOK", Box{2970, 5700, 1215, 375}, {}};
  CommandButton cmdCancel{*this, L"cmdCancel", Box{4305, 5700, 1215, 375}, {}};

  FolderTree tree_{app_, tvFolders};
  Timer tmrTyped{app_.platform.windows};
  std::wstring start_;
  bool showing_ = false;  // a folder by code, not what the user typed
};

}  // namespace burrowmark
