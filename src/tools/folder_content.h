// What a folder holds, read in one walk and kept as briefly as a report needs it.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "tools/report_request.h"

namespace burrowmark {

struct ReportEntry {
  std::wstring names;  // and behind a NUL the short name, if it has one of its own
  std::uint64_t size = 0;
  Date modified = 0;  // 0 where the disk keeps none
  Date created = 0;
  Date accessed = 0;
  std::uint32_t type = 0;  // in FolderContent::types

  std::wstring_view Name() const { return std::wstring_view(names).substr(0, names.find(L'\0')); }
  std::wstring_view ShortName() const {
    const std::size_t end = names.find(L'\0');
    return end == std::wstring::npos ? names : std::wstring_view(names).substr(end + 1);
  }
};

// What isn't reported is counted, and not kept.
struct FolderContent {
  std::deque<ReportEntry> folders;
  std::deque<ReportEntry> files;
  std::int64_t folderCount = 0;
  std::int64_t fileCount = 0;
  std::vector<std::wstring> types;
};

// Reads what the report needs. A link to another folder is a folder like any other, and isn't entered. False if the
// folder can't be read to its end, or the run was cancelled.
bool ReadFolderContent(const ReportRequest& request, FileSystem& files, ReportRun& run, FolderContent& content);

}  // namespace burrowmark
