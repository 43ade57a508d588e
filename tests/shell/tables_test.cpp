#include "shell/tables.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/file.h"

namespace shell {
namespace {

namespace fs = std::filesystem;

/// A copy of the shipped data files that a test may damage.
class DataFolder {
 public:
  DataFolder() : path_(fs::path(testing::TempDir()) / "データ フォルダ") {
    fs::remove_all(path_);
    fs::create_directories(path_);
    for (const auto& entry : fs::directory_iterator(ZEPHA_BUILD_DIR)) {
      if (entry.path().extension() == ".dat") fs::copy(entry.path(), path_);
    }
  }
  ~DataFolder() { fs::remove_all(path_); }
  std::string Path() const { return path_.string(); }
  std::string File(const char* name) const { return (path_ / name).string(); }

 private:
  fs::path path_;
};

TEST(LoadTables, ReadsAllShippedFiles) {
  const DataFolder folder;
  const Tables tables = LoadTables(folder.Path());
  EXPECT_EQ(tables.unread, std::vector<std::string>());
  EXPECT_EQ(tables.lists.elementKinds.size(), 11U);
  EXPECT_FALSE(tables.valves.Empty());
  EXPECT_FALSE(tables.ducts.Empty());
}

TEST(LoadTables, NamesWhatItCannotReadAndGoesOn) {
  const DataFolder folder;
  fs::remove(folder.File("Vortex.dat"));
  common::WriteFile(folder.File("Orifice.dat"), "0.1,0.75\r\n");
  common::WriteFile(folder.File("単位変換.dat"), std::string("\0\0\0", 3));
  common::WriteFile(folder.File("CableDuct.dat"), "");
  const Tables tables = LoadTables(folder.Path());
  EXPECT_EQ(tables.unread, std::vector<std::string>(
                               {"Orifice.dat", "Vortex.dat", "単位変換.dat", "CableDuct.dat"}));
  EXPECT_TRUE(tables.orifice.Empty());
  EXPECT_FALSE(tables.IsRead("Orifice.dat"));
  EXPECT_FALSE(tables.lists.Empty());
}

TEST(LoadTables, BearsAMissingFolder) {
  EXPECT_EQ(LoadTables("/nonexistent/folder").unread.size(), 16U);
}

}  // namespace
}  // namespace shell
