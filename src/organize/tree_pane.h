// The editor's left pane: nodes of the groups, and of what they hold.
#pragma once

#include <set>
#include <string>

#include "core/document.h"
#include "organize/tree_edit.h"
#include "ui/label.h"
#include "ui/tree_view.h"

namespace burrowmark {

// Mirrors the document's tree and is never the truth.
class TreePane {
 public:
  // The document and the keys of what is grey must outlive the pane.
  TreePane(ControlParent& form, const Document& document, const std::set<std::wstring>& cutKeys);

  Label lblView;
  TreeView View;
  bool AllLeft = true;  // shortcuts have nodes too; those of the top level always have

  // Makes all nodes anew. None is selected then.
  void Fill();
  // Nodes go, come and look as the tree says; what was open stays open, and what was selected stays that while it
  // stands.
  void Follow(const TreeChange& change);
  // Draws nodes grey, or not grey; those that aren't there are passed over.
  void Ghost(const std::set<std::wstring>& keys, bool on);
  TreeNode* NodeOf(const std::wstring& name) const;

 private:
  bool HasNode(const clsMenuItem& item) const;
  void AddNodesUnder(const std::wstring& owner);
  TreeNode* AddNode(const clsMenuItem& item, TreeNode& place, TreeRelation relation);

  const Document& document_;
  const std::set<std::wstring>& cutKeys_;
};

}  // namespace burrowmark
