// What a sized valve is judged by: viscosity, opening, velocity, noise.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/scripted_messages.h"
#include "tests/valve/services.h"
#include "valve/exit_velocity.h"
#include "valve/noise.h"
#include "valve/opening.h"
#include "valve/viscosity.h"

namespace valve {
namespace {

using common::Real;

TEST(Viscosity, ClassNeedsMakerAndModel) {
  const struct {
    const char *maker, *model;
    ValveClass expected;
  } rows[] = {{"本山カタログ", "06-M 微少流量弁", ValveClass::k本山微少弁},
              {"本山カタログ", "06-S 単座グローブ弁", ValveClass::kOrdinary},
              {"本山", "VSM 微少流量弁", ValveClass::kOrdinary},
              {"山武カタログ", "VSM 微少流量弁", ValveClass::k山武微少弁},
              {"山武カタログ", "VSM 小流量弁", ValveClass::kOrdinary},
              {"山武", "06-M 微少流量弁", ValveClass::kOrdinary},
              {"", "VSM 微少", ValveClass::kOrdinary}};
  for (const auto& row : rows) {
    EXPECT_EQ(ClassOf(row.maker, row.model), row.expected) << row.maker << row.model;
  }
}

// The lower limit of the ISA curve is 0.0055 at Re 0.01; turbulent flow, from about 4e4, has 1.
TEST(Viscosity, FactorFollowsTheStandardsCurve) {
  EXPECT_NEAR(IsaReynoldsFactor(0.01), 0.0055, 0.0002);
  EXPECT_NEAR(IsaReynoldsFactor(4e4), 1, 0.03);
  EXPECT_EQ(IsaReynoldsFactor(1e6), 1);
}

/// Water thickened to `cSt` through a valve without reducers.
ViscosityCorrection CorrectLiquid(Real flow, Real cSt, double cv, double d,
                                  common::Messages& messages) {
  Service service = Water(10, 9);
  service.w = flow * 1000;
  service.mu = cSt;
  SizedCv sized;
  sized.cv = cv;
  sized.fp = 1;
  return CorrectForViscosity(service, Globe(cv, d), sized, messages);
}

// Four services worked independently of this code, to the digits given.
TEST(Viscosity, IsaReynoldsNumber) {
  const struct {
    double flow, cSt, cv, d, re, fr;
  } rows[] = {{10, 200, 50, 50.8, 8833, 0.915},
              {2, 1000, 20, 40, 449, 0.607},
              {1, 5000, 15, 25.4, 71, 0.365},
              {100, 500, 400, 150, 11966, 0.932}};
  tests::ScriptedMessages messages;
  for (const auto& row : rows) {
    const auto correction = CorrectLiquid(row.flow, row.cSt, row.cv, row.d, messages);
    EXPECT_NEAR(*correction.detail.re, row.re, row.re * 0.005);
    EXPECT_NEAR(correction.fr, row.fr, 0.0006);
    EXPECT_EQ(correction.n, 1.4);
  }
  EXPECT_TRUE(messages.shown.empty());

  // Re goes with 1 / viscosity, so its limits can be set.
  const Real unit = *CorrectLiquid(10, 1, 50, 50.8, messages).detail.re;
  EXPECT_EQ(CorrectLiquid(10, unit / 1000001, 50, 50.8, messages).fr, 1);
  EXPECT_LT(CorrectLiquid(10, unit / 0.0101, 50, 50.8, messages).fr, 0.007);
  EXPECT_TRUE(messages.shown.empty());
  const auto thick = CorrectLiquid(10, unit / 0.005, 50, 50.8, messages);
  EXPECT_EQ(thick.fr, 1);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title, "");
  EXPECT_TRUE(messages.shown[0].text.starts_with("Re＝0.005"));
  EXPECT_TRUE(
      messages.shown[0].text.ends_with("はISAの粘度補正データの範囲外(<0.01)です。\n"
                                       "レイノルズ補正係数は規格下限値（Fr＝0.0055）とします｡ "));

