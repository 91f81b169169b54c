// The entries of a list that have one owner.
#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "core/list_entry.h"

namespace burrowmark {

// What titles and sorted places need is worked out when it is first asked for and kept up from then on.
class Siblings {
 public:
  const EntryRow& All() const { return all_; }
  bool Empty() const { return all_.Empty(); }
  void Insert(ListEntry& entry);
  void Remove(const ListEntry& entry);

  // All with this exact title, in order; null where there is none.
  const EntryRow* Titled(const std::wstring& caption) const;
  // The first group or leaf; separators are neither. Null where there is none.
  const ListEntry* First(bool subMenu) const;
  // The first of this kind whose title sorts behind `sortCaption`, wherever the others stand; null where there is none.
  const ListEntry* FirstBehind(bool subMenu, const std::wstring& sortCaption) const;

 private:
  // The entries of one kind that sort behind all earlier ones of the kind. The first of all entries that sorts behind a
  // title is one of these, and their titles ascend.
  using Peaks = std::optional<EntryRow>;

  const EntryRow& PeaksOf(bool subMenu) const;
  void AddPeak(EntryRow& peaks, ListEntry& entry) const;
  // `index` is the place that the entry had among all.
  void RemovePeak(Peaks& peaks, const ListEntry& entry, std::size_t index) const;

  EntryRow all_;
  mutable Peaks peaks_[2];  // of leaves, of groups
  mutable std::optional<std::unordered_map<std::wstring, EntryRow>> titles_;
};

}  // namespace burrowmark
