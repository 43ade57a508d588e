#include "data/steam.h"

#include "tests/data/shipped_data.h"
#include "tests/support/scripted_messages.h"

namespace data {
namespace {

constexpr double kKgfCm2PerMpa = 10.19716213;

ProcessState SteamState(double pressure, double celsius) {
  ProcessState state;
  state.fluidPhase = kSteam;
  state.pressureAbs = pressure;
  state.temperatureC = celsius;
  state.temperatureK = celsius + 273.15;
  return state;
}

// IAPWS-IF97, table 35 (300, 500, 600 K), and its saturation line at whole degrees, in MPa.
TEST(WaterSaturationPressure, AgreesWithIf97) {
  const struct {
    double kelvin, mpa;
  } rows[] = {{300, 3.53658941e-3}, {373.15, 0.1014180}, {423.15, 0.476101},
              {500, 2.63889776},    {600, 12.3443146},   {633.15, 18.6664}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.kelvin);
    const Real pressure = WaterSaturationPressure(row.kelvin - 273.15, row.kelvin, 735.559);
    EXPECT_NEAR(pressure / kKgfCm2PerMpa, row.mpa, 2e-3 * row.mpa);
  }
}

// The first equation alone depends on the divisor.
TEST(WaterSaturationPressure, RangesBeginAtTheirLowEnds) {
  EXPECT_GT(WaterSaturationPressure(70.999, 344.149, 1), 100);
  EXPECT_LT(WaterSaturationPressure(71, 344.15, 1), 1);
  EXPECT_NEAR(WaterSaturationPressure(210, 483.15, 1), 19.45, 0.02);  // 1.9074 MPa, IF97
  EXPECT_GT(WaterSaturationPressure(374.14, 647.29, 1), 220);
  EXPECT_EQ(WaterSaturationPressure(374.15, 647.3, 1), 0);
}

// 101.42 kPa at 100 degC and 2.339 kPa at 20 degC (IF97), taken to 3 decimals in kgf/cm2 before
// they are converted. The equation gives 1.0329 at 100 degC, as tables of 1968 do.
TEST(SaturatedVapourPressure, RoundsBeforeItConverts) {
  const struct {
    double celsius;
    int unit;
    double shown;
  } rows[] = {{100, 2, 1.033}, {100, 0, 101.3},  {20, 0, 2.3536}, {20, 2, 0.024},
              {200, 2, 15.85}, {200, 1, 1.5544}, {374.15, 0, 0},  {400, 0, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.celsius);
    ProcessState state = SteamState(0, row.celsius);
    state.saturationPressureUnit = row.unit;
    tests::ScriptedMessages messages;
    EXPECT_NEAR(SaturatedVapourPressure(state, messages), row.shown, 1e-9);
    EXPECT_TRUE(messages.shown.empty());
  }
}

TEST(SaturatedVapourPressure, RefusesIce) {
  tests::ScriptedMessages messages;
  EXPECT_EQ(SaturatedVapourPressure(SteamState(0, -0.1), messages), 0);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "飽和水蒸気圧推算式の適用温度範囲 は 0℃以上です。");
  EXPECT_EQ(messages.shown[0].title, "物性推算");
}

// IAPWS-IF97, table 36, and the critical isotherm's neighbourhood; the line of 1967 lies within
// 0.05 K of it, and the solver stops at 1e-6 of the critical pressure, which is 0.5 K at the triple
// point.
TEST(SaturationTemperature, AgreesWithIf97) {
  const struct {
    double mpa, kelvin, tolerance;
  } rows[] = {{0.000611657, 273.16, 0.5},
              {0.1, 372.755919, 0.05},
              {1, 453.035632, 0.05},
              {10, 584.149488, 0.05},
              {20, 638.8959, 0.05}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.mpa);
    const Real celsius = SaturationTemperature(SteamState(row.mpa * kKgfCm2PerMpa, 0));
    EXPECT_NEAR(celsius + 273.15, row.kelvin, row.tolerance);
  }
}

TEST(SaturationTemperature, EndsForEveryPressure) {
  // Above the critical pressure the line goes on; the tables end at 647.1 K.
  EXPECT_GT(SaturationTemperature(SteamState(226, 0)), 374);
  EXPECT_GT(SaturationTemperature(SteamState(1000, 0)), 374);
  for (const double pressure : {-1.0, 2040.0, 5000.0, 1e6, 1e300}) {
    SCOPED_TRACE(pressure);
    EXPECT_THROW(SaturationTemperature(SteamState(pressure, 0)), common::RuntimeFault);
  }
}

// Specific volumes of IAPWS-IF97 (table 15 and the steam tables built on it) in m3/kg.
TEST(SteamDensity, AgreesWithIf97) {
  const struct {
    double mpa, kelvin, volume, tolerance;
  } rows[] = {{0.0035, 300, 39.4913866, 0.002}, {0.0035, 700, 92.3015898, 0.001},
              {0.1, 423.15, 1.93673, 0.001},    {1, 473.15, 0.20600, 0.001},
              {1, 673.15, 0.30659, 0.001},      {4, 673.15, 0.073432, 0.001},
              {5, 573.15, 0.045347, 0.001},     {10, 773.15, 0.032811, 0.002},
              {10, 873.15, 0.038378, 0.003}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.volume);
    const Real density = SteamDensity(SteamState(row.mpa * kKgfCm2PerMpa, row.kelvin - 273.15));
    // The result has four decimals.
    EXPECT_NEAR(density, 1 / row.volume, row.tolerance / row.volume + 5e-5);
  }
  // At 20 MPa and 400 degC the exponentials count: 1 / (0.010180606 + 0.000048995 - 0.000312086 -
  // 0.00000033) = 100.835 by hand, where IF97 has 100.50.
  EXPECT_NEAR(SteamDensity(SteamState(20 * kKgfCm2PerMpa, 400)), 100.8351, 2e-4);
  EXPECT_THROW(SteamDensity(SteamState(0, 100)), common::RuntimeFault);
}

