#include "piping/press_loss_table.h"

#include <gtest/gtest.h>

#include "common/file.h"
#include "common/number.h"

namespace piping {
namespace {

std::string Shipped() {
  return common::ReadFile(common::JoinPath(ZEPHA_BUILD_DIR, "PressLoss.dat"));
}

// Roughness: Moody, Trans. ASME 66 (1944); fittings: Perry, table of additional friction losses for
// turbulent flow through fittings and valves.
TEST(PressLossTable, HasTheHandbookFigures) {
  PressLossTable table;
  ASSERT_TRUE(ReadPressLossTable(Shipped(), table));
  EXPECT_FALSE(table.Empty());
  const char* roughness[] = {"0.0015", "0.05", "0.15", "0.26"};
  const float zeta[] = {0.35f, 0.75f, 1.5f, 1.0f, 6.0f, 2.0f, 0.17f, 2.3f, 0.24f, 2.0f};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(table.pipeRoughnessTable[i].value, roughness[i]);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(table.fittingTable[i].zeta, zeta[i]);
    EXPECT_FALSE(table.fittingTable[i].name.empty());
  }
  EXPECT_EQ(common::SingleText(table.fittingTable[0].zeta), "0.35");
  EXPECT_EQ(table.pipeRoughnessTable[1].name, "市販鋼管");
}

TEST(PressLossTable, RefusesDamagedFilesAndIsLeftEmpty) {
  const std::string good = Shipped();
  PressLossTable table;
  for (const std::string& bytes : {std::string(), good.substr(0, good.size() - 7), "\"x\"," + good,
                                   std::string(4000, 'z'), good.substr(0, 90)}) {
    ReadPressLossTable(good, table);
    EXPECT_FALSE(ReadPressLossTable(bytes, table));
    EXPECT_TRUE(table.Empty());
  }
  // The roughness may be words; a loss coefficient may not, nor one beyond single precision.
  std::string words = good;
  words.replace(words.find("0.0015"), 6, "smooth");
  EXPECT_TRUE(ReadPressLossTable(words, table));
  EXPECT_EQ(table.pipeRoughnessTable[0].value, "smooth");
  for (const char* bad : {"abcd", "1e39", "", "0.3x", "e", "--1"}) {
    std::string file = good;
    file.replace(file.find("0.35"), 4, bad);
    EXPECT_FALSE(ReadPressLossTable(file, table)) << bad;
  }
}

}  // namespace
}  // namespace piping
