#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "common/messages.h"
#include "data/process_state.h"

namespace data {

// Water and steam by closed formulas, pressures in kgf/cm2 absolute. Where nothing else is told a
// routine raises the arithmetic fault that its event handler shows.

/// Coefficients a, b, c, d of five regions of the superheated steam viscosity.
struct SteamViscosityTable {
  std::vector<std::array<float, 4>> rows;

  bool Empty() const { return rows.empty(); }
};

/// Reads 5 x 4 numbers from CP932 bytes. False, with the table left empty, when one is missing,
/// left over or no number.
bool ReadSteamViscosityTable(std::string bytes, SteamViscosityTable& table);

/// Saturation pressure of water in kgf/cm2 absolute: a polynomial of the logarithm below 71 degC,
/// which yields mmHg and takes its divisor from the caller, then two reduced equations about the
/// critical point 647.31 K, 225.65 kgf/cm2. 0 from 374.15 degC. Against IAPWS-IF97 it holds within
/// 0.2 % from 0 to 360 degC.
Real WaterSaturationPressure(Real temperatureC, Real temperatureK, Real mmHgPerKgfCm2);

/// Saturation pressure at `temperatureC` in the unit of `saturationPressureUnit`. It is rounded in
/// kgf/cm2, to 3 decimals up to 2 and to 2 above, before it is converted. Below 0 degC: message,
/// 0. From 374.15 degC: 0.
Real SaturatedVapourPressure(const ProcessState& state, common::Messages& messages);

/// Saturation temperature at `pressureAbs` in degC, 2 decimals, from the saturation line of the
/// IFC formulation of 1967 by a secant method. Above the critical pressure it follows the line's
/// continuation; where that has no solution, from about 1770 kgf/cm2, it raises kOverflow.
Real SaturationTemperature(const ProcessState& state);

/// Density of steam at `pressureAbs` and `temperatureK` in kg/m3, 4 decimals. Within 0.3 % up to
/// 100 kgf/cm2, 1.2 % at 200 along saturation; it has a pole near the critical point and gives
/// negative densities beyond it.
Real SteamDensity(const ProcessState& state);

/// The same at a pressure in kgf/cm2 absolute and a temperature in K.
Real SteamDensity(Real pressureAbs, Real temperatureK);

/// Viscosity of steam at `pressureAbs` and `temperatureC` in mPa s, 4 decimals; from 250 kgf/cm2
/// on from `densityBase`. The viscosity unit has no effect.
Real SteamViscosity(const SteamViscosityTable& table, const ProcessState& state);

/// Isentropic exponent of steam at `pressureAbs`, `temperatureK` and `densityBase`, 3 decimals; an
/// arithmetic fault is shown and gives nothing. See the sign in the source: the value lies far
/// below the physical one.
std::optional<Real> SteamIsentropicExponent(const ProcessState& state, common::Messages& messages);

/// Whether an isentropic exponent is one that a gas can have, 1.0 to 1.7.
bool IsPhysicalIsentropicExponent(Real exponent);

/// Density of saturated water vapour at `temperatureC` in kg/m3, unrounded. From 301 degC it is 1.
Real SaturatedWaterVapourDensity(const ProcessState& state);

}  // namespace data
