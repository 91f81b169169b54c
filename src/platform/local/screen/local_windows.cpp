#include "platform/local/screen/local_windows.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace burrowmark {
namespace {

constexpr std::int32_t kDummyNumber = 50;
constexpr std::int64_t kLowWord = 0xFFFF;
constexpr std::int64_t kLongestIdleTime = 24LL * 60 * 60 * 1000;

// Counts up while it lives.
class Inside {
 public:
  explicit Inside(int& depth) : depth_(depth) { ++depth_; }
  ~Inside() { --depth_; }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

 private:
  int& depth_;
};

// The program waits for somebody at the machine while it lives.
class Idle {
 public:
  explicit Idle(int& depth) : depth_(depth), before_(std::exchange(depth, 0)) {}
  ~Idle() { depth_ = before_; }
  Idle(const Idle&) = delete;
  Idle& operator=(const Idle&) = delete;

 private:
  int& depth_;
  int before_;
};

// By value: what is called may take the original away.
template <typename... Arguments>
void Call(std::function<void(Arguments...)> handler, Arguments... arguments) {
  if (handler) handler(arguments...);
}

}  // namespace

WindowMessage MessageTo(WindowHandle window, std::uint32_t number, std::int64_t wParam, std::int64_t lParam) {
  WindowMessage message;
  message.window = window;
  message.number = number;
  message.wParam = wParam;
  message.lParam = lParam;
  return message;
}

LocalWindows::LocalWindows(MenuTree& menus, std::shared_ptr<LocalSession> session, Faults& faults)
    : menus_(menus),
      session_(std::move(session)),
      faults_(faults),
      processNumber_(session_->AddProcess()),
      peers_(*this, Desktop) {}

LocalWindows::~LocalWindows() { session_->Leave(*this); }

MenuHandle LocalWindows::MakeBar() {
  const MenuHandle bar = menus_.CreateBar();
  const MenuHandle file = menus_.CreatePopup();
  menus_.Insert(bar, 0, kMenuByPosition | kMenuPopup, file, L"File");
  menus_.Insert(file, 0, kMenuByPosition, kDummyNumber, L"Dummy");
  return bar;
}

WindowHandle LocalWindows::CreateMainWindow(const std::wstring& title, MainWindowEvents& events) {
  if (faults_.Strikes("CreateMainWindow", title) || main_) return 0;
  main_ = MainWindow{session_->AddWindow(*this), MakeBar(), &events, {}};
  return main_->handle;
}

void LocalWindows::DestroyMainWindow(WindowHandle window) {
  if (window == 0 || window != Main() || main_->going) return;
  main_->going = true;
  Desktop.LoseOwned(window);
  Call(main_->events->Unload);
  menus_.Destroy(main_->bar);
  session_->RemoveWindow(window);
  main_.reset();
}

void LocalWindows::SetWindowHook(WindowHandle window, std::function<MessageResult(WindowMessage&)> hook) {
  if (window != 0 && window == Main()) main_->hook = std::move(hook);
}

MessageResult LocalWindows::Deliver(WindowMessage& message) {
  if (message.window == 0 || message.window != Main()) return {};
  const Inside inside(depth_);
  const std::function<MessageResult(WindowMessage&)> hook = main_->hook;  // it may take itself away
  const MessageResult result = hook ? hook(message) : MessageResult();
  if (result.handled || message.window != Main()) return result;
  return {false, OwnProcedure(message)};
}

std::int64_t LocalWindows::OwnProcedure(const WindowMessage& message) {
  const MainWindowEvents& events = *main_->events;
  switch (message.number) {
    case kMessageClose:
      Call(events.Close);
      return 0;
    case kMessageQueryEndSession:
      return 1;
    case kMessageEndSession:
      if (message.wParam != 0) Call(events.SessionEnding);
      return 0;
    case kMessageCancelMode:
      ++cancelModes_;
      return 0;
    case kMessageMouseMove:
      Call(events.TrayMouse, static_cast<std::uint32_t>(message.lParam));
      return 0;
    case kMessageDpiChanged:
      Call(events.DpiChanged, static_cast<std::int32_t>(message.wParam & kLowWord));
      return 0;
    default:
      if (message.number == RegisterWindowMessageA(kTaskbarCreated)) Call(events.TaskbarCreated);
      return 0;
  }
}

std::int64_t LocalWindows::Deliver(LocalWindows* process, WindowMessage& message) {
  return process == nullptr ? 0 : process->Deliver(message).value;
}

