#include "organize/organize_layout.h"

#include "core/failure.h"
#include "core/form_state.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/text.h"

namespace burrowmark {
namespace {

constexpr wchar_t kForm[] = L"frmOrganize";
constexpr wchar_t kColumnWidth[] = L"ICHW";  // and the column's number, from 1

// Values of the editor's key; each reading keeps what it is given where there is nothing to read.
class LayoutValues {
 public:
  explicit LayoutValues(Application& app) : registry_(app.platform.registry), key_(GetFormRegKey(kForm)) {}

  void Read(const std::wstring& name, std::wstring& value) {
    const std::wstring text = Text(name);
    if (!text.empty()) value = text;
  }
  void Read(const std::wstring& name, bool& value) {
    Skip([&] { value = ToBoolean(Text(name)); });
  }
  template <typename Number>
  void ReadNumber(const std::wstring& name, Number& value, Number (*convert)(std::wstring_view)) {
    try {
      value = convert(Text(name));
    } catch (const OverflowFailure&) {
      value = 0;
    } catch (const Failure&) {
      return;
    }
  }
  void Write(const std::wstring& name, const std::wstring& text) {
    registry_.SetKeyValue(RegistryKey::kCurrentUser, key_, name, text);
  }

 private:
  std::wstring Text(const std::wstring& name) {
    std::wstring text;
    registry_.GetKeyValue(RegistryKey::kCurrentUser, key_, name, text);
    return Trim(text);
  }

  clsRegHandler registry_;
  std::wstring key_;
};

std::int32_t ColumnCount(const ListView& list) { return static_cast<std::int32_t>(list.Columns().size()); }

std::wstring ColumnName(std::int32_t column) { return kColumnWidth + DecimalText(column); }

}  // namespace

OrganizeLayout LoadOrganizeLayout(Application& app, ListView& list) {
  LayoutValues values(app);
  OrganizeLayout layout;
  values.Read(L"I1", layout.StatusBar);
  values.Read(L"I2", layout.View);
  values.Read(L"I3", layout.ToolbarText);
  values.Read(L"I4", layout.ToolbarLarge);
  values.Read(L"I5", layout.AllLeftPane);
  values.ReadNumber(L"I6", layout.TreeWidth, ToInt16);
  for (std::int32_t column = 1; column <= ColumnCount(list); ++column) {
    std::int32_t width = list.Columns()[static_cast<std::size_t>(column) - 1].width;
    values.ReadNumber(ColumnName(column), width, ToInt32);
    if (width >= 0) list.SetColumnWidth(column, width);
  }
  return layout;
}

void SaveOrganizeLayout(Application& app, const OrganizeLayout& layout, const ListView& list) {
  LayoutValues values(app);
  values.Write(L"I1", BooleanWord(layout.StatusBar));
  values.Write(L"I2", layout.View);
  values.Write(L"I3", BooleanWord(layout.ToolbarText));
  values.Write(L"I4", BooleanWord(layout.ToolbarLarge));
  values.Write(L"I5", BooleanWord(layout.AllLeftPane));
  values.Write(L"I6", DecimalText(layout.TreeWidth));
  for (std::int32_t column = 1; column <= ColumnCount(list); ++column) {
    values.Write(ColumnName(column), DecimalText(list.Columns()[static_cast<std::size_t>(column) - 1].width));
  }
}

}  // namespace burrowmark
