// Whether the targets of many shortcuts are there, asked beside the interface thread.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/folder_tests.h"
#include "ui/timer.h"

namespace burrowmark {

// What is asked about, by a key of the asker's.
struct TargetQuestion {
  std::wstring Key;
  std::wstring Path;
};

struct TargetAnswer {
  TargetQuestion Asked;
  FolderAnswer Answer = FolderAnswer::kMissing;
};

// Each drive and each server is asked by work of its own, one path after the other, so that one that is away holds up
// no other; of very many, some wait until others are done. A server that tells nothing for three seconds isn't asked
// again: the rest of its paths has no answer. So all is known that long after the last path of a living place, while no
// place has to wait.
class TargetTests {
 public:
  // What the platform refers to must outlive this object.
  explicit TargetTests(const Platform& platform);
  // Nobody hears of what is still asked then.
  ~TargetTests() { Forget(); }
  TargetTests(const TargetTests&) = delete;
  TargetTests& operator=(const TargetTests&) = delete;

  // Some of it is known, never before Add has returned; the last answers come when nothing runs any more.
  std::function<void(const std::vector<TargetAnswer>& answers)> Answered;

  void Add(std::vector<TargetQuestion> questions);
  // Gives up what is asked, and what is known of servers.
  void Forget();
  bool Running() const { return !runs_.empty(); }

 private:
  struct Run;
  struct Life {};

  // As many as may run at once.
  void StartWaiting();
  void Start(const std::shared_ptr<Run>& run);
  void Collect(bool ticked);

  FileSystem& files_;
  Workers& workers_;
  Timer timer_;
  std::vector<std::shared_ptr<Run>> runs_;
  std::set<std::wstring> silent_;  // places that didn't answer
  std::shared_ptr<Life> life_ = std::make_shared<Life>();
};

}  // namespace burrowmark
