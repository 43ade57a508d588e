#pragma once

#include "data/process_state.h"

namespace data {

// Conversions between what a user types in the unit of a list and the working units. The factors
// are those of the sheets, rounded as they are there and not consistent with each other: 735.72
// mmHg, 14.22 psi, 98.0665 kPa and 0.980665 bar to 1 kgf/cm2, and 1.03323 kgf/cm2 to the normal
// atmosphere. An index outside its list gives 0.

inline constexpr double kNormalAtmosphere = 1.03323;  // kgf/cm2
inline constexpr double kNormalTemperature = 273.15;  // K
inline constexpr double kKpaPerKgfCm2 = 98.0665;      // kPa
inline constexpr double kMmHgPerKgfCm2 = 735.72;      // mmHg; the steam equation has its own
inline constexpr double kBarPerKgfCm2 = 0.980665;     // bar
inline constexpr double kPsiPerKgfCm2 = 14.22;        // psi
inline constexpr double kMmH2OPerKgfCm2 = 10000;      // mmH2O
inline constexpr double kMolarVolume = 22.415;        // Nm3/kmol
inline constexpr double kNormalAirDensity = 1.2928;   // kg/Nm3
inline constexpr double kKpaPerMmH2O = kKpaPerKgfCm2 / kMmH2OPerKgfCm2;

/// Index of kg/Nm3 in the list of gas densities.
inline constexpr int kNormalDensityUnit = 0;

/// Standard temperature of a density in kg/Sm3, K (60 degF). A flow in Sm3/h has another one,
/// 288.15 K (15 degC); the two are meant to differ.
inline constexpr double kStandardDensityTemperature = 288.75;

/// Pressure in kgf/cm2 absolute of a value in the pressure list: kPa, MPa, kgf/cm2, mmH2O gauge,
/// mmHg absolute (the only absolute one), bar, psi gauge.
Real PressureToAbsolute(Real value, int unit);

/// Pressure in kgf/cm2 absolute of a value in the vapour pressure list: kPa, MPa, kgf/cm2, atm,
/// mmHg, bar, psi, all absolute.
Real VapourPressureToAbsolute(Real value, int unit);

/// A pressure in kgf/cm2 absolute in the unit of `saturationPressureUnit` (vapour pressure list),
/// rounded to 4 - floor(ln v / 2.3) decimals; 2.3 is a rough ln 10 and meant so. 0 stays 0; a
/// negative pressure raises kInvalidArgument.
Real PressureForDisplay(const ProcessState& state, Real value);

/// A pressure difference in kgf/cm2 in the unit of `pressureUnit`, without the atmosphere and
/// without rounding.
Real PressureDifferenceInUnit(const ProcessState& state, Real value);

/// Differential pressure in mmH2O of a value in kPa, mmH2O, kgf/cm2, mmHg, psi or mbar.
Real DifferentialToMmH2O(int unit, Real value);

/// Differential pressure in mmH2O in the units of `DifferentialToMmH2O`, rounded to
/// 3 - floor(ln v / 2.3) decimals. 0 gives 0; a negative value raises kInvalidArgument.
Real DifferentialFromMmH2O(int unit, Real value);

/// degC of a value in the unit of `temperatureUnit`: degC, K, degF.
Real TemperatureToCelsius(const ProcessState& state, Real value);

/// The reverse, with 2 decimals, for temperatures that the program estimates.
Real TemperatureFromCelsius(int unit, Real temperatureC);

/// Density in kg/m3, for a gas in kg/Nm3, of a value in the unit of `densityUnit`. Liquid: kg/m3,
/// g/cm3. Gas: kg/Nm3, kg/m3 at the pressure, temperature and Z of the state, molecular weight,
/// kg/Sm3, specific gravity to air. Steam: kg/m3 whatever the index. Humidity is left out.
Real DensityToNormal(const ProcessState& state, Real value);

/// Density at flow conditions in kg/m3: `densityBase`, for a gas at the partial pressure of its dry
/// part, and the water vapour with it.
Real NormalDensityAtFlowState(const ProcessState& state);

/// Viscosity in cP of a value in cP or, for index 2, in cSt at `densityFlow`.
Real ViscosityToPoise(const ProcessState& state, Real value);

/// Flow in kg/h of a value in the unit of `flowUnit`. Liquid: kg/h, m3/h, L/h, L/min, t/h at
/// `densityBase`. Gas: the same five, volumes taken at flow conditions, then Nm3/h and Sm3/h; on
/// the dry base the water vapour is added. Steam: kg/h, t/h. For a gas it stores `densityFlow`
/// first, whatever the unit.
Real FlowToMass(ProcessState& state, Real value);

}  // namespace data
