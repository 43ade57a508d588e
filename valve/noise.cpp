#include "valve/noise.h"

#include "data/units.h"

namespace valve {

using common::exp;
using common::log;
using common::Log10;
using common::pow;
using common::sqrt;

namespace {

constexpr double kPsi = 14.223;  // per kgf/cm2; the unit converter has 14.22

/// Acoustic efficiency over the pressure ratio, by the recovery factor.
Real Efficiency(Real ratio, Real fl) {
  if (ratio > 2.8) {
    const Real b = -19.97441 + 49.8189 * fl - 77.30038 * pow(fl, 2) + 40.8892 * pow(fl, 3);
    const Real c = 0.02 * fl + 0.8;
    return exp(b) * pow(ratio, c);
  }
  const Real b = 1.518 - 56.04 * fl + 93.3 * pow(fl, 2) - 52.99 * pow(fl, 3);
  const Real c = -14.795 + 80.55 * fl - 135.44 * pow(fl, 2) + 77.99 * pow(fl, 3);
  return exp(b) * pow(ratio, c);
}

/// Loss in the pipe wall, dB: the mass law over the frequency of the jets.
Real WallLoss(const SelectedValve& valve, Real cv) {
  if (valve.wallWeight == 0) return 0;
  return 17 * Log10(3072 * valve.wallWeight * valve.n / sqrt(cv * valve.fl)) - 36;
}

/// Effect of the gas, dB, by its molecular weight m.
Real GasTerm(Real m) {
  return 2 - exp(2.430557 - 0.07553355 * m + 0.0009282618 * pow(m, 2) - 0.00001532244 * pow(m, 3));
}

Real GasNoise(const Service& service, const SelectedValve& valve, Real cv) {
  constexpr double kSteamMolecularWeight = 18;
  const Real p1 = service.p1;
  const Real p2 = service.p2;
  const Real m = service.fluidPhase == data::kSteam ? Real(kSteamMolecularWeight)
                                                    : service.rho * data::kMolarVolume;
  const Real a = ((p1 - p2) / 0.47) / p1;
  const Real g = Efficiency(p1 / p2, valve.fl);
  const Real level = 10 * Log10(a * g * 1e11 * cv * valve.fl * (p1 * kPsi) * (p2 * kPsi)) -
                     WallLoss(valve, cv) + GasTerm(m) + 3;
  return level < 0 ? Real(0) : level;
}

Real LiquidNoise(const Service& service, const SelectedValve& valve, Real cv) {
  const Real pvc = VenaContractaPressure(service, valve.fl);
  return (10 * log(cv * valve.fl) + 8 * log(pvc - service.p2) + 20 * log(service.p2 - service.pv)) /
             common::kLog10Divisor +
         65;
}

}  // namespace

Real VenaContractaPressure(const Service& service, Real fl) {
  return service.p1 - pow(fl, 2) * (service.p1 - service.pv);
}

Real NoiseLevel(const Service& service, const SelectedValve& valve, Real cv,
                common::Messages& messages) {
  const bool isLiquid = service.fluidPhase == data::kLiquid;
  if (isLiquid && service.pv == 0) {
    messages.Show("飽和蒸気圧力が入力されていないので\n騒音計算は出来ません。", "騒音計算");
    return 0;
  }
  try {
    return isLiquid ? LiquidNoise(service, valve, cv) : GasNoise(service, valve, cv);
  } catch (const common::RuntimeFault&) {
    return 0;  // outside the validity of the equation
  }
}

}  // namespace valve
