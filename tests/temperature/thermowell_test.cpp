#include "temperature/thermowell.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/number.h"
#include "tests/support/scripted_messages.h"

namespace temperature {
namespace {

constexpr double kPerMm2 = 1e6;  // kgf/m2 per kgf/mm2

/// A straight well of 16 mm in water in a pipe of 100 mm.
Thermowell Straight() {
  Thermowell well;
  well.totalLength = 0.3;
  well.insertionLength = 0.1;
  well.tipDiameter = well.rootDiameter = 0.016;
  well.bore = 0.009;
  well.tipThickness = 0.006;
  well.wellDensity = 7930;
  well.youngsModulus = 19700 * kPerMm2;
  well.allowableStress = 13.2 * kPerMm2;
  well.dampingRatio = 0.0005;
  well.stressConcentration = 2;
  well.density = 1000;
  well.viscosity = 1;
  well.volumeFlow = 60;
  well.pipeBore = 100;
  return well;
}

Thermowell Tapered() {
  Thermowell well = Straight();
  well.rootDiameter = 0.022;
  return well;
}

ThermowellFindings Findings(const Thermowell& well) {
  tests::ScriptedMessages messages;
  ThermowellFindings findings;
  EXPECT_TRUE(AnalyseThermowell(well, messages, findings));
  EXPECT_TRUE(messages.shown.empty());
  return findings;
}

// Euler-Bernoulli cantilever: f = (beta L)^2 / (2 pi L^2) sqrt(EI/m), beta L = 1.8751, 4.6941,
// 7.8548 (Blevins, Formulas for Natural Frequency and Mode Shape, table 8-1).
TEST(NaturalFrequency, OfAStraightWellIsThatOfACantilever) {
  const Thermowell well = Straight();
  const double pi = std::acos(-1.0);
  const double metal = 7930 * pi / 4 * (16e-3 * 16e-3 - 9e-3 * 9e-3);
  const double fluid = 1000 * pi / 4 * 16e-3 * 16e-3;
  const double stiffness = 19700e6 * 9.80665 * pi / 64 * (std::pow(16e-3, 4) - std::pow(9e-3, 4));
  const NaturalFrequencies found = CalcNaturalFrequencies(well);
  const double roots[] = {1.8751, 4.6941, 7.8548};
  for (std::size_t i = 0; i < 3; ++i) {
    const double f = roots[i] * roots[i] / (2 * pi * 0.09) * std::sqrt(stiffness / (metal + fluid));
    EXPECT_NEAR(found.hertz[i], f, 2e-4 * f);
  }
  EXPECT_EQ(found.method, FrequencyMethod::kCantilever);
}

/// Deflection of the tip of a bored cone under its own weight: integral of x M(x) / (E I(x)) from
/// the tip, by Simpson's rule. The bore counts in the stiffness over the whole length, in the
/// weight from the tip's thickness on.
double DeflectionByIntegration(const Thermowell& well) {
  const double pi = std::acos(-1.0);
  const double taper = (well.rootDiameter - well.tipDiameter) / well.totalLength;
  const double Dt = well.tipDiameter;
  const auto bending = [&](double x) {
    const double D = Dt + taper * x;
    const double inertia = pi / 64 * (std::pow(D, 4) - std::pow(well.bore, 4));
    const double hollow = x - well.tipThickness;
    const double moment =
        well.wellDensity * 9.80665 * pi / 4 *
        (Dt * Dt * x * x / 2 + Dt * taper * std::pow(x, 3) / 3 +
         taper * taper * std::pow(x, 4) / 12 - well.bore * well.bore * hollow * hollow / 2);
    return x * moment / (well.youngsModulus * 9.80665 * inertia);
  };
  constexpr int kSteps = 2000;
  const double h = well.totalLength / kSteps;
  double sum = bending(0) + bending(well.totalLength);
  for (int i = 1; i < kSteps; ++i) sum += bending(h * i) * (i % 2 == 0 ? 2 : 4);
  return sum * h / 3;
}

TEST(NaturalFrequency, OfATaperedWellFollowsItsStaticDeflection) {
  const struct {
    double tip, root, bore, thickness, length;
  } rows[] = {
      {16, 22, 9, 6, 300}, {19, 26, 7, 10, 450}, {22, 16, 9, 5, 200}, {16, 16.1, 9, 6, 300}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.tip << " to " << row.root);
    Thermowell well = Straight();
    well.tipDiameter = row.tip / 1000;
    well.rootDiameter = row.root / 1000;
    well.bore = row.bore / 1000;
    well.tipThickness = row.thickness / 1000;
    well.totalLength = row.length / 1000;
    const double deflection = DeflectionByIntegration(well);
    EXPECT_NEAR(CalcTaperFirstMode(well), deflection, 1e-5 * deflection);
    const NaturalFrequencies found = CalcNaturalFrequencies(well);
    EXPECT_NEAR(found.hertz[0], std::sqrt(9.80665 / deflection) / (2 * std::acos(-1.0)),
                1e-5 * found.hertz[0]);
    EXPECT_EQ(found.method, FrequencyMethod::kStaticDeflection);
    EXPECT_GT(found.hertz[1], found.hertz[0]);
  }
}

// By hand: V = 60/3600 / (pi/4 0.1^2) = 2.1221 m/s; 500 x 0.016 x 4.5032 x 1.2 = 43.231 N/m over
// 0.1 m on an arm of 0.25 m, 1.0808 N m, on 361.86 mm3: 2.9867 MPa = 0.30456 kgf/mm2.
TEST(Stress, OfTheDragAgreesWithHandCalculation) {
  const ThermowellFindings found = Findings(Straight());
  EXPECT_NEAR(*found.velocity, 2.1221, 1e-4);
  EXPECT_NEAR(*found.reynolds, 33953, 1);
  EXPECT_NEAR(*found.dragStress / kPerMm2, 0.30456, 2e-5);
  // Tapered: the wetted diameter is (16 + 18)/2 = 17 mm, and the root has 1016.1 mm3.
  EXPECT_NEAR(*Findings(Tapered()).dragStress / kPerMm2, 0.30456 * 17 / 16 * 361.86 / 1016.1, 2e-5);
}

// The square root of the response to a flat spectrum: four times the damping, half the stress; and
// the figure of the base case, worked out apart.
TEST(Stress, OfTheRandomForce) {
  Thermowell well = Straight();
  const double stress = *Findings(well).randomStress;
  EXPECT_NEAR(stress / kPerMm2, 7.1, 0.05);
  well.dampingRatio *= 4;
  EXPECT_NEAR(*Findings(well).randomStress, stress / 2, 1e-9 * stress);
  well.insertionLength = 0;
  EXPECT_EQ(*Findings(well).randomStress, 0);
  EXPECT_EQ(*Findings(well).dragStress, 0);
  EXPECT_EQ(Findings(well).fatigue, Fatigue::kNoStress);
}

// The spectrum has two branches, which do not meet at Vr 3.3: 4/(1 + 4 pi fr^2) and 0.007979/fr^4
// with fr = 1/Vr give 1.857 and 0.946, so that the stress steps down by their square root.
TEST(Stress, SpectrumChangesAtVr33) {
  const Thermowell well = Straight();
  const double velocity = 5;
  const double f = velocity / (3.3 * 0.016);
  const double below = CalcRandomStress(well, velocity, f, std::nextafter(3.3, 0));
  EXPECT_NEAR(CalcRandomStress(well, velocity, f, 3.3) / below, std::sqrt(0.946 / 1.857), 1e-3);
}

TEST(Stress, CombinesAtRightAnglesBetweenVr4And6) {
  for (const double vr : {0.5, 2.5, 3.8, std::nextafter(4.0, 0), 6.0, 7.0}) {
    EXPECT_EQ(CombinedStress(3, 4, vr), 7) << vr;
  }
  for (const double vr : {4.0, 5.0, std::nextafter(6.0, 0)}) {
    EXPECT_EQ(CombinedStress(3, 4, vr), 5) << vr;
  }
}

TEST(Judgement, OfTheFrequencyMargin) {
  const struct {
    double ratio;
    FrequencyMargin margin;
  } rows[] = {{0.6994, FrequencyMargin::kBelow}, {0.6996, FrequencyMargin::kNear},
              {1.0, FrequencyMargin::kNear},     {1.3, FrequencyMargin::kNear},
              {1.3004, FrequencyMargin::kNear},  {1.3006, FrequencyMargin::kAbove}};
  for (const auto& row : rows) EXPECT_EQ(MarginOf(100 * row.ratio, 100), row.margin) << row.ratio;
  EXPECT_EQ(MarginOf(100, 0), FrequencyMargin::kAbove);
}

TEST(Judgement, OfLockIn) {
  const struct {
    double vr, cn;
    bool avoided;
  } rows[] = {{0.999, 0, true}, {1.0, 2.5, false},  {1.0, 2.501, true}, {3.299, 2.501, true},
              {3.3, 64, false}, {3.3, 64.01, true}, {9, 2.501, false},  {9, 65, true}};
  for (const auto& row : rows) {
    EXPECT_EQ(AvoidsLockIn(row.vr, row.cn), row.avoided) << row.vr << " " << row.cn;
  }
}

TEST(Judgement, OfTheKindOfVibration) {
  using enum VibrationMode;
  const struct {
    double limit;
    VibrationMode below, at;
  } rows[] = {{1.25, kTakenAsDrag, kSymmetricVortices},
              {2.5, kSymmetricVortices, kAlternateDrag},
              {3.8, kAlternateDrag, kTakenAsDrag},
              {4, kTakenAsDrag, kAlternateLift},
              {6, kAlternateLift, kTakenAsDrag}};
  for (const auto& row : rows) {
    EXPECT_EQ(ModeOf(std::nextafter(row.limit, 0)), row.below) << row.limit;
    EXPECT_EQ(ModeOf(row.limit), row.at) << row.limit;
  }
}

// The bending limit belongs to the allowed side with the whole allowable stress and without Kt, the
// fatigue limit likewise with half of it and with Kt.
TEST(Judgement, OfBendingAndFatigueAtTheirLimits) {
  Thermowell well = Straight();
  const ThermowellFindings found = Findings(well);
  const double random = *found.randomStress;
  well.allowableStress = *found.dragStress + *found.randomStress;
  EXPECT_TRUE(Findings(well).bending->passed);
  well.allowableStress *= 1 - 1e-12;
  EXPECT_FALSE(Findings(well).bending->passed);
  EXPECT_TRUE(Findings(well).bending->withRandomForce);
  well.allowableStress = 4 * random;
  EXPECT_EQ(Findings(well).fatigue, Fatigue::kPassed);
  well.allowableStress *= 1 - 1e-12;
  EXPECT_EQ(Findings(well).fatigue, Fatigue::kExceeded);
}

TEST(Judgement, HasNoFatigueFromVr5On) {
  Thermowell well = Straight();
  const ThermowellFindings slow = Findings(well);
  well.volumeFlow = 60 * 5.01 / (*slow.reducedVelocity)[0];
  tests::ScriptedMessages messages;
  ThermowellFindings found;
  EXPECT_TRUE(AnalyseThermowell(well, messages, found));
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text,
            "ﾗﾝﾀﾞﾑ励振力の計算は、\nＶr＞５ 以上の領域に対応していません。");
  EXPECT_EQ(messages.shown[0].title, "ﾗﾝﾀﾞﾑ励振力");
  EXPECT_EQ(found.fatigue, Fatigue::kNotRated);
  EXPECT_FALSE(found.bending->withRandomForce);
  EXPECT_FALSE(*found.lockInAvoided);
}