  const auto none = CorrectLiquid(10, 0, 50, 50.8, messages);
  EXPECT_EQ(none.fr, 1);
  EXPECT_FALSE(none.detail.re || none.detail.fr);
}

TEST(Viscosity, Rule本山) {
  tests::ScriptedMessages messages;
  SizedCv sized;
  sized.cv = 0.04;
  sized.fp = 1;
  const auto correct = [&](const char* model, const char* ratedCv, Real re) {
    // 76000 FdM Q / nu / sqrt(FL Cv) with Q 0.01 m3/h and FL Cv 0.04; the viscosity makes it `re`
    // for FdM 1.
    Service service = Water(10, 9);
    service.w = 10;
    service.mu = 76000 * 0.01 / 0.2 / re;
    SelectedValve valve = Globe(0.1);
    valve.fl = 1;
    valve.maker = "本山カタログ";
    valve.model = model;
    valve.ratedCv = std::stod(ratedCv);
    return CorrectForViscosity(service, valve, sized, messages);
  };
  const struct {
    const char *model, *ratedCv;
    double fdM;
  } trims[] = {
      {"06-M 微少", "0.01", 0.75}, {"06-M 微少", "0.011", 0.54}, {"06-M 微少", "0.05", 0.54},
      {"06-M 微少", "0.10", 0.38}, {"06-M 微少", "0.15", 0.31},  {"06-M 微少", "0.2", 0},
      {"06-L 微少", "0.02", 0.08}, {"06-L 微少", "0.05", 0.11},  {"06-L 微少", "0.1", 0.14},
      {"06-L 微少", "0.15", 0.17}, {"06-L 微少", "0.2", 0.19},   {"06-L 微少", "0.4", 0.29},
      {"06-L 微少", "0.01", 0},    {"06-X 微少", "0.1", 0}};
  for (const auto& trim : trims) {
    SCOPED_TRACE(testing::Message() << trim.model << ' ' << trim.ratedCv);
    const auto correction = correct(trim.model, trim.ratedCv, 1000.4);
    EXPECT_EQ(*correction.detail.re, std::floor(1000.4 * trim.fdM));
    EXPECT_EQ(correction.fr == 0, trim.fdM == 0);
  }
  // Re 100: root of 0.01. Re 1000: exponent 1/4. The exponent is kept as noise coefficient.
  EXPECT_NEAR(correct("06-M 微少", "0.1", 100.5 / 0.38).fr, 0.1, 1e-9);
  EXPECT_EQ(correct("06-M 微少", "0.1", 130.5 / 0.38).n, 2);
  EXPECT_NEAR(correct("06-M 微少", "0.1", 131.5 / 0.38).n, 1 + std::log10(131), 1e-6);
  EXPECT_NEAR(correct("06-M 微少", "0.1", 1000.5 / 0.38).fr, std::pow(0.1, 0.25), 1e-6);
  EXPECT_EQ(correct("06-M 微少", "0.1", 10000.5 / 0.38).fr, 1);
  EXPECT_NEAR(correct("06-M 微少", "0.1", 10000.5 / 0.38).n, 5, 1e-6);
  EXPECT_EQ(correct("06-M 微少", "0.1", 10001.5 / 0.38).n, 1.4);
}

TEST(Viscosity, Rule山武) {
  tests::ScriptedMessages messages;
  SelectedValve valve = Globe(0.1);
  valve.maker = "山武カタログ";
  valve.model = "VSM 微少流量弁";
  SizedCv sized;
  sized.cv = 0.1;
  sized.fp = 1;
  // S Q / mu = 1: Rv = A Cv.
  const double gasQ = 288.15 / 273.15;
  const struct {
    Service service;
    double mu, rv;
  } rows[] = {{Water(10, 9), 50, 77000}, {Air(10, 9), 1000 * gasQ, 3.3}, {Steam(10, 9), 0, 3.3}};
  for (auto [service, mu, rv] : rows) {
    service.mu = service.fluidPhase == data::kSteam ? Real(5000 / 1.2928) : Real(mu);
    const auto correction = CorrectForViscosity(service, valve, sized, messages);
    EXPECT_NEAR(*correction.detail.rv, rv, rv * 1e-12);
    EXPECT_NEAR(*correction.detail.fm, 1 + 1 / std::sqrt(2 * rv), 1e-12);
    EXPECT_NEAR(correction.fr * *correction.detail.fm, 1, 1e-12);
  }
  // Both branches meet within 2 % at Rv = 1.
  Service air = Air(10, 9);
  air.mu = 1001 * gasQ * std::pow(3.3, 2.0 / 3);
  EXPECT_NEAR(*CorrectForViscosity(air, valve, sized, messages).detail.fm, 1.707, 0.03);
}

TEST(Opening, MeetsTheEndsOfEachCharacteristic) {
  for (const int characteristic : {kEqualPercent, kLinear, kModifiedParabolic, kQuickOpen}) {
    SCOPED_TRACE(characteristic);
    EXPECT_NEAR(Opening(characteristic, 40, 40, 50), 1, 0.004);
    EXPECT_NEAR(Opening(characteristic, 40.0 / 50, 40, 50), 0, 1e-9);
  }
  EXPECT_NEAR(Opening(kButterfly60, 40, 40, 0), 1, 0.004);
  // Equal percentage: Cv = Cvr R^(L - 1).
  EXPECT_NEAR(Opening(kEqualPercent, 40 * std::pow(50, -0.5), 40, 50), 0.5, 1e-12);
  EXPECT_NEAR(Opening(kLinear, 20.4, 40, 50), 0.5, 1e-12);
  EXPECT_NEAR(Opening(kModifiedParabolic, 10.6001, 40, 50), 0.446, 0.001);  // at x = 0.25
  EXPECT_NEAR(Opening(kModifiedParabolic, 10.5999, 40, 50), 0.435, 0.001);
  EXPECT_EQ(Opening(kOtherCharacteristic, 10, 0, 0), 0);
  EXPECT_EQ(Opening(kNoCharacteristic, 10, 0, 0), 0);
  EXPECT_GT(Opening(kEqualPercent, 41, 40, 50), 1);
}

TEST(Trim, RangeabilityByModel) {
  const struct {
    const char* model;
    double cv;
    const char* expected;
  } rows[] = {{"VSM 微少", 0.16, "30"},  {"VSM 小", 0.159, "25"}, {"VSM", 0.02, "25"},
              {"VSM", 0.015, "77"},      {"VSM", 0.01, "20"},     {"VSM", 0, "20"},
              {"81 小流量", 0.15, "10"}, {"81 ", 0.16, "15"},     {"81 ", 0.8, "15"},
              {"81 ", 1.5, "25"},        {"81 ", 1, "77"},        {"81 ", 2.5, "77"},
              {"810", 0.1, "77"},        {"81", 0.1, "77"},       {"単座", 1, "77"}};
  for (const auto& row : rows) {
    EXPECT_EQ(RangeabilityOf(row.model, row.cv, "77"), row.expected) << row.model << row.cv;
  }
  EXPECT_TRUE(IsLinearTrim("81 小流量", 0.056));
  EXPECT_FALSE(IsLinearTrim("81 小流量", 0.057));
  EXPECT_FALSE(IsLinearTrim("VSM", 0.01));
}

TEST(ExitVelocity, IsFlowOverArea) {
  constexpr double kPi = 3.14159265358979;
  const double area = kPi / 4 * 0.0508 * 0.0508;
  EXPECT_NEAR(ExitVelocity(Water(10, 8), 50.8), 50 / 3600.0 / area, 0.01);
  // Air expands to the outlet pressure: 1000 Nm3/h at 5 kgf/cm2 and 20 degC.
  const double flow = 1000 / 3600.0 * 1.03323 / 5 * 293.15 / 273.15;
  EXPECT_NEAR(ExitVelocity(Air(10, 5), 50.8), flow / area, 0.05);
  // Steam tables, 5 kgf/cm2 at 200 degC: 0.4333 m3/kg.
  EXPECT_NEAR(ExitVelocity(Steam(10, 5), 50.8), 5000 / 3600.0 * 0.4333 / area, 1);
  EXPECT_THROW(ExitVelocity(Air(10, 0), 50.8), common::RuntimeFault);
  EXPECT_LT(ExitVelocity(Air(10, -1), 50.8), 0);
}

// Below the saturation line the steam equation is wrong without a fault; what the sheet marks.
TEST(ExitVelocity, WetSteamGivesAnImpossibleDensity) {
  EXPECT_LT(OutletSteamDensity(Steam(60, 50)), 0);
  EXPECT_THROW(OutletSteamDensity(Steam(10, 0)), common::RuntimeFault);
}

TEST(ExitVelocity, JudgesUnroundedAndAboveTheLimit) {
  using enum VelocityJudgement;
  Service wet = Steam(10, 5);
  wet.saturated = true;
  const struct {
    Service service;
    double caution, tooFast;
  } rows[] = {{Water(10, 8), 6, 6}, {Air(10, 8), 150, 200}, {wet, 50, 80}, {Steam(10, 5), 80, 120}};
  for (const auto& row : rows) {
    EXPECT_EQ(JudgeVelocity(row.service, row.caution), kGood);
    EXPECT_EQ(JudgeVelocity(row.service, row.caution + 0.04),
              row.caution == row.tooFast ? kTooFast : kCaution);
    EXPECT_EQ(JudgeVelocity(row.service, row.tooFast + 0.04), kTooFast);
  }
}

Real Level(const Service& service, double cv, double fl, double n, double wall) {
  tests::ScriptedMessages messages;
  SelectedValve valve;
  valve.fl = fl;
  valve.n = n;
  valve.wallWeight = wall;
  const Real level = NoiseLevel(service, valve, cv, messages);
  EXPECT_TRUE(messages.shown.empty());
  return level;
}

// Worked independently of this code and rounded to whole dB.
TEST(Noise, TypicalLevels) {
  Service hydrogen = Air(10, 5);
  hydrogen.rho = 2.016 / 22.415;
  Service carbonDioxide = Air(10, 5);
  carbonDioxide.rho = 44.01 / 22.415;
  const double steel = 30.6;  // 3.9 mm
  EXPECT_NEAR(Level(Air(3, 2), 10, 0.9, 1.4, steel), 66, 0.6);
  EXPECT_NEAR(Level(Steam(40, 10), 100, 0.9, 1.4, 60), 113, 0.6);
  const Real air = Level(Air(10, 5), 50, 0.9, 1.4, steel);
  EXPECT_NEAR(Level(hydrogen, 50, 0.9, 1.4, steel) - air, -8, 0.6);
  EXPECT_NEAR(Level(carbonDioxide, 50, 0.9, 1.4, steel) - air, 1, 0.6);
  EXPECT_NEAR(Level(Water(20, 3), 50, 0.9, 1.4, 0), 90, 0.6);
  // The mass law: twice the wall or twice n, 17 log 2; twice the Cv, 10 log 2 + 8.5 log 2.
  EXPECT_NEAR(air - Level(Air(10, 5), 50, 0.9, 1.4, 2 * steel), 17 * std::log10(2), 1e-5);
  EXPECT_NEAR(Level(Air(10, 5), 100, 0.9, 1.4, steel) - air, 18.5 * std::log10(2), 1e-5);
  EXPECT_EQ(Level(Air(10, 5), 50, 0.9, 1.4, 0), Level(Air(10, 5), 50, 0.9, 2.2, 0));
  // By hand without a wall; the one of 30.6 kg/m2 takes 17 log(3072 * 30.6 * 1.4 / sqrt(45)) - 36.
  EXPECT_NEAR(Level(Air(10, 5), 50, 0.9, 1.4, 0), 132.5273, 1e-4);
  EXPECT_NEAR(air, 132.5273 - 36.9753, 1e-4);
  // The pressure ratio of 2.8 belongs to the lower pair of polynomials; above it are 0.5 dB less.
  EXPECT_NEAR(Level(Air(14, 5), 50, 0.9, 1.4, 0), 142.1648, 1e-4);
  EXPECT_NEAR(Level(Air(14.0001, 5), 50, 0.9, 1.4, 0), 141.6547, 1e-3);
}

TEST(Noise, ZeroOutsideTheEquations) {
  EXPECT_EQ(Level(Water(10, 8), 50, 0.9, 1.4, 0), 0);     // not choked: P2 above Pvc
  EXPECT_EQ(Level(Water(20, 0.02), 50, 0.9, 1.4, 0), 0);  // flashing: P2 below Pv
  EXPECT_EQ(Level(Air(10, 0), 50, 0.9, 1.4, 0), 0);
  EXPECT_EQ(Level(Air(10, -1), 50, 0.9, 1.4, 0), 0);
  EXPECT_EQ(Level(Air(1.0001, 1), 1e-6, 0.9, 1.4, 30.6), 0);  // below 0 dB
  tests::ScriptedMessages messages;
  Service service = Water(10, 8);
  service.pv = 0;
  EXPECT_EQ(NoiseLevel(service, {}, 50, messages), 0);
  EXPECT_EQ(messages.Texts()[0], "飽和蒸気圧力が入力されていないので\n騒音計算は出来ません。");
  EXPECT_EQ(messages.shown[0].title, "騒音計算");
}

}  // namespace
}  // namespace valve
