#include "organize/tree_pane.h"

#include <unordered_set>

#include "organize/node_keys.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kRootImage = 1;

// The images of items by their number: the program's first thirteen icons.
ImageList ItemImages() { return {16, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}}; }

std::wstring KeyOfOwner(const std::wstring& owner) { return owner == kRootOwner ? MIT_HF_ROOT : KeyOfName(owner); }

void Write(TreeNode& node, const clsMenuItem& item) {
  node.SetText(item.Caption());
  node.SetImage(item.IconID);
  if (item.OwnerName() != kRootOwner) node.Tag = item.FolderPath;
}

}  // namespace

TreePane::TreePane(ControlParent& form, const Document& document, const std::set<std::wstring>& cutKeys)
    : lblView(form, L"Groups"), View(form, L"TreeView1", Box{}), document_(document), cutKeys_(cutKeys) {
  View.SetImages(ItemImages());
  View.SetLabelEdit(true);
}

TreeNode* TreePane::NodeOf(const std::wstring& name) const { return View.Find(KeyOfName(name)); }

bool TreePane::HasNode(const clsMenuItem& item) const {
  return item.Remark != REMARK_AUTO && (item.SubMenu() || AllLeft || item.OwnerName() == kRootOwner);
}

void TreePane::Fill() {
  const TreeView::Update update(View);
  View.Clear();
  TreeNode* root = View.Add(nullptr, TreeRelation::kChild, MIT_HF_ROOT, L"Organized Folders", kRootImage);
  const clsMenuCollection& store = *document_.Store;
  std::vector<TreeNode*> top;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    TreeNode* place = HasNode(*item) ? View.Find(KeyOfOwner(item->OwnerName())) : nullptr;
    TreeNode* node = place == nullptr ? nullptr : AddNode(*item, *place, TreeRelation::kChild);
    if (node != nullptr && place == root) top.push_back(node);
  }
  // Once they are all there: a control orders what shows anew for each node that comes.
  for (TreeNode* node : top) {
    node->EnsureVisible();
    node->SetExpanded(true);
  }
}

TreeNode* TreePane::AddNode(const clsMenuItem& item, TreeNode& place, TreeRelation relation) {
  const std::wstring key = KeyOfName(item.Name());
  TreeNode* node = View.Add(&place, relation, key, item.Caption(), item.IconID);
  if (node == nullptr) return nullptr;
  Write(*node, item);
  node->SetGhosted(cutKeys_.contains(key));
  return node;
}

// A node stands behind the nearest earlier sibling that has one, else ahead of the nearest later one, else last.
void TreePane::AddNodesUnder(const std::wstring& owner) {
  TreeNode* parent = View.Find(KeyOfOwner(owner));
  if (parent == nullptr) return;
  TreeNode* before = nullptr;
  for (const ItemRef& item : document_.Store->Children(owner)) {
    if (!HasNode(*item)) continue;
    TreeNode* node = NodeOf(item->Name());
    if (node == nullptr && before != nullptr) {
      node = AddNode(*item, *before, TreeRelation::kNext);
    } else if (node == nullptr && parent->Children() > 0) {
      node = AddNode(*item, *parent->Child(0), TreeRelation::kPrevious);
    } else if (node == nullptr) {
      node = AddNode(*item, *parent, TreeRelation::kChild);
    }
    if (node != nullptr) before = node;
  }
}

void TreePane::Follow(const TreeChange& change) {
  if (change.Empty()) return;
  const TreeView::Update update(View);
  const std::wstring selected = View.SelectedItem() == nullptr ? std::wstring() : View.SelectedItem()->Key();
  std::vector<std::wstring> open;
  for (const ItemRef& item : change.Out) {
    const TreeNode* node = NodeOf(item->Name());
    if (node != nullptr && node->Expanded()) open.push_back(node->Key());
  }
  for (const ItemRef& item : change.Out) {
    if (TreeNode* node = NodeOf(item->Name())) View.Remove(*node);
  }
  std::unordered_set<std::wstring> done;
  for (const ItemRef& item : change.In) {
    if (done.insert(item->OwnerName()).second) AddNodesUnder(item->OwnerName());
  }
  for (const ItemRef& item : change.Changed) {
    if (TreeNode* node = NodeOf(item->Name())) Write(*node, *item);
  }
  for (const std::wstring& key : open) {
    if (TreeNode* node = View.Find(key)) node->SetExpanded(true);
  }
  TreeNode* node = View.Find(selected);
  if (node != nullptr && node != View.SelectedItem()) View.SetSelectedItem(node);
}

void TreePane::Ghost(const std::set<std::wstring>& keys, bool on) {
  for (const std::wstring& key : keys) {
    if (TreeNode* node = View.Find(key)) node->SetGhosted(on);
  }
}

}  // namespace burrowmark
