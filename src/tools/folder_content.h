// What a folder holds, read in one walk and kept as briefly as a report needs it.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "tools/report_request.h"

namespace burrowmark {

struct ReportEntry {
  std::wstring name;
  std::wstring shortName;  // empty if it has none of its own
  std::uint64_t size = 0;
  Date modified = 0;  // 0 where the disk keeps none
  Date created = 0;
  Date accessed = 0;
  std::uint32_t type = 0;  // in FolderContent::types
};

// Entries in their order, packed: there may be a million.
class ReportEntries {
 public:
  void Add(const ReportEntry& entry);
  // Shows them one after the other. False as soon as `visit` says so.
  bool Visit(const std::function<bool(const ReportEntry& entry)>& visit) const;

 private:
  std::deque<std::string> blocks_;
  std::string packed_;  // room for one
};

// What isn't reported is counted, and not kept.
struct FolderContent {
  ReportEntries folders;
  ReportEntries files;
  std::int64_t folderCount = 0;
  std::int64_t fileCount = 0;
  std::uint64_t size = 0;  // of all files
  std::vector<std::wstring> types;
};

// Reads what the report needs. A link to another folder is a folder like any other, and isn't entered. False if the
// folder can't be read to its end, or the run was cancelled.
bool ReadFolderContent(const ReportRequest& request, FileSystem& files, ReportRun& run, FolderContent& content);

}  // namespace burrowmark
