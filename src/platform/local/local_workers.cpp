#include "platform/local/local_workers.h"

#include <utility>

#include "platform/local/faults.h"

namespace burrowmark {
namespace {

// False if it never ends. Nobody hears of what it throws besides.
bool Ends(const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const SilentPlace&) {
    return false;
  } catch (...) {
    return true;
  }
}

}  // namespace

void LocalWorkers::Run(std::function<void()> work, std::function<void()> done) {
  auto task = [work = std::move(work), done = std::move(done)] {
    if (Ends(work)) done();
  };
  Takes == 0 ? windows_.Post(std::move(task)) : windows_.PostLater(Takes, std::move(task));
}

bool LocalWorkers::RunAllWithin(std::int32_t milliseconds, std::vector<std::function<void()>> works) {
  ++Waits;
  bool all = Takes <= milliseconds;
  for (std::function<void()>& work : works) {
    if (Takes > milliseconds) {
      windows_.PostLater(Takes, [work = std::move(work)] { Ends(work); });
    } else {
      all = Ends(work) && all;
    }
  }
  VainWaits += all ? 0 : 1;
  return all;
}

}  // namespace burrowmark
