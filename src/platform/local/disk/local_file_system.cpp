#include "platform/local/disk/local_file_system.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/drive_letter.h"
#include "platform/local/disk/disk.h"
#include "platform/local/folded.h"

namespace burrowmark {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kKeptAttributes = kFileReadOnly | kFileHidden | kFileSystem | kFileArchive;
constexpr std::uint32_t kNoAttributes = 128;  // what the system tells of a file without any (FILE_ATTRIBUTE_NORMAL)

// Takes what `wanted` bytes need off the room that the test left on the disk; gives how many of them fit.
std::size_t TakeRoom(Faults& faults, std::size_t wanted) {
  if (!faults.DiskRoom) return wanted;
  const std::size_t fitting = std::min(wanted, *faults.DiskRoom);
  *faults.DiskRoom -= fitting;
  return fitting;
}

class LocalOutputFile final : public OutputFile {
 public:
  LocalOutputFile(const fs::path& place, std::wstring path, Faults& faults)
      : place_(place), file_(place), path_(std::move(path)), faults_(faults) {}
  ~LocalOutputFile() override {
    std::error_code error;
    if (goes_) fs::remove(place_, error);
  }
  LocalOutputFile(const LocalOutputFile&) = delete;
  LocalOutputFile& operator=(const LocalOutputFile&) = delete;

  bool IsOpen() const { return file_.IsOpen(); }

  bool Write(std::string_view bytes) override {
    if (faults_.Strikes("Write", path_) || !file_.IsOpen()) return false;
    const std::size_t fitting = TakeRoom(faults_, bytes.size());
    return file_.Write(bytes.substr(0, fitting)) && fitting == bytes.size();
  }

  bool Flush() override { return !faults_.Strikes("Flush", path_) && file_.Flush(); }

  // A close that fails lets go of the file all the same.
  bool Close() override {
    const bool struck = faults_.Strikes("Close", path_);
    const bool closed = file_.Close() && !struck;
    goes_ = goes_ && !closed;
    return closed;
  }

  bool DeleteUnlessClosed() override {
    goes_ = file_.IsOpen();
    return goes_;
  }

 private:
  fs::path place_;
  DiskFile file_;
  bool goes_ = false;
  std::wstring path_;
  Faults& faults_;
};

}  // namespace

LocalFileSystem::LocalFileSystem(const fs::path& folder, DriveFolders& drives, Faults& faults)
    : drives_(drives), faults_(faults), attributes_(folder / "attributes.txt") {}

std::optional<LocalFileSystem::Entry> LocalFileSystem::Look(const std::wstring& path) {
  std::optional<WindowsPath> name = ParseWindowsPath(path);
  if (!name) return std::nullopt;
  if (!name->OnShare()) drives_.Touch(name->root.front());
  std::optional<fs::path> place = drives_.Place(*name);
  if (!place) return std::nullopt;
  return Examine(*std::move(name), *std::move(place));
}

LocalFileSystem::Entry LocalFileSystem::Examine(WindowsPath name, fs::path place) {
  Entry entry{std::move(name), std::move(place)};
  std::error_code error;
  entry.isFolder = fs::is_directory(entry.place, error);
  entry.isFile = !entry.isFolder && !entry.name.folderOnly && fs::exists(entry.place, error);
  if (!entry.Exists()) return entry;
  entry.attributes = attributes_.Find(entry.name.Text()).value_or(entry.isFile ? kFileArchive : 0);
  if (entry.isFolder) entry.attributes |= kFileDirectory;
  if (entry.attributes == 0) entry.attributes = kNoAttributes;
  return entry;
}

std::optional<LocalFileSystem::Entry> LocalFileSystem::LookForFile(const std::wstring& path) {
  std::optional<Entry> entry = Look(path);
  return entry && entry->isFile ? entry : std::nullopt;
}

bool LocalFileSystem::Held(const std::wstring& path) const { return faults_.HeldOpen.contains(Folded(path)); }

bool LocalFileSystem::MayMakeFileAt(const Entry& entry) const {
  return !entry.name.IsRoot() && !entry.name.folderOnly && !entry.isFolder && !Held(entry) &&
         !faults_.FoldersWithoutNewFiles.contains(Folded(entry.name.Parent().Text()));
}

