#include "config/config_reader.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "config/config_format.h"
#include "config/config_repair.h"
#include "core/failure.h"
#include "core/numbers.h"

namespace burrowmark {
namespace {

// A field of a record, from 1. An empty token leaves the item's value alone where `keepWhenEmpty` says so.
struct RecordField {
  bool keepWhenEmpty;
  void (*store)(clsMenuItem& item, std::wstring_view token);
};

// The type follows the two booleans, so that the file's type stands. The network path has no meaning.
constexpr RecordField kFields[kRecordFields] = {
    {false, [](clsMenuItem& item, std::wstring_view token) { item.Position = ToInt32(token); }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.SetName(token); }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.SetCaption(token); }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.flags = ToInt32(token); }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.SetOwnerName(token); }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.IconID = ToInt16(token); }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.SetSeparator(ToBoolean(token)); }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.SetSubMenu(ToBoolean(token)); }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.ItemType = token; }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.OpenType = token; }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.DriveType = ToInt32(token); }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.Description = token; }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.FolderPath = token; }},
    {false, [](clsMenuItem&, std::wstring_view) {}},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.ItemPath = token; }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.ItemLocation = token; }},
    {false, [](clsMenuItem& item, std::wstring_view token) { item.Remark = token; }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.KeyboardCode = ToInt32(token); }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.UserDescription = token; }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.TimeCreated = UnpackDateText(token); }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.TimeModified = UnpackDateText(token); }},
    {true, [](clsMenuItem& item, std::wstring_view token) { item.TimeAccessed = UnpackDateText(token); }},
};

void SetItemField(clsMenuItem& item, std::size_t field, std::wstring_view token) {
  const RecordField& row = kFields[field - 1];
  if (!(row.keepWhenEmpty && token.empty())) row.store(item, token);
}

class Reader {
 public:
  Reader(const Application& app, ConfigContent& content, const std::vector<std::wstring_view>& tokens)
      : app_(app), content_(content), tokens_(tokens) {}

  // Throws Failure at a record that isn't one.
  std::vector<ItemRef> Read() {
    while (next_ < tokens_.size()) {
      const std::wstring_view token = tokens_[next_++];
      if (token == kUserSection) {
        ReadItemRecords();
      } else if (token == kSystemSection) {
        ReadSystemSection();
      } else if (const SummarySection* section = FindSummarySection(token); section && next_ < tokens_.size()) {
        content_.summary.*section->text = tokens_[next_++];
      }
    }
    return std::move(items_);
  }

 private:
  // With the group switched off the records pass through the walk as unknown tokens.
  void ReadSystemSection() {
    if (app_.AC[Appearance::kSystemFolders]) {
      ReadItemRecords();
    } else {
      content_.SystemGroupIgnored = true;
    }
  }

  // A record counts once the token behind it is there: that token ends the section or begins the next record. A section
  // that ends at once holds nothing.
  void ReadItemRecords() {
    if (next_ < tokens_.size() && tokens_[next_] == kSectionEnd) return;
    ItemRef item;
    for (std::size_t field = 1; next_ < tokens_.size(); ++next_) {
      if (field > kRecordFields) {
        if (!IsLeftOutOfFiles(*item)) items_.push_back(item);
        if (tokens_[next_] == kSectionEnd) return;
        field = 1;
      }
      if (field == 1) item = std::make_shared<clsMenuItem>(app_.platform.clock);
      SetItemField(*item, field, tokens_[next_]);
      ++field;
    }
    content_.Damaged = true;
  }

  const Application& app_;
  ConfigContent& content_;
  const std::vector<std::wstring_view>& tokens_;
  std::vector<ItemRef> items_;
  std::size_t next_ = 0;
};

bool IsSectionMarker(std::wstring_view token) {
  return token == kUserSection || token == kSystemSection || FindSummarySection(token) != nullptr;
}

}  // namespace

bool ReadConfig(const Application& app, std::string_view bytes, clsMenuCollection& store, ConfigContent& content) {
  bool utf8 = false;
  const std::wstring text = DecodeConfig(bytes, app.platform.system, utf8);
  const std::vector<std::wstring_view> tokens = SplitTokens(text);
  if (std::none_of(tokens.begin(), tokens.end(), IsSectionMarker)) return false;
  return Attempt([&] {
    std::vector<ItemRef> items = Reader(app, content, tokens).Read();
    const Repair repair = RepairItems(items);
    if (repair == Repair::kHopeless) return false;
    if (repair == Repair::kDone) content.Damaged = true;
    for (const ItemRef& item : items) store.AddOne(item, true, false);
    content.SystemGroupMissing = app.AC[Appearance::kSystemFolders] && !store.ItemExists(MIT_PATHS_SYSTEM);
    return true;
  });
}

}  // namespace burrowmark
