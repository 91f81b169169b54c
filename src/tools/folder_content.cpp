#include "tools/folder_content.h"

#include <array>
#include <bit>
#include <map>
#include <optional>
#include <string_view>
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

// --- an entry as bytes: its numbers, then its names behind their lengths

constexpr std::size_t kBlock = 1U << 16;
constexpr unsigned char kWide = 0xFF;  // ahead of a character that takes three bytes
constexpr unsigned kByte = 8;

template <typename Value>
void Pack(std::string& bytes, const Value& value) {
  const auto raw = std::bit_cast<std::array<char, sizeof(Value)>>(value);
  bytes.append(raw.data(), raw.size());
}

void PackText(std::string& bytes, std::wstring_view text) {
  Pack(bytes, static_cast<std::uint16_t>(text.size()));
  for (const wchar_t c : text) {
    const std::uint32_t code = std::char_traits<wchar_t>::to_int_type(c);
    if (code < kWide) {
      bytes += static_cast<char>(code);
    } else {
      for (const std::uint32_t part : {std::uint32_t{kWide}, code, code >> kByte, code >> (2 * kByte)}) {
        bytes += static_cast<char>(part & 0xFFU);
      }
    }
  }
}

class Unpacking {
 public:
  explicit Unpacking(std::string_view bytes) : bytes_(bytes) {}

  bool AtEnd() const { return at_ == bytes_.size(); }
  template <typename Value>
  void Take(Value& value) {
    std::array<char, sizeof(Value)> raw{};
    bytes_.copy(raw.data(), raw.size(), at_);
    at_ += raw.size();
    value = std::bit_cast<Value>(raw);
  }
  void TakeText(std::wstring& text) {
    std::uint16_t length = 0;
    Take(length);
    text.resize(length);
    for (wchar_t& c : text) {
      std::uint32_t code = Byte();
      if (code == kWide) {
        code = Byte();
        code |= Byte() << kByte;
        code |= Byte() << (2 * kByte);
      }
      c = static_cast<wchar_t>(code);
    }
  }

 private:
  std::uint32_t Byte() { return static_cast<unsigned char>(bytes_[at_++]); }

  std::string_view bytes_;
  std::size_t at_ = 0;
};

}  // namespace

void ReportEntries::Add(const ReportEntry& entry) {
  packed_.clear();
  Pack(packed_, entry.size);
  for (const Date date : {entry.modified, entry.created, entry.accessed}) Pack(packed_, date);
  Pack(packed_, entry.type);
  PackText(packed_, entry.name);
  PackText(packed_, entry.shortName);
  if (blocks_.empty() || blocks_.back().size() + packed_.size() > kBlock) blocks_.emplace_back().reserve(kBlock);
  blocks_.back() += packed_;
}

bool ReportEntries::Visit(const std::function<bool(const ReportEntry& entry)>& visit) const {
  ReportEntry entry;
  for (const std::string& block : blocks_) {
    for (Unpacking bytes(block); !bytes.AtEnd();) {
      bytes.Take(entry.size);
      for (Date* date : {&entry.modified, &entry.created, &entry.accessed}) bytes.Take(*date);
      bytes.Take(entry.type);
      bytes.TakeText(entry.name);
      bytes.TakeText(entry.shortName);
      if (!visit(entry)) return false;
    }
  }
  return true;
}

bool ReadFolderContent(const ReportRequest& request, FileSystem& files, ReportRun& run, FolderContent& content) {
  TypeNames types(files, content.types);
  ReportEntry kept;
  const auto keep = [&](const FolderEntry& entry, const FileFacts& facts) -> const ReportEntry& {
    kept.name = entry.name;
    if (request.Has(ReportColumn::kShortName)) kept.shortName = facts.shortName;
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
    if (!isFolder) content.size += facts.size;
    if (isFolder && request.WithFolders()) content.folders.Add(keep(entry, facts));
    if (!isFolder && request.WithFiles()) content.files.Add(keep(entry, facts));
    ++run.Count;
    return !run.IsCancelled();
  });
}

}  // namespace burrowmark
