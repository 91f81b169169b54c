#include "tools/target_tests.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <map>
#include <utility>

#include "ui/control.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kInterval = 100;  // milliseconds between two looks at what is known
constexpr std::int32_t kPatience = 3000 / kInterval;
// More places than this wait for one of them to be done or given up: each takes a thread.
constexpr std::ptrdiff_t kPlacesAtOnce = 32;

}  // namespace

// The questions about one place.
struct TargetTests::Run {
  // Shared with the work, which writes the first two.
  std::vector<char> there;  // of the first ones, which are known
  std::atomic<std::size_t> known = 0;
  std::atomic<bool> stopped = false;
  std::vector<TargetQuestion> questions;  // stay as they are

  std::wstring place;
  bool onServer = false;
  bool started = false;
  bool ended = false;  // the work, maybe by a failure with more to ask
  std::size_t told = 0;
  std::int32_t idle = 0;  // looks since there was something new

  void Work(FileSystem& files) {
    for (std::size_t i = 0; i < questions.size() && !stopped; ++i) {
      const std::wstring& path = questions[i].Path;
      there[i] = files.DriveExists(path) || files.FolderExists(path) ? 1 : 0;
      known = i + 1;
    }
  }
};

TargetTests::TargetTests(const Platform& platform)
    : files_(platform.files), workers_(platform.workers), timer_(platform.windows) {
  timer_.SetInterval(kInterval);
  timer_.Tick = [this] { Collect(true); };
}

void TargetTests::Add(std::vector<TargetQuestion> questions) {
  std::map<std::wstring, std::shared_ptr<Run>> byPlace;
  for (TargetQuestion& question : questions) {
    const std::wstring place = PlaceOf(question.Path);
    std::shared_ptr<Run>& run = byPlace[place];
    if (!run) {
      run = std::make_shared<Run>();
      run->place = place;
      run->onServer = IsNetworkPlace(files_, question.Path);
    }
    run->questions.push_back(std::move(question));
  }
  for (const auto& [place, run] : byPlace) runs_.push_back(run);
  StartWaiting();
  timer_.SetEnabled(Running());
}

void TargetTests::StartWaiting() {
  std::ptrdiff_t running = std::count_if(runs_.begin(), runs_.end(), [](const auto& run) { return run->started; });
  for (const auto& run : runs_) {
    if (run->started) continue;
    if (silent_.contains(run->place)) {
      run->idle = kPatience;
    } else if (running < kPlacesAtOnce) {
      ++running;
      Start(run);
    }
  }
}

void TargetTests::Start(const std::shared_ptr<Run>& run) {
  run->started = true;
  run->there.resize(run->questions.size());
  // The file system is there as long as the process.
  workers_.Run([run, &files = files_] { run->Work(files); },
               [this, run, life = std::weak_ptr<Life>(life_)] {
                 run->ended = true;
                 if (!life.expired()) Collect(false);
               });
}

void TargetTests::Forget() {
  for (const auto& run : std::exchange(runs_, {})) run->stopped = true;
  silent_.clear();
  timer_.SetEnabled(false);
}

void TargetTests::Collect(bool ticked) {
  std::vector<TargetAnswer> answers;
  for (const auto& run : runs_) {
    const auto tell = [&answers, &run](FolderAnswer answer) {
      answers.push_back({run->questions[run->told++], answer});
    };
    const std::size_t known = run->known;
    if (ticked && run->started) run->idle = known > run->told ? 0 : run->idle + 1;
    while (run->told < known) tell(run->there[run->told] != 0 ? FolderAnswer::kThere : FolderAnswer::kMissing);
    const bool silent = run->onServer && run->idle >= kPatience;
    if (silent) silent_.insert(run->place);
    if (!silent && !run->ended) continue;
    run->stopped = true;
    while (run->told < run->questions.size()) tell(FolderAnswer::kNoAnswer);
  }
  std::erase_if(runs_, [](const auto& run) { return run->told == run->questions.size(); });
  StartWaiting();
  timer_.SetEnabled(Running());
  if (!answers.empty()) Raise(Answered, answers);
}

}  // namespace burrowmark
