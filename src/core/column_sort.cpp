#include "core/column_sort.h"

#include <string>

namespace burrowmark {
namespace {

const std::wstring& HeaderOf(const ListView& list, std::int32_t column) {
  return list.Columns().at(static_cast<std::size_t>(column) - 1).text;
}

}  // namespace

void ColumnSort::Click(std::int32_t column) {
  RemoveSortMark();
  const bool descending = column == column_ && list_.Order() != SortOrder::kDescending;
  list_.SetOrder(descending ? SortOrder::kDescending : SortOrder::kAscending);
  list_.SetColumnText(column, HeaderOf(list_, column) + (descending ? L"-" : L"+"));
  list_.SetSortKey(column - 1);
  column_ = column;
  list_.SetSorted(true);
}

void ColumnSort::RemoveSortMark() {
  if (column_ <= 0) return;
  const std::wstring& header = HeaderOf(list_, column_);
  if (header.ends_with(L'-') || header.ends_with(L'+')) {
    list_.SetColumnText(column_, header.substr(0, header.size() - 1));
  }
}

void ColumnSort::Reset() {
  RemoveSortMark();
  column_ = 0;
}

}  // namespace burrowmark
