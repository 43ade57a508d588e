#include "piping/pressure_loss.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/fault.h"
#include "data/steam.h"

namespace piping {
namespace {

constexpr double kPascal = 98066.5;    // Pa in 1 kgf/cm2
constexpr double kLbfFt2 = 47.880259;  // Pa
constexpr double kFoot = 0.3048;       // m

/// kg/h of a mean velocity in m/s through a bore in mm.
double MassFlow(double velocity, double bore, double density) {
  return velocity * density * 3600 * std::acos(-1.0) / 4 * bore * bore * 1e-6;
}

/// 100 m of 4 in pipe with 4 t/h of air at 6.13 kgf/cm2 and 20 degC.
Line Air() {
  Line line;
  line.fluidPhase = data::kGas;
  line.pressureAbs = 6.13;
  line.temperatureK = 293.15;
  line.densityFlow = 7.145;
  line.viscosityCp = 0.0182;
  line.massFlow = 4000;
  line.innerDiameter = 102.3;
  line.roughness = 0.05;
  line.pipeLength = 100;
  return line;
}

Line Steam() {
  Line line = Air();
  line.fluidPhase = data::kSteam;
  line.pressureAbs = 10.2;
  line.temperatureK = 473.15;
  line.densityFlow = data::SteamDensity(10.2, 473.15);
  line.viscosityCp = 0.0159;
  return line;
}

// White, Fluid Mechanics: smooth pipes (table below equation 6.39) and fully rough ones (below
// 6.48), to the figures printed there; 2.52 and 3.71 move the fourth decimal by one at most.
TEST(FrictionFactor, AgreesWithPublishedTables) {
  const struct {
    double reynolds, relativeRoughness, lambda;
  } rows[] = {{4000, 0, 0.0399},    {1e4, 0, 0.0309},      {1e5, 0, 0.0180},
              {1e6, 0, 0.0116},     {1e7, 0, 0.0081},      {1e8, 0, 0.0059},
              {1e9, 1e-5, 0.00806}, {1e9, 0.0001, 0.0120}, {1e8, 0.001, 0.0196},
              {1e8, 0.01, 0.0379},  {1e8, 0.05, 0.0716}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.reynolds << " " << row.relativeRoughness);
    EXPECT_NEAR(FrictionFactor(row.reynolds, row.relativeRoughness * 100, 100), row.lambda, 1.5e-4);
  }
}

// The equation itself, solved by bisection to the last digit.
TEST(FrictionFactor, SolvesItsEquationToTheLastDecimal) {
  for (double reynolds = 3000; reynolds < 2e12; reynolds *= 3.7) {
    for (const double roughness : {0.0, 1e-6, 1e-4, 0.003, 0.05, 0.5}) {
      double low = 0.5;
      double high = 60;
      for (int i = 0; i < 200; ++i) {
        const double x = (low + high) / 2;
        const double f = x + 2 * std::log10(roughness / 3.71 + 2.52 / reynolds * x);
        (f < 0 ? low : high) = x;
      }
      SCOPED_TRACE(testing::Message() << reynolds << " " << roughness);
      EXPECT_NEAR(FrictionFactor(reynolds, roughness * 80, 80), 1 / (low * low), 6e-5);
    }
  }
}

TEST(FrictionFactor, IsLaminarTo3000) {
  EXPECT_NEAR(FrictionFactor(1000, 0.05, 100), 0.064, 1e-9);
  EXPECT_NEAR(FrictionFactor(2999.9, 0.05, 100), 0.0213, 1e-9);
  EXPECT_NEAR(FrictionFactor(3000, 0, 100), 0.0436, 1.01e-4);
}

// Worked examples of textbooks: velocity in ft/s, bore and roughness in ft, length in ft, density
// in lbm/ft3, viscosity in cP; loss in lbf/ft2.
TEST(CalculateLineLoss, AgreesWithWorkedExamples) {
  constexpr double kLbmFt3 = 16.018463;
  constexpr double kPoundFootSecond = 1488.164;  // cP
  const struct {
    const char* source;
    double velocity, bore, roughness, length, density, viscosity, reynolds, lambda, loss, tolerance;
  } rows[] = {
      // The chart is read as 0.02; the equation gives 0.0198.
      {"White, Fluid Mechanics, example 6.6", 6, 0.5, 0.0004, 200, 62.4,
       0.00069 * kPoundFootSecond * 62.4 / 62.4, 271304, 0.0198, 280, 0.02},
      {"Cengel and Cimbala, Fluid Mechanics, example 8-2", 3, 0.01, 0, 30, 62.42,
       1.038e-3 * kPoundFootSecond, 1803, 0.0355, 929, 0.005},
      {"Cengel and Cimbala, Fluid Mechanics, example 8-4", 9.17, 2.0 / 12, 0.000007, 200, 62.36,
       7.536e-4 * kPoundFootSecond, 126400, 0.0174, 1700, 0.006},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.source);
    Line line;
    line.pressureAbs = 5;
    line.innerDiameter = row.bore * kFoot * 1000;
    line.roughness = row.roughness * kFoot * 1000;
    line.pipeLength = row.length * kFoot;
    line.densityFlow = row.density * kLbmFt3;
    line.viscosityCp = row.viscosity;
    line.massFlow = MassFlow(row.velocity * kFoot, line.innerDiameter, line.densityFlow);
    const auto loss = CalculateLineLoss(line);
    ASSERT_TRUE(loss);
    EXPECT_NEAR(loss->velocityIn, row.velocity * kFoot, 1e-4);
    EXPECT_EQ(loss->velocityIn, loss->velocityOut);
    EXPECT_NEAR(loss->reynolds, row.reynolds, 2e-3 * row.reynolds);
    EXPECT_NEAR(loss->frictionFactor, row.lambda, 1.01e-4);
    EXPECT_NEAR(loss->totalLoss * kPascal, row.loss * kLbfFt2, row.tolerance * row.loss * kLbfFt2);
    EXPECT_EQ(loss->pressures.size(), 2U);
  }
}

