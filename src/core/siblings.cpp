#include "core/siblings.h"

#include <algorithm>

namespace burrowmark {
namespace {

// Entries that are looked through for the peaks that a removed one hid. Past these all are found anew, when needed.
constexpr std::size_t kPeakSearch = 64;

const std::wstring& TitleOf(const ListEntry& entry) { return entry.item->SortCaption(); }

bool IsOfKind(const ListEntry& entry, bool subMenu) {
  return !entry.item->Separator() && entry.item->SubMenu() == subMenu;
}

}  // namespace

void Siblings::Insert(ListEntry& entry) {
  all_.Insert(entry);
  if (titles_) (*titles_)[entry.item->Caption()].Insert(entry);
  if (entry.item->Separator()) return;
  Peaks& peaks = peaks_[entry.item->SubMenu() ? 1 : 0];
  if (peaks) AddPeak(*peaks, entry);
}

void Siblings::Remove(const ListEntry& entry) {
  const std::size_t index = all_.Remove(entry);
  if (titles_) {
    const auto found = titles_->find(entry.item->Caption());
    found->second.Remove(entry);
    if (found->second.Empty()) titles_->erase(found);
  }
  if (!entry.item->Separator()) RemovePeak(peaks_[entry.item->SubMenu() ? 1 : 0], entry, index);
}

void Siblings::AddPeak(EntryRow& peaks, ListEntry& entry) const {
  const std::size_t at = peaks.CountAhead(entry.rank);
  if (at > 0 && TitleOf(*peaks.At(at - 1)) >= TitleOf(entry)) return;
  peaks.Insert(entry);
  std::size_t hidden = at + 1;
  while (hidden < peaks.Size() && TitleOf(*peaks.At(hidden)) <= TitleOf(entry)) ++hidden;
  peaks.RemoveRange(at + 1, hidden);
}

void Siblings::RemovePeak(Peaks& peaks, const ListEntry& entry, std::size_t index) const {
  if (!peaks) return;
  const std::size_t at = peaks->CountAhead(entry.rank);
  if (at == peaks->Size() || peaks->At(at) != &entry) return;
  peaks->RemoveRange(at, at + 1);
  const std::size_t next = at == peaks->Size() ? all_.Size() : all_.CountAhead(peaks->At(at)->rank);
  if (next > index + kPeakSearch) {
    peaks.reset();
    return;
  }
  for (; index < next; ++index) {
    if (IsOfKind(*all_.At(index), entry.item->SubMenu())) AddPeak(*peaks, *all_.At(index));
  }
}

const EntryRow& Siblings::PeaksOf(bool subMenu) const {
  Peaks& peaks = peaks_[subMenu ? 1 : 0];
  if (!peaks) {
    peaks.emplace();
    for (ListEntry* entry : all_) {
      if (IsOfKind(*entry, subMenu)) AddPeak(*peaks, *entry);
    }
  }
  return *peaks;
}

const EntryRow* Siblings::Titled(const std::wstring& caption) const {
  if (!titles_) {
    titles_.emplace();
    for (ListEntry* entry : all_) (*titles_)[entry->item->Caption()].Insert(*entry);
  }
  const auto found = titles_->find(caption);
  return found == titles_->end() ? nullptr : &found->second;
}

const ListEntry* Siblings::First(bool subMenu) const {
  const EntryRow& peaks = PeaksOf(subMenu);
  return peaks.Empty() ? nullptr : peaks.At(0);
}

const ListEntry* Siblings::FirstBehind(bool subMenu, const std::wstring& sortCaption) const {
  const EntryRow& peaks = PeaksOf(subMenu);
  const auto found =
      std::upper_bound(peaks.begin(), peaks.end(), sortCaption,
                       [](const std::wstring& title, const ListEntry* entry) { return title < TitleOf(*entry); });
  return found == peaks.end() ? nullptr : *found;
}

}  // namespace burrowmark
