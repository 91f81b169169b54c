// The real system under test.
#include <windows.h>

#include <filesystem>
#include <future>

#include "platform/characters.h"
#include "platform/win32/files/file_handle.h"
#include "platform/win32/start_thread.h"
#include "platform/win32/system_library.h"
#include "platform/win32/win32_platform.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

namespace fs = std::filesystem;

constexpr UINT kPage1252 = 1252;
constexpr DWORD kSlow = 300;

// The name of a file for the system below Wine; empty on Windows.
std::wstring NameBelow(const std::wstring& path) {
  const SystemLibrary kernel(L"kernel32.dll");
  const auto unixFileName = kernel.Find<char*(__cdecl*)(const wchar_t*)>("wine_get_unix_file_name");
  char* const below = unixFileName != nullptr ? unixFileName(path.c_str()) : nullptr;
  if (below == nullptr) return {};
  const std::wstring name = FromUtf8(below);
  ::HeapFree(::GetProcessHeap(), 0, below);
  return name;
}

bool Run(const wchar_t* program, std::wstring command) {
  STARTUPINFOW start = {};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process = {};
  if (!::CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process)) {
    return false;
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return true;
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

// A thread of its own holds the clipboard, as another program's would.
class HeldClipboard {
 public:
  HeldClipboard() {
    std::promise<void> opened;
    thread_ = StartThread([this, &opened] {
      ::OpenClipboard(nullptr);
      opened.set_value();
      end_.get_future().wait();
      ::CloseClipboard();
    });
    opened.get_future().wait();
  }
  ~HeldClipboard() {
    end_.set_value();
    ::WaitForSingleObject(thread_, INFINITE);
    ::CloseHandle(thread_);
  }
  HeldClipboard(const HeldClipboard&) = delete;
  HeldClipboard& operator=(const HeldClipboard&) = delete;

 private:
  std::promise<void> end_;
  HANDLE thread_ = nullptr;
};

class Win32System final : public SystemUnderTest {
 public:
  Win32System() {
    const std::string name = UniqueName();
    folder_ = (fs::temp_directory_path() / name).make_preferred().wstring();
    key_ = L"Software\\" + std::wstring(name.begin(), name.end());
    fs::create_directory(folder_);
  }
  ~Win32System() override {
    // Not by the call that is under test: one that goes wrong may go far.
    std::error_code error;
    fs::remove_all(folder_, error);
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
  // Wine makes no junctions, but a symbolic link of the system below shows as one.
  bool LinkFolder(const std::wstring& path, const std::wstring& target) override {
    const bool runs =
        IsWine() ? Run(L"\\\\?\\unix\\bin\\ln", L"ln -s \"" + NameBelow(target) + L"\" \"" + NameBelow(path) + L"\"")
                 : Run(nullptr, L"cmd /c mklink /J \"" + path + L"\" \"" + target + L"\"");
    // A program of the system below can't be waited for.
    constexpr int kPatience = 100;
    for (int i = 0; runs && i < kPatience; ++i) {
      if (::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) return true;
      ::Sleep(50);
    }
    return false;
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
  std::shared_ptr<void> HoldClipboard() override { return std::make_shared<HeldClipboard>(); }
  std::function<void()> Slowly(std::function<void()> work) override {
    return [work = std::move(work)] {
      ::Sleep(kSlow);
      work();
    };
  }
  void LetPass(std::int32_t milliseconds) override {
    for (const ULONGLONG end = ::GetTickCount64() + static_cast<ULONGLONG>(milliseconds); ::GetTickCount64() < end;) {
      platform_.platform().windows.DoEvents();
      ::Sleep(1);
    }
    platform_.platform().windows.DoEvents();
  }
  bool IsWine() const override {
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  }
  bool HasPage1252() const override { return ::GetACP() == kPage1252; }

 private:
  std::wstring folder_;
  std::wstring key_;
  Win32Platform platform_;
  ScreenUnderTest screen_{platform_.platform().windows};
};

}  // namespace

std::unique_ptr<SystemUnderTest> MakeSystem() { return std::make_unique<Win32System>(); }

}  // namespace burrowmark
