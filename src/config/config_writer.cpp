#include "config/config_writer.h"

#include <vector>

#include "config/config_format.h"
#include "core/numbers.h"
#include "core/text.h"

namespace burrowmark {
namespace {

void AppendRecord(std::wstring& text, const clsMenuItem& item) {
  const std::wstring fields[kRecordFields] = {
      DecimalText(item.Position),
      item.Name(),
      item.Caption(),
      DecimalText(item.flags),
      item.OwnerName(),
      DecimalText(item.IconID),
      BooleanWord(item.Separator()),
      BooleanWord(item.SubMenu()),
      item.ItemType,
      item.OpenType,
      DecimalText(item.DriveType),
      item.Description,
      item.FolderPath,
      item.NetworkPath,
      item.ItemPath,
      item.ItemLocation,
      item.Remark,
      item.KeyboardCode < 0 ? std::wstring() : DecimalText(item.KeyboardCode),
      item.UserDescription,
      PackDateText(item.TimeCreated),
      PackDateText(item.TimeModified),
      PackDateText(item.TimeAccessed),
  };
  for (const std::wstring& field : fields) AppendToken(text, field);
}

void WriteSection(std::wstring& text, const clsMenuCollection& store, const wchar_t* word) {
  AppendToken(text, std::wstring(L"[") + word + L":]");
  for (std::int32_t i = 1; i <= store.Count(); ++i) {
    const ItemRef item = store.Item(i);
    if (IsLeftOutOfFiles(*item)) continue;
    if (item->Name() == word || store.GetItemRootNode(*item) == word) AppendRecord(text, *item);
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

std::string BuildConfig(const Application& app, const clsMenuCollection& store) {
  std::wstring text;
  WriteSection(text, store, MIT_GROUP_USER);
  if (app.AC[0]) WriteSection(text, store, MIT_PATHS_SYSTEM);
  AppendSummary(text, app.Summary);
  return EncodeConfig(text, app.platform.system, false);
}

bool ReplaceSummary(const Application& app, std::string_view bytes, std::string& replaced) {
  bool utf8 = false;
  const std::wstring text = DecodeConfig(bytes, app.platform.system, utf8);
  const std::vector<std::wstring_view> tokens = SplitTokens(text);
  std::wstring kept;
  if (!SummaryCutter(tokens).Cut(kept)) return false;
  AppendSummary(kept, app.Summary);
  replaced = EncodeConfig(kept, app.platform.system, utf8);
  return true;
}

}  // namespace burrowmark
