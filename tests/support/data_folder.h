#pragma once

#include <filesystem>
#include <string>

#include "tests/support/temporary_folder.h"

namespace tests {

/// A copy of the shipped data files that a test may damage or write.
class DataFolder {
 public:
  DataFolder() : path_(folder_ / "データ フォルダ") {
    std::filesystem::create_directory(path_);
    for (const auto& entry : std::filesystem::directory_iterator(ZEPHA_BUILD_DIR)) {
      if (entry.path().extension() == ".dat") std::filesystem::copy(entry.path(), path_);
    }
  }
  const std::string& Path() const { return path_; }
  std::string File(const std::string& name) const { return path_ + "/" + name; }

 private:
  TemporaryFolder folder_;
  std::string path_;
};

}  // namespace tests
