#include <cmath>
#include <string>

#include "flow/integral_table.h"
#include "flow/vortex_table.h"
#include "tests/data/shipped_data.h"

namespace flow {
namespace {

TEST(IntegralTable, HasTheUsualBores) {
  const IntegralTable table = tests::Shipped(ReadIntegralTable, "Integral.dat");
  const double kAlpha[] = {0.8887445, 0.8022436, 0.8107588, 0.8201471, 0.8157833, 0.8544329};
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
    EXPECT_NEAR(table.integralK[i], kAlpha[i] * std::pow(table.integralDia[1][i] / 14, 2),
                2e-6 * table.integralK[i] + 1e-9);
  }
  EXPECT_EQ(table.integralDiaText[0][5], "6.350");
  EXPECT_EQ(table.integralName[1], "インテグラルオリフィス（スチーム可）");
}

TEST(IntegralTable, CoefficientRatiosEndAtOneWithoutASlope) {
  const IntegralTable table = tests::Shipped(ReadIntegralTable, "Integral.dat");
  for (std::size_t i = 0; i < 6; ++i) {
    for (std::size_t p = 0; p < 2; ++p) {
      SCOPED_TRACE(testing::Message() << i << " " << p);
      const double x = std::log(static_cast<double>(table.kafReHigh[p][i]));
      EXPECT_LT(table.kafReLow[p][i], table.kafReHigh[p][i]);
      EXPECT_NEAR(table.kafC2[p][i] * x * x + table.kafC1[p][i] * x + table.kafC0[p][i], 1, 1e-7);
      EXPECT_NEAR(2 * table.kafC2[p][i] * x + table.kafC1[p][i], 0, 1e-7);
    }
  }
}

TEST(MeterTables, RefuseDamagedFilesAndAreLeftEmpty) {
  const std::string integral = tests::ShippedFile("Integral.dat");
  const std::string vortex = tests::ShippedFile("Vortex.dat");
  tests::ExpectRefusals(ReadIntegralTable, integral, {vortex + vortex + vortex});
  tests::ExpectRefusals(ReadVortexTable, vortex, {integral, "\"x\"," + vortex});
}

}  // namespace
}  // namespace flow
