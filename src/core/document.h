// A tree and the file that it belongs to.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/menu_collection.h"
#include "platform/file_system.h"

namespace burrowmark {

// Texts that a configuration file carries about itself.
struct ConfigSummary {
  std::wstring SummaryTitle{};
  std::wstring SummaryAuthor{};
  std::wstring SummaryCategory{};
  std::wstring SummaryKeywords{};
  std::wstring SummaryComments{};
};

// What a document's file holds of its tree.
enum class FileContent : std::uint8_t {
  kNone,        // nothing: the tree was made because there was no file
  kWhole,       // the tree as it was read or written last
  kDamaged,     // more than could be read: the next save would leave something out
  kUnreadable,  // it couldn't be read at all, and the tree was made instead
};

struct Document {
  std::shared_ptr<clsMenuCollection> Store{};
  // Where it came from and where a save writes it; the default file's own path if it is the default file, however the
  // user spelled it.
  std::wstring CurrentConfigFile{};
  ConfigSummary Summary{};
  FileContent Content = FileContent::kNone;
  std::wstring KeptAs{};              // the copy of what the file held besides; empty while there is none
  std::optional<FileFacts> KeptOf{};  // the file when it was copied
  std::wstring Notice{};              // what the user should be told of that copy, once
  bool Changed = false;               // the tree differs from the file
};

}  // namespace burrowmark
