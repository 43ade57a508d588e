#include "data/units.h"

#include <gtest/gtest.h>

namespace data {
namespace {

// Each row is one kgf/cm2 of gauge pressure in its unit, so that the results follow from the
// definitions: 98.0665 kPa, 10000 mmH2O, 735.72 mmHg, 0.980665 bar, 14.22 psi.
TEST(PressureToAbsolute, AddsTheAtmosphereExceptToMmHg) {
  const struct {
    int unit;
    double value, absolute;
  } rows[] = {{0, 98.0665, 2.03323},
              {1, 0.0980665, 2.03323},
              {2, 1, 2.03323},
              {3, 10000, 2.03323},
              {4, 735.72, 1},
              {5, 0.980665, 2.03323},
              {6, 14.22, 2.03323},
              {0, 0, 1.03323},
              {4, 0, 0},
              {-1, 5, 0},
              {7, 5, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.unit);
    EXPECT_NEAR(PressureToAbsolute(row.value, row.unit), row.absolute, 1e-12);
  }
}

TEST(VapourPressure, ConvertsBothWays) {
  const struct {
    int unit;
    double value, absolute;
  } rows[] = {{0, 196.133, 2}, {1, 0.196133, 2}, {2, 2, 2}, {3, 2, 2.06646}, {4, 1471.44, 2},
              {5, 1.96133, 2}, {6, 28.44, 2},    {0, 0, 0}, {7, 2, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.unit);
    ProcessState state;
    state.saturationPressureUnit = row.unit;
    EXPECT_NEAR(VapourPressureToAbsolute(row.value, row.unit), row.absolute, 1e-12);
    if (row.unit > 6) continue;
    // Back for display to five significant digits or one more.
    EXPECT_NEAR(PressureForDisplay(state, row.absolute), row.value, 5e-5 * row.value);
  }
}

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
  state.saturationPressureUnit = 9;
  EXPECT_EQ(PressureForDisplay(state, 1), 0);
}

TEST(PressureDifferenceInUnit, HasNoAtmosphereAndNoRounding) {
  const double expected[] = {147.09975, 0.14709975, 1.5, 15000, 1103.58, 1.4709975, 21.33};
  ProcessState state;
  for (int unit = 0; unit < 7; ++unit) {
    SCOPED_TRACE(unit);
    state.pressureUnit = unit;
    EXPECT_NEAR(PressureDifferenceInUnit(state, 1.5), expected[unit], 1e-9);
    EXPECT_EQ(PressureDifferenceInUnit(state, 0), 0);
  }
  state.pressureUnit = 7;
  EXPECT_EQ(PressureDifferenceInUnit(state, 1.5), 0);
}

TEST(Differential, ConvertsBothWays) {
  const struct {
    int unit;
    double value, mmH2O;
  } rows[] = {{0, 24.517, 2500.038}, {1, 2500, 2500},  {2, 0.25, 2500},
              {3, 183.93, 2500},     {4, 3.555, 2500}, {5, 245.175, 2500}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.unit);
    EXPECT_NEAR(DifferentialToMmH2O(row.unit, row.value), row.mmH2O, 1e-3);
    EXPECT_NEAR(DifferentialFromMmH2O(row.unit, row.mmH2O), row.value, 1e-3 * row.value);
  }
  EXPECT_EQ(DifferentialToMmH2O(6, 1), 0);
  EXPECT_EQ(DifferentialFromMmH2O(6, 1), 0);
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

TEST(Temperature, ConvertsBothWays) {
  const struct {
    int unit;
    double value, celsius;
  } rows[] = {{0, 25, 25}, {1, 273.15, 0}, {1, 0, -273.15},
              {2, 32, 0},  {2, 212, 100},  {2, -40, -40}};
  ProcessState state;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    state.temperatureUnit = row.unit;
    EXPECT_NEAR(TemperatureToCelsius(state, row.value), row.celsius, 1e-12);
    EXPECT_NEAR(TemperatureFromCelsius(row.unit, row.celsius), row.value, 1e-9);
  }
  EXPECT_NEAR(TemperatureFromCelsius(2, 179.88), 355.78, 1e-9);  // 355.784
  state.temperatureUnit = 3;
  EXPECT_EQ(TemperatureToCelsius(state, 10), 0);
  EXPECT_EQ(TemperatureFromCelsius(3, 10), 0);
}

/// 2 atm, 546.3 K and Z 0.5, half saturated with a vapour of 1 atm: the dry part has 1.5 atm, so
/// E = 1.5 / 2 / 0.5 = 1.5 and the densities are 2 * 1.5 = 3 dry and 3 + 0.5 * 0.4 = 3.2.
ProcessState HumidGas() {
  ProcessState state;
  state.fluidPhase = kGas;
  state.pressureAbs = 2 * 1.03323;
  state.temperatureK = 2 * 273.15;
  state.compressibilityZ = 0.5;
  state.relativeHumidity = 50;
  state.saturationPressure = 1.03323;
  state.densityBase = 2;
  state.waterVapourDensity = 0.4;
  return state;
}

