#include "flow/restriction_orifice.h"

#include "common/number.h"
#include "data/units.h"
#include "flow/rounds.h"

namespace flow {

using common::abs;
using common::kSinglePi;
using common::pow;
using common::RoundDigits;
using common::sqrt;

namespace {

/// Pressure ratio from which on the flow does not choke: that of kappa 1.4, taken for all gases.
constexpr double kCriticalRatio = 0.528;

/// Mean velocity in a pipe in m/s: q kg/h, rho kg/m3, D mm.
Real PipeVelocity(Real q, Real rho, Real D) {
  return ((q / rho) * 4 / kSinglePi / pow(D / 1000, 2)) / 3600;
}

}  // namespace

Real BackPressureFactor(Real r, Real kappa) {
  if (r < kCriticalRatio) return 1;
  const Real A = pow(2 / (kappa + 1), 2 / (kappa - 1));
  const Real B = (kappa - 1) / (kappa + 1);
  const Real G = pow(r, 2 / kappa);
  const Real H = pow(r, (kappa + 1) / kappa);
  return RoundDigits(pow((A * B) / (G - H), 0.25), 2);
}

RestrictionBore GasRestriction(const RestrictionInputs& inputs) {
  // Flow in kg/h from d2 in mm2, kgf/cm2 and K. The ideal nozzle has 3.041; this is a discharge
  // coefficient of 0.921.
  constexpr double kChokedFlow = 2.8;
  const Real kappa = inputs.kappa;
  const Real Cg = kChokedFlow * sqrt(kappa * pow(2 / (kappa + 1), (kappa + 1) / (kappa - 1)));
  const Real M = data::kMolarVolume * inputs.normalDensity;
  const Real choked = sqrt(inputs.q / (Cg * inputs.p * sqrt(M / inputs.z / inputs.temperatureK)));
  const Real r = (inputs.p - inputs.dP) / inputs.p;
  const Real F = BackPressureFactor(r, kappa);
  return {choked * F, Cg, F};
}

Real ThicknessCoefficient(Real r) {
  if (r < 0.1) return 0.61;
  if (r < 0.9) return 1.285 * pow(r, 3) - 2.15 * pow(r, 2) + 1.21 * r + 0.516;
  if (r < 1) return 2 * r - 1;
  return 1;
}

RestrictionBore LiquidRestriction(const RestrictionInputs& inputs) {
  // Start and loop have different constants, and both are meant: 40.3 / sqrt(1000) is 1.2744, and
  // where two bores satisfy the equations the start decides which one is found. SI gives 1.2522.
  constexpr double kStartConstant = 40.3;      // density in g/cm3
  constexpr double kLoopConstant = 1.2649111;  // density in kg/m3
  constexpr double kSettled = 0.0001;
  const Real q = inputs.q;
  const Real rho = inputs.rho;
  const Real dP = inputs.dP;
  Real C = 0.8;
  Real d = sqrt(q / (kStartConstant * C * sqrt((rho / 1000) * dP)));
  Real previous;
  Rounds rounds;
  do {
    rounds.Next();
    previous = d;
    C = ThicknessCoefficient(inputs.thickness / d);
    d = sqrt(q / (kLoopConstant * C * sqrt(rho * dP)));
  } while (abs(previous / d - 1) >= kSettled);
  return {d, C, std::nullopt};
}

Real DeflectionCoefficient(Real beta) {
  if (beta > 0.8) return 0;
  const Real K = 1.4394 * pow(beta, 3) - 1.8268 * pow(beta, 2) + 0.3321 * beta + 0.1686;
  return K < 0 ? Real(0) : K;
}

bool IsStressTangential(Real beta) { return beta < 0.168; }

Real StressCoefficient(Real beta) {
  if (IsStressTangential(beta)) {
    return 0.0991 * pow(beta, 3) + 0.5052 * pow(beta, 2) - 1.6054 * beta + 0.995;
  }
  return 2.8114 * pow(beta, 3) - 5.0119 * pow(beta, 2) + 1.6278 * beta + 0.5704;
}

RestrictionResult CalculateRestriction(const RestrictionInputs& inputs) {
  const Real D = inputs.pipeBore;
  const Real t = inputs.thickness;
  const Real allowable = inputs.allowableStress;
  RestrictionResult result;
  result.bore = inputs.fluidPhase == kLiquid ? LiquidRestriction(inputs) : GasRestriction(inputs);
  result.velocity = PipeVelocity(inputs.q, inputs.rho, D);
  result.beta = result.bore.bore / D;
  const Real p = inputs.dP / 100;  // kgf/mm2
  const Real a = D / 2;
  const Real K = DeflectionCoefficient(result.beta);
  const Real k = StressCoefficient(result.beta);
  result.deflectionCoefficient = K;
  result.stressCoefficient = k;
  result.stress = k * p * pow(a, 2) / pow(t, 2);
  result.overstressed = result.stress > allowable;
  // Rounded, and a tenth more: a margin of at least half a tenth.
  result.minThickness = RoundDigits(a * sqrt(k * p / allowable), 1) + 0.1;
  result.deflection = K * p * pow(a, 4) / (inputs.youngsModulus * pow(t, 3));
  const Real dam = (D - result.bore.bore) / 2;
  result.overdeflected = result.deflection > dam * 0.01;
  return result;
}

}  // namespace flow
