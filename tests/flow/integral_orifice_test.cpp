#include "flow/integral_orifice.h"

#include <cmath>

#include "tests/data/shipped_data.h"

namespace flow {
namespace {

const IntegralTable& Table() {
  static const IntegralTable kTable = tests::Shipped(ReadIntegralTable, "Integral.dat");
  return kTable;
}

constexpr double kAlpha[] = {0.8887445, 0.8022436, 0.8107588, 0.8201471, 0.8157833, 0.8544329};
constexpr double kInches[] = {0.020, 0.034, 0.0595, 0.0995, 0.159, 0.250, 0.340};

/// Water or air; flow in l/min at operating conditions, normal flow 80 % of it.
IntegralInputs Service(int model, int phase, double litres) {
  IntegralInputs inputs;
  inputs.model = model;
  inputs.fluidPhase = phase;
  inputs.p = 11;
  inputs.temperatureC = 20;
  inputs.rho = phase == kLiquid ? 1000 : phase == kGas ? 12.8 : 5.6;
  inputs.mu = phase == kLiquid ? 1.0 : 0.018;
  inputs.kappa = phase == kSteam ? 1.3 : 1.4;
  inputs.flow = litres * 0.06 * inputs.rho;
  inputs.normalFlow = inputs.flow * 0.8;
  return inputs;
}

/// Differential of an orifice in mmH2O by the orifice equation in SI.
double Differential(double litres, double rho, double alpha, double diameter) {
  const double area = M_PI / 4 * diameter * diameter / 1e6;
  const double velocity = litres / 60000 / area / alpha;
  return rho * velocity * velocity / 2 / 9.80665;
}

// Where the coefficient ratio is 1, a bore follows the plain orifice equation.
TEST(RateBore, FollowsTheOrificeEquation) {
  const struct {
    int model, i;
    double litres;
  } rows[] = {{0, 2, 1.5}, {0, 4, 12}, {0, 5, 31}, {1, 5, 5},  {2, 3, 4},
              {3, 3, 4},   {3, 5, 31}, {4, 4, 11}, {4, 5, 31}, {4, 6, 66}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.model << " " << row.i);
    const BoreRating rating = RateBore(Table(), Service(row.model, kLiquid, row.litres), row.i);
    const double d = kInches[row.i] * 25.4;
    const double alpha = row.model == 4 ? 0.61 / std::sqrt(1 - std::pow(d / 13, 4)) : kAlpha[row.i];
    const double expected = Differential(row.litres, 1000, alpha, d);
    EXPECT_EQ(rating.note, "");
    EXPECT_NEAR(rating.dP, expected, 3e-3 * expected + 1);
    EXPECT_EQ(rating.dP, std::floor(rating.dP));
  }
}

// 1 l/min of water through 1 mm has Re = 4 Q / (pi d nu) = 21221.
TEST(BoreReynolds, OfBoreOrPipe) {
  const double litre = 60;  // kg/h
  EXPECT_NEAR(BoreReynolds(Table(), 0, 0, litre, 1) * 0.508, 21221, 30);
  EXPECT_NEAR(BoreReynolds(Table(), 1, 0, litre, 1) * 14, 21221, 60);
  EXPECT_NEAR(BoreReynolds(Table(), 2, 6, litre, 1) * 13, 21221, 30);
}

// Expansion factor of nozzles (ASME Y factor tables, beta 0, kappa 1.4): 0.945 at p2/p1 = 0.9 and
// 0.973 at 0.95.
TEST(IntegralExpansion, AgreesWithThePublishedFactor) {
  EXPECT_NEAR(IntegralExpansion(0.1, 0, 1.4), 0.945, 6e-4);
  EXPECT_NEAR(IntegralExpansion(0.05, 0, 1.4), 0.973, 6e-4);
}

// Group 1 with gas and steam: the differential found carries the flow again, and the factor is that
// of the differential at normal flow.
TEST(RateBore, ExpansionSettles) {
  for (const int phase : {kGas, kSteam}) {
    for (const double litres : {150.0, 300.0, 380.0}) {
      SCOPED_TRACE(testing::Message() << phase << " " << litres);
      const IntegralInputs inputs = Service(3, phase, litres);
      const BoreRating rating = RateBore(Table(), inputs, 5);
      ASSERT_EQ(rating.note, "");
      const double beta = Table().integralBeta[1][5];
      const double x = rating.dP * 0.64 / 110000;
      EXPECT_NEAR(*rating.eps, IntegralExpansion(x, beta, inputs.kappa), 1e-4);
      const double plain = Differential(litres, inputs.rho, kAlpha[5], 6.35);
      EXPECT_NEAR(rating.dP, plain / *rating.eps / *rating.eps, 4e-3 * plain);
      EXPECT_EQ(*rating.alpha, 0.8544329);
    }
  }
  const BoreRating water = RateBore(Table(), Service(3, kLiquid, 10), 4);
  EXPECT_EQ(*water.eps, 1);
}

// A stainless bore at 300 degC is wider: (1 + 16.3e-6 * 280)^2 = 1.0091, the differential lower by
// its square.
TEST(RateBore, Group1CountsThermalExpansion) {
  IntegralInputs inputs = Service(3, kLiquid, 10);
  inputs.p = 50;
  const double cold = RateBore(Table(), inputs, 4).dP;
  inputs.temperatureC = 300;
  EXPECT_NEAR(RateBore(Table(), inputs, 4).dP, cold / 1.0183, 2e-4 * cold);
}

TEST(RateBore, CoefficientRatioAndItsLimits) {
  // Bore 3 of group 0 with a liquid: 0.93 at Re 1000, 1 from 10000 on.
  const struct {
    double re, kaf;
    const char* note;
  } rows[] = {
      {999, 0, kReynoldsTooLow}, {1001, 0.93, ""}, {9990, 1, ""}, {10010, 1, ""}, {90000, 1, ""}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.re);
    IntegralInputs inputs = Service(2, kLiquid, 1.2);
    inputs.mu = 354 * inputs.normalFlow / (row.re * 1.511);
    const BoreRating rating = RateBore(Table(), inputs, 2);
    EXPECT_EQ(rating.note, row.note);
    EXPECT_NEAR(rating.re, row.re, 1e-6 * row.re);
    ASSERT_EQ(rating.kaf.has_value(), row.kaf > 0);
    if (!rating.kaf) {
      EXPECT_EQ(rating.dP, 0);
      EXPECT_TRUE(rating.equivalentFlow);
      continue;
    }
    EXPECT_NEAR(*rating.kaf, row.kaf, 3e-4);
    EXPECT_NEAR(rating.dP, 6701.96 * 1.44 / std::pow(row.kaf, 2), 10);
  }
  // A curve that rises above 1 counts 1.
  IntegralTable high = Table();
  high.kafC0[0][2] += 0.5;
  IntegralInputs inputs = Service(2, kLiquid, 1.2);
  inputs.mu = 354 * inputs.normalFlow / (5000 * 1.511);
  EXPECT_EQ(RateBore(high, inputs, 2).kaf, common::Real(1));
}

