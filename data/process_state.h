#pragma once

#include "common/real.h"

namespace data {

using common::Real;

/// Fluid kinds, as in the list of every sheet.
enum FluidPhase { kLiquid = 0, kGas = 1, kSteam = 2 };

/// Bases of a humid gas flow.
enum FlowBasis { kWetBase = -1, kDryBase = 0 };

/// Working values of the calculation in hand, in the fixed units on which the constants of the
/// calculators depend. The unit indices are positions in the unit lists of the sheets; every
/// routine that converts says what its indices mean.
struct ProcessState {
  int fluidPhase = kLiquid;

  Real pressureAbs;           // kgf/cm2 absolute
  Real differentialPressure;  // mmH2O
  Real temperatureC;          // degC
  Real temperatureK;          // K, always temperatureC + 273.15
  Real densityBase;           // kg/m3; gas kg/m3 at 0 degC and 1.03323 kgf/cm2
  Real densityFlow;           // kg/m3 at flow conditions
  Real viscosityCp;           // cP (mPa s)
  Real saturationPressure;    // of water vapour, kgf/cm2 absolute
  Real vapourPressure;        // of a liquid, kgf/cm2 absolute
  Real compressibilityZ = 1;  // deviation factor, no unit
  Real relativeHumidity;      // percent; set it through common::Single
  Real waterVapourDensity;    // saturated, at temperatureC, kg/m3
  int flowBasis = kWetBase;   // what a gas flow counts
  Real pipeInnerDiameter;     // mm

  int flowUnit = 0;
  int pressureUnit = 0;
  int diffPressureUnit = 0;
  int temperatureUnit = 0;
  int densityUnit = 0;
  int viscosityUnit = 0;
  int saturationPressureUnit = 0;
  int vapourPressureUnit = 0;
};

}  // namespace data
