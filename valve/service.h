#pragma once

#include "data/process_state.h"

namespace valve {

using common::Real;

/// Process conditions of a control valve in the units on which the constants of its equations
/// depend. Pressures are absolute.
struct Service {
  int fluidPhase = data::kLiquid;
  Real w;                  // mass flow, kg/h
  Real p1;                 // inlet, kgf/cm2
  Real p2;                 // outlet, kgf/cm2
  Real dP;                 // p1 - p2, kgf/cm2
  Real t;                  // degC
  Real tk;                 // K
  Real superheat;          // steam, K above saturation; 0 when it counts as saturated
  bool saturated = false;  // steam less than 2 K above saturation, or below it
  Real rho;      // liquid, steam: kg/m3 at operating conditions; gas: kg/m3 at 0 degC, 1 atm
  Real rho1;     // kg/m3 at operating conditions
  Real mu;       // viscosity, cP
  Real pv;       // vapour pressure of a liquid, kgf/cm2
  Real pc;       // critical pressure of a liquid, kgf/cm2
  Real k = 1.4;  // specific heat ratio; gas and steam

  /// Ratio of the specific heat ratio to that of air.
  Real Fk() const { return k / 1.4; }
  /// Specific gravity: of a liquid to water of 1000 kg/m3, of a gas to air at 0 degC and 1 atm.
  Real SpecificGravity() const;
};

/// Differential pressure in kgf/cm2 of an entry in the list of pressure units. The gauge units go
/// through the conversion to absolute pressure and lose the atmosphere again; mmHg (index 4) has
/// none. The order of the two steps decides the last digits, and so the tests for exact limits.
Real DifferentialOf(Real value, int unit);

/// Sets superheat and `saturated` of steam from its saturation temperature in degC. Less than 2 K
/// counts as saturated, also when it lies below the saturation line.
void SetSuperheat(Service& service, Real saturationTemperature);

}  // namespace valve
