#include "platform/local/person/local_session.h"

#include "platform/local/folded.h"

namespace burrowmark {
namespace {

constexpr std::uint32_t kFirstNumber = 0xC000;
constexpr std::uint32_t kLastNumber = 0xFFFF;

}  // namespace

WindowHandle LocalSession::AddWindow(LocalWindows& process) {
  windows_[++lastWindow_] = &process;
  return lastWindow_;
}

LocalWindows* LocalSession::ProcessOf(WindowHandle window) const {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : found->second;
}

std::uint32_t LocalSession::MessageNumber(const std::wstring& name) {
  const auto found = numbers_.find(Folded(name));
  if (found != numbers_.end()) return found->second;
  const std::uint32_t number = kFirstNumber + static_cast<std::uint32_t>(numbers_.size());
  if (name.empty() || number > kLastNumber) return 0;
  numbers_[Folded(name)] = number;
  return number;
}

bool LocalSession::Claim(const std::wstring& name, const LocalWindows& process) {
  return claims_.emplace(name, &process).first->second == &process;
}

void LocalSession::Leave(const LocalWindows& process) {
  std::erase_if(windows_, [&process](const auto& row) { return row.second == &process; });
  std::erase_if(claims_, [&process](const auto& row) { return row.second == &process; });
}

}  // namespace burrowmark
