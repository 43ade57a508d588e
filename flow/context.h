#pragma once

#include <string>

#include "common/real.h"
#include "flow/element.h"

namespace flow {

using common::Real;

/// The one calculation that a sizing sheet works on. The units are those on which the constants of
/// the equations rest; they are not SI. The sheet fills the inputs anew for every calculation and
/// keeps the context for its own life, because `c` outlives a calculation.
struct Context {
  ElementType elementType = kFlangeTapOrifice;
  int fluidPhase = kLiquid;
  bool boreToDifferential = false;  // bore known, differential wanted; else the other way round

  Real p;              // upstream pressure, kgf/cm2 absolute
  Real t;              // operating temperature, degC
  Real rho;            // density at operating conditions, kg/m3
  Real mu;             // viscosity at operating conditions, cP
  Real kappa;          // isentropic exponent; not used for liquids
  float pipeBore = 0;  // D at t, mm; single precision in every formula
  Real pipeBore20;     // D as entered, at 20 degC, mm
  Real bore;           // d at t, mm; not used for the differential to bore way
  Real dP;             // differential at qMax, mmH2O; not used for the other way
  Real qMax;           // maximum scale flow, kg/h
  Real qNor;           // normal flow, kg/h
  Real aElem;          // linear expansion of the element, 1/degC

  bool calcFailed = false;
  /// "" or "（外挿計算）", printed behind the element's name when the user went on outside the
  /// limits of use.
  std::string extrapolationMark;
  /// Discharge coefficient of the latest evaluation that had one, also of an earlier calculation
  /// or another element; 0 on a fresh sheet. The loss of vena contracta taps reads it.
  Real c;

  bool Liquid() const { return fluidPhase == kLiquid; }

  /// d/D. Raises a division fault for an empty pipe bore, which a sheet provokes on reading, before
  /// any question about the pipe.
  Real Beta() const { return bore / Real(pipeBore); }
};

/// Pipe bore at temperature in single precision: D20 (1 + a (T - 20)), mm, a in 1/degC.
float PipeBoreAtTemperature(Real pipeBore20, Real aPipe, Real t);

/// Bore of the element at temperature: d20 (1 + a (T - 20)), mm, a in 1/degC.
Real BoreAtTemperature(Real bore20, Real aElem, Real t);

}  // namespace flow
