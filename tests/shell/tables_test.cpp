#include "shell/tables.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/file.h"
#include "tests/support/data_folder.h"

namespace shell {
namespace {

namespace fs = std::filesystem;

TEST(LoadTables, NamesWhatItCannotReadAndGoesOn) {
  const tests::DataFolder folder;
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
