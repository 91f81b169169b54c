#include "core/save_file.h"

#include "core/numbers.h"

namespace burrowmark {
namespace {

constexpr int kMostLeftOvers = 100;  // of earlier saves that couldn't tidy up, before a save gives up

// The new file beside the target. Unless it took the target's place, it is deleted when it goes.
class FileBeside {
 public:
  FileBeside(FileSystem& files, const std::wstring& target) : files_(files) {
    for (int i = 0; i < kMostLeftOvers && !output_; ++i) {
      path_ = target + L".new" + (i == 0 ? std::wstring() : DecimalText(i));
      output_ = files.CreateNewFile(path_);
      if (!output_ && !files.FileExists(path_)) return;
    }
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

bool SaveWholeFile(FileSystem& files, const std::wstring& path, std::string_view bytes) {
  const auto attributes = files.GetFileAttributesA(path);
  if (attributes && (*attributes & (kFileReadOnly | kFileDirectory)) != 0) return false;
  // A file that is there but doesn't tell its attributes would lose them, and might be read-only.
  if (!attributes && files.FileExists(path)) return false;
  FileBeside beside(files, path);
  if (!beside.Fill(bytes)) return false;
  if (attributes && !beside.SetAttributes(*attributes | kFileArchive)) return false;
  return beside.TakePlaceOf(path);
}

bool CanCreateFilesIn(FileSystem& files, const std::wstring& folder) {
  return FileBeside(files, folder + L"\\write-test").Made();
}

}  // namespace burrowmark
