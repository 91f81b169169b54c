#include "config/config_writer.h"

#include <optional>
#include <vector>

#include "config/config_format.h"
#include "core/numbers.h"
#include "core/text.h"

namespace burrowmark {
namespace {

constexpr std::size_t kUsualRecord = 200;  // characters

void AppendRecord(std::wstring& text, const clsMenuItem& item) {
  const auto add = [&text](std::wstring_view token) { AppendToken(text, token); };
  add(DecimalText(item.Position));
  add(item.Name());
  add(item.Caption());
  add(DecimalText(item.flags));
  add(item.OwnerName());
  add(DecimalText(item.IconID));
  add(BooleanWord(item.Separator()));
  add(BooleanWord(item.SubMenu()));
  add(item.ItemType);
  add(item.OpenType);
  add(DecimalText(item.DriveType));
  add(item.Description);
  add(item.FolderPath);
  add(item.NetworkPath);
  add(item.ItemPath);
  add(item.ItemLocation);
  add(item.Remark);
  add(item.KeyboardCode < 0 ? std::wstring() : DecimalText(item.KeyboardCode));
  add(item.UserDescription);
  add(PackDateText(item.TimeCreated));
  add(PackDateText(item.TimeModified));
  add(PackDateText(item.TimeAccessed));
}

void WriteSection(std::wstring& text, const clsMenuCollection& store, std::wstring_view word) {
  AppendToken(text, L"[" + std::wstring(word) + L":]");
  std::optional<std::wstring> owner;  // of the entry before, and whether it leads to the section's group
  bool belongs = false;
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (IsLeftOutOfFiles(*item)) continue;
    if (owner != item->OwnerName()) {
      owner = item->OwnerName();
      belongs = store.GetItemRootNode(*item) == word;
    }
    if (belongs || item->Name() == word) AppendRecord(text, *item);
  }
  AppendToken(text, kSectionEnd);
}

// Walks over the tokens of a file and keeps all but its summary sections.
class SummaryCutter {
 public:
  explicit SummaryCutter(const std::vector<std::wstring_view>& tokens) : tokens_(tokens) {}

  // False if a section has no end.
  bool Cut(std::wstring& kept) {
    while (next_ < tokens_.size()) {
      const std::wstring_view token = tokens_[next_];
      if (token == kUserSection || token == kSystemSection) {
        if (!KeepItemSection(kept)) return false;
      } else if (FindSummarySection(token) != nullptr) {
        if (!PassOverSummary()) return false;
      } else {
        AppendToken(kept, tokens_[next_++]);
      }
    }
    return true;
  }

 private:
  // Records are passed over whole: a text within one may look like a marker.
  bool KeepItemSection(std::wstring& kept) {
    AppendToken(kept, tokens_[next_++]);
    for (std::size_t field = 0; next_ < tokens_.size(); ++field) {
      const std::wstring_view token = tokens_[next_++];
      AppendToken(kept, token);
      if (field % kRecordFields == 0 && token == kSectionEnd) return true;
    }
    return false;
  }

  bool PassOverSummary() {
    next_ += 2;  // the marker and its text
    while (next_ < tokens_.size()) {
      if (tokens_[next_++] == kSectionEnd) return true;
    }
    return false;
  }

  const std::vector<std::wstring_view>& tokens_;
  std::size_t next_ = 0;
};

}  // namespace

std::string BuildConfig(const Application& app, const clsMenuCollection& store, const ConfigSummary& summary) {
  std::wstring text;
  text.reserve(static_cast<std::size_t>(store.Count()) * kUsualRecord);
  WriteSection(text, store, MIT_GROUP_USER);
  if (app.AC[Appearance::kSystemFolders]) WriteSection(text, store, MIT_PATHS_SYSTEM);
  AppendSummary(text, summary);
  return EncodeConfig(text, app.platform.system, false);
}

bool ReplaceSummary(const Application& app, std::string_view bytes, const ConfigSummary& summary,
                    std::string& replaced) {
  bool utf8 = false;
  const std::wstring text = DecodeConfig(bytes, app.platform.system, utf8);
  const std::vector<std::wstring_view> tokens = SplitTokens(text);
  std::wstring kept;
  if (!SummaryCutter(tokens).Cut(kept)) return false;
  AppendSummary(kept, summary);
  replaced = EncodeConfig(kept, app.platform.system, utf8);
  return true;
}

}  // namespace burrowmark
