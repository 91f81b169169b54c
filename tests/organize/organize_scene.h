// The editor over a small tree, and a person in front of it.
#pragma once

#include <memory>
#include <string>

#include "organize/frm_organize.h"
#include "tests/support/menu_scene.h"

namespace burrowmark::test {

// The tree: Personal [Alpha [Inner] Beta Gamma], the Drives group, and the menu's fixed entries.
class OrganizeScene : public MenuScene {
 public:
  OrganizeScene();

  // Writes the menu's document to its file, and shows a new editor.
  void Open();
  ShownWindow& Window() { return machine.user.Window(form().Caption()); }
  ShownControl& Control(ShownKind kind);
  WindowHandle Tree() { return Control(ShownKind::kTreeView).window; }
  WindowHandle List() { return Control(ShownKind::kListView).window; }
  WindowHandle Toolbar() { return Control(ShownKind::kToolbar).window; }

  // The nodes with their levels, "0 Organized Folders|1 Personal|..."; one that a closed node hides counts too.
  std::wstring Nodes();
  // First texts of the rows in order, a bar between them.
  std::wstring Rows() { return Column(0); }
  std::wstring Column(std::size_t column);
  // The panels of the status bar and the strip's caption, a bar between them.
  std::wstring Status();
  // Keys of the buttons that are on, a blank between them.
  std::wstring Buttons();
  // What a person clicks: a row by its text.
  void ClickRow(const std::wstring& text, std::int32_t button = kLeftButton, std::int32_t shift = 0);
  std::int32_t RowOf(const std::wstring& text);

  // The editor of the last opening.
  frmOrganize& form() { return *opened_; }

 private:
  std::unique_ptr<frmOrganize> opened_;
};

}  // namespace burrowmark::test
