// The system that keeps the contract of the seam: the local machine natively, the real one in a Windows build. Each
// test has a scratch place of its own on it.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <random>
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
  // Keeps the clipboard as another program does, until the object goes.
  virtual std::shared_ptr<void> HoldClipboard() = 0;
  // The same work, but it takes 300 milliseconds.
  virtual std::function<void()> Slowly(std::function<void()> work) = 0;
  // Lets time pass, and the messages that come in it run.
  virtual void LetPass(std::int32_t milliseconds) = 0;
  virtual ScreenUnderTest& screen() = 0;
  // Wine stands in for Windows and does some things otherwise.
  virtual bool IsWine() const { return false; }
  virtual bool HasPage1252() const { return true; }

 protected:
  static std::string UniqueName() {
    std::random_device random;
    return "burrowmark-contract-" + std::to_string(random()) + std::to_string(random());
  }
};

std::unique_ptr<SystemUnderTest> MakeSystem();

class ContractTest : public ::testing::Test {
 protected:
  std::wstring In(const std::wstring& name) const { return system_->Folder() + L'\\' + name; }
  // Writes a new file by the seam's own calls.
  bool Make(const std::wstring& path, std::string_view bytes = {}) {
    const std::unique_ptr<OutputFile> file = files_.CreateNewFile(path);
    return file && file->Write(bytes) && file->Close();
  }
  // What stands in a file, or a word that no test writes if it can't be read.
  std::string Content(const std::wstring& path) {
    std::string bytes;
    return files_.ReadWholeFile(path, bytes) ? bytes : "(unreadable)";
  }
  // A file that stands beside these tests, or where they were taken to.
  static std::string Fixture(const std::string& name) {
    const char* const elsewhere = std::getenv("BURROWMARK_FIXTURES");
    std::ifstream in((elsewhere == nullptr ? FIXTURES : elsewhere) + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  std::unique_ptr<SystemUnderTest> system_ = MakeSystem();
  Platform platform_ = system_->platform();
  FileSystem& files_ = platform_.files;
};

}  // namespace burrowmark
