#include "tools/folder_content.h"

#include <map>
#include <utility>

#include "core/failure.h"
#include "core/text.h"

namespace burrowmark {
namespace {

// A year beyond all calendars counts as none.
Date DateOf(const std::optional<LocalTime>& moment) {
  Date date = 0;
  if (!moment) return date;
  Skip([&] {
    constexpr long long kHour = 3600;
    constexpr long long kMinute = 60;
    date = AddSeconds(DateFromParts(moment->year, moment->month, moment->day),
                      moment->hour * kHour + moment->minute * kMinute + moment->second);
  });
  return date;
}

// With its dot; empty if the name has none.
std::wstring ExtensionOf(const std::wstring& name) {
  const std::size_t dot = name.rfind(L'.');
  return dot == std::wstring::npos ? std::wstring() : name.substr(dot);
}

// The names of types, each asked for once.
class TypeNames {
 public:
  TypeNames(FileSystem& files, std::vector<std::wstring>& names) : files_(files), names_(names) {}

  std::uint32_t NumberOf(const FolderEntry& entry) {
    const bool isFolder = (entry.attributes & kFileDirectory) != 0;
    // No extension is without a dot.
    std::wstring kind = isFolder ? std::wstring(L"folder") : LowerCaseText(ExtensionOf(entry.name));
    const auto [known, isNew] = numbers_.try_emplace(std::move(kind), static_cast<std::uint32_t>(names_.size()));
    if (isNew) names_.push_back(files_.GetTypeName(isFolder ? std::wstring() : known->first, isFolder));
    return known->second;
  }

 private:
  FileSystem& files_;
  std::vector<std::wstring>& names_;
  std::map<std::wstring, std::uint32_t> numbers_;
};

}  // namespace

bool ReadFolderContent(const ReportRequest& request, FileSystem& files, ReportRun& run, FolderContent& content) {
  TypeNames types(files, content.types);
  const auto keep = [&](const FolderEntry& entry, const FileFacts& facts) {
    ReportEntry kept;
    const bool withShort = request.Has(ReportColumn::kShortName) && !facts.shortName.empty();
    kept.names.reserve(entry.name.size() + (withShort ? facts.shortName.size() + 1 : 0));  // and no more
    kept.names = entry.name;
    if (withShort) kept.names.append(1, L'\0').append(facts.shortName);
    kept.size = facts.size;
    if (request.Has(ReportColumn::kModified)) kept.modified = DateOf(facts.modified);
    if (request.Has(ReportColumn::kCreated)) kept.created = DateOf(facts.created);
    if (request.Has(ReportColumn::kAccessed)) kept.accessed = DateOf(facts.accessed);
    if (request.Has(ReportColumn::kType)) kept.type = types.NumberOf(entry);
    return kept;
  };
  return files.WalkFolder(request.Folder, [&](const FolderEntry& entry, const FileFacts& facts) {
    const bool isFolder = (entry.attributes & kFileDirectory) != 0;
    ++(isFolder ? content.folderCount : content.fileCount);
    if (isFolder && request.WithFolders()) content.folders.push_back(keep(entry, facts));
    if (!isFolder && request.WithFiles()) content.files.push_back(keep(entry, facts));
    ++run.Count;
    return !run.IsCancelled();
  });
}

}  // namespace burrowmark
