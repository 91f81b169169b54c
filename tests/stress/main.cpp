// "stress_tests" runs a fixed set of seeds; "stress_tests SEED SECONDS" runs that seed and those behind it for a while.
#include <sanitizer/common_interface_defs.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iomanip>
#include <iostream>

#include "tests/stress/stress.h"

namespace burrowmark::stress {
namespace {

constexpr unsigned kFirstSeed = 1;
constexpr unsigned kSeeds = 12;
constexpr unsigned kLongestRun = 120;  // seconds; one that takes longer hangs

const Stress* current = nullptr;

void Died() {
  if (current != nullptr) current->Fail("the process dies");
}
void Hangs(int) { current->Fail("the program hangs"); }

void Tell(const Coverage& coverage) {
  std::cout << "request            loop DoEvents  box file menu popup modal\n";
  for (const auto& [name, counts] : coverage) {
    std::cout << std::left << std::setw(14) << name << std::right;
    for (const std::size_t count : counts) std::cout << std::setw(8) << count;
    std::cout << '\n';
  }
}

int Main(int argc, char** argv) {
  using Clock = std::chrono::steady_clock;
  const bool byHand = argc > 1;
  const auto first = byHand ? static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10)) : kFirstSeed;
  const auto until = Clock::now() + std::chrono::seconds(argc > 2 ? std::strtol(argv[2], nullptr, 10) : 0);
  __sanitizer_set_death_callback(Died);
  std::signal(SIGALRM, Hangs);
  Coverage coverage;
  std::size_t steps = 0;
  unsigned seed = first;
  do {
    alarm(kLongestRun);
    Stress run(seed, coverage);
    current = &run;
    run.Run();
    current = nullptr;
    steps += run.Steps();
  } while (++seed, byHand ? Clock::now() < until : seed < kFirstSeed + kSeeds);
  std::cout << "seeds " << first << " to " << seed - 1 << ", " << steps << " steps\n";
  Tell(coverage);
  return 0;
}

}  // namespace
}  // namespace burrowmark::stress

int main(int argc, char** argv) { return burrowmark::stress::Main(argc, argv); }