TEST(Density, TakesEveryUnitToNormalState) {
  const struct {
    int phase, unit;
    double value, normal;
  } rows[] = {{kLiquid, 0, 998.2, 998.2}, {kLiquid, 1, 0.9982, 998.2}, {kLiquid, 2, 1, 0},
              {kGas, 0, 1.25, 1.25},      {kGas, 1, 3, 1.5},           {kGas, 2, 22.415, 1},
              {kGas, 3, 1, 1.0571115},    {kGas, 4, 0.5, 0.6464},      {kGas, 5, 1, 0},
              {kSteam, 0, 4.2, 4.2},      {kSteam, 3, 4.2, 4.2}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.phase * 10 + row.unit);
    ProcessState state = HumidGas();
    state.fluidPhase = row.phase;
    state.densityUnit = row.unit;
    EXPECT_NEAR(DensityToNormal(state, row.value), row.normal, 1e-6);
  }
}

TEST(Density, AtFlowStateCountsTheMoisture) {
  ProcessState state = HumidGas();
  EXPECT_NEAR(NormalDensityAtFlowState(state), 3.2, 1e-12);
  state.relativeHumidity = 0;
  EXPECT_NEAR(NormalDensityAtFlowState(state), 4, 1e-12);
  state.fluidPhase = kSteam;
  EXPECT_EQ(NormalDensityAtFlowState(state), 2);
  state = HumidGas();
  state.compressibilityZ = 0;
  EXPECT_THROW(NormalDensityAtFlowState(state), common::RuntimeFault);
}

// 0.1 % in single precision is 0.100000001490116 %.
TEST(Density, TakesHumidityInSinglePrecision) {
  ProcessState state = HumidGas();
  state.densityBase = 0;
  state.relativeHumidity = 0.1;
  state.waterVapourDensity = 1e9;
  EXPECT_NEAR(NormalDensityAtFlowState(state), 1000000.0149, 1e-4);
}

TEST(ViscosityToPoise, ReadsCentistokesByTheFlowDensity) {
  ProcessState state;
  state.densityFlow = 998.2;
  for (int unit : {0, 1}) {
    state.viscosityUnit = unit;
    EXPECT_EQ(ViscosityToPoise(state, 1.5), 1.5);
  }
  state.viscosityUnit = 2;
  EXPECT_NEAR(ViscosityToPoise(state, 1.0038), 1.00199, 1e-5);
}

TEST(FlowToMass, Liquid) {
  const double values[] = {1000, 1, 1000, 1000, 1, 1};
  const double expected[] = {1000, 800, 800, 48000, 1000, 0};
  ProcessState state;
  state.densityBase = 800;
  for (int unit = 0; unit < 6; ++unit) {
    SCOPED_TRACE(unit);
    state.flowUnit = unit;
    EXPECT_NEAR(FlowToMass(state, values[unit]), expected[unit], 1e-9);
  }
  EXPECT_EQ(state.densityFlow, 0);
}

TEST(FlowToMass, Steam) {
  ProcessState state;
  state.fluidPhase = kSteam;
  const double expected[] = {5, 5000, 0};
  for (int unit = 0; unit < 3; ++unit) {
    state.flowUnit = unit;
    EXPECT_EQ(FlowToMass(state, 5), expected[unit]);
  }
}

// A normal volume halves at the state of HumidGas, a volume at flow doubles to a normal one.
TEST(FlowToMass, HumidGasOnBothBases) {
  const double kSm3 = 273.15 / 288.15;
  const struct {
    int basis, unit;
    double value, massFlow;
  } rows[] = {{kWetBase, 0, 100, 100},      {kWetBase, 1, 10, 32},     {kWetBase, 2, 10000, 32},
              {kWetBase, 3, 1000, 192},     {kWetBase, 4, 2, 2000},    {kWetBase, 5, 20, 32},
              {kWetBase, 6, 20, 32 * kSm3}, {kWetBase, 7, 20, 0},      {kDryBase, 0, 3, 3.2},
              {kDryBase, 1, 3, 12.8},       {kDryBase, 2, 3000, 12.8}, {kDryBase, 3, 50, 12.8},
              {kDryBase, 4, 0.003, 3.2},    {kDryBase, 5, 3, 6.4},     {kDryBase, 6, 3, 6.4 * kSm3},
              {kDryBase, 7, 3, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.basis * 100 + row.unit);
    ProcessState state = HumidGas();
    state.flowBasis = row.basis;
    state.flowUnit = row.unit;
    EXPECT_NEAR(FlowToMass(state, row.value), row.massFlow, 1e-9);
    EXPECT_NEAR(state.densityFlow, 3.2, 1e-12);
  }
}

TEST(FlowToMass, RaisesWithoutAState) {
  ProcessState state;
  state.fluidPhase = kGas;
  EXPECT_THROW(FlowToMass(state, 1), common::RuntimeFault);  // 0 K
}

}  // namespace
}  // namespace data
