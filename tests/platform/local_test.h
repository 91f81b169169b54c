// A local machine in a folder of its own that goes with the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "platform/local/machine.h"

namespace burrowmark {

class LocalTest : public ::testing::Test {
 protected:
  ~LocalTest() override {
    EXPECT_EQ(machine_.user.Complaints(), "");
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }

  static std::filesystem::path FreshFolder() {
    std::random_device random;
    return std::filesystem::temp_directory_path() / ("burrowmark-local-" + std::to_string(random()));
  }

  bool Make(const std::wstring& path, std::string_view bytes) {
    const std::unique_ptr<OutputFile> file = machine_.files.CreateNewFile(path);
    return file && file->Write(bytes) && file->Close();
  }

  std::filesystem::path folder_ = FreshFolder();
  LocalMachine machine_{folder_};
};

}  // namespace burrowmark
