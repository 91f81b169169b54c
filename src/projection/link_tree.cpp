#include "projection/link_tree.h"

#include <memory>
#include <vector>

#include "core/file_names.h"
#include "core/services.h"
#include "core/text.h"
#include "platform/characters.h"

namespace burrowmark {
namespace {

constexpr wchar_t kLinkDescription[] = L"Organized Folder Shortcut";
constexpr wchar_t kConflictTitle[] = L"Refresh Organized Folders - Group Name Conflict";

bool IsOwnLink(Application& app, const std::wstring& path) {
  ShellLink link;
  return app.platform.shell.ReadShellLink(path, link) && link.description == kLinkDescription;
}

bool IsOwnFile(Application& app, const std::wstring& path) {
  return EqualIgnoringCase(GetFileName(path), L"Desktop.ini") || IsOwnLink(app, path);
}

// One's own links below a folder that lead to a server which doesn't answer.
void AddSilentLinks(Application& app, const std::wstring& folder, FolderTests& tests, LinkFiles& links) {
  std::vector<FolderEntry> entries;
  app.platform.files.ListFolder(folder, entries);
  for (const FolderEntry& entry : entries) {
    const std::wstring path = folder + L"\\" + entry.name;
    const bool isFolder = (entry.attributes & kFileDirectory) != 0;
    if (isFolder && !entry.isLink) AddSilentLinks(app, path, tests, links);
    ShellLink link;
    std::string bytes;
    const bool silent = !isFolder && app.platform.shell.ReadShellLink(path, link) &&
                        link.description == kLinkDescription && IsNetworkPlace(app.platform.files, link.target) &&
                        tests.Test(link.target) == FolderAnswer::kNoAnswer;
    if (silent && app.platform.files.ReadWholeFile(path, bytes)) links[UpperCaseText(path)] = {link.target, bytes};
  }
}

// What a folder holds, at any depth.
struct Content {
  bool own = false;
  bool foreign = false;
  bool places = false;  // other folders, as junctions and symbolic links show them
};

Content ContentOf(Application& app, const std::wstring& folder) {
  std::vector<FolderEntry> entries;
  Content content{.foreign = !app.platform.files.ListFolder(folder, entries)};
  for (const FolderEntry& entry : entries) {
    const std::wstring path = folder + L"\\" + entry.name;
    const bool isFolder = (entry.attributes & kFileDirectory) != 0 && !entry.isLink;
    const bool own = !isFolder && (entry.isLink || IsOwnFile(app, path));
    const Content inside = isFolder ? ContentOf(app, path) : Content{own, !own, entry.isLink};
    content.own = content.own || inside.own;
    content.foreign = content.foreign || inside.foreign;
    content.places = content.places || inside.places;
  }
  return content;
}

// Each that stays is passed over.
void WipeFolder(Application& app, const std::wstring& folder) {
  FileSystem& files = app.platform.files;
  const Content content = ContentOf(app, folder);
  if (content.foreign && !content.own) {
    app.platform.shell.RecycleFile(folder);
    return;
  }
  std::vector<FolderEntry> left;
  if (content.foreign) {
    WipeLinkTree(app, folder);
    if (!files.ListFolder(folder, left)) return;
  }
  if (left.empty()) files.DeleteFolder(folder);
}

class LinkTree {
 public:
  LinkTree(Application& app, const std::wstring& root, FolderTests& tests, const LinkFiles& silent)
      : app_(app), root_(root), tests_(tests), silent_(silent) {}

  void Add(const clsMenuItem& item) {
    const std::wstring parent = FolderOf(item.OwnerName());
    if (item.SubMenu()) folders_[item.Name()] = GroupFolder(item, parent);
    if (item.Separator()) return;
    if (item.ItemType == MIT_PATH) {
      WriteLink(item, parent);
    } else if (item.SubMenu() && item.Name() != MIT_PATHS_DRIVES && item.Name() != MIT_GROUP_USER) {
      MakeGroupFolder(item, folders_[item.Name()]);
    }
  }

