// Folders on servers that are away hold nobody up for longer than once each.
#include "core/folder_tests.h"

#include <gtest/gtest.h>

#include <tuple>

#include "platform/characters.h"
#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

TEST(FolderTestsOfATask, AServerThatDoesNotAnswerIsAskedOnce) {
  constexpr auto kThere = FolderAnswer::kThere;
  constexpr auto kMissing = FolderAnswer::kMissing;
  constexpr auto kNoAnswer = FolderAnswer::kNoAnswer;
  test::ScratchMachine scratch;
  LocalMachine& machine = scratch.machine;
  machine.drives.Add(L'X');
  machine.drives.SetFacts(L'X', {kDriveTypeRemote, {}, {}});
  for (const wchar_t* path : {L"C:\\here", L"\\\\live\\share\\here"}) machine.AddFolders(path);
  machine.faults.SilentPlaces = {L"\\\\DEAD", L"X:"};
  FolderTests tests(scratch.app.platform);
  // The last: how often a server was waited for, from the first on.
  const std::tuple<const wchar_t*, FolderAnswer, std::size_t> cases[] = {{L"C:\\here", kThere, 0},
                                                                         {L"C:", kThere, 0},
                                                                         {L"C:\\gone", kMissing, 0},
                                                                         {L"", kMissing, 0},
                                                                         {L"x:\\", kThere, 0},
                                                                         {L"\\\\live\\share\\here", kThere, 1},
                                                                         {L"\\\\live\\gone", kMissing, 2},
                                                                         {L"\\\\dead\\share", kNoAnswer, 3},
                                                                         {L"\\\\Dead\\other\\a", kNoAnswer, 3},
                                                                         {L"x:\\a", kNoAnswer, 4},
                                                                         {L"X:\\b", kNoAnswer, 4}};
  for (const auto& [path, answer, waits] : cases) {
    EXPECT_EQ(tests.Test(path), answer) << ToUtf8(path);
    EXPECT_EQ(machine.workers.Waits, waits) << ToUtf8(path);
  }
  machine.workers.Takes = 3001;
  EXPECT_EQ(tests.Test(L"\\\\live\\share\\here"), kNoAnswer);
}

}  // namespace
}  // namespace burrowmark