// IAPWS R12-08, table 4: points at 873.15 K and 1173.15 K with 1 kg/m3, where p = rho R T within
// 0.1 %, and 12.27 uPa s of saturated steam at 100 degC.
TEST(SteamViscosity, AgreesWithTheInternationalFormulation) {
  const struct {
    double pressure, celsius, viscosity, tolerance;
  } rows[] = {{4.109, 600, 0.0326196, 0.006},
              {5.521, 900, 0.0442177, 0.006},
              {1.0332, 100, 0.01227, 0.008},
              {10.2, 200, 0.01589, 0.01}};
  const SteamViscosityTable table = tests::Shipped(ReadSteamViscosityTable, "Steam.dat");
  for (const auto& row : rows) {
    SCOPED_TRACE(row.celsius);
    EXPECT_NEAR(SteamViscosity(table, SteamState(row.pressure, row.celsius)), row.viscosity,
                row.tolerance * row.viscosity + 5e-5);
  }
}

TEST(SteamViscosity, ChoosesTheRowByPressureThenTemperature) {
  const SteamViscosityTable rowNumbers{
      {{0, 0, 0, 0}, {0, 0, 0, 1}, {0, 0, 0, 2}, {0, 0, 0, 3}, {0, 0, 0, 4}}};
  const struct {
    double pressure, celsius, row;
  } rows[] = {{100.01, 300, 0}, {249.9, 700, 0}, {49.9, 339.9, 1}, {50, 339.9, 2}, {100, 339.9, 2},
              {100, 340, 3},    {10, 340, 3},    {100, 600, 3},    {100, 600.1, 4}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.pressure);
    EXPECT_EQ(SteamViscosity(rowNumbers, SteamState(row.pressure, row.celsius)), row.row);
  }
  // ((1.021e-11 * 100 + 6.765e-8) * 100 + 3.53e-5) * 100 + 4.07e-5 * 400 + 0.00804 = 0.02853671
  ProcessState dense = SteamState(250, 400);
  dense.densityBase = 100;
  EXPECT_NEAR(SteamViscosity(rowNumbers, dense), 0.0285, 1e-12);
  EXPECT_THROW(SteamViscosity({}, SteamState(10, 200)), common::RuntimeFault);
}

// The exponents that the formula yields with its minus sign, from an evaluation of its own; they
// are far from the 1.24 to 1.32 of steam, and callers can tell.
TEST(SteamIsentropicExponent, HasTheSignOfTheSystemAndIsKnownToBeImpossible) {
  const struct {
    double pressure, celsius, exponent;
  } rows[] = {{1.0332, 100, 0.786}, {10, 200, 0.735},  {40, 400, 0.746},
              {100, 500, 0.716},    {100, 311, 0.362}, {200, 400, 0.360}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.celsius);
    ProcessState state = SteamState(row.pressure, row.celsius);
    state.densityBase = SteamDensity(state);
    tests::ScriptedMessages messages;
    const auto exponent = SteamIsentropicExponent(state, messages);
    ASSERT_TRUE(exponent);
    EXPECT_NEAR(*exponent, row.exponent, 0.0011);
    EXPECT_FALSE(IsPhysicalIsentropicExponent(*exponent));
  }
  EXPECT_TRUE(IsPhysicalIsentropicExponent(1.3));
  EXPECT_TRUE(IsPhysicalIsentropicExponent(1.0));
  EXPECT_FALSE(IsPhysicalIsentropicExponent(1.71));
}

TEST(SteamIsentropicExponent, ShowsItsFaults) {
  const struct {
    double pressure, density;
    const char* text;
  } rows[] = {{0, 5, "プロシージャの呼び出し、または引数が不正です。"},
              {10, 0, "0 で除算しました。"},
              {1e20, 5, "オーバーフローしました。"}};
  for (const auto& row : rows) {
    ProcessState state = SteamState(row.pressure, 200);
    state.densityBase = row.density;
    tests::ScriptedMessages messages;
    EXPECT_FALSE(SteamIsentropicExponent(state, messages));
    EXPECT_EQ(messages.Texts(), std::vector<std::string>{row.text});
  }
}

// Saturated vapour densities of IAPWS-IF97, kg/m3.
TEST(SaturatedWaterVapourDensity, AgreesWithIf97UpTo300Degrees) {
  const struct {
    double celsius, density;
  } rows[] = {{0.01, 0.0048509}, {20, 0.017310}, {50, 0.083098}, {100, 0.59817},
              {150, 2.5478},     {200, 7.8610},  {250, 19.965},  {300, 46.168}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.celsius);
    EXPECT_NEAR(SaturatedWaterVapourDensity(SteamState(0, row.celsius)), row.density,
                0.005 * row.density);
  }
  EXPECT_EQ(SaturatedWaterVapourDensity(SteamState(0, 301)), 1);
  EXPECT_GT(SaturatedWaterVapourDensity(SteamState(0, 300.99)), 40);
}

TEST(SteamViscosityTable, RefusesDamagedFiles) {
  const std::string good = tests::ShippedFile("Steam.dat");
  tests::ExpectStrictRefusals(ReadSteamViscosityTable, good,
                              {"1 2 3 4", "1e39" + good.substr(good.find(','))});
}

}  // namespace
}  // namespace data
