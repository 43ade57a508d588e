#include "data/fluid_table.h"

#include <set>

#include "common/text.h"
#include "tests/data/shipped_data.h"

namespace data {
namespace {

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

TEST(FluidTable, KeepsBlanksAndCommasAndRefusesOtherCounts) {
  const FluidTable liquids = tests::ShippedFluids("Liqprop.dat");
  EXPECT_EQ(liquids.Cell(49, kLiquidDensityCode), "     ");
  tests::IndexOf(liquids.Names(), "1,3-ブタジエン");
  EXPECT_THROW(liquids.Cell(50, 0), common::RuntimeFault);
  EXPECT_THROW(liquids.Cell(-1, 0), common::RuntimeFault);
  EXPECT_THROW(liquids.Cell(0, 24), common::RuntimeFault);
  tests::ExpectStrictRefusals(ReadFluidTable, tests::ShippedFile("Liqprop.dat"));
}

}  // namespace
}  // namespace data
