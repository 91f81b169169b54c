// What the editor can take back.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/setting_names.h"
#include "organize/tree_edit.h"

namespace burrowmark {

// What the panes showed, by the names and keys of what still stands when it is put back.
struct PanesState {
  std::wstring Node{};  // key of the selected one
  bool Expanded = false;
  std::wstring Group{};              // the one that the list shows
  std::vector<std::wstring> Rows{};  // keys of the selected ones
  std::int16_t ActivePane = 0;
};

struct HistoryStep {
  std::wstring Name{};  // of the command: "Paste"
  TreeRecord Tree{};
  PanesState Panes;  // before it
  // The options that it switched, as they were before.
  std::vector<std::pair<Appearance, bool>> Options{};
};

class EditHistory {
 public:
  static constexpr std::size_t kDepth = 20;

  bool Empty() const { return steps_.empty(); }
  // Of the command that would be taken back; empty where there is none.
  std::wstring Name() const { return Empty() ? std::wstring() : steps_.back().Name; }
  void Add(HistoryStep step) {
    if (steps_.size() == kDepth) steps_.pop_front();
    steps_.push_back(std::move(step));
  }
  std::optional<HistoryStep> TakeLast() {
    if (Empty()) return std::nullopt;
    std::optional<HistoryStep> last(std::move(steps_.back()));
    steps_.pop_back();
    return last;
  }
  void Clear() { steps_.clear(); }

 private:
  std::deque<HistoryStep> steps_;
};

}  // namespace burrowmark
