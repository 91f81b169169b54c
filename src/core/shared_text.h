// A text that many items have. Copies share it; it never changes in place.
//
// It stands wherever a text may stand. An item has a dozen texts of which nearly all are those of its neighbours, and a
// copied tree has those of the tree it came from.
#pragma once

#include <atomic>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace burrowmark {

// One pointer in size: an item is mostly texts, and thousands of them are walked over.
class SharedText {
 public:
  SharedText() = default;
  SharedText(const wchar_t* text) : SharedText(std::wstring_view(text)) {}
  explicit SharedText(std::wstring_view text) : held_(text.empty() ? nullptr : new Held{{1}, std::wstring(text)}) {}
  ~SharedText() {
    if (held_ != nullptr && held_->users.fetch_sub(1, std::memory_order_acq_rel) == 1) delete held_;
  }
  SharedText(const SharedText& other) : held_(other.held_) {
    if (held_ != nullptr) held_->users.fetch_add(1, std::memory_order_relaxed);
  }
  SharedText(SharedText&& other) noexcept : held_(std::exchange(other.held_, nullptr)) {}
  SharedText& operator=(SharedText other) noexcept {
    std::swap(held_, other.held_);
    return *this;
  }
  // Goes on sharing what it has if that is the same.
  SharedText& operator=(std::wstring_view text) {
    return text == std::wstring_view(*this) ? *this : *this = SharedText(text);
  }
  SharedText& operator=(const wchar_t* text) { return *this = std::wstring_view(text); }
  // Becomes `text`, and shares it with `known` if that is the same.
  void Set(std::wstring_view text, const SharedText& known) {
    if (text == std::wstring_view(known)) {
      *this = known;
    } else {
      *this = text;
    }
  }

  const std::wstring& Text() const {
    static const std::wstring none;
    return held_ != nullptr ? held_->text : none;
  }
  operator const std::wstring&() const { return Text(); }
  operator std::wstring_view() const { return Text(); }

  bool empty() const { return held_ == nullptr; }
  std::size_t size() const { return Text().size(); }
  auto begin() const { return Text().begin(); }
  auto end() const { return Text().end(); }
  wchar_t back() const { return Text().back(); }
  std::size_t find(std::wstring_view part, std::size_t from = 0) const { return Text().find(part, from); }
  std::wstring substr(std::size_t from, std::size_t count = std::wstring::npos) const {
    return Text().substr(from, count);
  }
  void clear() { *this = SharedText(); }

  template <std::convertible_to<std::wstring_view> Other>
  friend bool operator==(const SharedText& text, const Other& other) {
    return std::wstring_view(text) == std::wstring_view(other);
  }

 private:
  struct Held {
    std::atomic<std::uint32_t> users;
    const std::wstring text;
  };

  Held* held_ = nullptr;  // null: the empty text
};

template <std::convertible_to<std::wstring_view> Left, std::convertible_to<std::wstring_view> Right>
requires std::same_as<Left, SharedText> || std::same_as<Right, SharedText> std::wstring operator+(const Left& left,
                                                                                                  const Right& right) {
  std::wstring joined(std::wstring_view{left});
  return joined += std::wstring_view(right);
}

}  // namespace burrowmark
