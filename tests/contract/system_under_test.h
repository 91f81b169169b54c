// The systems that keep the contract of the seam, each with a scratch place of its own for one test.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "tests/contract/screen_under_test.h"

namespace burrowmark {

class SystemUnderTest {
 public:
  virtual ~SystemUnderTest() = default;
  virtual Platform platform() = 0;
  // An empty folder, without a closing backslash.
  virtual std::wstring Folder() const = 0;
  // A key below HKEY_CURRENT_USER that doesn't exist yet.
  virtual std::wstring Key() const = 0;
  // Holds a file open as another program does that shares it with nobody, until the object goes.
  virtual std::shared_ptr<void> HoldOpen(const std::wstring& path) = 0;
  // Makes a folder that is a link to another one. False where that can't be done.
  virtual bool LinkFolder(const std::wstring& path, const std::wstring& target) = 0;
  // Presses keys one after the other, and lets go of them in reverse.
  virtual void PressKeys(const std::vector<std::int32_t>& keys) = 0;
  // False where there is no desktop that keys could be pressed on.
  virtual bool TakesKeys() { return true; }
  virtual ScreenUnderTest& screen() = 0;
  // Wine stands in for Windows and does some things otherwise.
  virtual bool IsWine() const { return false; }
  virtual bool HasPage1252() const { return true; }
};

struct SystemKind {
  std::string name;
  std::function<std::unique_ptr<SystemUnderTest>()> make;
};

// The local machine everywhere, and in a Windows build the real system too.
std::vector<SystemKind> Systems();
void PrintTo(const SystemKind& kind, std::ostream* out);
std::string KindName(const ::testing::TestParamInfo<SystemKind>& info);

class ContractTest : public ::testing::TestWithParam<SystemKind> {
 protected:
  std::wstring In(const std::wstring& name) const { return system_->Folder() + L'\\' + name; }
  // Writes a new file by the seam's own calls.
  bool Make(const std::wstring& path, std::string_view bytes = {});
  // What stands in a file, or a word that no test writes if it can't be read.
  std::string Content(const std::wstring& path);

  std::unique_ptr<SystemUnderTest> system_ = GetParam().make();
  Platform platform_ = system_->platform();
  FileSystem& files_ = platform_.files;
};

}  // namespace burrowmark
