#include "platform/local/menus/local_menus.h"

#include "platform/characters.h"

namespace burrowmark {
namespace {

constexpr std::int64_t kLowWord = 0xFFFF;

// States of a drawn entry (winuser.h). From version 5 on the system hides the keyboard's underlines.
constexpr std::uint32_t kSelected = 1;
constexpr std::uint32_t kNoAccelerator = 256;
constexpr std::uint32_t kFirstVersionWithoutUnderlines = 5;

// True while it lives.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace

LocalMenus::LocalMenus(MenuTree& tree, LocalWindows& windows, LocalDrawing& drawing, const LocalFacts& facts,
                       LocalUser& user, Faults& faults)
    : tree_(tree), windows_(windows), drawing_(drawing), facts_(facts), user_(user), faults_(faults) {}

const std::vector<LocalMenuEntry>& LocalMenus::Entries(MenuHandle menu) const {
  const std::vector<LocalMenuEntry>* entries = tree_.Entries(menu);
  return entries == nullptr ? none_ : *entries;
}

MenuHandle LocalMenus::GetSubMenu(MenuHandle menu, std::int32_t position) {
  const LocalMenuEntry* entry = tree_.Entry(menu, position);
  return entry == nullptr ? 0 : entry->popup;
}

MenuHandle LocalMenus::CreatePopupMenu() { return faults_.Strikes("CreatePopupMenu", L"") ? 0 : tree_.CreatePopup(); }

bool LocalMenus::DestroyMenu(MenuHandle menu) {
  if (faults_.Strikes("DestroyMenu", L"") || !tree_.Exists(menu) || tree_.IsHeld(menu)) return false;
  tree_.Destroy(menu);
  return true;
}

bool LocalMenus::InsertMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                             const std::wstring& text) {
  return !faults_.Strikes("InsertMenuA", text) && tree_.Insert(menu, position, flags, id, text);
}

bool LocalMenus::ModifyMenuA(MenuHandle menu, std::int32_t position, std::int32_t flags, std::int32_t id,
                             const std::wstring& text) {
  return !faults_.Strikes("ModifyMenuA", text) && tree_.Modify(menu, position, flags, id, text);
}

bool LocalMenus::DeleteMenu(MenuHandle menu, std::int32_t position, std::int32_t flags) {
  return !faults_.Strikes("DeleteMenu", L"") && (flags & kMenuByPosition) != 0 && tree_.Delete(menu, position);
}

std::int32_t LocalMenus::GetMenuItemCount(MenuHandle menu) {
  const std::vector<LocalMenuEntry>* entries = tree_.Entries(menu);
  return entries == nullptr ? -1 : static_cast<std::int32_t>(entries->size());
}

std::int32_t LocalMenus::GetMenuItemID(MenuHandle menu, std::int32_t position) {
  const LocalMenuEntry* entry = tree_.Entry(menu, position);
  return entry == nullptr || entry->popup != 0 ? -1 : entry->id;
}

std::uint32_t LocalMenus::SelectedState() const {
  const bool hidesUnderlines = facts_.Version.major >= kFirstVersionWithoutUnderlines;
  return hidesUnderlines ? kSelected + kNoAccelerator : kSelected;
}

void LocalMenus::Play(PopupRun& run, const std::vector<MenuAction>& actions) {
  for (const MenuAction& action : actions) {
    if (!run.IsOpen() && user_.AnyMenu) return;
    if (!run.IsOpen()) user_.Complain("the menu closed before " + ToUtf8(action.title) + " could be done");
    if (!run.Perform(action)) user_.Complain("the menu has no entry " + ToUtf8(action.title));
  }
  if (run.IsOpen()) user_.Complain("the menu is still open");
}

std::int32_t LocalMenus::TrackPopupMenu(MenuHandle menu, WindowHandle window, Color background,
                                        const std::optional<Rect>& beside) {
  Beside = beside;
  if (showing_ || !tree_.Exists(menu) || window == 0 || window != windows_.Main()) return 0;
  const MenuActions actions = user_.TakeMenu();
  PopupRun run(tree_, windows_, drawing_, {window, SelectedState(), background});
  {
    const Raised raised(showing_);
    run.Open(menu);
    Play(run, actions.All());
  }
  return static_cast<std::int32_t>(run.Chosen().value_or(0) & kLowWord);
}

}  // namespace burrowmark