// Drag of a cylinder of finite length at Re 1e5 (White, Fluid Mechanics, table 7.3), of an endless
// one at low Re (Lamb: 8 pi / Re / (2.002 - ln Re)), and beyond the drag crisis.
TEST(Vortices, DragCoefficient) {
  const struct {
    double ratio, drag;
  } rows[] = {{1, 0.64}, {2, 0.68}, {3, 0.72}, {5, 0.74}, {10, 0.82}, {20, 0.91}, {40, 0.98}};
  for (const auto& row : rows) {
    EXPECT_NEAR(CylinderDrag(1e5, row.ratio, 1).value, row.drag, 0.025) << row.ratio;
  }
  EXPECT_NEAR(CylinderDrag(0.1, 10, 1).value, 58.39, 0.01);
  EXPECT_EQ(CylinderDrag(399999, 1001, 1).value, 1.2);
  EXPECT_NEAR(CylinderDrag(400000, 10, 1).value, 0.28, 0.005);
  EXPECT_EQ(CylinderDrag(1e7, 0.5, 1).value, 0.8);
  EXPECT_EQ(CylinderDrag(1e7, 0.5, 1).lengthRatio, 0.5);
  EXPECT_EQ(CylinderDrag(1e5, 0.5, 1).lengthRatio, 1);
}

