#pragma once

#include <utility>
#include <vector>

#include "data/fluid_table.h"

namespace data {

/// What the equations of a fluid yield over temperature.
enum class FluidProperty {
  kLiquidDensity,    // kg/m3
  kLiquidViscosity,  // mPa s
  kVapourPressure,   // kPa absolute
  kGasDensity,       // kg/m3 at the normal atmosphere
  kGasViscosity,     // mPa s at the normal atmosphere
  kHeatRatio,        // no unit
};

/// Code and range of the equation behind a property, as fields of its table. The density of a gas,
/// which has no equation of its own, goes with the viscosity.
struct EquationFields {
  int code;
  int low;
};
EquationFields FieldsOf(FluidProperty property);

/// A property as the estimators give it, over the range of its equation, in points of degC and
/// value; a temperature without a value has none. Empty when the range lacks an
/// end or is wider than a number can be.
std::vector<std::pair<double, double>> PropertyOverRange(const FluidTable& liquids,
                                                         const FluidTable& gases, int fluidIndex,
                                                         FluidProperty property);

}  // namespace data
