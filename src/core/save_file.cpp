#include "core/save_file.h"

namespace burrowmark {
namespace {

std::wstring NameBeside(const std::wstring& target) { return target + L".~burrowmark"; }

// A file that is there but doesn't tell its attributes would lose them, and might be read-only.
bool MayReplace(FileSystem& files, const std::wstring& path, std::optional<std::uint32_t> attributes) {
  return attributes ? (*attributes & (kFileReadOnly | kFileDirectory)) == 0 : !files.FileExists(path);
}

// The new file beside the target. Unless it took the target's place, it is deleted when it goes. A killed process
// leaves it there: it has one name, so that the next one finds it.
class FileBeside {
 public:
  FileBeside(FileSystem& files, const std::wstring& target) : files_(files), path_(NameBeside(target)) {
    RemoveLeftOver(files, target);
    output_ = files.CreateNewFile(path_);
    made_ = output_ != nullptr;
  }
  ~FileBeside() {
    output_.reset();
    if (made_) files_.DeleteFileA(path_);
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  bool Made() const { return made_; }
  bool Fill(std::string_view bytes) { return output_ && output_->Write(bytes) && output_->Flush() && output_->Close(); }
  bool SetAttributes(std::uint32_t attributes) { return files_.SetFileAttributesA(path_, attributes); }
  bool TakePlaceOf(const std::wstring& target) {
    output_.reset();
    const bool moved = files_.MoveFileExA(path_, target);
    made_ = made_ && !moved;
    return moved;
  }

 private:
  FileSystem& files_;
  std::wstring path_;
  std::unique_ptr<OutputFile> output_;
  bool made_ = false;
};

}  // namespace

void RemoveLeftOver(FileSystem& files, const std::wstring& path) { files.DeleteFileA(NameBeside(path)); }

bool SaveWholeFile(FileSystem& files, const std::wstring& path, std::string_view bytes) {
  const auto attributes = files.GetFileAttributesA(path);
  if (!MayReplace(files, path, attributes)) return false;
  FileBeside beside(files, path);
  if (!beside.Fill(bytes)) return false;
  if (attributes && !beside.SetAttributes(*attributes | kFileArchive)) return false;
  return beside.TakePlaceOf(path);
}

bool CanSave(FileSystem& files, const std::wstring& path) {
  return MayReplace(files, path, files.GetFileAttributesA(path)) && FileBeside(files, path).Made();
}

}  // namespace burrowmark
