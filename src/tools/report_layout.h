// How a report reads: the lines of a text, and of a page.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tools/folder_content.h"

namespace burrowmark {

// Where the lines of a report go.
class ReportSink {
 public:
  virtual ~ReportSink() = default;
  // Takes a line, whose end it adds. False if nothing more can be taken.
  virtual bool Line(std::wstring_view text) = 0;
};

// Writes all lines of the report; false as soon as the sink takes no more. Nothing is escaped or quoted.
bool WriteReportText(const ReportRequest& request, const FolderContent& content, const SystemFacts& system,
                     ReportSink& sink);
bool WriteReportPage(const ReportRequest& request, const FolderContent& content, const SystemFacts& system,
                     ReportSink& sink);

// Below 1,024 in bytes, otherwise in kilobytes, with the signs of the user's locale.
std::wstring FormatSize(std::uint64_t bytes, bool showDecimals, const SystemFacts& system);

}  // namespace burrowmark
