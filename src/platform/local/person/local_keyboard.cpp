#include "platform/local/person/local_keyboard.h"

#include <string>
#include <utility>

namespace burrowmark {
namespace {

constexpr std::int32_t kLeftShift = 160;  // the first of the keys that are there twice
constexpr std::int16_t kIsDown = -0x8000;

// The system tells a hook which one of two keys it was.
std::uint32_t CodeForHook(std::int32_t key) {
  const bool isDouble = key >= kKeyShift && key <= kKeyAlt;
  return static_cast<std::uint32_t>(isDouble ? kLeftShift + 2 * (key - kKeyShift) : key);
}

}  // namespace

void LocalKeyboard::Down(std::int32_t key) {
  Send(kMessageKeyDown, kMessageSysKeyDown, key);
  down_.insert(key);
}

void LocalKeyboard::Up(std::int32_t key) {
  Send(kMessageKeyUp, kMessageSysKeyUp, key);
  down_.erase(key);
}

void LocalKeyboard::Press(std::int32_t key, std::initializer_list<std::int32_t> modifiers) {
  for (const std::int32_t modifier : modifiers) Down(modifier);
  Down(key);
  Up(key);
  for (const std::int32_t modifier : modifiers) Up(modifier);
}

void LocalKeyboard::Send(std::int64_t message, std::int64_t systemMessage, std::int32_t key) {
  const bool isSystemKey = down_.contains(kKeyAlt) && !down_.contains(kKeyControl);
  const std::int64_t sent = isSystemKey ? systemMessage : message;
  const std::uint32_t code = CodeForHook(key);
  const auto procedure = procedure_;  // it may take itself off
  if (procedure) procedure(sent, {code, 0, 0, ++time_});
  Received.push_back({sent, static_cast<std::uint32_t>(key)});
}

HookHandle LocalKeyboard::SetWindowsHookExA(std::int32_t kind,
                                            std::function<void(std::int64_t message, const KeyRecord& key)> procedure) {
  if (faults_.Strikes("SetWindowsHookExA", std::to_wstring(kind)) || !HasLowLevelHook) return 0;
  if (kind != kHookKeyboardLowLevel || hook_ != 0) return 0;
  procedure_ = std::move(procedure);
  hook_ = ++lastHook_;
  return hook_;
}

bool LocalKeyboard::UnhookWindowsHookEx(HookHandle hook) {
  if (faults_.Strikes("UnhookWindowsHookEx", {}) || hook == 0 || hook != hook_) return false;
  hook_ = 0;
  procedure_ = nullptr;
  return true;
}

std::int16_t LocalKeyboard::GetKeyState(std::int32_t key) { return down_.contains(key) ? kIsDown : std::int16_t{0}; }

}  // namespace burrowmark
