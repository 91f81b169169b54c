// Folders on servers that are away hold nobody up for longer than once each.
#include "core/folder_tests.h"

#include <gtest/gtest.h>

#include "tests/support/scratch_machine.h"

namespace burrowmark {
namespace {

TEST(FolderTestsOfATask, AServerThatDoesNotAnswerIsAskedOnce) {
  test::ScratchMachine scratch;
  LocalMachine& machine = scratch.machine;
  for (const wchar_t letter : {L'X', L'Y'}) {
    machine.drives.Add(letter);
    machine.drives.SetFacts(letter, {kDriveTypeRemote, {}, {}});
  }
  for (const wchar_t* path : {L"C:\\here", L"\\\\live\\share\\here", L"Y:\\here"}) machine.AddFolders(path);
  machine.faults.SilentPlaces = {L"\\\\DEAD", L"X:"};
  struct Case {
    const wchar_t* path;
    FolderAnswer answer;
    std::size_t waits;  // for a server, from the first case on
    std::size_t inVain;
  };
  const Case cases[] = {{L"C:\\here", FolderAnswer::kThere, 0, 0},
                        {L"C:", FolderAnswer::kThere, 0, 0},
                        {L"C:\\gone", FolderAnswer::kMissing, 0, 0},
                        {L"", FolderAnswer::kMissing, 0, 0},
                        {L"x:\\", FolderAnswer::kThere, 0, 0},
                        {L"\\\\live\\share\\here", FolderAnswer::kThere, 1, 0},
                        {L"Y:\\gone", FolderAnswer::kMissing, 2, 0},
                        {L"\\\\dead\\share", FolderAnswer::kNoAnswer, 3, 1},
                        {L"\\\\Dead\\other\\folder", FolderAnswer::kNoAnswer, 3, 1},
                        {L"x:\\a", FolderAnswer::kNoAnswer, 4, 2},
                        {L"X:\\b", FolderAnswer::kNoAnswer, 4, 2},
                        {L"y:\\here", FolderAnswer::kThere, 5, 2}};
  FolderTests tests(scratch.app.platform);
  for (const Case& row : cases) {
    SCOPED_TRACE(&row - cases);
    EXPECT_EQ(tests.Test(row.path), row.answer);
    EXPECT_EQ(machine.workers.Waits, row.waits);
    EXPECT_EQ(machine.workers.VainWaits, row.inVain);
  }
  machine.workers.Takes = 3001;
  EXPECT_EQ(FolderTests(scratch.app.platform).Test(L"Y:\\here"), FolderAnswer::kNoAnswer);
}

}  // namespace
}  // namespace burrowmark
