// The local machine under test.
#include <filesystem>

#include "platform/local/folded.h"
#include "platform/local/machine.h"
#include "tests/contract/system_under_test.h"

namespace burrowmark {
namespace {

namespace fs = std::filesystem;

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
  std::shared_ptr<void> HoldClipboard() override {
    machine_.clipboard.IsHeld = true;
    return {nullptr, [this](void*) { machine_.clipboard.IsHeld = false; }};
  }
  std::function<void()> Slowly(std::function<void()> work) override {
    machine_.workers.Takes = kSlow;
    return work;
  }
  void LetPass(std::int32_t milliseconds) override { machine_.windows.Advance(milliseconds); }

 private:
  static constexpr std::int32_t kSlow = 300;

  fs::path folder_ = fs::temp_directory_path() / UniqueName();
  LocalMachine machine_{folder_};
  ScreenUnderTest screen_{machine_};
};

}  // namespace

std::unique_ptr<SystemUnderTest> MakeSystem() { return std::make_unique<LocalSystem>(); }

}  // namespace burrowmark
