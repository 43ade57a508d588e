#include "data/fluid_table.h"

#include <set>

#include "common/number.h"
#include "common/text.h"
#include "tests/data/shipped_data.h"

namespace data {
namespace {

using common::Val;

/// Whether a range of the shipped data is two numbers in order.
void ExpectRange(const FluidTable& table, int fluid, int lowField) {
  const std::string& low = table.Cell(fluid, lowField);
  const std::string& high = table.Cell(fluid, lowField + 1);
  EXPECT_FALSE(low.empty());
  EXPECT_LT(Val(low), Val(high));
}

TEST(FluidTable, ShippedFilesAreRewrittenToTheByte) {
  for (const char* name : {"Liqprop.dat", "Gasprop.dat"}) {
    SCOPED_TRACE(name);
    const FluidTable table = tests::ShippedFluids(name);
    EXPECT_EQ(WriteFluidTable(table), tests::ShippedFile(name));
    std::set<std::string> names;
    for (const std::string& fluid : table.Names()) {
      EXPECT_TRUE(fluid.empty() || names.insert(fluid).second) << fluid;
    }
    for (const auto& fluid : table.fluids) {
      for (const std::string& cell : fluid) EXPECT_FALSE(common::FirstOutsideCp932(cell)) << cell;
    }
  }
}

TEST(FluidTable, ShippedLiquidsAreComplete) {
  const FluidTable table = tests::ShippedFluids("Liqprop.dat");
  const std::set<std::string> densityCodes = {"1", "2", "3", "NH3", "H2O"};
  int liquids = 0;
  for (int i = 0; i < 50; ++i) {
    SCOPED_TRACE(table.Cell(i, kLiquidName));
    if (table.Cell(i, kLiquidName).empty()) {
      EXPECT_EQ(table.Cell(i, kLiquidDensityCode), "     ");
      continue;
    }
    ++liquids;
    EXPECT_EQ(densityCodes.count(table.Cell(i, kLiquidDensityCode)), 1U);
    for (const int field : {kLiquidDensityLow, kLiquidViscosityLow, kLiquidVapourLow}) {
      ExpectRange(table, i, field);
    }
    // Poles of the density and the vapour pressure equation lie outside their ranges.
    if (table.Cell(i, kLiquidDensityCode) == "3") {
      EXPECT_GT(Val(table.Cell(i, kLiquidDensityA + 3)), Val(table.Cell(i, kLiquidDensityHigh)));
    }
    if (table.Cell(i, kLiquidVapourCode) == "1") {
      EXPECT_LT(-Val(table.Cell(i, kLiquidVapourA + 2)), Val(table.Cell(i, kLiquidVapourLow)));
    }
    // Cubic viscosities take their first coefficient at 0 degC, which must then be in their range.
    if (table.Cell(i, kLiquidViscosityCode) == "1") {
      EXPECT_LE(Val(table.Cell(i, kLiquidViscosityLow)), 0);
      EXPECT_GE(Val(table.Cell(i, kLiquidViscosityHigh)), 0);
    }
  }
  EXPECT_EQ(liquids, 48);
}

// The molar volume of the ideal gas at 0 degC and 1 atm is 22.414 m3/kmol (CODATA).
TEST(FluidTable, ShippedGasesAreComplete) {
  const FluidTable table = tests::ShippedFluids("Gasprop.dat");
  int gases = 0;
  for (int i = 0; i < 50; ++i) {
    SCOPED_TRACE(table.Cell(i, kGasName));
    if (table.Cell(i, kGasName).empty()) continue;
    ++gases;
    const double molecularWeight = Val(table.Cell(i, kGasMolecularWeight));
    const double density = Val(table.Cell(i, kGasNormalDensity));
    const double compressibility = Val(table.Cell(i, kGasNormalCompressibility));
    EXPECT_GT(compressibility, 0.95);
    EXPECT_LT(compressibility, 1.001);
    if (density != 0) {
      EXPECT_NEAR(density, molecularWeight / 22.414 / compressibility, 1e-3 * density);
    }
    EXPECT_GT(Val(table.Cell(i, kGasCriticalPressure)), 0.2);
    EXPECT_GT(Val(table.Cell(i, kGasCriticalTemperature)), 5);
    EXPECT_NE(Val(table.Cell(i, kGasViscosityCode)), 4);
    ExpectRange(table, i, kGasViscosityLow);
    ExpectRange(table, i, kGasHeatLow);
  }
  EXPECT_EQ(gases, 42);
}

TEST(FluidTable, KeepsBlanksAndCommasAndRefusesOtherCounts) {
  const FluidTable liquids = tests::ShippedFluids("Liqprop.dat");
  EXPECT_EQ(liquids.Cell(49, kLiquidDensityCode), "     ");
  tests::IndexOf(liquids.Names(), "1,3-ブタジエン");
  EXPECT_THROW(liquids.Cell(50, 0), common::RuntimeFault);
  EXPECT_THROW(liquids.Cell(-1, 0), common::RuntimeFault);
  EXPECT_THROW(liquids.Cell(0, 24), common::RuntimeFault);
  const std::string good = tests::ShippedFile("Liqprop.dat");
  std::vector<std::string> files = tests::DamagedFiles(good);
  files.push_back(good + "\"\"");
  files.push_back(good.substr(0, good.rfind(',')));
  for (const std::string& bytes : files) {
    SCOPED_TRACE(bytes.substr(0, 20));
    FluidTable table = liquids;
    EXPECT_FALSE(ReadFluidTable(bytes, table));
    EXPECT_TRUE(table.Empty());
  }
}

}  // namespace
}  // namespace data
