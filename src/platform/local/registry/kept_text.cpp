#include "platform/local/registry/kept_text.h"

#include <system_error>
#include <utility>

#include "platform/local/disk/disk.h"

namespace burrowmark {

KeptText::KeptText(std::filesystem::path file) : file_(std::move(file)) {}

bool KeptText::Refresh() {
  std::string text;
  ReadDiskFile(file_, text);
  if (text == text_) return false;
  text_ = std::move(text);
  return true;
}

bool KeptText::Save(std::string text) {
  std::filesystem::path fresh = file_;
  fresh += ".new";
  std::error_code error;
  std::filesystem::remove(fresh, error);
  {
    DiskFile out(fresh);
    if (!out.Write(text) || !out.Close()) return false;
  }
  std::filesystem::rename(fresh, file_, error);
  if (error) return false;
  text_ = std::move(text);
  return true;
}

}  // namespace burrowmark