 private:
  // The folder of a group that came before. The top level is the root.
  std::wstring FolderOf(const std::wstring& group) const {
    const auto found = folders_.find(group);
    return found == folders_.end() ? root_ : found->second;
  }

  std::wstring GroupFolder(const clsMenuItem& group, const std::wstring& parent) const {
    return group.Name() == MIT_GROUP_USER ? root_ : parent + L"\\" + FolderNameOf(group.Caption());
  }

  void WriteLink(const clsMenuItem& item, const std::wstring& parent) {
    if (item.OpenType != MIT_PATH_SHORTCUT && item.OpenType != MIT_PATH_EXPLORER) return;
    const FolderAnswer answer = tests_.Test(item.FolderPath);
    if (answer == FolderAnswer::kMissing) return;
    const std::wstring path = parent + L"\\" + FileNameOf(item.Caption()) + L".lnk";
    if (answer == FolderAnswer::kNoAnswer) return PutBack(path, item.FolderPath);
    if (FileExists(app_.platform.files, path) && !IsOwnLink(app_, path)) return;
    app_.platform.shell.WriteShellLink(path, {item.FolderPath, kLinkDescription, kShowNormal});
  }

  // Nothing that asks the server again.
  void PutBack(const std::wstring& path, const std::wstring& target) {
    const auto found = silent_.find(UpperCaseText(path));
    if (found == silent_.end() || !EqualIgnoringCase(found->second.target, target)) return;
    const std::unique_ptr<OutputFile> file = app_.platform.files.CreateNewFile(path);
    if (!file) return;
    file->DeleteUnlessClosed();
    if (file->Write(found->second.bytes)) file->Close();
  }

  void MakeGroupFolder(const clsMenuItem& group, const std::wstring& folder) {
    if (!app_.platform.files.FolderExists(folder)) {
      app_.platform.files.CreateFolder(folder);
      return;
    }
    const std::wstring text = L"Folder " + group.Caption() +
                              L" already exists. Its contents will be overwritten.\r\n"
                              L"To fix this problem change the group's name.";
    app_.platform.dialogs.MessageBoxA(app_.MainWindow, text, kConflictTitle, kBoxWarning);
  }

  Application& app_;
  std::wstring root_;
  FolderTests& tests_;
  const LinkFiles& silent_;
  std::map<std::wstring, std::wstring> folders_;  // by the group's name
};

}  // namespace

LinkFiles SilentLinks(Application& app, const clsMenuCollection& store, const std::wstring& root, FolderTests& tests) {
  LinkFiles links;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    if (!IsNetworkPlace(app.platform.files, store.Item(i)->FolderPath)) continue;
    AddSilentLinks(app, root, tests, links);
    break;
  }
  return links;
}

void WriteLinkTree(Application& app, const clsMenuCollection& store, const std::wstring& root, FolderTests& tests,
                   const LinkFiles& silent) {
  // While a box is open the store may change.
  std::vector<ItemRef> items;
  for (std::int32_t i = 1; i <= store.Count(); ++i) items.push_back(store.Item(i));
  LinkTree tree(app, root, tests, silent);
  for (const ItemRef& item : items) tree.Add(*item);
}

void WipeLinkTree(Application& app, const std::wstring& root) {
  FileSystem& files = app.platform.files;
  std::vector<FolderEntry> entries;
  files.ListFolder(root, entries);
  for (const FolderEntry& entry : entries) {
    const std::wstring path = root + L"\\" + entry.name;
    if (entry.isLink) {
      files.DeleteFolder(path);
    } else if ((entry.attributes & kFileDirectory) != 0) {
      WipeFolder(app, path);
    } else if (IsOwnFile(app, path)) {
      files.DeleteFileA(path);
    } else {
      app.platform.shell.RecycleFile(path);
    }
  }
}

bool HoldsForeignContent(Application& app, const std::wstring& folder) {
  const Content content = ContentOf(app, folder);
  return content.foreign || content.places;
}

}  // namespace burrowmark
