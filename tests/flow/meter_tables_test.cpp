#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "common/file.h"
#include "flow/integral_table.h"
#include "flow/vortex_table.h"

namespace flow {
namespace {

std::string Shipped(const char* name) {
  return common::ReadFile(common::JoinPath(ZEPHA_BUILD_DIR, name));
}

constexpr double kIntegralAlpha[] = {0.8887445, 0.8022436, 0.8107588,
                                     0.8201471, 0.8157833, 0.8544329};

TEST(IntegralTable, HasTheUsualBores) {
  IntegralTable table;
  ASSERT_TRUE(ReadIntegralTable(Shipped("Integral.dat"), table));
  EXPECT_FALSE(table.Empty());
  const double inches[] = {0.020, 0.034, 0.0595, 0.0995, 0.159, 0.250, 0.340};
  for (std::size_t i = 0; i < 7; ++i) {
    SCOPED_TRACE(i);
    EXPECT_NEAR(table.integralDia[2][i], inches[i] * 25.4, 6e-4);
    EXPECT_NEAR(table.integralBeta[2][i] * 13, table.integralDia[2][i], 1e-12);
    EXPECT_EQ(table.integralNo[2][i], std::to_string(i + 1));
    if (i == 6) continue;
    EXPECT_EQ(table.integralDia[0][i], table.integralDia[2][i]);
    EXPECT_NEAR(table.integralBeta[0][i] * 14, table.integralDia[0][i], 1e-12);
    EXPECT_NEAR(table.integralBeta[1][i] * 14, table.integralDia[1][i], 1e-5);
    EXPECT_NEAR(table.integralK[i], kIntegralAlpha[i] * std::pow(table.integralDia[1][i] / 14, 2),
                2e-6 * table.integralK[i] + 1e-9);
  }
  EXPECT_EQ(table.integralDiaText[0][5], "6.350");
  EXPECT_EQ(table.integralName[1], "インテグラルオリフィス（スチーム可）");
}

// The orifice equation in SI: dP in mmH2O of an equivalent flow of water (1000 kg/m3) in l/min.
TEST(IntegralTable, LawsFollowTheOrificeEquation) {
  IntegralTable table;
  ASSERT_TRUE(ReadIntegralTable(Shipped("Integral.dat"), table));
  for (std::size_t i = 0; i < 6; ++i) {
    SCOPED_TRACE(i);
    const double area = M_PI / 4 * std::pow(table.integralDia[0][i] / 1000, 2);
    const double velocity = 1.0 / 60000 / area / kIntegralAlpha[i];
    const double millimetres = 1000 * velocity * velocity / 2 / 9.80665;
    for (std::size_t model = 0; model < 3; ++model) {
      EXPECT_NEAR(table.integralA[model][0][i], millimetres, 1e-3 * millimetres);
      EXPECT_EQ(table.integralB[model][0][i], 2);
    }
    // The coefficient ratio meets 1 at the upper end of its range with no slope.
    for (std::size_t p = 0; p < 2; ++p) {
      const double x = std::log(static_cast<double>(table.kafReHigh[p][i]));
      EXPECT_LT(table.kafReLow[p][i], table.kafReHigh[p][i]);
      EXPECT_NEAR(table.kafC2[p][i] * x * x + table.kafC1[p][i] * x + table.kafC0[p][i], 1, 1e-7);
      EXPECT_NEAR(2 * table.kafC2[p][i] * x + table.kafC1[p][i], 0, 1e-7);
    }
  }
}

// K-factor of a vortex meter: K = St / (w * A) with a bluff body of 0.28 D; the Strouhal number of
// all published bluff bodies lies between 0.2 and 0.3.
TEST(VortexTable, KFactorsBelongToTheBores) {
  VortexTable table;
  ASSERT_TRUE(ReadVortexTable(Shipped("Vortex.dat"), table));
  const double sizes[] = {15, 25, 40, 50, 80, 100, 150, 200, 250, 300};
  const char* makers[] = {"OVAL フランジ型", "OVAL 溶接型", "横河 YEWFLO", "トキコ"};
  for (std::size_t maker = 0; maker < 4; ++maker) {
    EXPECT_EQ(table.makerName[maker], makers[maker]);
    for (std::size_t i = 0; i < 10; ++i) {
      SCOPED_TRACE(testing::Message() << maker << " " << i);
      EXPECT_EQ(table.meterSize[i], sizes[i]);
      const double bore = table.meterBore[maker][i] / 1000;
      if (bore == 0) {
        EXPECT_EQ(table.meterKFactor[maker][i], 0);
        continue;
      }
      EXPECT_NEAR(bore * 1000, sizes[i], 0.12 * sizes[i]);
      const double strouhal =
          table.meterKFactor[maker][i] * 1000 * 0.28 * bore * M_PI / 4 * bore * bore;
      EXPECT_GT(strouhal, 0.2);
      EXPECT_LT(strouhal, 0.3);
    }
  }
}

TEST(MeterTables, RefuseDamagedFilesAndAreLeftEmpty) {
  const std::string integral = Shipped("Integral.dat");
  const std::string vortex = Shipped("Vortex.dat");
  IntegralTable integralTable;
  VortexTable vortexTable;
  for (std::size_t cut = 0; cut < integral.size() - 4; cut += 97) {
    ReadIntegralTable(integral, integralTable);
    EXPECT_FALSE(ReadIntegralTable(integral.substr(0, cut), integralTable));
    EXPECT_TRUE(integralTable.Empty());
  }
  for (std::size_t cut = 0; cut < vortex.size() - 4; cut += 13) {
    ReadVortexTable(vortex, vortexTable);
    EXPECT_FALSE(ReadVortexTable(vortex.substr(0, cut), vortexTable));
    EXPECT_TRUE(vortexTable.Empty());
  }
  for (const std::string& bytes : {std::string(20000, 'x'), std::string(20000, ','),
                                   std::string(20000, '\xff'), "\"x\"," + vortex, integral}) {
    EXPECT_FALSE(ReadVortexTable(bytes, vortexTable));
  }
  EXPECT_FALSE(ReadIntegralTable(vortex + vortex + vortex, integralTable));
}

}  // namespace
}  // namespace flow
