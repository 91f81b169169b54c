#include "tests/contract/system_under_test.h"

#include <filesystem>
#include <random>

#include "platform/characters.h"
#include "platform/local/folded.h"
#include "platform/local/machine.h"
#include "tests/contract/local_screen.h"

#ifdef _WIN32
#include <windows.h>
// It wants windows.h ahead of it.
#include <winioctl.h>

#include "platform/win32/file_handle.h"
#include "platform/win32/system_library.h"
#include "platform/win32/win32_platform.h"
#include "tests/contract/win32_screen.h"
#endif

namespace burrowmark {
namespace {

namespace fs = std::filesystem;

std::string UniqueName() {
  std::random_device random;
  return "burrowmark-contract-" + std::to_string(random()) + std::to_string(random());
}

class LocalSystem final : public SystemUnderTest {
 public:
  LocalSystem() { machine_.AddFolders(Folder()); }
  ~LocalSystem() override {
    std::error_code error;
    fs::remove_all(folder_, error);
  }
  LocalSystem(const LocalSystem&) = delete;
  LocalSystem& operator=(const LocalSystem&) = delete;

  Platform platform() override { return machine_.platform(); }
  std::wstring Folder() const override { return L"C:\\Scratch"; }
  std::wstring Key() const override { return L"Software\\Scratch"; }
  ScreenUnderTest& screen() override { return screen_; }
  std::shared_ptr<void> HoldOpen(const std::wstring& path) override {
    const std::wstring held = Folded(path);
    machine_.faults.HeldOpen.insert(held);
    return {nullptr, [this, held](void*) { machine_.faults.HeldOpen.erase(held); }};
  }
  bool LinkFolder(const std::wstring& path, const std::wstring& target) override {
    std::error_code error;
    fs::create_directory_symlink(machine_.RealPath(target), machine_.RealPath(path), error);
    return !error;
  }
  void PressKeys(const std::vector<std::int32_t>& keys) override {
    for (const std::int32_t key : keys) machine_.keyboard.Down(key);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) machine_.keyboard.Up(*key);
  }

 private:
  fs::path folder_ = fs::temp_directory_path() / UniqueName();
  LocalMachine machine_{folder_};
  LocalScreen screen_{machine_};
};

#ifdef _WIN32

constexpr wchar_t kLongPrefix[] = L"\\\\?\\";
constexpr UINT kPage1252 = 1252;

// Removes a folder with all that is in it, however deep and whatever its attributes.
void RemoveFolder(const std::wstring& folder) {
  WIN32_FIND_DATAW entry = {};
  const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &entry);
  for (bool more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileW(search, &entry) != 0) {
    const std::wstring name = entry.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = folder + L'\\' + name;
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      RemoveFolder(path);
    } else {
      ::DeleteFileW(path.c_str());
    }
  }
  if (search != INVALID_HANDLE_VALUE) ::FindClose(search);
  ::RemoveDirectoryW(folder.c_str());
}

// What makes an empty folder a junction: the documented head, and the target in the system's own form.
std::vector<WORD> JunctionData(const std::wstring& target) {
  const std::wstring name = L"\\??\\" + target;
  const auto bytes = static_cast<WORD>(name.size() * sizeof(wchar_t));
  const auto end = static_cast<WORD>(bytes + sizeof(wchar_t));
  std::vector<WORD> data = {LOWORD(IO_REPARSE_TAG_MOUNT_POINT),
                            HIWORD(IO_REPARSE_TAG_MOUNT_POINT),
                            static_cast<WORD>(4 * sizeof(WORD) + end + sizeof(wchar_t)),
                            0,
                            0,
                            bytes,
                            end,
                            0};
  data.insert(data.end(), name.begin(), name.end());
  data.insert(data.end(), 2, 0);
  return data;
}

