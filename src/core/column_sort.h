// The order of a list that the user sorts by its headers, and the mark behind the header's text that tells of it.
#pragma once

#include <cstdint>

#include "ui/list_view.h"

namespace burrowmark {

class ColumnSort {
 public:
  // `list` must outlive this object. `column`, counted from 1, has the order at first, without a mark; 0 for none.
  explicit ColumnSort(ListView& list, std::int32_t column = 0) : list_(list), column_(column) {}

  // A click on a header sorts upwards with "+"; one more on the same turns the order round, which "-" tells.
  void Click(std::int32_t column);
  void RemoveSortMark();
  // No column has the order any more.
  void Reset();

 private:
  ListView& list_;
  std::int32_t column_;
};

}  // namespace burrowmark