bool LocalFileSystem::IsSameFile(const std::wstring& path, const std::wstring& other) {
  const std::optional<Entry> one = Look(path);
  const std::optional<Entry> two = Look(other);
  if (!one || !two) return Folded(path) == Folded(other);
  std::error_code error;
  if (one->Exists() && two->Exists()) return fs::equivalent(one->place, two->place, error);
  return Folded(one->name.Text()) == Folded(two->name.Text());
}

bool LocalFileSystem::FileExists(const std::wstring& path) {
  return !faults_.Strikes("FileExists", path) && LookForFile(path).has_value();
}

bool LocalFileSystem::FolderExists(const std::wstring& path) {
  if (faults_.Strikes("FolderExists", path)) return false;
  const std::optional<Entry> entry = Look(path);
  return entry && entry->isFolder;
}

bool LocalFileSystem::DriveExists(const std::wstring& path) {
  if (faults_.Strikes("DriveExists", path)) return false;
  const std::optional<wchar_t> letter = DriveLetter(path);
  return letter && drives_.Has(*letter);
}

std::optional<std::uint32_t> LocalFileSystem::GetFileAttributesA(const std::wstring& path) {
  if (faults_.Strikes("GetFileAttributesA", path)) return std::nullopt;
  return AttributesOf(path);
}

bool LocalFileSystem::SetFileAttributesA(const std::wstring& path, std::uint32_t attributes) {
  if (faults_.Strikes("SetFileAttributesA", path)) return false;
  const std::optional<Entry> entry = Look(path);
  if (!entry || !entry->Exists()) return false;
  return Remember(*entry, attributes);
}

bool LocalFileSystem::Remember(const Entry& entry, std::uint32_t attributes) {
  const std::uint32_t kept = (attributes & kKeptAttributes) | (entry.attributes & kFileCompressed);
  const std::wstring name = entry.name.Text();
  return kept == (entry.isFolder ? 0 : kFileArchive) ? attributes_.Forget(name) : attributes_.Set(name, kept);
}

// The disk below keeps no short names.
std::optional<FileFacts> LocalFileSystem::GetFileFacts(const std::wstring& path) {
  if (faults_.Strikes("GetFileFacts", path)) return std::nullopt;
  const std::optional<Entry> entry = Look(path);
  if (!entry || !entry->Exists()) return std::nullopt;
  return FactsOf(*entry);
}

FileFacts LocalFileSystem::FactsOf(const Entry& entry) {
  FileFacts facts = DiskFacts(entry.place);
  facts.attributes = entry.attributes;
  if (entry.isFolder) facts.size = 0;
  return facts;
}

bool LocalFileSystem::ReadWholeFile(const std::wstring& path, std::string& bytes) {
  bytes.clear();
  return !faults_.Strikes("ReadWholeFile", path) && Load(path, bytes);
}

bool LocalFileSystem::Load(const std::wstring& path, std::string& bytes) {
  const std::optional<Entry> entry = LookForFile(path);
  return entry && !Held(*entry) && ReadDiskFile(entry->place, bytes);
}

std::unique_ptr<OutputFile> LocalFileSystem::CreateNewFile(const std::wstring& path) {
  if (faults_.Strikes("CreateNewFile", path)) return nullptr;
  const std::optional<Entry> entry = Look(path);
  if (!entry || entry->Exists() || !MayMakeFileAt(*entry)) return nullptr;
  const std::wstring name = entry->name.Text();
  auto file = std::make_unique<LocalOutputFile>(entry->place, path, faults_);
  if (!file->IsOpen()) return nullptr;
  // A file that was removed behind the machine's back may have left its attributes.
  attributes_.Forget(name);
  return file;
}

bool LocalFileSystem::MoveFileExA(const std::wstring& from, const std::wstring& to) {
  if (faults_.Strikes("MoveFileExA", from)) return false;
  const std::optional<Entry> source = LookForFile(from);
  const std::optional<Entry> target = Look(to);
  if (!source || !target || Held(*source) || !MayMakeFileAt(*target)) return false;
  if (!EqualIgnoringCase(source->name.root, target->name.root)) return false;
  const bool sameFile = source->IsSameAs(*target);
  if (target->Has(kFileReadOnly) && !sameFile) return false;
  // A file that only changes the case of its name moves to the new spelling, any other onto the file that is there.
  const fs::path place = sameFile ? source->place.parent_path() / DiskName(target->name.names.back()) : target->place;
  std::error_code error;
  fs::rename(source->place, place, error);
  return !error && attributes_.Rename(source->name.Text(), target->name.Text());
}

