#include "platform/local/disk/drive_book.h"

#include <sstream>
#include <utility>

#include "platform/characters.h"

namespace burrowmark {

DriveBook::DriveBook(std::filesystem::path file) : kept_(std::move(file)) {}

DriveFacts DriveBook::Find(wchar_t letter) {
  Refresh();
  const auto found = facts_.find(letter);
  return found == facts_.end() ? DriveFacts() : found->second;
}

bool DriveBook::Set(wchar_t letter, const DriveFacts& facts) {
  Refresh();
  facts_[letter] = facts;
  std::string text;
  for (const auto& [known, row] : facts_) {
    text += ToUtf8({&known, 1}) + '\t' + std::to_string(row.type) + '\t';
    text += ToUtf8(row.share) + '\t' + ToUtf8(row.label) + '\n';
  }
  return kept_.Save(std::move(text));
}

void DriveBook::Refresh() {
  if (!kept_.Refresh()) return;
  facts_.clear();
  std::istringstream lines(kept_.Text());
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string letter;
    std::string share;
    std::string label;
    DriveFacts facts;
    std::getline(fields, letter, '\t');
    fields >> facts.type;
    fields.ignore();
    std::getline(fields, share, '\t');
    std::getline(fields, label);
    facts.share = FromUtf8(share);
    facts.label = FromUtf8(label);
    if (letter.size() == 1) facts_[static_cast<wchar_t>(letter.front())] = std::move(facts);
  }
}

}  // namespace burrowmark
