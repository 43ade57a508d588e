#include "data/property_estimator.h"

#include "common/number.h"
#include "data/steam.h"
#include "data/units.h"

namespace data {

using common::exp;
using common::log;
using common::NumberText;
using common::pow;
using common::RoundDigits;
using common::Val;

/// Coefficients of an equation.
struct PropertyEstimator::Coefficients {
  Real a, b, c, d;

  Real Cubic(Real t) const { return a + b * t + c * pow(t, 2) + d * pow(t, 3); }
};

/// Critical pressure in kgf/cm2 and temperature in K.
struct PropertyEstimator::CriticalData {
  Real pressure, temperature;

  bool Missing() const { return pressure * temperature == 0; }
};

namespace {

constexpr const char* kTitle = "物性推算";

constexpr const char* kPressureUnsupported =
    "圧縮係数推算式は、Pr=1.0 以上をサポートしておりません。  Pr= ";

/// Density ratio of a liquid to a hypothetical one at absolute zero, x = T / Tc.
Real LiquidDensityFunction(Real x) { return 1.05 - 0.52 * x - exp(11.54 * x) / 320000; }

/// Density of liquid ammonia up to 50 degC, from t = 133 degC - T.
Real ColdAmmoniaDensity(Real temperatureC) {
  const Real t = common::Single(133 - temperatureC);
  const Real s = sqrt(t);
  return (1000 + 424.805 * s + 15.938 * t) / (4.283 + 0.813055 * s - 0.008286 * t);
}

/// Density of water up to 230 degC. The second polynomial ends at 61 degC with a step.
Real ColdWaterDensity(Real t) {
  const Real density = 1006.4 - 0.25 * t - 0.0023 * pow(t, 2);
  if (t >= 61) return density;
  return density - (6.55 - 0.295 * t + 0.00471 * pow(t, 2) - 2.72e-5 * pow(t, 3));
}

}  // namespace

template <class Estimate>
std::optional<Real> PropertyEstimator::Guarded(Estimate estimate) {
  try {
    return estimate();
  } catch (const common::RuntimeFault& fault) {
    Show(fault.Text());
    return Real(0);
  }
}

void PropertyEstimator::Show(const std::string& text) { messages_.Show(text, kTitle); }

PropertyEstimator::Coefficients PropertyEstimator::CoefficientsAt(const FluidTable& table,
                                                                  int fluidIndex, int field) const {
  return {Val(table.Cell(fluidIndex, field)), Val(table.Cell(fluidIndex, field + 1)),
          Val(table.Cell(fluidIndex, field + 2)), Val(table.Cell(fluidIndex, field + 3))};
}

PropertyEstimator::CriticalData PropertyEstimator::CriticalDataOf(int fluidIndex) const {
  return {Val(gases_.Cell(fluidIndex, kGasCriticalPressure)) * 1000 / kKpaPerKgfCm2,
          Val(gases_.Cell(fluidIndex, kGasCriticalTemperature))};
}

/// Whether `temperatureC` lies in the range that stands at lowField and behind it; shows the range
/// of the equation if not. An end that equals `blank` is no limit. Ends in the wrong order are
/// swapped, and shown as the texts that they are.
bool PropertyEstimator::InRange(const FluidTable& table, int fluidIndex, int lowField,
                                const std::string& equation, const std::string& after,
                                const char* blank) {
  std::string low = table.Cell(fluidIndex, lowField);
  std::string high = table.Cell(fluidIndex, lowField + 1);
  if (low != blank && high != blank && Val(low) > Val(high)) std::swap(low, high);
  const bool tooLow = low != blank && state_.temperatureC < Val(low);
  const bool tooHigh = high != blank && state_.temperatureC > Val(high);
  if (!tooLow && !tooHigh) return true;
  Show(equation + "の適用温度範囲は" + low + "～" + high + after);
  return false;
}

std::optional<Real> PropertyEstimator::EstimateLiquidDensity(int fluidIndex) {
  return Guarded([&] { return LiquidDensity(fluidIndex); });
}

Real PropertyEstimator::EstimateLiquidViscosity(int fluidIndex) {
  return *Guarded([&] { return LiquidViscosity(fluidIndex); });
}

Real PropertyEstimator::EstimateGasDensity(int fluidIndex) {
  return *Guarded([&] { return GasDensity(fluidIndex); });
}

std::optional<Real> PropertyEstimator::EstimateGasViscosity(int fluidIndex) {
  return Guarded([&] { return GasViscosity(fluidIndex); });
}

Real PropertyEstimator::EstimateCompressibility(int fluidIndex) {
  return *Guarded([&] { return RoundDigits(Compressibility(CriticalDataOf(fluidIndex)), 3); });
}

Real PropertyEstimator::EstimateCompressibilityRatio(int fluidIndex) {
  return *Guarded([&] { return CompressibilityRatio(fluidIndex); });
}

Real PropertyEstimator::GeneralizedCompressibility(Real pressure, Real temperatureK,
                                                   Real criticalPressure,
                                                   Real criticalTemperature) {
  return *Guarded([&] {
    return ReducedCompressibility(pressure, temperatureK, {criticalPressure, criticalTemperature});
  });
}

Real PropertyEstimator::EstimateIsentropicExponent(int fluidIndex) {
  return *Guarded([&] { return IsentropicExponent(fluidIndex); });
}

Real PropertyEstimator::EstimateVapourPressure(int fluidIndex) {
  return *Guarded([&] { return VapourPressure(fluidIndex); });
}

Real PropertyEstimator::LiquidCriticalPressureInUnit(int fluidIndex) {
  return *Guarded([&]() -> Real {
    const Real x = Val(liquids_.Cell(fluidIndex, kLiquidCriticalPressure));
    switch (state_.vapourPressureUnit) {
      case 0:
        return x * 1000;
      case 1:
        return x;
      case 2:
        return RoundDigits((x / kKpaPerKgfCm2) * 1000, 2);
      case 3:
        return RoundDigits(x * 9.869208, 2);  // atm per MPa
      case 4:
        return RoundDigits(x * 1000 / 0.1333223684, 0);  // kPa per mmHg
      case 5:
        return x * 10;
      case 6:
        return RoundDigits(x * 145, 1);  // psi per MPa, rounded and meant so
      default:
        return 0;
    }
  });
}

std::optional<Real> PropertyEstimator::LiquidDensity(int fluidIndex) {
  const std::string& code = liquids_.Cell(fluidIndex, kLiquidDensityCode);
  if (code.starts_with(kFiveBlanks)) {
    Show("密度推算式が登録されていません。");
    return 0;
  }
  if (!InRange(liquids_, fluidIndex, kLiquidDensityLow, "密度推算式")) return 0;
  const Real density =
      LiquidDensityByCode(code, CoefficientsAt(liquids_, fluidIndex, kLiquidDensityA));
  if (state_.densityUnit == 0) return RoundDigits(density, 1);
  if (state_.densityUnit == 1) return RoundDigits(density / 1000, 3);
  return std::nullopt;
}

/// kg/m3. "3", which also serves ammonia above 50 degC and water above 230 degC, has its pole at
/// D degC.
Real PropertyEstimator::LiquidDensityByCode(const std::string& code, const Coefficients& k) const {
  const Real t = state_.temperatureC;
  if (code == "1") return k.Cubic(t);
  if (code == "2") {
    return k.a * LiquidDensityFunction(state_.temperatureK / k.c) /
           LiquidDensityFunction(k.b / k.c);
  }
  if (code == "NH3" && t <= 50) return ColdAmmoniaDensity(t);
  if (code == "H2O" && t <= 230) return ColdWaterDensity(t);
  if (code == "3" || code == "NH3" || code == "H2O") return k.a - k.b * t - k.c / (k.d - t);
  return 0;
}

Real PropertyEstimator::LiquidViscosity(int fluidIndex) {
  const Real t = state_.temperatureC;
  const Real code = Val(liquids_.Cell(fluidIndex, kLiquidViscosityCode));
  if (code == 0) {
    Show("粘性係数推算式が登録されていません。");
    return 0;
  }
  const Coefficients k = CoefficientsAt(liquids_, fluidIndex, kLiquidViscosityA);
  if (code == 1 && t == 0) return k.a;  // 0 degC counts as no temperature given
  if (!InRange(liquids_, fluidIndex, kLiquidViscosityLow, "粘性係数推算式")) return 0;
  Real viscosity = 0;
  if (code == 1) viscosity = k.Cubic(t);
  if (code == 2) viscosity = k.a * exp(k.b / (t + k.c));
  if (code == 3) viscosity = k.c / (1 + k.a * t + k.b * pow(t, 2));
  if (state_.viscosityUnit == 2) {
    if (state_.densityBase == 0) return 0;
    viscosity = (viscosity / state_.densityBase) * 1000;  // mPa s / (kg/m3) to mm2/s
  }
  return RoundDigits(viscosity, 3);
}

Real PropertyEstimator::GasDensity(int fluidIndex) {
  const Real molecularWeight = Val(gases_.Cell(fluidIndex, kGasMolecularWeight));
  Real normalDensity = Val(gases_.Cell(fluidIndex, kGasNormalDensity));
  Real compressibility = Val(gases_.Cell(fluidIndex, kGasNormalCompressibility));
  if (compressibility == 0) compressibility = 1;
  if (normalDensity == 0) normalDensity = (molecularWeight / kMolarVolume) / compressibility;
  if (normalDensity == 0) return 0;
  switch (state_.densityUnit) {
    case 0:
      return RoundDigits(normalDensity, 3);
    case 1: {
      const Real ratio = CompressibilityRatio(fluidIndex);
      if (ratio <= 0) return 0;
      return RoundDigits(normalDensity * (state_.pressureAbs / kNormalAtmosphere) *
                             (kNormalTemperature / state_.temperatureK) / ratio,
                         3);
    }
    case 2:
      return RoundDigits(molecularWeight, 3);
    case 3:
      return RoundDigits(normalDensity * kNormalTemperature / kStandardDensityTemperature, 3);
    case 4:
      return RoundDigits(normalDensity / kNormalAirDensity, 3);
    default:
      return 0;
  }
}

std::optional<Real> PropertyEstimator::GasViscosity(int fluidIndex) {
  const Real t = state_.temperatureC;
  const Real code = Val(gases_.Cell(fluidIndex, kGasViscosityCode));
  if (code == 0) {
    Show("粘性係数推算式が登録されていません。");
    return 0;
  }
  if ((code == 1 || code == 2 || code == 3) && t == 0) {
    return Val(gases_.Cell(fluidIndex, kGasViscosityA));  // 0 degC counts as no temperature given
  }
  const CriticalData critical = CriticalDataOf(fluidIndex);
  if (critical.Missing()) return 0;
  state_.temperatureK = t + 273.15;
  const Real reducedPressure = state_.pressureAbs / critical.pressure;
  const Real reducedTemperature = state_.temperatureK / critical.temperature;
  if (!InRange(gases_, fluidIndex, kGasViscosityLow, "粘性係数推算式")) return 0;
  const auto viscosity = GasViscosityByCode(fluidIndex, code, critical, reducedTemperature);
  if (!viscosity) return std::nullopt;
  return RoundDigits(*viscosity * HighPressureFactor(reducedPressure, reducedTemperature), 4);
}

/// Viscosity at low pressure. Code 4, a corresponding states equation, yields micropoise and is not
/// rescaled.
std::optional<Real> PropertyEstimator::GasViscosityByCode(int fluidIndex, Real code,
                                                          const CriticalData& critical,
                                                          Real reducedTemperature) const {
  const Coefficients k = CoefficientsAt(gases_, fluidIndex, kGasViscosityA);
  const Real tk = state_.temperatureK;
  if (code == 1) return k.Cubic(state_.temperatureC);
  if (code == 2) {
    return k.a * (273.15 + k.b) / (tk + k.b) * pow(tk / 273.15, Real(1.5));  // Sutherland
  }
  if (code == 3) return k.a * pow(tk / 273.15, k.b);
  if (code == 4) {
    const Real molecularWeight = Val(gases_.Cell(fluidIndex, kGasMolecularWeight));
    const Real group = pow(molecularWeight, 3) * pow(critical.pressure, 4) / critical.temperature;
    return 6.3 * pow(group, Real(1) / 6) * pow(reducedTemperature, Real(1.5)) /
           (reducedTemperature + 0.8);
  }
  return std::nullopt;
}

Real PropertyEstimator::HighPressureFactor(Real reducedPressure, Real reducedTemperature) {
  if (reducedTemperature < 1.2 || reducedPressure > 15) {
    Show("粘性係数推算で高圧補正式の範囲外なので\n圧力補正係数を１とします。");
    return 1;
  }
  const Real factor = 0.108 * reducedPressure / pow(reducedTemperature, 2) + 0.85;
  return factor < 1 ? Real(1) : factor;
}

Real PropertyEstimator::ReducedCompressibility(Real pressure, Real temperatureK,
                                               const CriticalData& critical) {
  if (critical.Missing()) return 0;
  const Real pr = pressure / critical.pressure;
  const Real tr = temperatureK / critical.temperature;
  if (pr > 1) {
    Show(kPressureUnsupported + NumberText(pr));
    return 1;
  }
  Real z;
  if (pr <= 0.1) {
    z = 1 - pr * exp(-3.4861 * log(tr) - 1.01229);
  } else {
    const Real g = 2.032 - 5.17 * tr + 2.531 * pow(tr, 2) - 0.4262 * pow(tr, 3);
    z = 1 + (1 / g + 0.603) * pr - 0.001 * exp(110 * pr / exp(3.052 * tr));
  }
  if (z > 1) return 1;
  if (z < 0.95 - 0.5 * pr) {
    Show("圧縮係数推算式のサポート外です。");
    return 1;
  }
  return z;
}

/// Unrounded. Reduced values are rounded for the messages alone.
Real PropertyEstimator::Compressibility(const CriticalData& critical) {
  if (critical.Missing()) return 0;
  const Real pr = state_.pressureAbs / critical.pressure;
  const std::string shownPr = NumberText(RoundDigits(pr, 3));
  if (pr > 1) {
    Show(kPressureUnsupported + shownPr);
    return 1;
  }
  const Real z = ReducedCompressibility(state_.pressureAbs, state_.temperatureK, critical);
  if (z > 1) return 1;
  if (z < 0) {
    const Real tr = RoundDigits(state_.temperatureK / critical.temperature, 3);
    Show("圧縮係数推算式の適用可能範囲外です。 Pr=" + shownPr + " Tr=" + NumberText(tr));
    return 1;
  }
  return z;
}

Real PropertyEstimator::CompressibilityRatio(int fluidIndex) {
  const CriticalData critical = CriticalDataOf(fluidIndex);
  if (critical.Missing()) return 0;
  Real normal = Val(gases_.Cell(fluidIndex, kGasNormalCompressibility));
  if (normal == 0) {
    normal = ReducedCompressibility(kNormalAtmosphere, kNormalTemperature, critical);
  }
  if (normal > 1) normal = 1;
  return RoundDigits(Compressibility(critical) / normal, 3);
}

Real PropertyEstimator::IsentropicExponent(int fluidIndex) {
  constexpr double kGasConstant = 1.9865;  // cal/(mol K), calories of 15 degC
  state_.temperatureK = state_.temperatureC + 273.15;
  const Real t = state_.temperatureC;
  const Real tk = state_.temperatureK;
  const Real code = Val(gases_.Cell(fluidIndex, kGasHeatCode));
  if (code == 0) {
    Show("ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ指数推算式が登録されていません。");
    return 0;
  }
  if (!InRange(gases_, fluidIndex, kGasHeatLow, "ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ指数推算式", "(ﾟC)の範囲です。",
               kFiveBlanks)) {
    return 0;
  }
  const Coefficients k = CoefficientsAt(gases_, fluidIndex, kGasHeatA);
  Real heatCapacity = 0;  // cal/(mol K)
  if (code == 1) heatCapacity = k.Cubic(tk);
  if (code == 2) heatCapacity = k.a * exp(k.b / (tk - k.c));
  if (code == 3) heatCapacity = k.c / (1 + k.a * t + k.b * pow(t, 2));
  return RoundDigits(heatCapacity / (heatCapacity - kGasConstant), 2);
}

Real PropertyEstimator::VapourPressure(int fluidIndex) {
  const Real t = state_.temperatureC;
  const std::string& code = liquids_.Cell(fluidIndex, kLiquidVapourCode);
  const bool water = code == "H2O";
  if (!water && !InRange(liquids_, fluidIndex, kLiquidVapourLow, "蒸気圧推算式")) return 0;
  if (water && t < 0) {
    Show("蒸気圧推算式の適用温度範囲 は 0℃以上です。");
    return 0;
  }
  const Coefficients k = CoefficientsAt(liquids_, fluidIndex, kLiquidVapourA);
  Real pressure = 0;  // kgf/cm2 absolute
  if (code == "1") pressure = pow(Real(10), k.a - k.b / (t + k.c));
  if (code == "2") pressure = k.Cubic(t);
  if (water) pressure = WaterSaturationPressure(t, state_.temperatureK, kMmHgPerKgfCm2);
  const Real shown = PressureForDisplay(state_, pressure);
  return RoundDigits(shown, shown > 2 ? 2 : 3);
}

}  // namespace data
