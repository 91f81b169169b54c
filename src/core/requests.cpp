#include "core/requests.h"

#include <algorithm>
#include <utility>

#include "core/program_windows.h"

namespace burrowmark {
namespace {

// Sets a flag for as long as it lives.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

template <typename Work>
Work TakeFirst(std::deque<Work>& queue) {
  Work first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

Requests::Requests(WindowSystem& system, ProgramWindows& windows, std::function<void()> bringForward)
    : system_(system), windows_(windows), bringForward_(std::move(bringForward)) {}

bool Requests::IsBusyWith(BusyWith what) const {
  return std::any_of(busy_.begin(), busy_.end(), [what](const Busy* busy) { return busy->what_ == what; });
}

bool Requests::AtRest() const { return busy_.empty() && !windows_.AnyInGesture(); }

void Requests::Add(std::function<void()> request) {
  waiting_.push_back(std::move(request));
  system_.Post([] {});  // what came by a call of the system's doesn't wake the loop
  if (!AtRest()) bringForward_();
}

void Requests::AddCommand(std::function<void()> command) {
  Add(std::move(command));
  commandWaits_ = true;
  ClearWaySoon();
}

// Whoever handed the command over has its answer first.
void Requests::ClearWaySoon() {
  system_.Post([this] { ClearWay(); });
}

void Requests::ClearWay() {
  const bool inTheWay = !busy_.empty() && busy_.back()->what_ == BusyWith::kOptions;
  if (commandWaits_ && inTheWay && busy_.back()->giveUp_) busy_.back()->giveUp_();
}

void Requests::AddPrompt(std::function<void()> prompt) {
  prompts_.push_back(std::move(prompt));
  if (IsBusyWith(BusyWith::kMenu) && busy_.back()->giveUp_) busy_.back()->giveUp_();
  RunPrompts();
}

void Requests::RunPrompts() {
  while (!prompts_.empty() && !IsBusyWith(BusyWith::kWork) && !IsBusyWith(BusyWith::kMenu)) TakeFirst(prompts_)();
}

void Requests::RunAtRest() {
  RunPrompts();
  while (AtRest() && (ending_ || !waiting_.empty())) {
    if (std::exchange(ending_, false)) {
      const Raised runs(endRuns_);
      if (End) End();
      return;
    }
    const auto request = TakeFirst(waiting_);
    commandWaits_ = commandWaits_ && !waiting_.empty();
    request();
  }
}

void Requests::EndProgram() {
  if (ending_ || endRuns_) return;
  ending_ = true;
  WindDownSoon();
}

void Requests::WindDownSoon() {
  system_.Post([this] { WindDown(); });
}

// One step: what stands in front goes. Its end asks for the next step.
void Requests::WindDown() {
  if (!ending_) return;
  if (busy_.empty()) windows_.CancelGestures();
  system_.CancelModes();
  if (!busy_.empty() && busy_.back()->giveUp_) busy_.back()->giveUp_();
}

void Requests::Leave(const Busy& busy) {
  std::erase(busy_, &busy);
  if (ending_) WindDownSoon();
  if (commandWaits_) ClearWaySoon();
  if (prompts_.empty() || IsBusyWith(BusyWith::kWork) || IsBusyWith(BusyWith::kMenu)) return;
  system_.Post([this] { RunPrompts(); });
}

Busy::Busy(Requests& requests, BusyWith what, std::function<void()> giveUp)
    : requests_(requests), what_(what), giveUp_(std::move(giveUp)) {
  requests_.busy_.push_back(this);
}

Busy::~Busy() { requests_.Leave(*this); }

}  // namespace burrowmark
