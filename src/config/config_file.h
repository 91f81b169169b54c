// The configuration file: where it is, reading it, writing it. Nothing here shows a message; the callers do.
#pragma once

#include <optional>
#include <string>

#include "core/application.h"

namespace burrowmark {

inline constexpr wchar_t kDefaultConfigName[] = L"default.bwmk";

// Where the default file is at a start.
struct DefaultFile {
  std::wstring path;       // where it is saved
  std::wstring source;     // where it is read from now; empty if there is none
  bool registers = false;  // its path should be registered
};

// The registered file if it is there; otherwise what stands beside the program or in the user's application data, or
// would stand there.
DefaultFile FindDefaultFile(Application& app);
// Registers a path as that of the default configuration file.
void SaveConfigFileName(Application& app, const std::wstring& path);

// The path that a document has of a file: the default file's own, if that is the file that is meant.
std::wstring OwnPath(Application& app, const std::wstring& path);

struct OpenedConfig {
  Document document;                // without the fixed entries
  bool SystemGroupMissing = false;  // the System Folders group is wanted, and the file has none
  bool SystemGroupIgnored = false;  // the file has one, and it isn't wanted
};

// Reads a file; none if it can't be read. A file without a single byte is deleted.
std::optional<OpenedConfig> ConfigFileRead(Application& app, const std::wstring& path);

// Writes a document to its own file. Either the file is written whole, or the result is false and the file is as it
// was. A file that holds anything else than this tree as it was read or written last is copied aside first.
bool ConfigFileWrite(Application& app, Document& document);
// The same to another file, which the document belongs to from then on. The user has agreed to lose what is there.
bool ConfigFileWriteAs(Application& app, Document& document, const std::wstring& path);
// Writes a listing of the tree as plain text.
bool ConfigFileExport(Application& app, const Document& document, const std::wstring& path);
// Writes the summary alone into the document's file. True if there is no such file; false for one that the reader would
// refuse.
bool ConfigFileUpdateSummary(Application& app, Document& document);

// Copies a document's file aside, each version once, if it holds anything else than the tree; the document gets a
// notice of it. False if that fails: then the file must not be overwritten.
bool KeepOldFile(Application& app, Document& document);

// What tells the user that a file couldn't be saved.
std::wstring SaveErrorText(Application& app, const std::wstring& path);

}  // namespace burrowmark
