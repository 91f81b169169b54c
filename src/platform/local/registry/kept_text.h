// A small text file that holds what the machine remembers.
#pragma once

#include <filesystem>
#include <string>

namespace burrowmark {

// The file is the truth: another process over the same machine may have written it since, so its reader asks Refresh
// before each use. Two processes may take turns; changes made at the very same moment aren't guarded.
class KeptText {
 public:
  explicit KeptText(std::filesystem::path file);

  // Reads the file again; true if it differs from what was known. A missing file is an empty text.
  bool Refresh();
  const std::string& Text() const { return text_; }
  // Replaces the file in one step. On failure the file and the text are as they were.
  bool Save(std::string text);

 private:
  std::filesystem::path file_;
  std::string text_;
};

}  // namespace burrowmark
