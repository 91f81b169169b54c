// Saving a whole file so that it is never lost.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace burrowmark {

// Makes `bytes` the content of the file at `path`. They go to a new file beside it, which is flushed and takes the
// file's place in one step with the old one's attributes. On any failure the result is false and the old file is whole,
// or there is still none. A read-only file is a failure.
bool SaveWholeFile(FileSystem& files, const std::wstring& path, std::string_view bytes);

// Removes what a save of this file left beside it when the process was ended in the middle.
void RemoveLeftOver(FileSystem& files, const std::wstring& path);

// True if a file of this path could be saved. It makes a file beside it and deletes that again.
bool CanSave(FileSystem& files, const std::wstring& path);

}  // namespace burrowmark