// At Re 50, where shedding begins, Roshko (NACA 1191): 0.212 (1 - 21.2/50) = 0.122.
TEST(Vortices, StrouhalNumberByReynoldsNumber) {
  const struct {
    double re, st, tolerance;
  } rows[] = {{49.9, 0, 0},     {50, 0.122, 0.003}, {100, 0.16, 0.01},  {1000, 0.21, 0.01},
              {1e4, 0.2, 0.01}, {300001, 0.46, 0},  {1999999, 0.46, 0}, {2e6, 0.28, 0}};
  for (const auto& row : rows)
    EXPECT_NEAR(SheddingStrouhal(row.re), row.st, row.tolerance) << row.re;
}

// By hand: 1000 x 2 x 0.25 / 0.001 = 5e5; core 5e5 / 801000 x 0.25 = 0.156055 m; 2 pi x 0.156055 x
// 2 = 1.96104 m/s up to the impeller's radius of 0.25 m, and beyond x (0.156055 / 0.4)^0.8.
TEST(Vortices, VelocityInAStirredTank) {
  Thermowell well = Straight();
  well.installKind = kInTank;
  well.impellerSpeed = 2;
  well.impellerDiameter = 0.5;
  well.tankDiameter = 0.7;
  EXPECT_NEAR(*TankVelocity(well), 1.96104, 1e-5);
  well.tankDiameter = 1.0;
  EXPECT_NEAR(*TankVelocity(well), 0.92355, 1e-5);
  well.tankDiameter = 0.2;
  EXPECT_NEAR(*TankVelocity(well), 1.96104, 1e-5);  // the tip is just at the centre
  well.tankDiameter = 0.199;
  tests::ScriptedMessages messages;
  ThermowellFindings found;
  EXPECT_FALSE(AnalyseThermowell(well, messages, found));
  EXPECT_EQ(messages.Texts(),
            std::vector<std::string>{"保護管挿入部先端が、攪拌槽の中心を越えているので\n"
                                     "                    計算できません"});
  EXPECT_FALSE(found.velocity);
}

