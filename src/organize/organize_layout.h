// The editor's layout as it is kept from one opening to the next.
#pragma once

#include <cstdint>
#include <string>

#include "core/application.h"
#include "ui/list_view.h"

namespace burrowmark {

struct OrganizeLayout {
  bool StatusBar = true;
  std::wstring View = L"keyViewsDetails";
  bool ToolbarText = true;
  bool ToolbarLarge = true;
  bool AllLeftPane = true;
  std::int16_t TreeWidth = -1;  // twips; -1: none was kept
};

// What is missing or can't be read is as it is in a new layout; a number that doesn't fit is 0. The widths of the
// list's columns are read into the list, where a missing one stays as it is.
OrganizeLayout LoadOrganizeLayout(Application& app, ListView& list);
void SaveOrganizeLayout(Application& app, const OrganizeLayout& layout, const ListView& list);

}  // namespace burrowmark
