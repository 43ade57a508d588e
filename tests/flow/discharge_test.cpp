#include "flow/discharge.h"

#include <cmath>
#include <numbers>

#include "common/fault.h"
#include "tests/flow/sizing_fixture.h"
#include "tests/support/scripted_messages.h"

namespace flow {
namespace {

using common::RuntimeFault;

double Reynolds(double kgPerSecond, double metres, double pascalSecond) {
  return 4 * kgPerSecond / (std::numbers::pi * metres * pascalSecond);
}

// Independent implementation of ISO 5167: the "fluids" library of C. Bell (MIT licence),
// tests/test_flow_meter.py, D 73.91 mm; given to 16 digits. Venturi tubes: ISO 5167-4:2003, 5.5.2
// to 5.5.4; venturi nozzle ISO 5167-3:2003, 5.3.4.2, 0.9858 - 0.196 beta^4.5 with 0.5^4.5 =
// 0.0441942.
TEST(DischargeEquation, AgreesWithAnIndependentImplementation) {
  const double slow = Reynolds(0.124431876, 0.07391, 0.0000185861753095);
  const double fast = Reynolds(0.1, 0.07391, 1.8e-5);
  const struct {
    ElementType type;
    double reynolds, d, c;
  } rows[] = {{kCornerTapOrifice, slow, 22.2, 0.6000085121444034},
              {kDAndHalfDTapOrifice, slow, 22.2, 0.5988219225153976},
              {kFlangeTapOrifice, slow, 22.2, 0.5990042535666878},
              {kLongRadiusNozzle, fast, 42.2, 0.9805503704679863},
              {kIsaNozzle, fast, 42.2, 0.9635849973250495},
              {kAsCastVenturi, fast, 42.2, 0.984},
              {kMachinedVenturi, fast, 42.2, 0.995},
              {kWeldedVenturi, fast, 42.2, 0.985},
              {kVenturiNozzle, fast, 36.955, 0.9771379}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.type);
    const double beta = row.d / 73.91;
    const Coefficients found = DischargeEquation(row.type, row.reynolds, 73.91f).At(beta);
    // The pipe bore is a single-precision number; L1 of flange taps moves by 1e-9 with it.
    EXPECT_NEAR(*found.c, row.c, row.type == kVenturiNozzle ? 1e-7 : 1e-8);
    EXPECT_NEAR(found.alpha, *found.c / std::sqrt(1 - std::pow(beta, 4)), 1e-9);
  }
}

// ISO 5167-2:2003 5.3.2.1: at an infinite Reynolds number corner taps leave only
// 0.5961 + 0.0261 beta^2 - 0.216 beta^8; from 71.12 mm (2.8 inch) down the small pipe term comes
// in.
TEST(DischargeEquation, TapAndSmallPipeTermsVanishWhereTheStandardSaysSo) {
  const auto corner = [](double beta, float pipeBore) {
    return *DischargeEquation(kCornerTapOrifice, 1e300, pipeBore).At(beta).c;
  };
  for (const double beta : {0.1, 0.3, 0.5, 0.75}) {
    SCOPED_TRACE(beta);
    const double atInfinity = 0.5961 + 0.0261 * beta * beta - 0.216 * std::pow(beta, 8);
    const double corner100 = corner(beta, 100);
    const double tapTerm = (0.043 + 0.08 - 0.123) * std::pow(beta, 4) / (1 - std::pow(beta, 4));
    EXPECT_NEAR(corner100, atInfinity + tapTerm, 1e-12);
    EXPECT_EQ(corner(beta, 71.12f), corner100);
    EXPECT_NEAR(corner(beta, std::nextafter(71.12f, 0.f)), corner100, 1e-7);
    EXPECT_NEAR(corner(beta, 50.8f) - corner100, 0.011 * (0.75 - beta) * 0.8, 1e-8);
  }
}

// Hand calculation for D 100 mm, beta 0.5, Re 10^6: K0 = 0.5922 + 0.4252 (0.3871/2525.4 + 0.0625 +
// 1.25/65536) = 0.618848; B = 0.00025 + 0.002325 (0.5 + 0.109375 + 10/4096 + 7.874/65536) =
// 0.001673.
TEST(DischargeEquation, OfVenaContractaTapsFollowsAHandCalculation) {
  const struct {
    double reynolds, alpha;
  } rows[] = {{1e6, 0.618848 + 0.00167275}, {1e4, 0.618848 + 0.0167275}};
  for (const auto& row : rows) {
    const DischargeEquation equation(kVenaContractaTapOrifice, row.reynolds, 100);
    EXPECT_NEAR(equation.At(0.5).alpha, row.alpha, 1e-6);
  }
}

// Venturi tube of beta 0.6 at 60 bar with 0.5 bar, exponent 1.3: ISO/TR 11583, worked example,
// 0.994236. Orifice: "fluids", tests/test_flow_meter.py, checked there against the standard.
TEST(ExpansionFactor, MeetsWorkedExamples) {
  for (const ElementType type : {kIsaNozzle, kLongRadiusNozzle, kAsCastVenturi, kVenturiNozzle}) {
    EXPECT_NEAR(ExpansionFactor(type, 0.6, 0.5 / 60, 1.3), 0.994236, 5e-7);
  }
  for (const ElementType type : {kFlangeTapOrifice, kDAndHalfDTapOrifice, kCornerTapOrifice}) {
    EXPECT_NEAR(ExpansionFactor(type, 0.0222 / 0.0739, 0.01, 1.4), 0.9974739057343425, 1e-12);
  }
  // The older linear form at beta^4 = 0.0625, x = 0.14, exponent 1.4: 1 - 0.431875 / 10.
  EXPECT_NEAR(ExpansionFactor(kVenaContractaTapOrifice, 0.5, 0.14, 1.4), 0.9568125, 1e-12);
  // The same less 0.1 (1 - sqrt(0.81))^1.15 for exponent 2, x 0.19: 1 - 0.041028 - 0.1 * 0.070795.
  EXPECT_NEAR(QuarterCircleExpansion(0.5, 0.19, 2), 1 - 0.431875 * 0.095 - 0.0070795, 1e-7);
}

// S of the plate from C = 0.73823 + 0.3309 b - 1.1615 b^2 + 1.5084 b^3 (ISO/TR 15377, b 0.245 to
// 0.6); the linear interpolation between rows costs less than 0.02 %.
TEST(QuarterCircle, FollowsTheReportBetweenItsLimits) {
  for (const double beta : {0.245, 0.2475, 0.3, 0.3333, 0.4, 0.45, 0.5012, 0.55, 0.6}) {
    SCOPED_TRACE(beta);
    const double c = 0.73823 + 0.3309 * beta - 1.1615 * beta * beta + 1.5084 * beta * beta * beta;
    const double alpha = c / std::sqrt(1 - std::pow(beta, 4));
    const QuarterCircle plate = QuarterCircleFromBeta(ShippedTable(), beta, 100);
    EXPECT_NEAR(plate.alpha, alpha, 2e-4 * alpha);
    EXPECT_NEAR(plate.s, alpha * beta * beta, 2e-4 * plate.s);
  }
  // Handbook radii over d: 0.100 at 0.245, 0.114 at 0.4, 0.135 at 0.5, 0.209 at 0.6; within 1.2 %.
  const struct {
    double beta, radiusOverBore;
  } radii[] = {{0.245, 0.100}, {0.4, 0.114}, {0.5, 0.135}, {0.6, 0.209}};
  for (const auto& row : radii) {
    EXPECT_NEAR(QuarterCircleFromBeta(ShippedTable(), row.beta, 100).radius,
                100 * row.beta * row.radiusOverBore, 1.2 * row.beta * row.radiusOverBore);
  }
}

TEST(QuarterCircle, TakesTheLastPairAtTheEndOfTheTable) {
  const QuarterCircle end = QuarterCircleFromBeta(ShippedTable(), 0.7, 200);
  EXPECT_EQ(end.s, ShippedTable().tableS[100]);
  EXPECT_NEAR(end.radius, 200 * ShippedTable().tableRadius[100], 1e-9);
  EXPECT_THROW(QuarterCircleFromBeta(ShippedTable(), 0.706, 200), RuntimeFault);
  EXPECT_THROW(QuarterCircleFromBeta(ShippedTable(), 0.194, 200), RuntimeFault);
}

TEST(QuarterCircle, TellsSOutsideItsSpan) {
  const struct {
    double s0, x;
    int phase;
    bool failed;
    std::vector<std::string> texts;
  } rows[] = {
      {0.5031, 0, kGas, true, {"Ｓ(=0.5031)が大きすぎます。\n配管径又は差圧を大きくして下さい。"}},
      {0.0305, 0, kLiquid, false, {}},
      {0.503, 0, kLiquid, false, {}},
      // Inside, but not when divided by its expansion factor, by hand 0.8975 at beta 0.6985.
      {0.5, 0.25, kGas, false, {"Ｓ(=0.5571)が大きすぎます。\n配管径又は差圧を大きくして下さい。"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.s0);
    Context context = Service(kQuarterCircleOrifice, row.phase);
    tests::ScriptedMessages messages;
    const auto found = QuarterCircleFromS(context, ShippedTable(), row.s0, row.x, messages);
    EXPECT_EQ(context.calcFailed, row.failed);
    EXPECT_EQ(messages.Texts(), row.texts);
    ASSERT_EQ(found.has_value(), !row.failed);
    if (found) {
      EXPECT_EQ(found->beta > 0, row.texts.empty());
    }
  }
}

TEST(ReynoldsLimits, HaveEveryBranch) {
  const struct {
    ElementType type;
    double beta;
    float pipeBore;
    double reLow, reHigh;
  } rows[] = {
      {kFlangeTapOrifice, 0.6, 100, 170 * 0.36 * 100, 1e38},
      {kDAndHalfDTapOrifice, 0.56, 50, 5000, 1e38},
      {kDAndHalfDTapOrifice, 0.57, 50, 16000 * 0.3249, 1e38},
      // Vena contracta taps: 120 D up to beta 0.325, whatever the pipe; then rows and steps.
      {kVenaContractaTapOrifice, 0.325, 100, 12000, 1e6},
      {kVenaContractaTapOrifice, 0.3251, 100, 12000, 1e6},
      {kVenaContractaTapOrifice, 0.8, 50, 50000, 1e6},
      {kVenaContractaTapOrifice, 0.6, 125, 50000, 1e6},
      {kVenaContractaTapOrifice, 0.48, 125.01f, 50000, 1e7},
      {kVenaContractaTapOrifice, 0.58, 750, 200000, 1e7},
      {kVenaContractaTapOrifice, 0.8, 750, 500000, 1e7},
      {kVenaContractaTapOrifice, 0.5, 750.1f, 0, 1e7},
      // Quarter circle: rows are taken in steps of 0.2 of beta, run through in steps of 0.1.
      {kQuarterCircleOrifice, 0.29, 100, 200 + 0.9 * 204, 38000},
      {kQuarterCircleOrifice, 0.3, 100, 200, 20000},
      {kQuarterCircleOrifice, 0.45, 100, 404 + 0.5 * 2848, 50000},
      {kQuarterCircleOrifice, 1.0, 100, 19545, 70000},
      {kIsaNozzle, 0.4399, 100, 70000, 1e7},
      {kIsaNozzle, 0.44, 100, 20000, 1e7},
      {kLongRadiusNozzle, 0.5, 100, 10000, 1e7},
      {kAsCastVenturi, 0.5, 100, 200000, 2e6},
      {kVenturiNozzle, 0.5, 100, 150000, 2e6},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.type << " " << row.beta << " " << row.pipeBore);
    const ReynoldsRange range = ReynoldsLimits(ShippedTable(), row.type, row.beta, row.pipeBore);
    EXPECT_NEAR(range.reLow, row.reLow, 1e-9 * row.reLow);
    EXPECT_NEAR(range.reHigh, row.reHigh, 1e-9 * row.reHigh);
  }
}

// ISO 5167-2:2003 5.4.1 gives 1 - beta^1.9 as an approximation of its equation (7).
TEST(PermanentLoss, OfOrificesIsNearTheApproximationOfTheStandard) {
  for (const double beta : {0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75}) {
    for (const ElementType type : {kFlangeTapOrifice, kDAndHalfDTapOrifice, kCornerTapOrifice}) {
      EXPECT_NEAR(PermanentLoss(type, 100, 0.6, beta, 0.605) / 100, 1 - std::pow(beta, 1.9), 0.03);
    }
  }
}

TEST(PermanentLoss, HasItsFormForEachFamily) {
  const struct {
    ElementType type;
    double alpha, beta, c, loss;
  } rows[] = {
      // beta^4 = 0.0625, C = 0.6: R = sqrt(0.96), Q = 0.15.
      {kIsaNozzle, 0, 0.5, 0.6, 1000 * (std::sqrt(0.96) - 0.15) / (std::sqrt(0.96) + 0.15)},
      // Without a C the loss is the whole differential.
      {kVenaContractaTapOrifice, 0.62, 0.5, 0, 1000},
      {kQuarterCircleOrifice, 0.8, 0.5, 0, 1000 * 0.8 / 1.2},
      {kAsCastVenturi, 1, 0.3, 0.984, 85 * std::pow(0.3, -0.3463)},
      {kMachinedVenturi, 1, 0.7, 0.995, 100},
      {kVenturiNozzle, 1, 0.5, 0.98, 92.4 * std::pow(0.5, -0.7422)},
      {kVenturiNozzle, 1, 0.8, 0.98, 110},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.type << " " << row.beta);
    EXPECT_NEAR(PermanentLoss(row.type, 1000, row.alpha, row.beta, row.c), row.loss, 1e-9);
  }
}

TEST(DownstreamTapDistance, InterpolatesAndDrawsTheEndsOut) {
  const OrificeTable& table = ShippedTable();
  const struct {
    double beta, factor;
  } rows[] = {{0.1, 0.84}, {0.5, 0.64},   {0.525, 0.615}, {0.6, 0.54},
              {0.8, 0.31}, {0.82, 0.286}, {0.05, 0.85},   {-0.3, 0.92}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.beta);
    EXPECT_NEAR(DownstreamTapDistance(table, row.beta, 200), 200 * row.factor, 1e-9);
  }
  // A beta that is less than 1e-6 below a row counts as on it: the pair behind is drawn out.
  OrificeTable kink;
  kink.downstreamTapFactor[9] = 1e6;  // at 0.55, 0 elsewhere
  EXPECT_NEAR(DownstreamTapDistance(kink, 0.5 - 9e-7, 1), -18, 1e-6);
  EXPECT_EQ(DownstreamTapDistance(kink, 0.5 - 11e-7, 1), 0);
}

}  // namespace
}  // namespace flow
