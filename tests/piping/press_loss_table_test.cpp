#include "piping/press_loss_table.h"

#include "tests/data/shipped_data.h"

namespace piping {
namespace {

// Roughness: Moody, Trans. ASME 66 (1944); fittings: Perry, table of additional friction losses for
// turbulent flow through fittings and valves.
TEST(PressLossTable, HasTheHandbookFigures) {
  const PressLossTable table = tests::Shipped(ReadPressLossTable, "PressLoss.dat");
  const char* roughness[] = {"0.0015", "0.05", "0.15", "0.26"};
  const float zeta[] = {0.35f, 0.75f, 1.5f, 1.0f, 6.0f, 2.0f, 0.17f, 2.3f, 0.24f, 2.0f};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(table.pipeRoughnessTable[i].value, roughness[i]);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(table.fittingTable[i].zeta, zeta[i]);
    EXPECT_FALSE(table.fittingTable[i].name.empty());
  }
  EXPECT_EQ(table.pipeRoughnessTable[1].name, "市販鋼管");
}

TEST(PressLossTable, RefusesDamagedFiles) {
  const std::string good = tests::ShippedFile("PressLoss.dat");
  tests::ExpectRefusals(ReadPressLossTable, good, {"\"x\"," + good});
  // The roughness may be words; a loss coefficient may not, nor one beyond single precision.
  std::string words = good;
  words.replace(words.find("0.0015"), 6, "smooth");
  PressLossTable table;
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
