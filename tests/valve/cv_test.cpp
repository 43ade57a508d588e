#include <gtest/gtest.h>

#include <cmath>

#include "tests/valve/services.h"
#include "valve/isa_equations.h"
#include "valve/required_cv.h"
#include "valve/sizing.h"

namespace valve {
namespace {

// Cv is by definition the flow of water in US gpm at 1 psi.
TEST(RequiredCv, FollowsItsDefinition) {
  constexpr double kGpm = 0.2271247;   // m3/h
  constexpr double kPsi = 0.07030696;  // kgf/cm2
  Service service = Water(10, 10 - 100 * kPsi);
  service.dP = 100 * kPsi;
  service.w = 30 * 10 * kGpm * 1000;  // 300 gpm at 100 psi
  EXPECT_NEAR(FciCv(service), 30, 0.02);
  EXPECT_NEAR(IsaCv(service)->cv, 30, 0.02);
}

/// Water of IEC 60534-2-1 annex, examples 1 and 2: 360 m3/h at 363 K from 680 to 220 kPa.
Service IecWater() {
  Service service = Between(data::kLiquid, 680 * kKpa, 220 * kKpa);
  service.rho = service.rho1 = 965.4;
  service.w = 360 * 965.4;
  service.pv = 70.1 * kKpa;
  service.pc = 22120 * kKpa;
  return service;
}

TEST(Sizing, AgreesWithPublishedLiquidExamples) {
  const struct {
    const char* what;
    double d, d1, d2, fl, kv;
    bool choked;
  } rows[] = {
      {"IEC 60534-2-1 example 1, globe", 150, 150, 150, 0.9, 165.0, false},
      {"IEC 60534-2-1 example 2, segmented ball", 100, 100, 100, 0.6, 238.06, true},
      // Of the tests of the "fluids" library, which iterates Cv; its result as rated Cv is a fixed
      // point.
      {"example 1 between reducers", 80, 100, 90, 0.9, 177.444, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    SelectedValve valve = Globe(row.kv * kCvPerKv, row.d);
    valve.d1 = row.d1;
    valve.d2 = row.d2;
    valve.fl = row.fl;
    const auto sized = SizeCv(IecWater(), valve);
    ASSERT_TRUE(sized);
    EXPECT_EQ(sized->choked, row.choked);
    EXPECT_NEAR(sized->cv, row.kv * kCvPerKv, row.kv * 0.002);
  }
}

// Worked examples of the Control Valve Handbook (3rd edition) by ISA S75.01: natural gas through a
// ball valve with xT 0.137 in a line of its size, Cv 1515; steam through a cage valve of 4 in with
// xT 0.69 and rated Cv 236 between pipes of 6 in, Cv 176. FL is the one with that xT. These sheets
// divide by FLP instead of Fp from dP = 0.5 FL^2 p1 on, which the comparison takes back.
TEST(Sizing, AgreesWithPublishedGasExamples) {
  constexpr double kPsi = 0.07030696;  // kgf/cm2
  Service gas = Between(data::kGas, 214.7 * kPsi, 64.7 * kPsi);
  gas.rho = 17.38 / 22.415;
  gas.tk = 288.71;
  gas.w = 6e6 * 0.0283168 * 273.15 / 288.71 * gas.rho;  // scfh at 60 degF
  gas.rho1 = gas.rho * gas.p1 / 1.03323 * 273.15 / gas.tk;
  gas.k = 1.31;
  SelectedValve ball = Globe(2190, 203.2);
  ball.fl = std::sqrt(0.137 / 0.84);

  Service steam = Between(data::kSteam, 514.7 * kPsi, 264.7 * kPsi);
  steam.w = 125000 * 0.45359237;
  steam.rho = steam.rho1 = 1.0434 * 16.01846;  // kg/m3 of lb/ft3
  steam.k = 1.28;
  SelectedValve cage = Globe(236, 101.6);
  cage.d1 = cage.d2 = 152.4;
  cage.fl = std::sqrt(0.69 / 0.84);

  const struct {
    const Service& service;
    const SelectedValve& valve;
    double cv;
  } rows[] = {{gas, ball, 1515}, {steam, cage, 176}};
  for (const auto& row : rows) {
    const auto sized = SizeCv(row.service, row.valve);
    ASSERT_TRUE(sized);
    EXPECT_TRUE(sized->choked);
    EXPECT_NEAR(sized->cv * sized->flp / sized->fp, row.cv, row.cv * 0.01);
  }
}

TEST(RequiredCv, TurnsCriticalAtItsLimits) {
  // 12 and 6 are exact, so the limit itself can be met.
  for (const Service& service : {Air(12, 6), Steam(12, 6)}) {
    Service below = service;
    below.dP = std::nextafter(6.0, 0.0);
    below.p2 = below.p1 - below.dP;
    EXPECT_TRUE(IsaCv(service)->choked);
    EXPECT_FALSE(IsaCv(below)->choked);
    // 13.5 sqrt(dP (P1 + P2)) against 11.7 P1 at dP = P1/2: 11.69 and 11.7; 236.4 and 238 for gas.
    EXPECT_NE(FciCv(service), FciCv(below));
    EXPECT_NEAR(FciCv(service) / FciCv(below), 1, 0.01);
  }
  // Beyond it the FCI result depends on the inlet pressure alone.
  EXPECT_EQ(FciCv(Air(12, 6)), FciCv(Air(12, 1)));
  EXPECT_EQ(FciCv(Steam(12, 6)), FciCv(Steam(12, -3)));

  Service superheated = Steam(12, 9);
  const common::Real saturated = FciCv(superheated);
  superheated.superheat = 100;
  EXPECT_NEAR(FciCv(superheated) / saturated, 1.126, 1e-12);
}

TEST(RequiredCv, ALiquidNeedsItsVapourData) {
  Service service = Water(10, 8);
  service.pc = 0;
  EXPECT_FALSE(IsaCv(service));
  service.pc = 225.6;
  service.pv = 0;
  EXPECT_FALSE(IsaCv(service));

  // Choked from dP = p1 - FF Pv on; the Cv holds still beyond.
  service = Water(10, 5);
  service.pv = 4;
  const double limit = 10 - (0.96 - 0.28 * std::sqrt(4 / 225.6)) * 4;
  for (const double dP : {limit - 1e-9, limit, 9.0}) {
    service.dP = dP;
    EXPECT_EQ(IsaCv(service)->choked, dP >= limit);
    EXPECT_NEAR(IsaCv(service)->cv, 50 / 0.857 / std::sqrt(std::min(dP, limit)), 1e-6);
  }
}

TEST(Expansion, StaysBetweenItsLimits) {
  Service service = Air(10, 8);
  const double xT = 0.84 * 0.81;
  for (const double dP : {9.99, -1.0}) {
    service.dP = dP;
    EXPECT_EQ(ExpansionOf(service, xT).y, 0.667);  // 2/3 is lifted
  }
  EXPECT_THROW(SizeCv(service, Globe(40)), common::RuntimeFault);
}

TEST(Piping, ReducersOfTheStandard) {
  // No reducers, no effect.
  EXPECT_EQ(PipingFactorsOf(Globe(40)).fp, 1);
  EXPECT_EQ(PipingFactorsOf(Globe(40)).sumK, 0);
  // Half the pipe's bore, 2 in, on both sides: K1 + K2 = 1.5 (1 - 1/4)^2 = 0.84375.
  SelectedValve valve = Globe(40);
  valve.d1 = valve.d2 = 101.6;
  const PipingFactors piping = PipingFactorsOf(valve);
  EXPECT_NEAR(piping.sumK, 0.84375, 1e-12);
  EXPECT_NEAR(piping.fp, 1 / std::sqrt(1 + 84.375 / 890), 1e-12);
  EXPECT_NEAR(CombinedRecoveryFactor(piping, 0.9), 1 / std::sqrt(1 / 0.81 + 121.875 / 890), 1e-12);
  // The inlet pipe alone is smaller: velocity head is regained, Fp is held at 1.
  valve.d1 = 38.1;
  valve.d2 = 50.8;
  EXPECT_LT(PipingFactorsOf(valve).sumK, 0);
  EXPECT_EQ(PipingFactorsOf(valve).fp, 1);
}

TEST(Sizing, ChokedFactorIsLimitedForAGasAlone) {
  // A smaller inlet pipe makes Ki negative; with FL 0.95 FLP would exceed 1.
  SelectedValve valve = Globe(80);
  valve.fl = 0.95;
  valve.d1 = 40;
  EXPECT_GT(CombinedRecoveryFactor(PipingFactorsOf(valve), valve.fl), 1);
  EXPECT_EQ(SizeCv(Air(10, 2), valve)->flp, 1);
  Service water = Water(10, 1);
  water.pv = 2;
  EXPECT_TRUE(SizeCv(water, valve)->choked);
  EXPECT_GT(SizeCv(water, valve)->flp, 1);
}

TEST(Sizing, ChokesByFlAlone) {
  SelectedValve valve = Globe(40);
  valve.fl = 0.5;  // exact square
  valve.d1 = valve.d2 = 77.9;
  // 0.5 FL^2 P1 = 1.5 of 12.
  EXPECT_TRUE(SizeCv(Air(12, 10.5), valve)->choked);
  EXPECT_FALSE(SizeCv(Air(12, 10.500001), valve)->choked);
}

TEST(FourFigures, RoundsByTheDecimalExponent) {
  const struct {
    double cv, shown;
  } rows[] = {{190.6494, 190.6},     {165.04, 165},  {9999.6, 10000},
              {123456, 123500},      {1, 1},         {0.99996, 1},
              {0.0030447, 0.003045}, {0.001, 0.001}, {0.12344, 0.1234},
              {1000.4, 1000},        {10.004, 10},   {999.96, 1000}};
  for (const auto& row : rows) EXPECT_DOUBLE_EQ(FourFigures(row.cv), row.shown) << row.cv;
  EXPECT_THROW(FourFigures(0), common::RuntimeFault);
}

TEST(Service, ReadsDifferentialAndSuperheat) {
  EXPECT_NEAR(DifferentialOf(98.0665, 0), 1, 1e-15);
  EXPECT_EQ(DifferentialOf(735.72, 4), 1);  // mmHg: no atmosphere to take off
  Service service = Steam(10, 5, 182);
  for (const auto& [saturation, superheat] :
       {std::pair{180.0, 2.0}, {180.01, 0.0}, {250.0, 0.0}, {100.0, 82.0}}) {
    SetSuperheat(service, saturation);
    EXPECT_EQ(service.superheat, superheat);
    EXPECT_EQ(service.saturated, superheat == 0);
  }
}

}  // namespace
}  // namespace valve
