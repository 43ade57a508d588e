#pragma once

#include <optional>

#include "common/real.h"
#include "flow/element.h"

namespace flow {

using common::Real;

/// What a restriction orifice is sized for, in the units of its equations; they are not SI.
struct RestrictionInputs {
  int fluidPhase = kLiquid;
  Real q;              // flow, kg/h
  Real p;              // upstream pressure, kgf/cm2 absolute
  Real dP;             // differential to be lost, kgf/cm2
  Real temperatureK;   // K; gas and steam
  Real normalDensity;  // kg/Nm3; gas and steam
  Real rho;            // density at operating conditions, kg/m3
  Real z = 1;          // compressibility factor; gas
  Real kappa;          // isentropic exponent; gas and steam

  Real pipeBore;         // D, mm
  Real thickness;        // t of the plate, mm
  Real youngsModulus;    // E, kgf/mm2
  Real allowableStress;  // kgf/mm2
};

/// A bore and how it was found.
struct RestrictionBore {
  Real bore;                         // d, mm
  Real coefficient;                  // C of a liquid, Cg of gas and steam
  std::optional<Real> backPressure;  // F, gas and steam
};

/// Bore for gas and steam by the ideal choked nozzle, d = sqrt(q / (Cg P sqrt(M / (Z T)))), widened
/// by the factor F where the flow is below the speed of sound (downstream over upstream pressure
/// from 0.528 on, whatever kappa is). F is rounded to 2 decimals before it is used. Raises a fault
/// for kappa 1, and for pressure, density or differential 0.
RestrictionBore GasRestriction(const RestrictionInputs& inputs);

/// Bore for a liquid: the discharge coefficient follows from thickness over bore, so that both are
/// found together. Raises a fault for a flow, density or differential of 0.
RestrictionBore LiquidRestriction(const RestrictionInputs& inputs);

/// Factor by which the choked bore grows when the flow does not choke: fourth root of the greatest
/// over the actual isentropic flow, squared. r: downstream over upstream pressure, both absolute; 1
/// below 0.528. Rounded to 2 decimals.
Real BackPressureFactor(Real r, Real kappa);

/// Discharge coefficient of a liquid by r = thickness over bore: from a thin plate (0.61) through a
/// short tube to a full one (1). Published values of thick plates end at about 0.8.
Real ThicknessCoefficient(Real r);

/// Coefficient K of the greatest deflection K p a^4 / (E t^3) of a plate clamped at its outer edge
/// with a free bore, by beta = d/D; 0 where the fitted curve turns negative and beyond beta 0.8.
/// Without a bore it is 0.1686 (theory of plates: 3/16 (1 - 0.3^2) = 0.1706).
Real DeflectionCoefficient(Real beta);

/// Coefficient k of the greatest stress k p a^2 / t^2 of the same plate. Below beta 0.168 it is the
/// tangential stress at the bore (theory without a bore: 3/8 (1 + 0.3) x 2 = 0.975), from there on
/// the radial stress at the clamped edge. Negative from 0.968 to 1.02.
Real StressCoefficient(Real beta);

/// Whether the greatest stress is the tangential one at the bore.
bool IsStressTangential(Real beta);

/// All numbers that a calculation shows.
struct RestrictionResult {
  RestrictionBore bore;
  Real beta;                   // d/D
  Real velocity;               // in the pipe upstream, m/s
  Real deflectionCoefficient;  // K
  Real stressCoefficient;      // k
  Real stress;                 // kgf/mm2
  Real minThickness;           // mm
  Real deflection;             // mm
  bool overstressed = false;   // stress above the allowable one
  bool overdeflected = false;  // deflection above 1 % of the height of the dam
};

/// One whole calculation. Raises a fault where an entry is missing or beta lies where the stress
/// coefficient is negative; a bore larger than the pipe is none.
RestrictionResult CalculateRestriction(const RestrictionInputs& inputs);

}  // namespace flow
