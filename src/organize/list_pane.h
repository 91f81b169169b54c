// The editor's right pane: a row for all that a group holds.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "core/application.h"
#include "core/column_sort.h"
#include "organize/tree_edit.h"
#include "ui/label.h"
#include "ui/list_view.h"
#include "ui/text_box.h"

namespace burrowmark {

// Mirrors the document's tree and is never the truth.
class ListPane {
 public:
  // All must outlive the pane.
  ListPane(ControlParent& form, Application& app, const Document& document, const std::set<std::wstring>& cutKeys);

  Label lblView;
  TextBox txtInfoDrives;  // stands in the list's place while the Drives group is shown
  ListView View;

  // Name of the group whose rows are there.
  const std::wstring& Group() const { return group_; }
  void ShowGroup(const std::wstring& group);
  // As the user goes down from a row: nothing is left out, and nothing is grey.
  void ShowGroupOfRow(const std::wstring& group);
  void SetPlace(const Box& place);

  // Rows go, come and look as the tree says. New ones come to the end, which turns the sorting off.
  void Follow(const TreeChange& change);
  void Ghost(const std::set<std::wstring>& keys, bool on);

  bool HasSelection() const { return View.SelectedCount() > 0; }
  // Makes one of the selected rows the current one.
  void EnsureCurrentListItem();
  std::vector<std::wstring> SelectedKeys() const;
  // Selects these and nothing else, and shows the last; those that aren't there are passed over.
  void Select(const std::vector<std::wstring>& keys);
  void InvertSelection();

  // Columns counted from 1. The same one once more turns the order round.
  void ArrangeBy(std::int32_t Column) { sort_.Click(Column); }
  // One of the five views by its key. False: there is none.
  bool ApplyView(const std::wstring& viewKey);
  void Release();

 private:
  void AddListItem(const clsMenuItem& item, bool Ghosted);
  void WriteColumns(ListItem& row, const clsMenuItem& item);

  Application& app_;
  const Document& document_;
  const std::set<std::wstring>& cutKeys_;
  std::wstring group_;
  ColumnSort sort_{View};
};

}  // namespace burrowmark