TEST(RateBore, FirstNoteEndsTheBore) {
  // By the orifice equation 4 l/min make 13388 mmH2O in bore 3 (27040 in group 2), three quarters
  // of 1.785 kgf/cm2; Re in the body of 13 mm is 354 * 192 / (13 mu).
  constexpr double kReOfBody = 354.0 * 192 / 13;
  const struct {
    const char* what;
    int model, phase, i;
    double litres;
    double p, normalShare, mu;
    const char* note;
    bool hasDifferential;
  } rows[] = {
      {"scale flow", 0, kLiquid, 5, 33.01, 11, 0.8, 1, kScaleFlowTooLarge, false},
      {"scale flow at its limit", 0, kLiquid, 5, 32.9, 11, 0.8, 1, "", true},
      {"normal flow", 0, kLiquid, 0, 0.1, 11, 0.15, 0.1, kNormalFlowTooSmall, false},
      {"pressure before range", 0, kLiquid, 0, 1, 5, 0.8, 1, kDifferentialTooLarge, true},
      {"above the range", 0, kLiquid, 4, 13, 11, 0.8, 1, kOutOfRange, true},
      {"below the range", 0, kLiquid, 5, 4, 11, 0.8, 1, kOutOfRange, true},
      {"small transmitter", 1, kLiquid, 5, 6, 11, 0.8, 1, kOutOfRange, true},
      {"small range of the wide model", 2, kLiquid, 5, 2.4, 11, 0.8, 1, "", true},
      {"group 1 Reynolds", 3, kLiquid, 5, 1, 11, 0.8, 1, kReynoldsTooLow, false},
      {"group 1 liquid at its pressure", 3, kLiquid, 1, 2, 11, 0.8, 1, kDifferentialTooLarge, true},
      {"group 0 above 3/4 of the pressure", 2, kLiquid, 3, 4, 1.77, 0.8, 1, kDifferentialTooLarge,
       true},
      {"group 0 below 3/4 of the pressure", 2, kLiquid, 3, 4, 1.80, 0.8, 1, "", true},
      {"group 1 above 3/4 of the pressure", 3, kLiquid, 3, 4, 1.77, 0.8, 1, kDifferentialTooLarge,
       true},
      {"group 1 below 3/4 of the pressure", 3, kLiquid, 3, 4, 1.80, 0.8, 1, "", true},
      {"group 1 gas above its pressure", 3, kGas, 1, 90, 11, 0.8, 0.018, kDifferentialTooLarge,
       true},
      {"group 1 at high pressure", 3, kLiquid, 1, 2, 100, 0.8, 1, kDifferentialTooLarge, true},
      {"group 2 Reynolds", 4, kLiquid, 1, 0.2, 11, 0.8, 1, kReynoldsTooLow, false},
      {"group 2 below Re 450", 4, kLiquid, 3, 4, 11, 0.8, kReOfBody / 449.9, kReynoldsTooLow,
       false},
      {"group 2 at Re 450", 4, kLiquid, 3, 4, 11, 0.8, kReOfBody / 450.1, "", true},
      {"group 2 scale flow", 4, kLiquid, 6, 67.1, 11, 0.8, 1, kScaleFlowTooLarge, false},
      {"group 2 gas Reynolds", 4, kGas, 6, 10, 11, 0.05, 0.018, kReynoldsTooLow, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    IntegralInputs inputs = Service(row.model, row.phase, row.litres);
    inputs.p = row.p;
    inputs.mu = row.mu;
    inputs.normalFlow = inputs.flow * row.normalShare;
    const BoreRating rating = RateBore(Table(), inputs, row.i);
    EXPECT_EQ(rating.note, row.note);
    EXPECT_EQ(rating.dP > 0, row.hasDifferential);
    EXPECT_EQ(rating.alpha.has_value(), row.model == 3 && rating.note.empty());
  }
}

// Equivalent flows: 12.8 kg/m3 of air at 100 l/min make the differential of
// sqrt(12.8/1.293) * 100 = 314.6 Nl/min, or with air at 288.75 K sqrt(12.8/1.2232) * 100 = 323.5.
TEST(RateBore, EquivalentFlows) {
  EXPECT_NEAR(*RateBore(Table(), Service(0, kGas, 100), 5).equivalentFlow, 314.6, 0.4);
  EXPECT_NEAR(*RateBore(Table(), Service(4, kGas, 100), 5).equivalentFlow, 323.5, 0.4);
  EXPECT_NEAR(*RateBore(Table(), Service(0, kLiquid, 10), 5).equivalentFlow, 10, 0.005);
  EXPECT_FALSE(RateBore(Table(), Service(3, kLiquid, 10), 5).equivalentFlow);
}

// The usual (1 - alpha beta2)/(1 + alpha beta2), and 1 - beta.
TEST(IntegralPermanentLoss, ByGroup) {
  const double flowParameter = kAlpha[5] * std::pow(6.35 / 14, 2);
  EXPECT_NEAR(IntegralPermanentLoss(Table(), 1, 5, 1000),
              1000 * (1 - flowParameter) / (1 + flowParameter), 0.1);
  EXPECT_NEAR(IntegralPermanentLoss(Table(), 0, 5, 1000), 1000 * (1 - 6.35 / 14), 0.01);
  EXPECT_NEAR(IntegralPermanentLoss(Table(), 2, 6, 1000), 1000 * (1 - 8.636 / 13), 0.01);
}

}  // namespace
}  // namespace flow