bool LocalFileSystem::DeleteFileA(const std::wstring& path) {
  if (faults_.Strikes("DeleteFileA", path)) return false;
  const std::optional<Entry> entry = LookForFile(path);
  if (!entry || Held(*entry) || entry->Has(kFileReadOnly)) return false;
  std::error_code error;
  return fs::remove(entry->place, error) && attributes_.Forget(entry->name.Text());
}

bool LocalFileSystem::CopyFileA(const std::wstring& from, const std::wstring& to, bool failIfExists) {
  if (faults_.Strikes("CopyFileA", from)) return false;
  const std::optional<Entry> source = LookForFile(from);
  const std::optional<Entry> target = Look(to);
  if (!source || !target || Held(*source) || source->IsSameAs(*target)) return false;
  if ((failIfExists && target->isFile) || !MayWriteAt(*target)) return false;
  std::string bytes;
  return ReadDiskFile(source->place, bytes) && PutBytes(bytes, *target) && Remember(*target, source->attributes);
}

bool LocalFileSystem::Store(const std::wstring& path, std::string_view bytes) {
  const std::optional<Entry> target = Look(path);
  if (!target || !MayWriteAt(*target)) return false;
  return PutBytes(bytes, *target) && Remember(*target, target->attributes | kFileArchive);
}

bool LocalFileSystem::MayWriteAt(const Entry& entry) const {
  if (entry.isFile) return !Held(entry) && !entry.Has(kFileReadOnly) && !entry.Has(kFileHidden);
  return MayMakeFileAt(entry);
}

// A target that is there already is lost when its room on the disk turns out too small, as on the real system.
bool LocalFileSystem::PutBytes(std::string_view bytes, const Entry& target) {
  std::error_code error;
  fs::remove(target.place, error);
  if (TakeRoom(faults_, bytes.size()) != bytes.size()) return false;
  DiskFile copy(target.place);
  return copy.Write(bytes) && copy.Close();
}

bool LocalFileSystem::CreateFolder(const std::wstring& path) {
  if (faults_.Strikes("CreateFolder", path)) return false;
  const std::optional<Entry> entry = Look(path);
  if (!entry || entry->name.IsRoot() || entry->Exists()) return false;
  std::error_code error;
  return fs::create_directory(entry->place, error) && attributes_.Forget(entry->name.Text());
}

bool LocalFileSystem::DeleteFolder(const std::wstring& path) {
  if (faults_.Strikes("DeleteFolder", path)) return false;
  const std::optional<Entry> entry = Look(path);
  return entry && entry->isFolder && !entry->name.IsRoot() && RemoveTree(entry->name.Text(), entry->place);
}

// A symbolic link of the disk below is removed as a file is.
bool LocalFileSystem::RemoveTree(const std::wstring& path, const fs::path& place) {
  std::error_code error;
  if (fs::is_directory(fs::symlink_status(place, error))) {
    std::vector<fs::path> inside;
    for (fs::directory_iterator it(place, error); !error && it != fs::directory_iterator(); it.increment(error)) {
      inside.push_back(it->path());
    }
    for (const fs::path& child : inside) RemoveTree(path + L'\\' + NameFromDisk(child.filename()), child);
  } else if (Held(path)) {
    return false;
  }
  return fs::remove(place, error) && attributes_.Forget(path);
}

bool LocalFileSystem::Recycle(const std::wstring& path) {
  const std::optional<Entry> entry = Look(path);
  if (!entry || !entry->Exists() || entry->name.IsRoot() || entry->name.OnShare() || Held(*entry)) return false;
  const std::wstring inside = Folded(entry->name.Text()) + L'\\';
  if (std::any_of(faults_.HeldOpen.begin(), faults_.HeldOpen.end(),
                  [&inside](const std::wstring& held) { return held.starts_with(inside); })) {
    return false;
  }
  const std::optional<Entry> bin = Look(entry->name.root + L"\\$Recycle.Bin");
  if (!bin) return false;
  std::error_code error;
  fs::create_directory(bin->place, error);
  fs::path place;
  for (int number = 1; place.empty() || fs::exists(place); ++number) place = bin->place / std::to_string(number);
  fs::rename(entry->place, place, error);
  return !error && attributes_.Forget(entry->name.Text());
}

