// A tree view with the folders of the machine's drives, and of the servers that somebody asks for.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/application.h"
#include "ui/tree_view.h"

namespace burrowmark {

// Folders are read as they are opened, beside the interface thread. What is read after this object has gone is dropped.
class FolderTree {
 public:
  // Both must outlive this object; the view's events and images are its own from then on.
  FolderTree(Application& app, TreeView& view);
  FolderTree(const FolderTree&) = delete;
  FolderTree& operator=(const FolderTree&) = delete;

  // The user went to another folder.
  std::function<void(const std::wstring& path)> FolderChosen;

  // Once, when the view is shown.
  void ReadDrives();
  // Opens the tree down to a folder and selects it, as soon as everything on the way is known. Where there is no such
  // folder the selection stays; if there is none yet, it goes to what is nearest. The path is absolute, and ends in a
  // backslash only as the root of a drive.
  void GoTo(const std::wstring& path);
  // Gives up a way that is still being gone.
  void Stay() { goal_.reset(); }

 private:
  // A way through the tree.
  struct Goal {
    std::vector<std::wstring> places;  // the paths of the nodes on it
    std::set<std::wstring> asked;      // keys of those that were read for it
  };
  struct Life {};

  void Continue();
  TreeNode* AddPlace(TreeNode* relative, TreeRelation relation, const std::wstring& path, std::wstring text,
                     std::int32_t icon);
  void AddDrive(const std::wstring& entry);
  // Goes on when the folder is known, if that is for a way; `wanted` is the next name on it.
  void Read(const TreeNode& node, const std::wstring& wanted = {}, const std::shared_ptr<Goal>& goal = nullptr);
  void Fill(const std::wstring& key, bool listed, const std::vector<std::wstring>& names);
  void Merge(TreeNode& node, const std::vector<std::wstring>& names);
  TreeNode* WaitingIn(const TreeNode& node) const;
  void Choose(TreeNode& node);

  Application& app_;
  TreeView& view_;
  bool hasDrives_ = false;
  std::shared_ptr<Goal> goal_;  // what is read for it asks whether this is still the one
  std::shared_ptr<Life> life_ = std::make_shared<Life>();
};

}  // namespace burrowmark
