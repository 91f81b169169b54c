// A local machine for one benchmark, gone with everything on it at the end.
#pragma once

#include <filesystem>

#include "platform/local/machine.h"

namespace burrowmark {

class BenchMachine {
 private:
  struct Folder {
    Folder() { std::filesystem::remove_all(path); }
    ~Folder() { std::filesystem::remove_all(path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    std::filesystem::path path = std::filesystem::temp_directory_path() / "burrowmark-bench";
  };
  Folder folder_;

 public:
  Platform platform() { return machine.platform(); }

  LocalMachine machine{folder_.path};
};

}  // namespace burrowmark
