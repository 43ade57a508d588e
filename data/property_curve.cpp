#include "data/property_curve.h"

#include <algorithm>

#include "common/number.h"
#include "data/property_estimator.h"
#include "data/units.h"

namespace data {

namespace {

bool IsOfLiquid(FluidProperty property) {
  return property == FluidProperty::kLiquidDensity || property == FluidProperty::kLiquidViscosity ||
         property == FluidProperty::kVapourPressure;
}

/// 0 where there is no value.
Real Estimate(PropertyEstimator& estimator, int fluidIndex, FluidProperty property) {
  switch (property) {
    case FluidProperty::kLiquidDensity:
      return estimator.EstimateLiquidDensity(fluidIndex).value_or(0);
    case FluidProperty::kLiquidViscosity:
      return estimator.EstimateLiquidViscosity(fluidIndex);
    case FluidProperty::kVapourPressure:
      return estimator.EstimateVapourPressure(fluidIndex);
    case FluidProperty::kGasDensity:
      return estimator.EstimateGasDensity(fluidIndex);
    case FluidProperty::kGasViscosity:
      return estimator.EstimateGasViscosity(fluidIndex).value_or(0);
    case FluidProperty::kHeatRatio:
      return estimator.EstimateIsentropicExponent(fluidIndex);
  }
  return 0;
}

}  // namespace

EquationFields FieldsOf(FluidProperty property) {
  switch (property) {
    case FluidProperty::kLiquidDensity:
      return {kLiquidDensityCode, kLiquidDensityLow};
    case FluidProperty::kLiquidViscosity:
      return {kLiquidViscosityCode, kLiquidViscosityLow};
    case FluidProperty::kVapourPressure:
      return {kLiquidVapourCode, kLiquidVapourLow};
    case FluidProperty::kHeatRatio:
      return {kGasHeatCode, kGasHeatLow};
    case FluidProperty::kGasDensity:
    case FluidProperty::kGasViscosity:
      break;
  }
  return {kGasViscosityCode, kGasViscosityLow};
}

std::vector<std::pair<double, double>> PropertyOverRange(const FluidTable& liquids,
                                                         const FluidTable& gases, int fluidIndex,
                                                         FluidProperty property) {
  constexpr int kSteps = 80;
  const FluidTable& table = IsOfLiquid(property) ? liquids : gases;
  const int lowField = FieldsOf(property).low;
  const auto one = common::WholeNumber(table.Cell(fluidIndex, lowField));
  const auto other = common::WholeNumber(table.Cell(fluidIndex, lowField + 1));
  if (!one || !other) return {};
  const auto [low, high] = std::minmax(*one, *other);

  common::NoMessages messages;
  ProcessState state;
  state.pressureAbs = kNormalAtmosphere;
  state.densityUnit = property == FluidProperty::kGasDensity ? 1 : 0;
  PropertyEstimator estimator(liquids, gases, state, messages);
  std::vector<std::pair<double, double>> points;
  try {
    for (int i = 0; i <= kSteps; ++i) {
      state.temperatureC = i == kSteps ? high : low + (high - low) * i / kSteps;
      state.temperatureK = state.temperatureC + 273.15;
      const Real value = Estimate(estimator, fluidIndex, property);
      if (value != 0) points.emplace_back(state.temperatureC, value);
    }
  } catch (const common::RuntimeFault&) {
    return {};  // the range is wider than a number can be
  }
  return points;
}

}  // namespace data
