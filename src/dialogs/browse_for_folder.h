// "Browse for Folder": the choice of a folder from a tree, or by its path.
#pragma once

#include <string>

#include "core/application.h"
#include "ui/form.h"

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

}  // namespace burrowmark
