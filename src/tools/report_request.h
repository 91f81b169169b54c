// What a folder report is to hold, and how far it has come.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <string>

#include "core/dates.h"

namespace burrowmark {

inline constexpr wchar_t kReportStyleSheet[] = L"folder_report.css";

// In the order of a report's columns.
enum class ReportColumn : std::uint8_t { kName, kShortName, kType, kSize, kModified, kCreated, kAccessed, kPath };
inline constexpr std::size_t kReportColumns = 8;

// In the order in which a user is asked.
enum class ReportScope : std::uint8_t { kAll, kFiles, kFolders };

struct ReportRequest {
  std::wstring Folder;
  ReportScope Scope = ReportScope::kAll;
  std::array<bool, kReportColumns> Columns{};  // the name is reported in any case
  std::wstring Delimiter;                      // of text
  std::wstring Target;                         // the file; none for the clipboard
  std::wstring StyleSheet;                     // that a page's folder gets, if it has none
  Date Moment = 0;

  bool Has(ReportColumn column) const { return Columns.at(static_cast<std::size_t>(column)); }
  bool WithFolders() const { return Scope != ReportScope::kFiles; }
  bool WithFiles() const { return Scope != ReportScope::kFolders; }
};

// A report under way, as the thread that makes it and the one that waits for it share it.
class ReportRun {
 public:
  std::atomic<std::int64_t> Count = 0;  // of the entries that were found so far
  std::wstring Text;                    // for the clipboard, at the end

  // False if the report takes its place just now, or has done so: then it can't be cancelled any more.
  bool Cancel() { return Leave(kCancelled); }
  // False if it was cancelled.
  bool TakesItsPlace() { return Leave(kTakesItsPlace); }
  bool IsCancelled() const { return state_ == kCancelled; }

 private:
  enum State : std::uint8_t { kRuns, kCancelled, kTakesItsPlace };
  bool Leave(State next) {
    State runs = kRuns;
    return state_.compare_exchange_strong(runs, next);
  }

  std::atomic<State> state_ = kRuns;
};

}  // namespace burrowmark
