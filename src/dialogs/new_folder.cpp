#include "dialogs/new_folder.h"

#include <memory>
#include <utility>

#include "core/file_names.h"
#include "core/folder_tests.h"
#include "core/text.h"

namespace burrowmark {
namespace {

constexpr Size kClient{4800, 1425};
constexpr std::int32_t kPatience = 3000;  // milliseconds for a server
constexpr wchar_t kExists[] = L"A Folder of that name already exists.\r\nEnter a different name and try again.";

// A server that takes too long makes it later, or never.
bool CreateFolder(const Platform& platform, const std::wstring& path) {
  const auto made = std::make_shared<bool>(false);
  const auto work = [made, path, &files = platform.files] { *made = files.CreateFolder(path); };
  return platform.workers.RunWithin(kPatience, work) && *made;
}

}  // namespace

frmNewFolder::frmNewFolder(Application& app, std::wstring folder)
    : ProgramForm(app, ProgramWindow::kNewFolder, L"frmNewFolder", kClient), folder_(std::move(folder)) {
  SetCaption(L"New Folder");
  cmdOK.SetDefault(true);
  cmdOK.SetEnabled(false);
  cmdCancel.SetCancel(true);
  txtName.Change = [this] { cmdOK.SetEnabled(!Trim(txtName.Text()).empty()); };
  cmdOK.Click = [this] { MakeFolder(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmNewFolder::MakeFolder() {
  const std::wstring name = Trim(txtName.Text());
  const std::wstring path = folder_.ends_with(L'\\') ? folder_ + name : folder_ + L"\\" + name;
  const bool canBeName = RemoveBadFileChars(name) == name;
  if (canBeName && FolderTests(app_.platform).Test(path) == FolderAnswer::kThere) return Tell(kExists);
  if (!canBeName || !CreateFolder(app_.platform, path)) return Tell(L"Folder " + name + L" can't be made.");
  NewFolder = path;
  Unload();
}

void frmNewFolder::Tell(const std::wstring& text) {
  app_.platform.dialogs.MessageBoxA(Window(), text, L"Burrowmark", kBoxWarning);
  txtName.SetFocus();
  txtName.SelectAll();
}

}  // namespace burrowmark