std::optional<std::vector<std::pair<FolderEntry, LocalFileSystem::Entry>>> LocalFileSystem::Inside(
    const std::wstring& path) {
  const std::optional<Entry> folder = Look(path);
  if (!folder || !folder->isFolder) return std::nullopt;
  std::vector<std::pair<FolderEntry, Entry>> inside;
  std::error_code error;
  for (fs::directory_iterator it(folder->place, error); !error && it != fs::directory_iterator(); it.increment(error)) {
    std::wstring name = NameFromDisk(it->path().filename());
    std::optional<WindowsPath> child = ParseWindowsPath(folder->name.Text() + L'\\' + name);
    if (!child || child->names.empty() || child->names.back() != name) continue;  // no name that Windows could have
    Entry entry = Examine(*std::move(child), it->path());
    FolderEntry listed{std::move(name), entry.attributes, it->is_symlink(error)};
    if (entry.Exists()) inside.emplace_back(std::move(listed), std::move(entry));
  }
  if (error) return std::nullopt;
  std::sort(inside.begin(), inside.end(),
            [](const auto& a, const auto& b) { return Folded(a.first.name) < Folded(b.first.name); });
  return inside;
}

bool LocalFileSystem::ListFolder(const std::wstring& path, std::vector<FolderEntry>& entries) {
  entries.clear();
  if (faults_.Strikes("ListFolder", path)) return false;
  auto inside = Inside(path);
  if (!inside) return false;
  for (auto& [listed, entry] : *inside) entries.push_back(std::move(listed));
  return true;
}

bool LocalFileSystem::WalkFolder(const std::wstring& path, const FolderVisitor& visit) {
  if (faults_.Strikes("WalkFolder", path)) return false;
  const auto inside = Inside(path);
  if (!inside) return false;
  for (const auto& [listed, entry] : *inside) {
    if (faults_.WalkEndsAfter && (*faults_.WalkEndsAfter)-- == 0) return false;
    if (!visit(listed, FactsOf(entry))) return false;
  }
  return true;
}

std::wstring LocalFileSystem::GetTypeName(const std::wstring& extension, bool isFolder) {
  if (faults_.Strikes("GetTypeName", extension)) return {};
  if (isFolder) return L"File folder";
  if (extension.empty()) return L"File";
  std::wstring type = extension.substr(1);
  std::transform(type.begin(), type.end(), type.begin(), UpperCase);
  return type == L"TXT" ? L"Text Document" : type + L" File";
}

std::vector<std::wstring> LocalFileSystem::DriveList() {
  std::vector<std::wstring> list;
  if (faults_.Strikes("DriveList", {})) return list;
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
    if (!drives_.Has(letter)) continue;
    const DriveFacts facts = drives_.FactsOf(letter);
    std::wstring note;
    if (facts.type == kDriveTypeRemote) note = facts.share;
    if (facts.type == kDriveTypeFixed) ReadLabel(letter, note);
    list.push_back({LowerCase(letter), L':'});
    if (!note.empty()) list.back() += L" [" + note + L"]";
  }
  return list;
}

std::int32_t LocalFileSystem::GetDriveTypeA(const std::wstring& drive) {
  if (faults_.Strikes("GetDriveTypeA", drive)) return kDriveTypeUnknown;
  const std::optional<wchar_t> letter = DriveLetter(drive);
  return letter && drive.size() > 1 && drives_.Has(*letter) ? drives_.FactsOf(*letter).type : kDriveTypeNone;
}

bool LocalFileSystem::GetVolumeInformationA(const std::wstring& drive, std::wstring& label) {
  label.clear();
  if (faults_.Strikes("GetVolumeInformationA", drive)) return false;
  const std::optional<wchar_t> letter = DriveLetter(drive);
  return letter && drive.size() > 1 && ReadLabel(*letter, label);
}

bool LocalFileSystem::ReadLabel(wchar_t letter, std::wstring& label) {
  if (!drives_.Has(letter)) return false;
  drives_.Touch(letter);
  if (!drives_.HasMedium(letter)) return false;
  label = drives_.FactsOf(letter).label;
  return true;
}

std::optional<std::uint32_t> LocalFileSystem::AttributesOf(const std::wstring& path) {
  const std::optional<Entry> entry = Look(path);
  if (!entry || !entry->Exists()) return std::nullopt;
  return entry->attributes;
}

bool LocalFileSystem::MarkCompressed(const std::wstring& path) {
  const std::optional<Entry> entry = Look(path);
  if (!entry || !entry->Exists()) return false;
  return attributes_.Set(entry->name.Text(), (entry->attributes & kKeptAttributes) | kFileCompressed);
}

}  // namespace burrowmark