bool MakeJunction(const std::wstring& path, const std::wstring& target) {
  const FileHandle folder(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  std::vector<WORD> data = JunctionData(target);
  DWORD returned = 0;
  return ::DeviceIoControl(folder.Get(), FSCTL_SET_REPARSE_POINT, data.data(),
                           static_cast<DWORD>(data.size() * sizeof(WORD)), nullptr, 0, &returned, nullptr) != FALSE;
}

// Wine makes no junctions, but a symbolic link of the system below shows as one.
bool LinkBelowWine(const std::wstring& path, const std::wstring& target) {
  const SystemLibrary kernel(L"kernel32.dll");
  const auto unixFileName = kernel.Find<char*(__cdecl*)(const wchar_t*)>("wine_get_unix_file_name");
  if (unixFileName == nullptr) return false;
  std::wstring command = L"ln -s";
  for (const std::wstring& name : {target, path}) {
    char* const below = unixFileName(name.c_str());
    if (below == nullptr) return false;
    command += L" \"" + FromUtf8(below) + L"\"";
    ::HeapFree(::GetProcessHeap(), 0, below);
  }
  STARTUPINFOW start = {};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process = {};
  constexpr wchar_t kProgram[] = L"\\\\?\\unix\\bin\\ln";
  if (!::CreateProcessW(kProgram, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process)) {
    return false;
  }
  // A program of the system below can't be waited for.
  constexpr int kPatience = 100;
  for (int i = 0; i < kPatience && ::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES; ++i) ::Sleep(50);
  return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Sends one event as the keyboard does, and takes what comes of it off this thread's queue.
void SendKey(std::int32_t key, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(key);
  input.ki.dwFlags = flags;
  ::SendInput(1, &input, sizeof(input));
  MSG message = {};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) ::DispatchMessageW(&message);
}

class Win32System final : public SystemUnderTest {
 public:
  Win32System() {
    const std::string name = UniqueName();
    folder_ = (fs::temp_directory_path() / name).make_preferred().wstring();
    key_ = L"Software\\" + std::wstring(name.begin(), name.end());
    fs::create_directory(folder_);
  }
  ~Win32System() override {
    RemoveFolder(kLongPrefix + folder_);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, key_.c_str());
  }
  Win32System(const Win32System&) = delete;
  Win32System& operator=(const Win32System&) = delete;

  Platform platform() override { return platform_.platform(); }
  std::wstring Folder() const override { return folder_; }
  std::wstring Key() const override { return key_; }
  ScreenUnderTest& screen() override { return screen_; }
  std::shared_ptr<void> HoldOpen(const std::wstring& path) override {
    return std::make_shared<FileHandle>(
        ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  }
  bool LinkFolder(const std::wstring& path, const std::wstring& target) override {
    if (::CreateDirectoryW(path.c_str(), nullptr) == FALSE) return false;
    return MakeJunction(path, target) || (::RemoveDirectoryW(path.c_str()) != FALSE && LinkBelowWine(path, target));
  }
  void PressKeys(const std::vector<std::int32_t>& keys) override {
    for (const std::int32_t key : keys) SendKey(key, 0);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) SendKey(*key, KEYEVENTF_KEYUP);
  }
  bool TakesKeys() override {
    SendKey(VK_F24, 0);
    const bool isDown = ::GetAsyncKeyState(VK_F24) < 0;
    SendKey(VK_F24, KEYEVENTF_KEYUP);
    return isDown;
  }
  bool IsWine() const override {
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  }
  bool HasPage1252() const override { return ::GetACP() == kPage1252; }

 private:
  std::wstring folder_;
  std::wstring key_;
  Win32Platform platform_;
  Win32Screen screen_{platform_.platform().windows};
};

#endif

}  // namespace

std::vector<SystemKind> Systems() {
  std::vector<SystemKind> kinds = {{"Local", [] { return std::make_unique<LocalSystem>(); }}};
#ifdef _WIN32
  kinds.push_back({"Win32", [] { return std::make_unique<Win32System>(); }});
#endif
  return kinds;
}

void PrintTo(const SystemKind& kind, std::ostream* out) { *out << kind.name; }

std::string KindName(const ::testing::TestParamInfo<SystemKind>& info) { return info.param.name; }

bool ContractTest::Make(const std::wstring& path, std::string_view bytes) {
  const std::unique_ptr<OutputFile> file = files_.CreateNewFile(path);
  return file && file->Write(bytes) && file->Close();
}

std::string ContractTest::Content(const std::wstring& path) {
  std::string bytes;
  return files_.ReadWholeFile(path, bytes) ? bytes : "(unreadable)";
}

}  // namespace burrowmark