TEST(Analysis, RefusesImpossibleGeometry) {
  const std::string wide = "保護管の内径が大きすぎます\n　データを見直してください";
  const struct {
    Real Thermowell::*field;
    double value;
    std::string text;
  } rows[] = {{&Thermowell::insertionLength, 0.301,
               "保護管の挿入長が、保護管の全長を越えています\n"
               "                データを見直してください"},
              {&Thermowell::bore, 0.016, wide},
              {&Thermowell::rootDiameter, 0.009, wide}};
  for (const auto& row : rows) {
    Thermowell well = Straight();
    well.*row.field = row.value;
    tests::ScriptedMessages messages;
    ThermowellFindings found;
    EXPECT_FALSE(AnalyseThermowell(well, messages, found));
    EXPECT_EQ(messages.Texts(), std::vector<std::string>{row.text});
  }
}

/// What a faulty entry leaves: everything that comes before it.
TEST(Analysis, FaultsEndItWhereTheyStand) {
  using common::Fault;
  const auto run = [](Real Thermowell::*field, Fault expected) {
    Thermowell well = Tapered();
    well.*field = 0;
    tests::ScriptedMessages messages;
    ThermowellFindings found;
    try {
      AnalyseThermowell(well, messages, found);
      ADD_FAILURE() << "no fault";
    } catch (const common::RuntimeFault& fault) {
      EXPECT_EQ(fault.Number(), expected);
    }
    EXPECT_FALSE(found.bending);
    EXPECT_EQ(found.fatigue, Fatigue::kNotReached);
    return found;
  };
  const auto noFlow = run(&Thermowell::volumeFlow, Fault::kInvalidArgument);
  EXPECT_EQ(noFlow.margin, FrequencyMargin::kAbove);
  EXPECT_EQ(noFlow.lockInAvoided, true);
  EXPECT_FALSE(noFlow.drag);
  const auto noViscosity = run(&Thermowell::viscosity, Fault::kDivisionByZero);
  EXPECT_TRUE(noViscosity.velocity);
  EXPECT_FALSE(noViscosity.reynolds);
  EXPECT_FALSE(run(&Thermowell::pipeBore, Fault::kDivisionByZero).velocity);
  EXPECT_FALSE(run(&Thermowell::bore, Fault::kDivisionByZero).natural);
  const auto noDamping = run(&Thermowell::dampingRatio, Fault::kDivisionByZero);
  EXPECT_TRUE(noDamping.dragStress);
  EXPECT_FALSE(noDamping.randomStress);
}

TEST(Analysis, CurveOfSheddingPassesThroughTheEnteredFlow) {
  const auto curve = SheddingCurve(Straight(), 1.25, 100);
  ASSERT_EQ(curve.size(), 101u);
  EXPECT_EQ(curve.front().vortexFrequency, 0);
  EXPECT_NEAR(curve[80].ratio, 1, 1e-12);
  EXPECT_NEAR(curve[80].vortexFrequency, *Findings(Straight()).vortexFrequency, 1e-9);
}

}  // namespace
}  // namespace temperature
