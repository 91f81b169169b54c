#include "tools/folder_report.h"

#include <algorithm>
#include <optional>

#include "core/file_names.h"
#include "core/save_file.h"
#include "platform/characters.h"
#include "tools/report_layout.h"

namespace burrowmark {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::size_t kStep = 1U << 16;  // bytes for one write
constexpr char32_t kAsciiEnd = 128;

// False, and nothing is added, if one of the characters is beyond ASCII.
bool AppendAscii(std::string& bytes, std::wstring_view text) {
  const std::size_t before = bytes.size();
  char32_t all = 0;
  bytes.resize(before + text.size());
  std::transform(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(before), [&all](wchar_t c) {
    all |= static_cast<char32_t>(c);
    return static_cast<char>(c);
  });
  if (all < kAsciiEnd) return true;
  bytes.resize(before);
  return false;
}

// --- the bytes of a line; false for a character that these bytes can't stand for

bool AppendAnsi(const SystemFacts& system, std::wstring_view text, std::string& bytes) {
  std::string line;
  const bool fits = system.ToAnsi(text, line);
  bytes += line;
  return fits;
}

bool AppendUtf8(const SystemFacts& /*system*/, std::wstring_view text, std::string& bytes) {
  bytes += ToUtf8(text);
  return true;
}

// Characters beyond ASCII by their numbers, so that the page needs no character set.
bool AppendMarkup(const SystemFacts& /*system*/, std::wstring_view text, std::string& bytes) {
  const std::string utf8 = ToUtf8(text);
  for (std::size_t at = 0; at < utf8.size();) {
    const auto first = static_cast<unsigned char>(utf8[at]);
    const std::size_t length = first < 0x80U ? 1 : first < 0xE0U ? 2 : first < 0xF0U ? 3 : 4;
    if (length == 1) {
      bytes += utf8[at++];
      continue;
    }
    std::uint32_t code = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) code = (code << 6U) | (static_cast<unsigned char>(utf8[at + i]) & 0x3FU);
    bytes += "&#" + std::to_string(code) + ";";
    at += length;
  }
  return true;
}

using Append = bool (*)(const SystemFacts& system, std::wstring_view text, std::string& bytes);

// --- where lines go

class TextSink final : public ReportSink {
 public:
  TextSink(std::wstring& text, const ReportRun& run) : text_(text), run_(run) {}
  bool Line(std::wstring_view text) override {
    text_.append(text).append(L"\r\n");
    return !run_.IsCancelled();
  }

 private:
  std::wstring& text_;
  const ReportRun& run_;
};

class FileSink final : public ReportSink {
 public:
  FileSink(FileBeside& file, Append append, const SystemFacts& system, const ReportRun& run)
      : file_(file), append_(append), system_(system), run_(run) {
    if (append == AppendUtf8) bytes_ = kUtf8Mark;
  }

  bool Line(std::wstring_view text) override {
    if (!AppendAscii(bytes_, text) && !append_(system_, text, bytes_)) {
      misfit_ = true;
      return false;
    }
    bytes_ += "\r\n";
    return !run_.IsCancelled() && (bytes_.size() < kStep || Flush());
  }
  bool Flush() {
    const bool written = file_.Write(bytes_);
    bytes_.clear();
    return written;
  }
  bool HasMisfit() const { return misfit_; }

 private:
  FileBeside& file_;
  Append append_;
  const SystemFacts& system_;
  const ReportRun& run_;
  std::string bytes_;
  bool misfit_ = false;
};

// --- the file

// Keeps a file from being read-only until it goes; the old attributes come back if it is still there then.
class WritableTarget {
 public:
  WritableTarget(FileSystem& files, const std::wstring& path)
      : files_(files), path_(path), attributes_(files.GetFileAttributesA(path)) {
    if (IsReadOnly()) files_.SetFileAttributesA(path_, *attributes_ & ~kFileReadOnly);
  }
  ~WritableTarget() {
    if (IsReadOnly() && !Replaced) files_.SetFileAttributesA(path_, *attributes_);
  }
  WritableTarget(const WritableTarget&) = delete;
  WritableTarget& operator=(const WritableTarget&) = delete;

  bool Replaced = false;

 private:
  bool IsReadOnly() const { return attributes_ && (*attributes_ & kFileReadOnly) != 0; }

  FileSystem& files_;
  const std::wstring& path_;
  std::optional<std::uint32_t> attributes_;
};

class ReportFile {
 public:
  ReportFile(const ReportRequest& request, const FolderContent& content, FileSystem& files, const SystemFacts& system,
             ReportRun& run)
      : request_(request), content_(content), files_(files), system_(system), run_(run) {}

  bool Write() {
    if (IsReportPage(request_.Target)) {
      if (!WriteAs(AppendMarkup, WriteReportPage)) return false;
      CopyStyleSheet();
      return true;
    }
    return WriteAs(AppendAnsi, WriteReportText) || (misfit_ && WriteAs(AppendUtf8, WriteReportText));
  }

 private:
  bool WriteAs(Append append, decltype(&WriteReportText) write) {
    FileBeside file(files_, request_.Target);
    if (!file.Made()) return false;
    FileSink sink(file, append, system_, run_);
    const bool written = write(request_, content_, system_, sink) && sink.Flush() && file.Finish();
    misfit_ = sink.HasMisfit();
    if (!written || !run_.TakesItsPlace()) return false;
    WritableTarget target(files_, request_.Target);
    target.Replaced = file.TakePlace();
    return target.Replaced;
  }

  // A page without one can be read as well.
  void CopyStyleSheet() {
    const std::wstring copy = GetFolderName(request_.Target) + L"\\" + kReportStyleSheet;
    if (files_.FileExists(request_.StyleSheet)) files_.CopyFileA(request_.StyleSheet, copy, true);
  }

  const ReportRequest& request_;
  const FolderContent& content_;
  FileSystem& files_;
  const SystemFacts& system_;
  ReportRun& run_;
  bool misfit_ = false;
};

}  // namespace

bool IsReportPage(const std::wstring& path) {
  const std::wstring extension = GetFileExtension(path);
  return extension == L"html" || extension == L"htm";
}

bool WriteReport(const ReportRequest& request, FileSystem& files, const SystemFacts& system, ReportRun& run) {
  FolderContent content;
  if (!ReadFolderContent(request, files, run, content)) return false;
  if (!request.Target.empty()) return ReportFile(request, content, files, system, run).Write();
  TextSink sink(run.Text, run);
  return WriteReportText(request, content, system, sink);
}

}  // namespace burrowmark
