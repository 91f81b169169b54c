#include "tools/report_layout.h"

#include <functional>
#include <map>
#include <utility>

#include "core/numbers.h"
#include "core/product.h"

namespace burrowmark {
namespace {

constexpr const wchar_t* kHeaders[kReportColumns] = {
    L"Name", L"Short Name", L"Type", L"Size", L"Date Last Modified", L"Date Created", L"Date Last Accessed", L"Path"};
constexpr wchar_t kCreatedBy[] = L"This report was created by ";
constexpr wchar_t kProgram[] = L"Burrowmark";
constexpr wchar_t kWebSite[] = L"" BURROWMARK_WEB_SITE L"/";
constexpr wchar_t kFolders[] = L"SubFolder(s)";
constexpr wchar_t kFiles[] = L"File(s)";
constexpr wchar_t kLineEnd[] = L"\r\n";
constexpr wchar_t kBlank[] = L"&nbsp;";
constexpr wchar_t kCell[] = L"<td>";
constexpr wchar_t kCellEnd[] = L"</td>\r\n";

// The user's locale, each setting asked for once.
class RememberedLocale final : public SystemFacts {
 public:
  explicit RememberedLocale(const SystemFacts& system) : system_(system) {}

  std::wstring GetLocaleInfoA(std::int32_t setting) const override {
    const auto known = settings_.find(setting);
    if (known != settings_.end()) return known->second;
    return settings_.emplace(setting, system_.GetLocaleInfoA(setting)).first->second;
  }
  bool GetVersionExA(SystemVersion& version) const override { return system_.GetVersionExA(version); }
  std::wstring GetWindowsDirectoryA() const override { return system_.GetWindowsDirectoryA(); }
  std::wstring GetSystemDirectoryA() const override { return system_.GetSystemDirectoryA(); }
  std::wstring GetComputerNameA() const override { return system_.GetComputerNameA(); }
  std::wstring GetTempPathA() const override { return system_.GetTempPathA(); }
  std::wstring GetModuleFileNameA() const override { return system_.GetModuleFileNameA(); }
  bool ToAnsi(std::wstring_view text, std::string& bytes) const override { return system_.ToAnsi(text, bytes); }
  std::wstring FromAnsi(std::string_view bytes) const override { return system_.FromAnsi(bytes); }

 private:
  const SystemFacts& system_;
  mutable std::map<std::int32_t, std::wstring> settings_;
};

// What both kinds of report tell.
class Layout {
 public:
  Layout(const ReportRequest& request, const FolderContent& content, const SystemFacts& system, ReportSink& sink)
      : request_(request), content_(content), system_(system), sink_(sink) {
    for (std::size_t i = 0; i < kReportColumns; ++i) {
      if (i == 0 || request.Columns.at(i)) columns_.push_back(static_cast<ReportColumn>(i));
    }
    inFolder_ = request.Folder.ends_with(L'\\') ? request.Folder : request.Folder + L'\\';
  }

 protected:
  ~Layout() = default;

  bool Line(std::wstring_view text) { return sink_.Line(text); }
  template <typename... Texts>
  bool Lines(Texts... texts) {
    return (Line(texts) && ...);
  }

  // Nothing where there is nothing to tell.
  void AppendValue(std::wstring& row, const ReportEntry& entry, ReportColumn column, bool isFolder) {
    switch (column) {
      case ReportColumn::kName:
        row += entry.name;
        return;
      case ReportColumn::kShortName:
        row += entry.shortName.empty() ? entry.name : entry.shortName;
        return;
      case ReportColumn::kType:
        row += content_.types[entry.type];
        return;
      case ReportColumn::kSize:
        if (!isFolder) row += FormatSize(entry.size, false, system_);
        return;
      case ReportColumn::kModified:
        row += DateText(entry.modified);
        return;
      case ReportColumn::kCreated:
        row += DateText(entry.created);
        return;
      case ReportColumn::kAccessed:
        row += DateText(entry.accessed);
        return;
      case ReportColumn::kPath:
        row.append(inFolder_).append(entry.name);
        return;
    }
  }

  // Folders come first. False as soon as `row` says so.
  template <typename Row>
  bool Rows(Row row) {
    return content_.folders.Visit([&row](const ReportEntry& folder) { return row(folder, true); }) &&
           content_.files.Visit([&row](const ReportEntry& file) { return row(file, false); });
  }

  std::wstring TotalSize() const { return FormatSize(content_.size, true, system_); }

  std::wstring Closing() const {
    const LocalTime time = SplitDate(request_.Moment);
    const std::wstring clock = FormatDate(request_.Moment, L"HH:mm", system_);
    const Date day = DateFromParts(time.year, time.month, time.day);
    return L" software at " + DefaultDateText(day, system_) + L" " + clock + L"h";
  }

  const ReportRequest& request_;
  const FolderContent& content_;
  RememberedLocale system_;
  std::vector<ReportColumn> columns_;

 private:
  // Files mostly share their moments with their neighbours or with themselves.
  struct KnownDate {
    Date date = 0;
    std::wstring text;
  };

  const std::wstring& DateText(Date date) {
    KnownDate& known = knownDates_[std::hash<Date>()(date) % kKnownDates];
    if (known.date != date) known = {date, DefaultDateText(date, system_)};
    return known.text;
  }

  static constexpr std::size_t kKnownDates = 256;

  ReportSink& sink_;
  std::wstring inFolder_;
  std::vector<KnownDate> knownDates_{kKnownDates};
};

// --- text

class TextLayout : private Layout {
 public:
  using Layout::Layout;

