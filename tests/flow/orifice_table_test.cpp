#include "flow/orifice_table.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/flow/sizing_fixture.h"

namespace flow {
namespace {

// Limits of use of ISO 5167-2:2003 5.3.1, -3:2003 5.1.6.1, 5.2.6.1 and 5.3.4.1, -4:2003 5.5.2
// to 5.5.4.
TEST(OrificeTable, HasTheLimitsOfUseOfTheStandards) {
  const struct {
    std::size_t type;
    double betaMin, betaMax, pipeMin, pipeMax;
  } rows[] = {{0, 0.1, 0.75, 50, 1000}, {1, 0.1, 0.75, 50, 1000}, {2, 0.1, 0.75, 50, 1000},
              {5, 0.3, 0.8, 50, 500},   {6, 0.2, 0.8, 50, 630},   {7, 0.3, 0.75, 100, 800},
              {8, 0.4, 0.75, 50, 250},  {9, 0.4, 0.7, 200, 1200}, {10, 0.316, 0.775, 65, 500}};
  const OrificeTable& table = ShippedTable();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.type);
    EXPECT_EQ(table.betaMin[row.type], row.betaMin);
    EXPECT_EQ(table.betaMax[row.type], row.betaMax);
    EXPECT_EQ(table.pipeMin[row.type], row.pipeMin);
    EXPECT_EQ(table.pipeMax[row.type], row.pipeMax);
  }
}

TEST(OrificeTable, MeetsTheConditionsOfTheSearchThatReadsIt) {
  const OrificeTable& table = ShippedTable();
  EXPECT_LE(table.tableS[0], 0.0305);
  EXPECT_GE(table.tableS[100], 0.503);
  for (std::size_t i = 0; i < 101; ++i) {
    SCOPED_TRACE(i);
    EXPECT_NEAR(table.tableBeta[i], 0.2 + 0.005 * static_cast<double>(i), 1e-12);
    EXPECT_LE(table.tableRadius[i], (1 - table.tableBeta[i]) / 2 + 1e-9) << "higher than the dam";
    // The guessed row must never lie below the one that S belongs to.
    if (i > 0 && table.tableS[i] <= 0.503) {
      EXPECT_GE(std::floor(220 * std::pow(static_cast<double>(table.tableS[i]), 0.29) - 76),
                static_cast<double>(i));
    }
  }
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_LT(table.quarterCircleReMin[i], table.quarterCircleReMax[i]);
  }
  for (std::size_t i = 1; i < 15; ++i) {
    EXPECT_LT(table.downstreamTapFactor[i], table.downstreamTapFactor[i - 1]);
  }
}

TEST(OrificeTable, RefusesDamagedFilesAndIsLeftEmpty) {
  const std::string good = tests::ShippedFile("Orifice.dat");
  std::string swapped = good;
  swapped.replace(swapped.find("0.205,0.032120"), 14, "0.205,0.030120");
  std::string word = good;
  word.replace(word.find("0.75"), 4, "beta");
  tests::ExpectRefusals(ReadOrificeTable, good, {good.substr(5), word, swapped, "1e999," + good});
  OrificeTable table;
  EXPECT_TRUE(ReadOrificeTable(good.substr(0, good.size() - 2), table)) << "missing last line end";
  EXPECT_TRUE(ReadOrificeTable(good + "\x1a", table)) << "an end mark behind the last field";
}

}  // namespace
}  // namespace flow
