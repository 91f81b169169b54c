#include "dialogs/folder_tree.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/text.h"
#include "platform/drive_letter.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kFolderIcon = 3;
constexpr std::int32_t kServerIcon = 10;
const ImageList kImages{16, {kFolderIcon, 8, 9, kServerIcon, 11, 13}};
constexpr wchar_t kReading[] = L"Reading...";
constexpr wchar_t kWaitingMark = L'\n';  // of the key of a node that stands for what isn't read yet

std::int32_t ImageOf(std::int32_t icon) {
  const auto found = std::find(kImages.icons.begin(), kImages.icons.end(), icon);
  return static_cast<std::int32_t>(found - kImages.icons.begin()) + 1;
}

std::wstring KeyOf(const std::wstring& path) { return UpperCaseText(path); }

std::wstring InFolder(const std::wstring& folder, const std::wstring& name) {
  return folder.ends_with(L'\\') ? folder + name : folder + L"\\" + name;
}

// "\\server" alone.
bool IsServer(const std::wstring& path) {
  return path.starts_with(L"\\\\") && path.find(L'\\', 2) == std::wstring::npos;
}

std::wstring LastName(const std::wstring& path) { return path.substr(path.rfind(L'\\') + 1); }

// "C:\", "C:\a", "C:\a\b"; "\\server", "\\server\share", "\\server\share\a".
std::vector<std::wstring> PlacesOnTheWay(const std::wstring& path) {
  std::vector<std::wstring> places;
  const bool onServer = path.starts_with(L"\\\\");
  if (!onServer && (path.size() < 3 || !DriveLetter(path.substr(0, 3)))) return places;
  std::size_t end = onServer ? path.find(L'\\', 2) : 3;
  places.push_back(path.substr(0, end));
  while (end < path.size()) {
    end = path.find(L'\\', end + 1);
    places.push_back(path.substr(0, end));
  }
  return places;
}

std::int32_t IconOfDrive(Application& app, const std::wstring& drive) {
  clsMenuItem item(app.platform.clock);
  item.ItemType = MIT_DRIVE;
  item.DriveType = app.platform.files.GetDriveTypeA(drive);
  const bool isFloppy = drive == L"A:" || drive == L"B:";
  if (item.DriveType == kDriveFloppy && !isFloppy) item.DriveType = kDriveRemovable;
  item.SetIconIDDescription();
  return item.IconID;
}

// What was found in a folder or on a server.
struct Listing {
  bool listed = false;
  std::vector<std::wstring> names;
};

bool ListShares(Network& network, const std::wstring& server, std::vector<std::wstring>& names) {
  std::vector<NetworkResource> shares;
  const std::uint32_t result = network.EnumShares(server, shares);
  for (const NetworkResource& share : shares) names.push_back(LastName(share.RemoteName));
  return result == kNetworkDone;
}

// Hidden folders are for those who name them.
bool ListFolders(FileSystem& files, const std::wstring& folder, const std::wstring& wanted,
                 std::vector<std::wstring>& names) {
  std::vector<FolderEntry> entries;
  const bool listed = files.ListFolder(folder, entries);
  for (const FolderEntry& entry : entries) {
    const bool isFolder = (entry.attributes & kFileDirectory) != 0;
    const bool isHidden = (entry.attributes & kFileHidden) != 0 && !EqualIgnoringCase(entry.name, wanted);
    if (isFolder && !isHidden) names.push_back(entry.name);
  }
  return listed;
}

// `wanted` may also be what no list shows; it may be empty.
Listing ReadPlace(FileSystem& files, Network& network, const std::wstring& path, const std::wstring& wanted) {
  Listing listing;
  std::vector<std::wstring>& names = listing.names;
  listing.listed = IsServer(path) ? ListShares(network, path, names) : ListFolders(files, path, wanted, names);
  const bool isIn = std::any_of(names.begin(), names.end(),
                                [&wanted](const std::wstring& name) { return EqualIgnoringCase(name, wanted); });
  if (!wanted.empty() && !isIn && files.FolderExists(InFolder(path, wanted))) names.push_back(wanted);
  std::sort(names.begin(), names.end(), LessIgnoringCase);
  return listing;
}

}  // namespace

FolderTree::FolderTree(Application& app, TreeView& view) : app_(app), view_(view) {
  view_.SetImages(kImages);
  view_.NodeClick = [this](TreeNode& node) { Choose(node); };
  view_.Expand = [this](const TreeNode& node) {
    if (WaitingIn(node) != nullptr) Read(node);
  };
}

void FolderTree::Choose(TreeNode& node) {
  Stay();
  TreeNode& chosen = node.Tag.empty() ? *node.Parent() : node;
  if (&chosen != &node) view_.SetSelectedItem(&chosen);
  Raise(FolderChosen, std::wstring(chosen.Tag));
}

// --- nodes

TreeNode* FolderTree::WaitingIn(const TreeNode& node) const { return view_.Find(node.Key() + kWaitingMark); }

