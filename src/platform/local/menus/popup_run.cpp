#include "platform/local/menus/popup_run.h"

#include <algorithm>
#include <utility>

#include "platform/characters.h"
#include "platform/local/menus/menu_text.h"

namespace burrowmark {
namespace {

// Lengths at kDesignDpi: the border around the entries, what the system adds for a check mark, and the entries that it
// measures itself.
constexpr std::int32_t kBorder = 3;
constexpr std::int32_t kCheckWidth = 15;
constexpr std::int32_t kPlainHeight = 19;
constexpr std::int32_t kPlainMargin = 24;

std::int32_t Scaled(std::int32_t pixels, std::int32_t dpi) { return pixels * dpi / kDesignDpi; }

std::int32_t CountOf(const std::vector<LocalMenuEntry>* entries) {
  return entries == nullptr ? 0 : static_cast<std::int32_t>(entries->size());
}

std::int32_t ItemNumber(const LocalMenuEntry& entry) { return entry.popup != 0 ? entry.popup : entry.id; }

}  // namespace

PopupRun::PopupRun(MenuTree& tree, LocalWindows& windows, LocalDrawing& drawing, const PopupLook& look)
    : tree_(tree), windows_(windows), drawing_(drawing), look_(look), cancelModes_(windows.CancelledModes()) {}

void PopupRun::Open(MenuHandle menu) {
  Measure(menu);
  PopupView view;
  view.menu = menu;
  LayOut(view);
  levels_.push_back(view);
  for (std::int32_t i = 0; i < CountOf(tree_.Entries(menu)); ++i) Draw(view, i);
  LetOthersRun();
}

void PopupRun::Measure(MenuHandle menu) {
  for (std::int32_t i = 0; i < CountOf(tree_.Entries(menu)); ++i) {
    const LocalMenuEntry& entry = *tree_.Entry(menu, i);
    if (entry.measuredDpi == windows_.Dpi) continue;
    MeasureRecord record{.controlType = kControlMenu, .itemID = ItemNumber(entry)};
    if (entry.IsOwnerDrawn()) {
      WindowMessage message = MessageTo(look_.window, kMessageMeasureItem, 0, 0);
      message.measure = &record;
      windows_.Deliver(message);
    } else {
      record.itemWidth = drawing_.TextWidth(entry.text, windows_.Dpi) + Scaled(kPlainMargin, windows_.Dpi);
      record.itemHeight = Scaled(kPlainHeight, windows_.Dpi);
    }
    tree_.SetMeasure(menu, i, windows_.Dpi, record.itemWidth, record.itemHeight);
  }
}

void PopupRun::LayOut(PopupView& view) const {
  const std::vector<LocalMenuEntry>* entries = tree_.Entries(view.menu);
  if (entries == nullptr) return;
  const std::int32_t dpi = windows_.Dpi;
  std::int32_t width = 0;
  for (const LocalMenuEntry& entry : *entries) width = std::max(width, entry.width);
  const std::int32_t border = Scaled(kBorder, dpi);
  const std::int32_t right = border + width + Scaled(kCheckWidth, dpi);
  std::int32_t top = border;
  for (const LocalMenuEntry& entry : *entries) {
    view.rects.push_back({border, top, right, top + entry.height});
    top += entry.height;
  }
  view.context = drawing_.OpenContext(dpi, right + border, top + border, look_.background);
}

void PopupRun::Draw(const PopupView& view, std::int32_t position) {
  const LocalMenuEntry* entry = tree_.Entry(view.menu, position);
  const auto index = static_cast<std::size_t>(position);
  if (entry == nullptr || !entry->IsOwnerDrawn() || index >= view.rects.size()) return;
  const DrawRecord record{.controlType = kControlMenu,
                          .itemID = ItemNumber(*entry),
                          .itemState = view.selected == position ? look_.selectedState : 0,
                          .context = view.context,
                          .rect = view.rects[index]};
  drawing_.StartDrawing(record.context);
  WindowMessage message = MessageTo(look_.window, kMessageDrawItem, 0, 0);
  message.draw = &record;
  windows_.Deliver(message);
}

void PopupRun::Select(std::int32_t position) {
  PopupView& view = Top();
  if (view.selected == position) return;
  const std::int32_t old = std::exchange(view.selected, position);
  const PopupView now = view;
  if (old >= 0) Draw(now, old);
  if (position >= 0) Draw(now, position);
}

const LocalMenuEntry* PopupRun::Selected() { return tree_.Entry(Top().menu, Top().selected); }

void PopupRun::CloseFrom(std::size_t level) {
  for (; levels_.size() > level; levels_.pop_back()) drawing_.CloseContext(levels_.back().context);
}

std::optional<PopupRun::Spot> PopupRun::FindTitle(const std::wstring& title) const {
  for (std::size_t level = levels_.size(); level > 0; --level) {
    const std::vector<LocalMenuEntry>* entries = tree_.Entries(levels_[level - 1].menu);
    if (entries == nullptr) continue;
    const auto found = std::find_if(entries->begin(), entries->end(), [&title](const LocalMenuEntry& entry) {
      return entry.text == title || WithoutPrefixes(entry.text) == title;
    });
    if (found != entries->end()) return Spot{level - 1, static_cast<std::int32_t>(found - entries->begin())};
  }
  return std::nullopt;
}

bool PopupRun::MoveMouseTo(const std::wstring& title) {
  const std::optional<Spot> spot = FindTitle(title);
  if (!spot) return false;
  CloseFrom(spot->level + 1);
  Select(spot->position);
  return true;
}

bool PopupRun::Perform(const MenuAction& action) {
  switch (action.kind) {
    case MenuAction::Kind::kClick:
      if (!MoveMouseTo(action.title)) return false;
      if (Selected() != nullptr && !Selected()->IsSeparator()) Execute(false);
      break;
    case MenuAction::Kind::kRightClick:
      if (!MoveMouseTo(action.title)) return false;
      RightClick();
      break;
    case MenuAction::Kind::kPress:
      Press(action.key);
      break;
    case MenuAction::Kind::kType:
      Type(action.letter);
      break;
    case MenuAction::Kind::kDo:
      if (action.what) action.what();
      break;
    case MenuAction::Kind::kCancel:
      CloseFrom(0);
      break;
  }
  LetOthersRun();
  return true;
}

void PopupRun::RightClick() {
  WindowMessage message = MessageTo(look_.window, kMessageMenuRightButtonUp, Top().selected, Top().menu);
  windows_.Deliver(message);
}

// The position of the next entry that isn't a separator, around the end; -1 if there is none.
std::int32_t PopupRun::NextSelectable(std::int32_t from, std::int32_t step) {
  const MenuHandle menu = Top().menu;
  const std::int32_t count = CountOf(tree_.Entries(menu));
  std::int32_t position = from < 0 && step < 0 ? 0 : from;
  for (std::int32_t tries = 0; tries < count; ++tries) {
    position = (position + step + count) % count;
    if (!tree_.Entry(menu, position)->IsSeparator()) return position;
  }
  return -1;
}

void PopupRun::Press(MenuKey key) {
  const bool inPopupOfGroup = levels_.size() > 1;
  switch (key) {
    case MenuKey::kUp:
      return Select(NextSelectable(Top().selected, -1));
    case MenuKey::kDown:
      return Select(NextSelectable(Top().selected, 1));
    case MenuKey::kRight:
      return OpenSelected(true);
    case MenuKey::kLeft:
      if (inPopupOfGroup) CloseLevel();
      return;
    case MenuKey::kEscape:
      return CloseLevel();
    case MenuKey::kEnter:
      return Execute(true);
  }
}

std::int32_t PopupRun::NextStartingWith(wchar_t letter) {
  const MenuHandle menu = Top().menu;
  const std::int32_t count = CountOf(tree_.Entries(menu));
  for (std::int32_t step = 1; step <= count; ++step) {
    const std::int32_t position = (Top().selected + step) % count;
    const std::wstring seen = WithoutPrefixes(tree_.Entry(menu, position)->text);
    if (!tree_.Entry(menu, position)->IsSeparator() && !seen.empty() && UpperCase(seen[0]) == UpperCase(letter)) {
      return position;
    }
  }
  return -1;
}

void PopupRun::Type(wchar_t letter) {
  const std::int32_t next = NextStartingWith(letter);
  if (next < 0) return windows_.Beep();
  Select(next);
}

void PopupRun::OpenSelected(bool byKey) {
  const LocalMenuEntry* entry = Selected();
  if (entry == nullptr || entry->popup == 0) return;
  Open(entry->popup);
  if (byKey && IsOpen()) Select(NextSelectable(-1, 1));
}

void PopupRun::Execute(bool byKey) {
  const LocalMenuEntry* entry = Selected();
  if (entry != nullptr && entry->popup != 0) return OpenSelected(byKey);
  if (entry != nullptr) chosen_ = entry->id;
  CloseFrom(0);
}

// The program's messages go on while a menu is open. One of them may end the menu, or take it away.
void PopupRun::LetOthersRun() {
  windows_.Yield(YieldPoint::kMenu);
  const bool gone =
      std::any_of(levels_.begin(), levels_.end(), [this](const PopupView& view) { return !tree_.Exists(view.menu); });
  if (gone || windows_.Main() != look_.window || windows_.CancelledModes() != cancelModes_) CloseFrom(0);
}

}  // namespace burrowmark