  bool Write() {
    const bool toClipboard = request_.Target.empty();
    if (!Cells({request_.Folder})) return false;
    if (toClipboard && !Cells({DefaultDateText(request_.Moment, system_)})) return false;
    if (!Line({}) || !Header()) return false;
    if (!Rows([this](const ReportEntry& entry, bool isFolder) { return Row(entry, isFolder); })) return false;
    if (!Line({}) || !Totals() || (!toClipboard && !Line({}))) return false;
    return Cells({std::wstring(kCreatedBy) + kProgram + Closing()});
  }

 private:
  // A delimiter stands behind each, the last one too.
  bool Cells(std::initializer_list<std::wstring> values) {
    row_.clear();
    for (const std::wstring& value : values) Add(value);
    return Line(row_);
  }
  void Add(std::wstring_view value) { row_.append(value).append(request_.Delimiter); }

  bool Header() {
    row_.clear();
    for (const ReportColumn column : columns_) Add(kHeaders[static_cast<std::size_t>(column)]);
    return Line(row_);
  }
  bool Row(const ReportEntry& entry, bool isFolder) {
    row_.clear();
    for (const ReportColumn column : columns_) {
      AppendValue(row_, entry, column, isFolder);
      row_ += request_.Delimiter;
    }
    return Line(row_);
  }
  bool Totals() {
    if (request_.WithFolders() && !Cells({DecimalText(content_.folderCount), kFolders})) return false;
    if (!request_.WithFiles()) return true;
    const std::wstring count = DecimalText(content_.fileCount);
    return request_.Has(ReportColumn::kSize) ? Cells({count, kFiles, TotalSize()}) : Cells({count, kFiles});
  }

  std::wstring row_;
};

// --- page

class PageLayout : private Layout {
 public:
  using Layout::Layout;

  bool Write() {
    return Top() && Data() && Line(L"<tr><td colspan=\"" + DecimalText(cells_) + L"\">" + kBlank + L"</tr>") &&
           Totals() && Bottom();
  }

 private:
  bool Top() {
    return Lines(L"<html>", L"<head>",
                 std::wstring(L"<link rel=\"stylesheet\" type=\"text/css\" href=\"") + kReportStyleSheet + L"\">",
                 L"</head>", L"<body>", L"<center>", L"<h3 class=\"title\">Folder Report</h3><br>",
                 L"<table width=\"100%\" border=\"0\">", L"<tr>", L"<td class=\"head1\">Folder:</td>",
                 L"<td class=\"head2\">" + request_.Folder + L"</td>", L"</tr>", L"</table>", L"<br>",
                 L"<table width=\"100%\" border=\"0\" class=\"data\">");
  }
  bool Data() {
    Begin(L"header");
    for (const ReportColumn column : columns_) Add(kHeaders[static_cast<std::size_t>(column)]);
    if (!End()) return false;
    return Rows([this](const ReportEntry& entry, bool isFolder) {
      if (isFolder) cells_ += static_cast<std::int64_t>(columns_.size());
      return Row(entry, isFolder);
    });
  }
  bool Row(const ReportEntry& entry, bool isFolder) {
    Begin(rows_++ % 2 == 0 ? L"row2" : L"row1");
    for (const ReportColumn column : columns_) {
      row_ += kCell;
      const std::size_t empty = row_.size();
      AppendValue(row_, entry, column, isFolder);
      if (row_.size() == empty) row_ += kBlank;
      row_ += kCellEnd;
    }
    return End();
  }
  void Begin(const wchar_t* kind) { row_.assign(L"<tr class=\"data_").append(kind).append(L"\">").append(kLineEnd); }
  void Add(std::wstring_view value) { row_.append(kCell).append(value).append(kCellEnd); }
  bool End() { return Line(row_.append(L"</tr>")); }

  bool Totals() {
    return (!request_.WithFolders() || Total(content_.folderCount, kFolders, L"td", kBlank)) &&
           (!request_.WithFiles() || Total(content_.fileCount, kFiles, L"td aling=\"left\"",
                                           request_.Has(ReportColumn::kSize) ? TotalSize() : std::wstring(kBlank))) &&
           Line(L"</table>");
  }
  bool Total(std::int64_t count, const wchar_t* what, const wchar_t* tag, const std::wstring& size) {
    return Lines(L"<tr>", L"<td align=\"left\">", DecimalText(count) + kBlank + what, L"</td>",
                 std::wstring(L"<") + tag + L" colspan=\"" + DecimalText(cells_ - 1) + L"\">" + size + L"</td>",
                 L"</tr>");
  }
  bool Bottom() {
    return Lines(std::wstring(L"<p><font class=\"footer\">") + kCreatedBy + L"<a href=\"" + kWebSite + L"\">" +
                     kProgram + L"</a>" + Closing() + L"</font></p>",
                 L"</center>", L"</body>", L"</html>");
  }

  std::wstring row_;
  std::int64_t rows_ = 0;
  std::int64_t cells_ = 0;  // of the rows of folders alone
};

}  // namespace

bool WriteReportText(const ReportRequest& request, const FolderContent& content, const SystemFacts& system,
                     ReportSink& sink) {
  return TextLayout(request, content, system, sink).Write();
}

bool WriteReportPage(const ReportRequest& request, const FolderContent& content, const SystemFacts& system,
                     ReportSink& sink) {
  return PageLayout(request, content, system, sink).Write();
}

std::wstring FormatSize(std::uint64_t bytes, bool showDecimals, const SystemFacts& system) {
  constexpr std::uint64_t kKilobyte = 1024;
  if (bytes < kKilobyte) return DecimalText(static_cast<std::int64_t>(bytes)) + L" bytes";
  const double kilobytes = static_cast<double>(bytes) / static_cast<double>(kKilobyte);
  return FormatNumber(kilobytes, showDecimals ? L"#,#.00" : L"#,#", system) + L" KB";
}

}  // namespace burrowmark