bool LocalWindows::PostMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam, std::int64_t lParam) {
  LocalWindows* process = session_->ProcessOf(window);
  if (process == nullptr) return false;
  process->Post([process, window, message, wParam, lParam] {
    WindowMessage posted = MessageTo(window, message, wParam, lParam);
    process->Deliver(posted);
  });
  return true;
}

std::int64_t LocalWindows::SendMessageA(WindowHandle window, std::uint32_t message, std::int64_t wParam,
                                        std::int64_t lParam) {
  WindowMessage sent = MessageTo(window, message, wParam, lParam);
  return Deliver(session_->ProcessOf(window), sent);
}

std::int64_t LocalWindows::SendText(WindowHandle window, std::uint32_t number, const std::wstring& text) {
  WindowMessage sent = MessageTo(window, kMessageCopyData, 0, number);
  sent.wParam = ProcessNumber();
  sent.text = text;
  return Deliver(session_->ProcessOf(window), sent);
}

void LocalWindows::CancelModes() {
  if (main_) SendMessageA(main_->handle, kMessageCancelMode, 0, 0);
}

void LocalWindows::SetForegroundWindow(WindowHandle window) {
  if (session_->ProcessOf(window) != nullptr) session_->Foreground = window;
}

void LocalWindows::Post(std::function<void()> work) { queue_.push_back(std::move(work)); }

void LocalWindows::PostLater(std::int32_t milliseconds, std::function<void()> work) {
  later_.emplace(now_ + std::max(milliseconds, 0), std::move(work));
}

void LocalWindows::RunGesture(std::function<void()> gesture) {
  Post(std::move(gesture));
  if (!IsBusy()) LetRun();
}

void LocalWindows::MeetPopup(ShownPopup& popup) {
  Yield(YieldPoint::kPopup);
  if (PopupPerson) PopupPerson(popup);
  LetRun();
}

bool LocalWindows::RunOne() {
  if (queue_.empty()) return false;
  const std::function<void()> work = std::move(queue_.front());
  queue_.pop_front();
  const Inside inside(depth_);
  if (work) work();
  return true;
}

std::vector<Box> LocalWindows::Screens() {
  const Rect& screen = WindowStack::kScreen;
  const auto twips = [](std::int32_t pixels) { return ToTwips(pixels, WindowStack::kSystemDpi); };
  return {
      {twips(screen.left), twips(screen.top), twips(screen.right - screen.left), twips(screen.bottom - screen.top)}};
}

void LocalWindows::RunPending() {
  while (RunOne()) {
  }
}

void LocalWindows::Yield(YieldPoint point) {
  Call(Yielding, point);
  LetRun();
}

// Called from outside of the program, this is its loop.
void LocalWindows::LetRun() {
  do {
    RunPending();
    TellAtRest();
  } while (!queue_.empty());
}

void LocalWindows::TellAtRest() {
  if (depth_ > 0 || nested_ > 0 || !main_ || main_->going) return;
  const Inside inside(depth_);
  Call(main_->events->AtRest);
}

void LocalWindows::RunNextLater() {
  const auto next = later_.begin();
  now_ = std::max(now_, next->first);
  Post(std::move(next->second));
  later_.erase(next);
  LetRun();
}

void LocalWindows::Advance(std::int64_t milliseconds) {
  const std::int64_t until = now_ + milliseconds;
  LetRun();
  while (!later_.empty() && later_.begin()->first <= until) RunNextLater();
  now_ = std::max(now_, until);
}

void LocalWindows::RunLoop() {
  RunWhile([this] { return main_.has_value(); });
}

void LocalWindows::RunModal(WindowHandle window, const std::function<bool()>& open) {
  const Nested nested(*this);
  const Idle idle(depth_);
  Yield(YieldPoint::kModal);
  const std::shared_ptr<ShownWindow> shown = Desktop.Find(window);
  if (!open() || !shown || (Person && Person(*shown, open))) return;
  RunWhile(open);
}

void LocalWindows::RunWhile(const std::function<bool()>& going) {
  const std::int64_t start = now_;
  TellAtRest();
  while (going()) {
    if (RunOne()) {
      TellAtRest();
      continue;
    }
    if (Input && Input()) continue;
    if (later_.empty()) throw std::logic_error("the loop waits and nothing can ever come");
    if (later_.begin()->first - start > kLongestIdleTime) throw std::logic_error("the loop has waited for a whole day");
    RunNextLater();
  }
}

}  // namespace burrowmark
