// A tree of nodes with texts and images.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "ui/control.h"

namespace burrowmark {

class TreeView;

// Belongs to its tree view and goes with its removal.
class TreeNode final : private TreeNodeState {
 public:
  TreeNode(TreeView& tree, std::wstring key);

  const std::wstring& Key() const { return key_; }
  const std::wstring& Text() const { return text; }
  void SetText(std::wstring newText);
  std::int32_t Image() const { return image; }
  void SetImage(std::int32_t newImage);
  bool Expanded() const { return expanded; }
  void SetExpanded(bool on);
  bool Checked() const { return checked; }
  void SetChecked(bool on);
  bool Ghosted() const { return ghosted; }
  void SetGhosted(bool on);
  bool Selected() const;
  TreeNode* Parent() const;  // none for a root
  std::int32_t Children() const { return static_cast<std::int32_t>(children.size()); }
  TreeNode* Child(std::int32_t index) const;  // counted from 0
  // Opens what it is in and scrolls to it.
  void EnsureVisible();

  std::wstring Tag;

 private:
  friend class TreeView;

  TreeView& tree_;
  std::wstring key_;
};

// Where a new node stands to the one that is told with it; the numbers are those of the common control.
enum class TreeRelation : std::uint8_t { kNext = 2, kPrevious = 3, kChild = 4 };

// Selecting, checks, label edits and clicks raise events for the user alone.
class TreeView final : public ControlOf<TreeViewState, TreeViewPeer> {
 public:
  TreeView(ControlParent& parent, const wchar_t* name, const Box& place);
  ~TreeView();

  std::function<void(TreeNode&)> NodeClick;  // clicked, or moved to by keyboard
  std::function<void(TreeNode&)> NodeCheck;
  std::function<void(TreeNode&)> Expand;
  std::function<void(TreeNode&)> Collapse;
  std::function<void()> Click;
  std::function<void()> DblClick;
  std::function<void(bool& Cancel)> BeforeLabelEdit;  // of the selected node
  std::function<void(bool& Cancel, std::wstring& NewString)> AfterLabelEdit;

  // A last root without a relative. None if the key is taken.
  TreeNode* Add(TreeNode* relative, TreeRelation relation, std::wstring key, std::wstring text, std::int32_t image = 0);
  // With all below it. Its selection goes to the next sibling, else to the one before, else to the parent.
  void Remove(TreeNode& node);
  void Clear();
  std::int32_t Count() const { return static_cast<std::int32_t>(byKey_.size()); }
  // The nodes from top to bottom, also those in closed ones; counted from 1.
  TreeNode* Item(std::int32_t index) const;
  TreeNode* Find(const std::wstring& key) const;

  TreeNode* SelectedItem() const;
  // Opens what the node is in and scrolls to it.
  void SetSelectedItem(TreeNode* node);
  TreeNode* DropHighlight() const;
  void SetDropHighlight(TreeNode* node);
  // At a point of a mouse event; none where no node is, and while the form isn't loaded.
  TreeNode* HitTest(std::int32_t x, std::int32_t y) const;
  // Opens the label of the selected node, if LabelEdit is on.
  void StartLabelEdit();
  // The node whose label is open, also while AfterLabelEdit runs; it may be another one than the selected. None
  // without.
  TreeNode* EditedNode() const { return edited_; }
  void CancelLabelEdit();

  const ImageList& Images() const override { return images_; }
  void SetImages(ImageList images);
  bool CheckBoxes() const override { return checkBoxes_; }
  bool LabelEdit() const override { return labelEdit_; }
  // These hold for the windows that are made from then on.
  void SetCheckBoxes(bool on) { checkBoxes_ = on; }
  void SetLabelEdit(bool on) { labelEdit_ = on; }

  // Nothing is drawn while it lives: for many changes at once.
  class Update {
   public:
    explicit Update(TreeView& tree);
    ~Update();
    Update(const Update&) = delete;
    Update& operator=(const Update&) = delete;

   private:
    TreeView& tree_;
  };

  const std::vector<TreeNodeState*>& Roots() const override { return roots_; }
  TreeNodeState* Selected() const override;
  TreeNodeState* DropNode() const override;
  void UserSelect(TreeNodeState& node, bool byUser) override;
  void UserNodeClick(TreeNodeState& node) override;
  void UserExpand(TreeNodeState& node, bool expanded) override;
  void UserCheck(TreeNodeState& node, bool checked) override;
  void UserClick() override;
  void UserDoubleClick() override;
  bool UserBeginLabelEdit(TreeNodeState& node) override;
  bool UserEndLabelEdit(TreeNodeState& node, const std::optional<std::wstring>& text) override;
  void PeerTaken() override { edited_ = nullptr; }

 private:
  friend class TreeNode;

  static TreeNode& Node(TreeNodeState& state) { return static_cast<TreeNode&>(state); }
  static TreeNode* Node(TreeNodeState* state) { return static_cast<TreeNode*>(state); }
  static bool IsIn(const TreeNodeState* node, const TreeNodeState& top);
  std::vector<TreeNodeState*>& SiblingsOf(const TreeNodeState& node);
  void Insert(TreeNode& node, TreeNode* relative, TreeRelation relation);
  TreeNode* NextSelection(const TreeNode& removed);
  void Forget(TreeNode& node);
  void Open(TreeNode& node, bool expanded);
  void OpenAbove(const TreeNode& node);
  void Tell(void (TreeViewPeer::*change)(TreeNodeState&), TreeNode& node);
  using ControlOf::Tell;

  std::unordered_map<std::wstring, std::unique_ptr<TreeNode>> byKey_;
  std::vector<TreeNodeState*> roots_;
  TreeNode* selected_ = nullptr;
  TreeNode* drop_ = nullptr;
  ImageList images_;
  bool checkBoxes_ = false;
  bool labelEdit_ = false;
  TreeNode* edited_ = nullptr;
};

}  // namespace burrowmark
