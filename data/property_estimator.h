#pragma once

#include <optional>

#include "common/messages.h"
#include "data/fluid_table.h"
#include "data/process_state.h"

namespace data {

/// Estimates properties of a named fluid from its empirical equations, at the conditions of the
/// process state. An estimator never raises: where it has no answer it shows a message and returns
/// 0 or 1, and an arithmetic fault inside is shown and gives 0. Calculators take 0 as "not
/// available". Critical pressures of the tables, in MPa, are taken as kgf/cm2 (x 1000 / 98.0665);
/// the normal state is 1.03323 kgf/cm2 and 273.15 K.
class PropertyEstimator {
 public:
  PropertyEstimator(const FluidTable& liquids, const FluidTable& gases, ProcessState& state,
                    common::Messages& messages)
      : liquids_(liquids), gases_(gases), state_(state), messages_(messages) {}

  /// Density at `temperatureC`: kg/m3 with 1 decimal for density unit 0, g/cm3 with 3 for unit 1;
  /// nothing for any other.
  std::optional<Real> EstimateLiquidDensity(int fluidIndex);

  /// Viscosity at `temperatureC` in mPa s, for viscosity unit 2 in cSt by `densityBase` (0 without
  /// one); 3 decimals.
  Real EstimateLiquidViscosity(int fluidIndex);

  /// Density in the unit of `densityUnit`: kg/Nm3, kg/m3 at `pressureAbs` and `temperatureK`,
  /// molecular weight, kg/Sm3, specific gravity to air; 3 decimals.
  Real EstimateGasDensity(int fluidIndex);

  /// Viscosity at `temperatureC` in mPa s with 4 decimals, corrected for pressure above Tr 1.2;
  /// nothing for an equation code that it does not know. Sets `temperatureK`.
  std::optional<Real> EstimateGasViscosity(int fluidIndex);

  /// Compressibility factor at `pressureAbs` and `temperatureK`, 3 decimals.
  Real EstimateCompressibility(int fluidIndex);

  /// Deviation factor: the compressibility factor over that at normal state, 3 decimals.
  Real EstimateCompressibilityRatio(int fluidIndex);

  /// Compressibility factor by corresponding states, unrounded: pressures in kgf/cm2 absolute,
  /// temperatures in K. 1 with a message above the critical pressure.
  Real GeneralizedCompressibility(Real pressure, Real temperatureK, Real criticalPressure,
                                  Real criticalTemperature);

  /// Isentropic exponent of the ideal gas at `temperatureC`, 2 decimals. Sets `temperatureK`.
  Real EstimateIsentropicExponent(int fluidIndex);

  /// Vapour pressure of a liquid at `temperatureC` in the unit of `saturationPressureUnit`, rounded
  /// after the conversion: 2 decimals above 2, 3 below.
  Real EstimateVapourPressure(int fluidIndex);

  /// Critical pressure of a liquid in the unit of `vapourPressureUnit`.
  Real LiquidCriticalPressureInUnit(int fluidIndex);

 private:
  struct Coefficients;
  struct CriticalData;

  template <class Estimate>
  std::optional<Real> Guarded(Estimate estimate);
  void Show(const std::string& text);

  Coefficients CoefficientsAt(const FluidTable& table, int fluidIndex, int field) const;
  CriticalData CriticalDataOf(int fluidIndex) const;
  bool InRange(const FluidTable& table, int fluidIndex, int lowField, const std::string& equation,
               const std::string& after = "℃です。", const char* blank = "");

  std::optional<Real> LiquidDensity(int fluidIndex);
  Real LiquidDensityByCode(const std::string& code, const Coefficients& coefficients) const;
  Real LiquidViscosity(int fluidIndex);
  Real GasDensity(int fluidIndex);
  std::optional<Real> GasViscosity(int fluidIndex);
  std::optional<Real> GasViscosityByCode(int fluidIndex, Real code, const CriticalData& critical,
                                         Real reducedTemperature) const;
  Real HighPressureFactor(Real reducedPressure, Real reducedTemperature);
  Real Compressibility(const CriticalData& critical);
  Real CompressibilityRatio(int fluidIndex);
  Real ReducedCompressibility(Real pressure, Real temperatureK, const CriticalData& critical);
  Real IsentropicExponent(int fluidIndex);
  Real VapourPressure(int fluidIndex);

  const FluidTable& liquids_;
  const FluidTable& gases_;
  ProcessState& state_;
  common::Messages& messages_;
};

}  // namespace data
