// A report on what one folder holds: as delimited text in a file, as a page with its stylesheet, as text for the
// clipboard.
#pragma once

#include <string>

#include "platform/file_system.h"
#include "platform/system_facts.h"
#include "tools/report_request.h"

namespace burrowmark {

// Makes the report; may take long, and may run on any thread. The folder is walked once and no file of it opened. False
// if it was cancelled or something failed: a file at the target is then as it was. A read-only one is replaced.
bool WriteReport(const ReportRequest& request, FileSystem& files, const SystemFacts& system, ReportRun& run);

// A file of this name becomes a page, any other delimited text.
bool IsReportPage(const std::wstring& path);

}  // namespace burrowmark