// Borda-Carnot: a sudden enlargement loses (V1 - V2)^2/2g; Weisbach's contraction the velocity head
// behind it. The polynomial is for the sheet's contraction alone.
TEST(CalculateLineLoss, RatesTheEndsByTheirVelocities) {
  Line line;
  line.pressureAbs = 10;
  line.densityFlow = 1000;
  line.viscosityCp = 1;
  line.innerDiameter = 100;
  line.massFlow = MassFlow(2, 100, 1000);
  const auto head = [](double velocity) { return velocity * velocity / 19.6 * 0.1; };
  line.inlet = {2, 180};   // into the pipe from half its bore: 8 m/s to 2
  line.outlet = {2, 180};  // from the pipe into twice its bore: 2 m/s to 0.5
  auto loss = CalculateLineLoss(line);
  EXPECT_NEAR(loss->inletLoss, head(6), 1e-6);
  EXPECT_NEAR(loss->outletLoss, head(1.5), 1e-6);
  EXPECT_NEAR(loss->totalLoss, head(6) + head(1.5), 2e-6);
  line.inletType = kProjectingInlet;
  line.inlet = {0.01, 180};
  line.outlet = {0.5, 180};  // 2 m/s to 8
  loss = CalculateLineLoss(line);
  EXPECT_NEAR(loss->inletLoss, head(2), 1e-6);
  EXPECT_NEAR(loss->outletLoss, loss->outletZeta * head(8), 1e-5);
}

// A gas leaves at the velocity of the last step, but at the density of the inlet.
TEST(CalculateLineLoss, RatesTheOutletOfAGasByTheDensityOfTheInlet) {
  Line line = Air();
  line.outlet = {1000, 180};
  const auto loss = CalculateLineLoss(line);
  const double v = loss->velocityOut;
  EXPECT_NEAR(loss->outletLoss, v * v / 19.6 * line.densityFlow / 10000, 1e-5);
  EXPECT_GT(v, 1.01 * loss->velocityIn);
}

