// Saving a whole file so that it is never lost.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace burrowmark {

// A new file beside its target, filled piece by piece, that takes the target's place in one step. Until it has, the old
// file is whole, or there is still none; the new one is deleted when this object goes, or the process. Where the disk
// doesn't do that, or the machine ends, it stays: it has one name, so that the next one finds it.
class FileBeside {
 public:
  FileBeside(FileSystem& files, std::wstring target);
  ~FileBeside();
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  bool Made() const { return made_; }
  bool Write(std::string_view bytes) { return output_ && output_->Write(bytes); }
  // Brings what was written onto the disk itself, and closes the file.
  bool Finish() { return output_ && output_->Flush() && output_->Close(); }
  // Attributes for the file that comes; without a call they are those of a new one.
  bool SetAttributes(std::uint32_t attributes) { return files_.SetFileAttributesA(path_, attributes); }
  // Fails if the target is read-only or held open.
  bool TakePlace();

 private:
  FileSystem& files_;
  std::wstring target_;
  std::wstring path_;
  std::unique_ptr<OutputFile> output_;
  bool made_ = false;
};

// Makes `bytes` the content of the file at `path`. They go to a new file beside it, which is flushed and takes the
// file's place in one step with the old one's attributes. On any failure the result is false and the old file is whole,
// or there is still none. A read-only file is a failure.
bool SaveWholeFile(FileSystem& files, const std::wstring& path, std::string_view bytes);

// Removes what a save of this file left beside it when the process was ended in the middle.
void RemoveLeftOver(FileSystem& files, const std::wstring& path);

// True if a file of this path could be saved. It makes a file beside it and deletes that again.
bool CanSave(FileSystem& files, const std::wstring& path);

}  // namespace burrowmark
