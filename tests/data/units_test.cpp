#include "data/units.h"

#include <gtest/gtest.h>

namespace data {
namespace {

// The decimals fall by one at e^(2.3 k) = 9.97418, 99.4843, 992.275, 9897.13, 98715.8, not at the
// powers of ten.
TEST(PressureForDisplay, CountsDecimalsByTheRoughLogarithm) {
  const struct {
    double value, shown;
  } rows[] = {{9.97412, 9.9741},     {9.97424, 9.974},     {9.9996, 10.000},
              {99.4837, 99.484},     {99.4856, 99.49},     {99.6, 99.6},
              {992.266, 992.27},     {992.34, 992.3},      {9897.04, 9897.0},
              {9897.6, 9898},        {98715.6, 98716},     {98716.4, 98720},
              {0.0223456, 0.022346}, {0.1234567, 0.12346}, {1, 1}};
  ProcessState state;
  state.saturationPressureUnit = 2;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    EXPECT_NEAR(PressureForDisplay(state, row.value), row.shown, 1e-9);
  }
  EXPECT_EQ(PressureForDisplay(state, 0), 0);
  EXPECT_THROW(PressureForDisplay(state, -0.1), common::RuntimeFault);
}

TEST(DifferentialFromMmH2O, RoundsToFourRoughDigitsAlsoInItsOwnUnit) {
  const struct {
    int unit;
    double mmH2O, shown;
  } rows[] = {{1, 9.97412, 9.974}, {1, 9.976, 9.98},  {1, 99.4837, 99.48},    {1, 99.53, 99.5},
              {1, 1234.5, 1235},   {1, 12345, 12350}, {0, 2500, 24.52},       {5, 2500, 245.2},
              {3, 2500, 183.9},    {2, 2500, 0.25},   {2, 5.55555, 0.0005556}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.mmH2O);
    EXPECT_NEAR(DifferentialFromMmH2O(row.unit, row.mmH2O), row.shown, 1e-9);
  }
  EXPECT_EQ(DifferentialFromMmH2O(0, 0), 0);
  EXPECT_THROW(DifferentialFromMmH2O(1, -1), common::RuntimeFault);
}

// 0.1 % in single precision is 0.100000001490116 %.
TEST(Density, TakesHumidityInSinglePrecision) {
  ProcessState state;
  state.fluidPhase = kGas;
  state.pressureAbs = 1;
  state.temperatureK = 300;
  state.compressibilityZ = 1;
  state.relativeHumidity = 0.1;
  state.waterVapourDensity = 1e9;
  EXPECT_NEAR(NormalDensityAtFlowState(state), 1000000.0149, 1e-4);
}

// mmH2O, and the list of the vapour pressure, which the differences of pressure share.
TEST(Differences, HaveNoAtmosphere) {
  const double expected[] = {147.09975, 0.14709975, 1.5, 15000, 1103.58, 1.4709975, 21.33};
  ProcessState state;
  for (state.pressureUnit = 0; state.pressureUnit < 7; ++state.pressureUnit) {
    SCOPED_TRACE(state.pressureUnit);
    EXPECT_NEAR(PressureDifferenceInUnit(state, 1.5), expected[state.pressureUnit], 1e-9);
  }
  EXPECT_NEAR(DifferentialToMmH2O(5, 245.175), 2500, 1e-3);  // 98.07 mbar are 1000 mmH2O here
}

TEST(TemperatureFromCelsius, RoundsToTwoDecimals) {
  EXPECT_NEAR(TemperatureFromCelsius(2, 179.88), 355.78, 1e-9);  // 355.784
}

}  // namespace
}  // namespace data
