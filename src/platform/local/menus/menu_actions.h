// What a person does while a popup is open.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace burrowmark {

enum class MenuKey : std::uint8_t { kUp, kDown, kLeft, kRight, kEnter, kEscape };

struct MenuAction {
  enum class Kind : std::uint8_t { kClick, kRightClick, kPress, kType, kDo, kCancel };

  Kind kind = Kind::kCancel;
  std::wstring title = {};          // of the entry that is clicked
  MenuKey key = MenuKey::kEscape;   // that is pressed
  wchar_t letter = 0;               // that is typed
  std::function<void()> what = {};  // happens meanwhile
};

// One after the other, as in MenuActions().Type(L"p").Press(MenuKey::kEnter).
class MenuActions {
 public:
  MenuActions() = default;
  // Clicks on these titles: the groups on the way and the entry itself.
  MenuActions(std::initializer_list<std::wstring> path) {
    for (const std::wstring& title : path) Click(title);
  }

  // An entry is found by its text, with or without the ampersands in it: in the popup that was opened last, or else in
  // those that it was opened from.
  MenuActions& Click(const std::wstring& title) { return Add({.kind = MenuAction::Kind::kClick, .title = title}); }
  MenuActions& RightClick(const std::wstring& title) {
    return Add({.kind = MenuAction::Kind::kRightClick, .title = title});
  }
  MenuActions& Press(MenuKey key) { return Add({.kind = MenuAction::Kind::kPress, .key = key}); }
  MenuActions& Type(const std::wstring& letters) {
    for (const wchar_t letter : letters) Add({.kind = MenuAction::Kind::kType, .letter = letter});
    return *this;
  }
  MenuActions& Do(std::function<void()> what) { return Add({.kind = MenuAction::Kind::kDo, .what = std::move(what)}); }
  // Clicks elsewhere.
  MenuActions& Cancel() { return Add({.kind = MenuAction::Kind::kCancel}); }

  const std::vector<MenuAction>& All() const { return actions_; }

 private:
  MenuActions& Add(MenuAction action) {
    actions_.push_back(std::move(action));
    return *this;
  }

  std::vector<MenuAction> actions_;
};

}  // namespace burrowmark
