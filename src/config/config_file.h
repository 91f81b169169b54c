// The configuration file: where it is, reading it, writing it. Nothing here shows a message; the callers do.
#pragma once

#include <string>

#include "core/application.h"

namespace burrowmark {

inline constexpr wchar_t kDefaultConfigName[] = L"default.bwmk";

// Sets `ConfigFile`: the registered path or, without one or with `ForceDefault`, `default.bwmk` beside the program;
// where nothing can be written there, in the user's application data.
void GetConfigFileName(Application& app, bool ForceDefault);
// Registers a path, or `ConfigFile` for an empty one, as the default configuration file.
void SaveConfigFileName(Application& app, const std::wstring& path);

// Reads a file (`ConfigFile` for an empty path) into a store and adds the fixed entries. The flags say that the System
// Folders group is wanted and was missing, or isn't wanted and was there. On success the file becomes the current one
// with its summary. A failure gives false and leaves in the store what was added until then; a file without a single
// byte is deleted.
bool ConfigFileRead(Application& app, clsMenuCollection& store, const std::wstring& path, bool& SystemGroupMissing,
                    bool& SystemGroupIgnored);
// Writes a store to a file (`ConfigFile` for an empty path), or its listing as plain text. Either the file is written
// whole, or the result is false and the file is as it was.
bool ConfigFileWrite(Application& app, const clsMenuCollection& store, const std::wstring& path, bool PlainText);
// Writes the current summary into an existing file, likewise. True if there is no such file.
bool ConfigFileUpdateSummary(Application& app, const std::wstring& path);

// Copies a file that couldn't be read to a free name beside it ("x (unreadable).bwmk"), so that it can be overwritten.
// True if it was copied.
bool KeepUnreadableFile(Application& app, const std::wstring& path);

}  // namespace burrowmark
