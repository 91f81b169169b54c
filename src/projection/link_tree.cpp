#include "projection/link_tree.h"

#include <map>
#include <vector>

#include "core/services.h"

namespace burrowmark {
namespace {

constexpr wchar_t kLinkDescription[] = L"Organized Folder Shortcut";
constexpr wchar_t kConflictTitle[] = L"Refresh Organized Folders - Group Name Conflict";

// The system would take such a name for the folder itself, or for the one around it.
bool IsOnlyDots(const std::wstring& caption) { return caption.find_first_not_of(L". ") == std::wstring::npos; }

class LinkTree {
 public:
  LinkTree(Application& app, const std::wstring& root) : app_(app), root_(root) {}

  void Add(const clsMenuItem& item) {
    const std::wstring parent = FolderOf(item.OwnerName());
    if (item.SubMenu()) folders_[item.Name()] = GroupFolder(item, parent);
    if (item.Separator() || parent.empty()) return;
    if (item.ItemType == MIT_PATH) {
      WriteLink(item, parent);
    } else if (item.SubMenu() && item.Name() != MIT_PATHS_DRIVES && item.Name() != MIT_GROUP_USER) {
      MakeGroupFolder(item, folders_[item.Name()]);
    }
  }

 private:
  // The folder of a group that came before; empty if it can't have one. The top level is the root.
  std::wstring FolderOf(const std::wstring& group) const {
    const auto found = folders_.find(group);
    return found == folders_.end() ? root_ : found->second;
  }

  std::wstring GroupFolder(const clsMenuItem& group, const std::wstring& parent) const {
    if (group.Name() == MIT_GROUP_USER) return root_;
    if (group.Caption().empty()) return parent;
    return parent.empty() || IsOnlyDots(group.Caption()) ? std::wstring() : parent + L"\\" + group.Caption();
  }

  void WriteLink(const clsMenuItem& item, const std::wstring& parent) {
    if (item.OpenType != MIT_PATH_SHORTCUT && item.OpenType != MIT_PATH_EXPLORER) return;
    if (!FolderOrDriveExists(app_.platform.files, item.FolderPath)) return;
    app_.platform.shell.WriteShellLink(parent + L"\\" + item.Caption() + L".lnk",
                                       {item.FolderPath, kLinkDescription, kShowNormal});
  }

  void MakeGroupFolder(const clsMenuItem& group, const std::wstring& folder) {
    if (group.Caption().empty() || folder.empty()) return;
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
  std::map<std::wstring, std::wstring> folders_;  // by the group's name
};

}  // namespace

void WriteLinkTree(Application& app, const clsMenuCollection& store, const std::wstring& root) {
  // While a box is open the store may change.
  std::vector<ItemRef> items;
  for (std::int32_t i = 1; i <= store.Count(); ++i) items.push_back(store.Item(i));
  LinkTree tree(app, root);
  for (const ItemRef& item : items) tree.Add(*item);
}

}  // namespace burrowmark
