#include "data/units.h"

#include "common/number.h"

namespace data {

namespace {

/// Rounds to `digits` significant digits or one more, by the rough decimal exponent of the sheets.
Real RoundRoughly(Real value, int digits) {
  return common::RoundDigits(value, digits - 1 - common::IntIndex(log(value) / 2.3));
}

/// What a gas flow needs to know of its state.
struct GasState {
  Real expansion;   // E: normal density times E is the density of the dry part at flow conditions
  Real dryDensity;  // kg/m3
  Real moisture;    // kg of water vapour in 1 m3
};

GasState GasAtFlowState(const ProcessState& state) {
  const Real humidity = common::Single(state.relativeHumidity) / 100;
  const Real dryPressure = state.pressureAbs - humidity * state.saturationPressure;
  const Real expansion = (dryPressure / kNormalAtmosphere) * kNormalTemperature /
                         state.temperatureK / state.compressibilityZ;
  return {expansion, state.densityBase * expansion, humidity * state.waterVapourDensity};
}

/// Standard temperature of Sm3/h, K (15 degC); not that of a density in kg/Sm3.
constexpr double kStandardFlowTemperature = 288.15;

/// Volume at flow conditions of a normal volume.
Real VolumeAtFlowState(const ProcessState& state, Real normalVolume) {
  return normalVolume * kNormalAtmosphere / state.pressureAbs * state.temperatureK /
         kNormalTemperature * state.compressibilityZ;
}

/// Normal volume of a volume at flow conditions.
Real NormalVolume(const ProcessState& state, Real volume) {
  return volume * state.pressureAbs / kNormalAtmosphere * kNormalTemperature / state.temperatureK /
         state.compressibilityZ;
}

Real WetGasToMass(const ProcessState& state, Real value) {
  switch (state.flowUnit) {
    case 0:
      return value;
    case 1:
      return value * state.densityFlow;
    case 2:
      return value / 1000 * state.densityFlow;
    case 3:
      return 60 * (value / 1000) * state.densityFlow;
    case 4:
      return value * 1000;
    case 5:
      return VolumeAtFlowState(state, value) * state.densityFlow;
    case 6:
      return VolumeAtFlowState(state, value * kNormalTemperature / kStandardFlowTemperature) *
             state.densityFlow;
    default:
      return 0;
  }
}

/// A dry flow as the volume at flow conditions of the humid gas that carries it.
Real DryGasVolume(const ProcessState& state, const GasState& gas, Real value) {
  switch (state.flowUnit) {
    case 0:
      return value / gas.dryDensity;
    case 1:
      return NormalVolume(state, value) / gas.expansion;
    case 2:
      return NormalVolume(state, value / 1000) / gas.expansion;
    case 3:
      return NormalVolume(state, 60 * value / 1000) / gas.expansion;
    case 4:
      return 1000 * value / gas.dryDensity;
    case 5:
      return value / gas.expansion;
    case 6:
      return (value * kNormalTemperature / kStandardFlowTemperature) / gas.expansion;
    default:
      return 0;
  }
}

Real LiquidToMass(const ProcessState& state, Real value) {
  switch (state.flowUnit) {
    case 0:
      return value;
    case 1:
      return value * state.densityBase;
    case 2:
      return (value / 1000) * state.densityBase;
    case 3:
      return 60 * (value / 1000) * state.densityBase;
    case 4:
      return value * 1000;
    default:
      return 0;
  }
}

Real SteamToMass(const ProcessState& state, Real value) {
  if (state.flowUnit == 0) return value;
  if (state.flowUnit == 1) return value * 1000;
  return 0;
}

Real GasDensityToNormal(const ProcessState& state, Real value) {
  switch (state.densityUnit) {
    case kNormalDensityUnit:
      return value;
    case 1:
      return value * state.temperatureK / kNormalTemperature * kNormalAtmosphere /
             state.pressureAbs * state.compressibilityZ;
    case 2:
      return value / kMolarVolume;
    case 3:
      return value * kStandardDensityTemperature / kNormalTemperature;
    case 4:
      return value * kNormalAirDensity;
    default:
      return 0;
  }
}

/// kgf/cm2 absolute in a unit of the vapour pressure list.
Real VapourPressureInUnit(Real value, int unit) {
  switch (unit) {
    case 0:
      return value * kKpaPerKgfCm2;
    case 1:
      return value * kKpaPerKgfCm2 / 1000;
    case 2:
      return value;
    case 3:
      return value / kNormalAtmosphere;
    case 4:
      return value * kMmHgPerKgfCm2;
    case 5:
      return value * kBarPerKgfCm2;
    case 6:
      return value * kPsiPerKgfCm2;
    default:
      return 0;
  }
}

/// mmH2O in a unit of the differential pressure list.
Real DifferentialInUnit(int unit, Real value) {
  switch (unit) {
    case 0:
      return kKpaPerKgfCm2 * value / kMmH2OPerKgfCm2;
    case 1:
      return value;
    case 2:
      return value / kMmH2OPerKgfCm2;
    case 3:
      return kMmHgPerKgfCm2 * value / kMmH2OPerKgfCm2;
    case 4:
      return kPsiPerKgfCm2 * value / kMmH2OPerKgfCm2;
    case 5:
      return 0.9807 * value / 10;  // mbar by a factor of its own
    default:
      return 0;
  }
}

}  // namespace

Real PressureToAbsolute(Real value, int unit) {
  switch (unit) {
    case 0:
    case 1:
    case 2:
    case 5:
    case 6:
      return VapourPressureToAbsolute(value, unit) + kNormalAtmosphere;
    case 3:
      return value / kMmH2OPerKgfCm2 + kNormalAtmosphere;
    case 4:
      return VapourPressureToAbsolute(value, unit);  // mmHg counts from vacuum
    default:
      return 0;
  }
}

Real VapourPressureToAbsolute(Real value, int unit) {
  switch (unit) {
    case 0:
      return value / kKpaPerKgfCm2;
    case 1:
      return value * 1000 / kKpaPerKgfCm2;
    case 2:
      return value;
    case 3:
      return value * kNormalAtmosphere;
    case 4:
      return value / kMmHgPerKgfCm2;
    case 5:
      return value / kBarPerKgfCm2;
    case 6:
      return value / kPsiPerKgfCm2;
    default:
      return 0;
  }
}

Real PressureForDisplay(const ProcessState& state, Real value) {
  const Real shown = VapourPressureInUnit(value, state.saturationPressureUnit);
  return shown == 0 ? Real(0) : RoundRoughly(shown, 5);
}

Real PressureDifferenceInUnit(const ProcessState& state, Real value) {
  // The list of pressures has mmH2O where that of vapour pressures has atm.
  if (state.pressureUnit == 3) return value * kMmH2OPerKgfCm2;
  return VapourPressureInUnit(value, state.pressureUnit);
}

Real DifferentialToMmH2O(int unit, Real value) {
  switch (unit) {
    case 0:
      return kMmH2OPerKgfCm2 * value / kKpaPerKgfCm2;
    case 1:
      return value;
    case 2:
      return value * kMmH2OPerKgfCm2;
    case 3:
      return kMmH2OPerKgfCm2 * value / kMmHgPerKgfCm2;
    case 4:
      return kMmH2OPerKgfCm2 * value / kPsiPerKgfCm2;
    case 5:
      return 10 * value / 0.9807;  // mbar by a factor of its own
    default:
      return 0;
  }
}

Real DifferentialFromMmH2O(int unit, Real value) {
  const Real shown = DifferentialInUnit(unit, value);
  return shown == 0 ? Real(0) : RoundRoughly(shown, 4);
}

Real TemperatureToCelsius(const ProcessState& state, Real value) {
  switch (state.temperatureUnit) {
    case 0:
      return value;
    case 1:
      return value - 273.15;
    case 2:
      return Real(5) / 9 * (value - 32);
    default:
      return 0;
  }
}

Real TemperatureFromCelsius(int unit, Real temperatureC) {
  switch (unit) {
    case 0:
      return common::RoundDigits(temperatureC, 2);
    case 1:
      return common::RoundDigits(temperatureC + 273.15, 2);
    case 2:
      return common::RoundDigits(temperatureC * 9 / 5 + 32, 2);
    default:
      return 0;
  }
}

Real DensityToNormal(const ProcessState& state, Real value) {
  if (state.fluidPhase == kGas) return GasDensityToNormal(state, value);
  if (state.fluidPhase == kSteam) return value;
  if (state.densityUnit == 0) return value;
  if (state.densityUnit == 1) return value * 1000;
  return 0;
}

Real NormalDensityAtFlowState(const ProcessState& state) {
  if (state.fluidPhase != kGas) return state.densityBase;
  const GasState gas = GasAtFlowState(state);
  return gas.dryDensity + gas.moisture;
}

Real ViscosityToPoise(const ProcessState& state, Real value) {
  return state.viscosityUnit == 2 ? value * state.densityFlow / 1000 : value;
}

Real FlowToMass(ProcessState& state, Real value) {
  if (state.fluidPhase == kLiquid) return LiquidToMass(state, value);
  if (state.fluidPhase == kSteam) return SteamToMass(state, value);
  const GasState gas = GasAtFlowState(state);
  state.densityFlow = gas.dryDensity + gas.moisture;
  if (state.flowBasis == kDryBase) return DryGasVolume(state, gas, value) * state.densityFlow;
  return WetGasToMass(state, value);
}

}  // namespace data
