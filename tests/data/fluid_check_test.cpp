#include "data/fluid_check.h"

#include "data/property_curve.h"
#include "tests/data/shipped_data.h"

namespace data {
namespace {

FluidTable Shipped(FluidPhase phase) {
  return tests::ShippedFluids(phase == kLiquid ? "Liqprop.dat" : "Gasprop.dat");
}

TEST(FluidCellRemark, FindsNothingInTheShippedData) {
  for (const FluidPhase phase : {kLiquid, kGas}) {
    for (const FluidTable::Record& record : Shipped(phase).fluids) {
      for (int field = 0; field < 24; ++field) {
        EXPECT_EQ(FluidCellRemark(phase, record, field), "") << record[0] << ' ' << field;
      }
    }
  }
}

TEST(FluidCellRemark, JudgesTextsAsTheEstimatorsReadThem) {
  const struct {
    FluidPhase phase;
    int field;
    const char* text;
    const char* words;  // that the remark holds; "" for no remark
  } rows[] = {{kLiquid, kLiquidDensityCode, "NH3", ""},
              {kLiquid, kLiquidDensityCode, "nh3", "不明"},
              {kLiquid, kLiquidDensityCode, "1 ", "不明"},  // compared by text
              {kLiquid, kLiquidDensityCode, "     ", ""},
              {kLiquid, kLiquidDensityCode, "", "不明"},  // silently 0
              {kLiquid, kLiquidViscosityCode, "2 ", ""},  // compared by number
              {kLiquid, kLiquidViscosityCode, "4", "不明"},
              {kGas, kGasViscosityCode, "4", ""},
              {kLiquid, kLiquidVapourCode, "3", "不明"},
              {kLiquid, kLiquidDensityA, " -1.2E-5 ", ""},
              {kLiquid, kLiquidDensityA, "1,234", "1として"},
              {kLiquid, kLiquidDensityA, "1 2", "12として"},
              {kLiquid, kLiquidDensityA, "abc", "0として"},
              {kLiquid, kLiquidDensityA, "1e999", "大きすぎ"},
              {kLiquid, kLiquidDensityLow, "", ""},  // no limit
              {kLiquid, kLiquidDensityLow, "     ", "0℃"},
              {kGas, kGasHeatLow, "     ", ""},  // no limit
              {kGas, kGasHeatLow, "", "0℃"},
              {kLiquid, 23, "備考 abc", ""},
              {kLiquid, 0, "水😀", "😀"},
              {kGas, 22, "m³", "³"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    FluidTable::Record record = Shipped(row.phase).fluids[1];
    record[static_cast<std::size_t>(row.field)] = std::string(row.text);
    const std::string remark = FluidCellRemark(row.phase, record, row.field);
    EXPECT_EQ(remark.empty(), *row.words == '\0') << remark;
    EXPECT_NE(remark.find(row.words), std::string::npos) << remark;
  }
  FluidTable::Record unused;
  unused[kLiquidDensityA] = std::string("abc");
  EXPECT_EQ(FluidCellRemark(kLiquid, unused, kLiquidDensityA), "");
}

// A curve ends at the ends of the range, whichever comes first, and has no point without a value.
TEST(PropertyOverRange, FollowsTheRangeOfTheEquation) {
  FluidTable liquids = Shipped(kLiquid);
  const FluidTable gases = Shipped(kGas);
  const auto curve = [&](FluidProperty property) {
    return PropertyOverRange(liquids, gases, 0, property);
  };
  auto points = curve(FluidProperty::kVapourPressure);
  EXPECT_EQ(points.front().first, 0);
  EXPECT_EQ(points.back().first, 374);
  EXPECT_NEAR(points.back().second, 22064, 50);  // the critical pressure, IAPWS
  FluidTable::Record& water = liquids.fluids[0];
  std::swap(water[kLiquidDensityLow], water[kLiquidDensityHigh]);
  points = curve(FluidProperty::kLiquidDensity);
  EXPECT_EQ(points.front().first, 0);
  EXPECT_EQ(points.back().first, 360);
  water[kLiquidDensityCode] = std::string("?");
  EXPECT_TRUE(curve(FluidProperty::kLiquidDensity).empty());
  water[kLiquidViscosityA + 2] = std::string("-150");  // its pole lies inside the range
  EXPECT_FALSE(curve(FluidProperty::kLiquidViscosity).empty());
  water[kLiquidVapourLow].clear();
  EXPECT_TRUE(curve(FluidProperty::kVapourPressure).empty());
  EXPECT_NEAR(curve(FluidProperty::kGasDensity).front().second, 2.04, 0.02);  // air at -100 degC
}

}  // namespace
}  // namespace data
