#include "platform/win32/windows/win32_keyboard.h"

#include <windows.h>

#include <future>
#include <utility>

#include "platform/from_system.h"
#include "platform/win32/start_thread.h"

namespace burrowmark {
namespace {

static_assert(kHookKeyboardLowLevel == WH_KEYBOARD_LL && kMessageKeyDown == WM_KEYDOWN);
static_assert(kKeyShift == VK_SHIFT && kKeyControl == VK_CONTROL);

using Procedure = std::function<void(std::int64_t message, const KeyRecord& key)>;

// The system calls a hook without telling it whose it is; it calls it on the thread that installed it.
const Procedure*& HookOfThread() {
  thread_local const Procedure* procedure = nullptr;
  return procedure;
}

LRESULT CALLBACK HookProcedure(int code, WPARAM message, LPARAM details) {
  const Procedure* procedure = HookOfThread();
  if (code == HC_ACTION && procedure != nullptr) {
    FromSystem(
        [=] {
          const auto* event = reinterpret_cast<const KBDLLHOOKSTRUCT*>(details);
          (*procedure)(static_cast<std::int64_t>(message), {event->vkCode, event->scanCode, event->flags, event->time});
          return true;
        },
        false);
  }
  return ::CallNextHookEx(nullptr, code, message, details);  // the key goes on in every case
}

}  // namespace

// A hook from its installing until it is off, and the thread that the system calls it on.
class Win32Keyboard::HookThread {
 public:
  explicit HookThread(Procedure procedure) : procedure_(std::move(procedure)), thread_(StartThread([this] { Run(); })) {
    if (thread_ != nullptr) installed_ = started_.get_future().get();
  }
  ~HookThread() {
    if (thread_ == nullptr) return;
    ::PostThreadMessageW(installed_.thread, WM_QUIT, 0, 0);
    ::WaitForSingleObject(thread_, INFINITE);
    ::CloseHandle(thread_);
  }
  HookThread(const HookThread&) = delete;
  HookThread& operator=(const HookThread&) = delete;

  // 0 where the system refuses it, or a thread for it.
  HookHandle Hook() const { return reinterpret_cast<INT_PTR>(installed_.hook); }

 private:
  struct Installed {
    HHOOK hook = nullptr;
    DWORD thread = 0;
  };

  void Run() {
    HookOfThread() = &procedure_;
    MSG message = {};
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // makes the queue, so that the end can be posted to it
    const HHOOK hook = ::SetWindowsHookExW(WH_KEYBOARD_LL, HookProcedure, ::GetModuleHandleW(nullptr), 0);
    started_.set_value({hook, ::GetCurrentThreadId()});
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    }
    if (hook != nullptr) ::UnhookWindowsHookEx(hook);
  }

  const Procedure procedure_;
  std::promise<Installed> started_;
  Installed installed_;
  const HANDLE thread_;  // starts when all the others are there
};

Win32Keyboard::Win32Keyboard() = default;

Win32Keyboard::~Win32Keyboard() = default;

HookHandle Win32Keyboard::SetWindowsHookExA(std::int32_t kind, Procedure procedure) {
  if (kind != kHookKeyboardLowLevel || thread_ != nullptr) return 0;
  thread_ = std::make_unique<HookThread>(std::move(procedure));
  const HookHandle hook = thread_->Hook();
  if (hook == 0) thread_.reset();
  return hook;
}

bool Win32Keyboard::UnhookWindowsHookEx(HookHandle hook) {
  if (hook == 0 || thread_ == nullptr || hook != thread_->Hook()) return false;
  thread_.reset();
  return true;
}

std::int16_t Win32Keyboard::GetKeyState(std::int32_t key) {
  // The system's call of this name tells what the keys were at the last message that this thread took off its queue.
  // A thread without a window gets none of the keyboard, so in the hook the modifiers would never be seen down.
  constexpr unsigned kIsDown = 0x8000;
  const auto state = static_cast<std::uint16_t>(::GetAsyncKeyState(key));
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(state & kIsDown));
}

}  // namespace burrowmark
