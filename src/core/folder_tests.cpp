#include "core/folder_tests.h"

#include <memory>

#include "core/services.h"
#include "core/text.h"
#include "platform/drive_letter.h"

namespace burrowmark {
namespace {

constexpr std::int32_t kPatience = 3000;  // milliseconds for a server
constexpr wchar_t kSeparators[] = L"\\/";

bool IsSeparator(wchar_t character) { return character == L'\\' || character == L'/'; }

bool IsOnServer(const std::wstring& path) { return path.size() > 2 && IsSeparator(path[0]) && IsSeparator(path[1]); }

bool IsOnDrive(const std::wstring& path) { return path.size() > 1 && path[1] == L':'; }

}  // namespace

bool IsNetworkPlace(FileSystem& files, const std::wstring& path) {
  return IsOnServer(path) || (IsOnDrive(path) && files.GetDriveTypeA(path.substr(0, 2)) == kDriveTypeRemote);
}

std::wstring PlaceOf(const std::wstring& path) {
  if (IsOnServer(path)) return UpperCaseText(L"\\\\" + path.substr(2, path.find_first_of(kSeparators, 2) - 2));
  return IsOnDrive(path) ? UpperCaseText(path.substr(0, 2)) : std::wstring();
}

FolderAnswer FolderTests::Test(const std::wstring& path) {
  const auto answer = [](bool there) { return there ? FolderAnswer::kThere : FolderAnswer::kMissing; };
  if (!IsNetworkPlace(files_, path)) return answer(FolderOrDriveExists(files_, path));
  if (files_.DriveExists(path)) return FolderAnswer::kThere;
  const std::wstring place = PlaceOf(path);
  if (silent_.contains(place)) return FolderAnswer::kNoAnswer;
  const auto there = std::make_shared<bool>(false);
  // The file system is there as long as the process.
  const auto work = [there, path, &files = files_] { *there = files.FolderExists(path); };
  if (workers_.RunWithin(kPatience, work)) return answer(*there);
  silent_.insert(place);
  return FolderAnswer::kNoAnswer;
}

}  // namespace burrowmark
