#include "platform/local/disk/disk.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fstream>
#include <iterator>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "platform/characters.h"
#include "platform/local/local_clock.h"

namespace burrowmark {
namespace {

// The C library offers the same four calls on both systems, under different names.
#ifdef _WIN32
int OpenNew(const std::filesystem::path& path) {
  return _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}
std::ptrdiff_t WriteSome(int descriptor, const char* bytes, std::size_t count) {
  return _write(descriptor, bytes, static_cast<unsigned>(count));
}
bool Sync(int descriptor) { return _commit(descriptor) == 0; }
bool CloseDescriptor(int descriptor) { return _close(descriptor) == 0; }

using DiskEntry = struct _stat64;
bool ReadEntry(const std::filesystem::path& path, DiskEntry& entry) { return _wstat64(path.c_str(), &entry) == 0; }
std::optional<std::time_t> Birth(const std::filesystem::path& /*path*/, const DiskEntry& entry) {
  return entry.st_ctime;
}
#else
constexpr mode_t kNewFileMode = 0666;
int OpenNew(const std::filesystem::path& path) {
  return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
}
std::ptrdiff_t WriteSome(int descriptor, const char* bytes, std::size_t count) {
  return write(descriptor, bytes, count);
}
bool Sync(int descriptor) { return fsync(descriptor) == 0; }
bool CloseDescriptor(int descriptor) { return close(descriptor) == 0; }

using DiskEntry = struct stat;
bool ReadEntry(const std::filesystem::path& path, DiskEntry& entry) { return stat(path.c_str(), &entry) == 0; }
// Only some systems tell when a file was made.
std::optional<std::time_t> Birth([[maybe_unused]] const std::filesystem::path& path, const DiskEntry& /*entry*/) {
#ifdef STATX_BTIME
  struct statx facts = {};
  if (statx(AT_FDCWD, path.c_str(), 0, STATX_BTIME, &facts) == 0 && (facts.stx_mask & STATX_BTIME) != 0) {
    return facts.stx_btime.tv_sec;
  }
#endif
  return std::nullopt;
}
#endif

constexpr std::size_t kLargestWrite = 1U << 20;

}  // namespace

std::filesystem::path DiskName(std::wstring_view name) {
  const std::string bytes = ToUtf8(name);
  return std::u8string(bytes.begin(), bytes.end());
}

std::wstring NameFromDisk(const std::filesystem::path& path) {
  const std::u8string bytes = path.u8string();
  return FromUtf8(std::string(bytes.begin(), bytes.end()));
}

bool ReadDiskFile(const std::filesystem::path& path, std::string& bytes) {
  bytes.clear();
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return false;
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  bytes.assign(std::istreambuf_iterator<char>(in), {});
  if (!in.bad()) return true;
  bytes.clear();
  return false;
}

FileFacts DiskFacts(const std::filesystem::path& path) {
  FileFacts facts;
  DiskEntry entry = {};
  if (!ReadEntry(path, entry)) return facts;
  facts.size = static_cast<std::uint64_t>(entry.st_size);
  if (const std::optional<std::time_t> born = Birth(path, entry)) facts.created = LocalClock::Split(*born);
  facts.modified = LocalClock::Split(entry.st_mtime);
  facts.accessed = LocalClock::Split(entry.st_atime);
  return facts;
}

DiskFile::DiskFile(const std::filesystem::path& path) : descriptor_(OpenNew(path)) {}

DiskFile::~DiskFile() { Close(); }

bool DiskFile::Write(std::string_view bytes) {
  while (IsOpen() && !bytes.empty()) {
    const std::ptrdiff_t written = WriteSome(descriptor_, bytes.data(), std::min(bytes.size(), kLargestWrite));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return IsOpen();
}

bool DiskFile::Flush() { return IsOpen() && Sync(descriptor_); }

bool DiskFile::Close() {
  if (!IsOpen()) return false;
  const bool closed = CloseDescriptor(descriptor_);
  descriptor_ = -1;
  return closed;
}

}  // namespace burrowmark