TreeNode* FolderTree::AddPlace(TreeNode* relative, TreeRelation relation, const std::wstring& path, std::wstring text,
                               std::int32_t icon) {
  TreeNode* node = view_.Add(relative, relation, KeyOf(path), std::move(text), ImageOf(icon));
  if (node == nullptr) return nullptr;
  node->Tag = path;
  view_.Add(node, TreeRelation::kChild, node->Key() + kWaitingMark, kReading, 0);
  return node;
}

// As the machine lists it: "c: [label]".
void FolderTree::AddDrive(const std::wstring& entry) {
  const std::wstring drive = UpperCaseText(entry.substr(0, 2));
  const std::size_t start = entry.find(L'[');
  const std::size_t end = entry.rfind(L']');
  std::wstring title = drive;
  if (start != std::wstring::npos && end != std::wstring::npos && end > start + 1) {
    title += L" (" + entry.substr(start + 1, end - start - 1) + L")";
  }
  AddPlace(nullptr, TreeRelation::kChild, drive + L"\\", title, IconOfDrive(app_, drive));
}

void FolderTree::ReadDrives() {
  const auto drives = std::make_shared<std::vector<std::wstring>>();
  app_.platform.workers.Run([drives, &files = app_.platform.files] { *drives = files.DriveList(); },
                            [this, drives, life = std::weak_ptr(life_)] {
                              if (life.expired()) return;
                              for (const std::wstring& drive : *drives) AddDrive(drive);
                              hasDrives_ = true;
                              Continue();
                            });
}

void FolderTree::Read(const TreeNode& node, const std::wstring& wanted, const std::shared_ptr<Goal>& goal) {
  const auto found = std::make_shared<Listing>();
  const Platform& platform = app_.platform;
  app_.platform.workers.Run([found, path = node.Tag, wanted, &files = platform.files,
                             &network = platform.network] { *found = ReadPlace(files, network, path, wanted); },
                            [this, found, key = node.Key(), goal, life = std::weak_ptr(life_)] {
                              if (life.expired()) return;
                              Fill(key, found->listed, found->names);
                              if (goal != nullptr && goal == goal_) Continue();
                            });
}

// What can't be read keeps the mark of what isn't read yet, so that it can be opened once more.
void FolderTree::Fill(const std::wstring& key, bool listed, const std::vector<std::wstring>& names) {
  TreeNode* node = view_.Find(key);
  if (node == nullptr) return;
  const TreeView::Update update(view_);
  Merge(*node, names);
  TreeNode* waiting = WaitingIn(*node);
  if (waiting == nullptr) return;
  if (listed || node->Children() > 1) {
    view_.Remove(*waiting);
  } else if (IsServer(node->Tag)) {
    view_.Remove(*node);
  } else {
    node->SetExpanded(false);
  }
}

// Both the nodes and the names are sorted. What isn't there any more stays until the window closes.
void FolderTree::Merge(TreeNode& node, const std::vector<std::wstring>& names) {
  std::int32_t at = WaitingIn(node) == nullptr ? 0 : 1;
  for (const std::wstring& name : names) {
    while (at < node.Children() && LessIgnoringCase(node.Child(at)->Text(), name)) ++at;
    const bool isLast = at == node.Children();
    TreeNode* relative = isLast ? &node : node.Child(at);
    AddPlace(relative, isLast ? TreeRelation::kChild : TreeRelation::kPrevious, InFolder(node.Tag, name), name,
             IsServer(node.Tag) ? kServerIcon : kFolderIcon);
  }
}

// --- the way to a folder

void FolderTree::GoTo(const std::wstring& path) {
  goal_ = std::make_shared<Goal>(Goal{PlacesOnTheWay(path), {}});
  Continue();
}

void FolderTree::Continue() {
  if (!goal_ || !hasDrives_) return;
  TreeNode* last = nullptr;
  for (const std::wstring& place : goal_->places) {
    TreeNode* node = view_.Find(KeyOf(place));
    if (node == nullptr && IsServer(place) && !goal_->asked.contains(KeyOf(place))) {
      node = AddPlace(nullptr, TreeRelation::kChild, place, place, kServerIcon);
    }
    if (node == nullptr && (last == nullptr || !goal_->asked.insert(last->Key()).second)) break;
    if (node == nullptr) return Read(*last, LastName(place), goal_);
    last = node;
  }
  const bool arrived = last != nullptr && last->Key() == KeyOf(goal_->places.back());
  Stay();
  // Where nothing is selected yet, as near as it gets.
  if (last == nullptr || (!arrived && view_.SelectedItem() != nullptr)) return;
  view_.SetSelectedItem(last);
  last->EnsureVisible();
  if (IsServer(last->Tag) && WaitingIn(*last) != nullptr) {
    last->SetExpanded(true);
    Read(*last);
  }
}

}  // namespace burrowmark