// Shapiro, Compressible Fluid Flow, chapter 6: an isothermal flow ends at kappa Ma^2 = 1, that is
// V = sqrt(R T): 290.1 m/s for air at 20 degC.
TEST(CalculateLineLoss, TellsAFlowThatNoPipeCarries) {
  for (const double velocity : {200.0, 288.0, 292.0}) {
    SCOPED_TRACE(velocity);
    Line line = Air();
    line.pipeLength = 0.001;
    line.massFlow = MassFlow(velocity, line.innerDiameter, line.densityFlow);
    EXPECT_EQ(CalculateLineLoss(line)->choked, velocity > 290.1);
    line.fluidPhase = data::kLiquid;
    EXPECT_FALSE(CalculateLineLoss(line)->choked);
  }
}

Line With(Line line, Real Line::*field, double value) {
  line.*field = value;
  return line;
}

Line WithEnds(double inlet, double outlet) {
  Line line = Air();
  line.inlet = {inlet, 180};
  line.outlet = {outlet, 180};
  return line;
}

TEST(CalculateLineLoss, StopsWhereTheLossExceedsThePressure) {
  Line liquid = Air();
  liquid.fluidPhase = data::kLiquid;
  Line belowVacuum = Air();  // the density of a gas has the sign of its pressure
  belowVacuum.pressureAbs = -belowVacuum.pressureAbs;
  belowVacuum.densityFlow = -belowVacuum.densityFlow;
  const Line rows[] = {
      With(Air(), &Line::pipeLength, 2000),         With(Steam(), &Line::pipeLength, 4000),
      With(liquid, &Line::pipeLength, 4000),        With(WithEnds(5, 1), &Line::pipeLength, 0),
      With(WithEnds(1, 0.1), &Line::pipeLength, 1), With(liquid, &Line::pressureAbs, 0),
      With(belowVacuum, &Line::pipeLength, 1)};
  EXPECT_TRUE(CalculateLineLoss(Air()));
  for (std::size_t i = 0; i < std::size(rows); ++i) EXPECT_FALSE(CalculateLineLoss(rows[i])) << i;
  // A loss that is all of the pressure does not exceed it. That of a liquid is the same at any.
  liquid.pressureAbs = CalculateLineLoss(liquid)->totalLoss;
  EXPECT_TRUE(CalculateLineLoss(liquid));
  liquid.pressureAbs = std::nextafter(static_cast<double>(liquid.pressureAbs), 0);
  EXPECT_FALSE(CalculateLineLoss(liquid));
}

TEST(CalculateLineLoss, EndsInAFaultWithoutAFlow) {
  const Line rows[] = {
      With(Air(), &Line::innerDiameter, 0),
      With(Air(), &Line::massFlow, 0),
      With(Air(), &Line::viscosityCp, 0),
      With(Air(), &Line::densityFlow, 0),
      With(Air(), &Line::densityFlow, -1),
      With(With(Steam(), &Line::temperatureK, 640), &Line::pressureAbs, 260),  // behind its pole
      With(With(Steam(), &Line::massFlow, 1e-3), &Line::pressureAbs, 1e-4)};   // to no density
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_THROW(CalculateLineLoss(rows[i]), common::RuntimeFault) << i;
  }
}

TEST(FittingLoss, CountsInSinglePrecision) {
  PressLossTable table;
  table.fittingTable[0].zeta = 0.35F;
  table.fittingTable[9].zeta = 2;
  EXPECT_NEAR(FittingLoss(table, {1, 0, 0, 0, 0, 0, 0, 0, 0, 0.5}), 1.35, 1e-9);
  // 0.35 * 0.7 is 0.245 in decimals and rounds up; 0.349999994 * 0.7 does not.
  EXPECT_NEAR(FittingLoss(table, {0.7, 0, 0, 0, 0, 0, 0, 0, 0, 0}), 0.24, 1e-9);
}

}  // namespace
}  // namespace piping
