#include "core/save_file.h"

#include <utility>

namespace burrowmark {
namespace {

std::wstring NameBeside(const std::wstring& target) { return target + L".~burrowmark"; }

// A file that is there but doesn't tell its attributes would lose them, and might be read-only.
bool MayReplace(FileSystem& files, const std::wstring& path, std::optional<std::uint32_t> attributes) {
  return attributes ? (*attributes & (kFileReadOnly | kFileDirectory)) == 0 : !files.FileExists(path);
}

}  // namespace

FileBeside::FileBeside(FileSystem& files, std::wstring target)
    : files_(files), target_(std::move(target)), path_(NameBeside(target_)) {
  RemoveLeftOver(files_, target_);
  output_ = files_.CreateNewFile(path_);
  made_ = output_ != nullptr;
  if (made_) output_->DeleteUnlessClosed();
}

FileBeside::~FileBeside() {
  output_.reset();
  if (made_) files_.DeleteFileA(path_);
}

bool FileBeside::TakePlace() {
  output_.reset();
  const bool moved = files_.MoveFileExA(path_, target_);
  made_ = made_ && !moved;
  return moved;
}

void RemoveLeftOver(FileSystem& files, const std::wstring& path) { files.DeleteFileA(NameBeside(path)); }

bool SaveWholeFile(FileSystem& files, const std::wstring& path, std::string_view bytes) {
  const auto attributes = files.GetFileAttributesA(path);
  if (!MayReplace(files, path, attributes)) return false;
  FileBeside beside(files, path);
  if (!beside.Write(bytes) || !beside.Finish()) return false;
  if (attributes && !beside.SetAttributes(*attributes | kFileArchive)) return false;
  return beside.TakePlace();
}

bool CanSave(FileSystem& files, const std::wstring& path) {
  return MayReplace(files, path, files.GetFileAttributesA(path)) && FileBeside(files, path).Made();
}

}  // namespace burrowmark
