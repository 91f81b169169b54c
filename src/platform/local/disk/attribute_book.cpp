#include "platform/local/disk/attribute_book.h"

#include <sstream>
#include <utility>

#include "platform/characters.h"
#include "platform/file_system.h"
#include "platform/local/folded.h"

namespace burrowmark {
namespace {

struct AttributeLetter {
  char letter;
  std::uint32_t bit;
};

constexpr AttributeLetter kLetters[] = {
    {'R', kFileReadOnly}, {'H', kFileHidden}, {'S', kFileSystem}, {'A', kFileArchive}, {'C', kFileCompressed}};

}  // namespace

AttributeBook::AttributeBook(std::filesystem::path file) : kept_(std::move(file)) {}

std::optional<std::uint32_t> AttributeBook::Find(const std::wstring& path) {
  Refresh();
  const auto found = attributes_.find(Folded(path));
  if (found == attributes_.end()) return std::nullopt;
  return found->second;
}

bool AttributeBook::Set(const std::wstring& path, std::uint32_t attributes) {
  Refresh();
  attributes_[Folded(path)] = attributes;
  return Save();
}

bool AttributeBook::Forget(const std::wstring& path) {
  Refresh();
  return attributes_.erase(Folded(path)) == 0 || Save();
}

bool AttributeBook::Rename(const std::wstring& from, const std::wstring& to) {
  const std::optional<std::uint32_t> attributes = Find(from);
  if (Folded(from) == Folded(to)) return true;
  if (!attributes) return Forget(to);
  attributes_.erase(Folded(from));
  return Set(to, *attributes);
}

void AttributeBook::Refresh() {
  if (!kept_.Refresh()) return;
  attributes_.clear();
  std::istringstream lines(kept_.Text());
  for (std::string line; std::getline(lines, line);) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string::npos) continue;
    std::uint32_t bits = 0;
    for (const AttributeLetter& row : kLetters) {
      if (line.find(row.letter) < blank) bits |= row.bit;
    }
    attributes_[Folded(FromUtf8(line.substr(blank + 1)))] = bits;
  }
}

bool AttributeBook::Save() {
  std::string text;
  for (const auto& [path, bits] : attributes_) {
    for (const AttributeLetter& row : kLetters) text += (bits & row.bit) != 0 ? row.letter : '-';
    text += ' ' + ToUtf8(path) + '\n';
  }
  return kept_.Save(std::move(text));
}

}  // namespace burrowmark
