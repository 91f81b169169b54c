// Numbers and texts in the bytes of a shortcut file, taken only from where they wholly are.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace burrowmark {

// A number, lowest byte first; 0 if it isn't wholly there.
inline std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t length) {
  if (at > bytes.size() || bytes.size() - at < length) return 0;
  std::uint32_t value = 0;
  for (std::size_t i = length; i > 0; --i) value = value << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
  return value;
}

// What lies behind a place; empty beyond the end.
inline std::string_view From(std::string_view bytes, std::size_t at) {
  return bytes.substr(std::min(at, bytes.size()));
}

// The bytes of a text up to its NUL of one or two bytes; nothing if there is none.
inline std::optional<std::string_view> UpToNul(std::string_view bytes, std::size_t unit) {
  for (std::size_t at = 0; bytes.size() - at >= unit; at += unit) {
    if (NumberAt(bytes, at, unit) == 0) return bytes.substr(0, at);
  }
  return std::nullopt;
}

// Takes one part after the other off a file.
class LinkCursor {
 public:
  explicit LinkCursor(std::string_view bytes) : rest_(bytes) {}

  // False once a part was cut short.
  bool IsWhole() const { return whole_; }
  std::uint32_t Peek(std::size_t length) const { return NumberAt(rest_, 0, length); }
  std::string_view Take(std::size_t length) {
    whole_ = whole_ && length <= rest_.size();
    if (!whole_) return {};
    const std::string_view part = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return part;
  }
  std::uint32_t Number(std::size_t length) { return NumberAt(Take(length), 0, length); }

 private:
  std::string_view rest_;
  bool whole_ = true;
};

}  // namespace burrowmark
