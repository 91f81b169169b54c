// A window with a list and a status bar on the screen of the local machine, as a person reads it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/local/person/shown_window.h"

namespace burrowmark::test {

class ListWindowTest : public testing::Test {
 protected:
  ShownControl& Get(ShownKind kind) {
    return **std::find_if(window_->controls.begin(), window_->controls.end(),
                          [kind](const auto& control) { return control->kind == kind; });
  }
  std::vector<ListItemState>& Rows() { return Get(ShownKind::kListView).list->rows; }
  // Texts of one column, a bar behind each.
  std::wstring Column(std::size_t column) {
    std::wstring texts;
    for (const ListItemState& row : Rows()) texts += (column < row.texts.size() ? row.texts[column] : L"") + L"|";
    return texts;
  }
  std::wstring Panels() {
    std::wstring texts;
    for (const std::wstring& text : window_->PanelTexts(Get(ShownKind::kStatusBar).window)) texts += text + L"|";
    return texts;
  }
  void Click(const wchar_t* title, std::int32_t button = kLeftButton, std::int32_t shift = 0) {
    const auto row = std::find_if(Rows().begin(), Rows().end(), [title](const auto& r) { return r.texts[0] == title; });
    window_->ClickRow(Get(ShownKind::kListView).window, static_cast<std::int32_t>(row - Rows().begin()), button, shift);
  }

  ShownWindow* window_ = nullptr;
};

}  // namespace burrowmark::test
