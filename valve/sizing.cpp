#include "valve/sizing.h"

#include "valve/isa_equations.h"
#include "valve/quotient.h"

namespace valve {

using common::pow;
using common::sqrt;

namespace {

constexpr double kMmPerInch = 25.4;
constexpr double kN2 = 890;   // sizes in inches
constexpr double kN5 = 1000;  // likewise

SizedCv SizeGas(const Service& service, const SelectedValve& valve, const PipingFactors& piping) {
  const Real fp = piping.fp;
  Real xT = TerminalRatio(valve.fl);
  if (fp < 1) xT = xT / pow(fp, 2) / (1 + xT * piping.ki * pow(piping.cvD, 2) / kN5);  // xTP
  const GasExpansion expansion = ExpansionOf(service, xT);
  // Choking is judged by FL alone, with and without reducers.
  if (!IsGasChoked(service, valve.fl)) {
    return {GasCv(service, fp, expansion), false, fp, 0, expansion.y};
  }
  Real flp = CombinedRecoveryFactor(piping, valve.fl);
  if (flp > 1) flp = 1;
  return {GasCv(service, flp, expansion), true, fp, flp, expansion.y};
}

SizedCv SizeLiquid(const Service& service, const SelectedValve& valve,
                   const PipingFactors& piping) {
  const Real pF = ChokedContractaPressure(service);
  if (!IsLiquidChoked(service, valve.fl, pF)) {
    return {LiquidCv(service, piping.fp, service.dP), false, piping.fp, 0, std::nullopt};
  }
  const Real flp = CombinedRecoveryFactor(piping, valve.fl);
  return {LiquidCv(service, flp, service.p1 - pF), true, piping.fp, flp, std::nullopt};
}

}  // namespace

PipingFactors PipingFactorsOf(const SelectedValve& valve) {
  const Real d = valve.d / kMmPerInch;
  const Real inlet = Quotient(d, valve.d1 / kMmPerInch);
  const Real outlet = Quotient(d, valve.d2 / kMmPerInch);
  const Real k1 = 0.5 * pow(1 - pow(inlet, 2), 2);
  const Real k2 = pow(1 - pow(outlet, 2), 2);  // the factor 0.5 belongs to the inlet alone
  const Real kB1 = 1 - pow(inlet, 4);
  const Real kB2 = 1 - pow(outlet, 4);
  PipingFactors piping;
  piping.sumK = k1 + k2 + kB1 - kB2;
  piping.ki = k1 + kB1;
  piping.cvD = Quotient(valve.ratedCv, pow(d, 2));
  piping.fp = 1 / sqrt(1 + piping.sumK / kN2 * pow(piping.cvD, 2));
  if (piping.fp >= 1) piping.fp = 1;
  return piping;
}

Real CombinedRecoveryFactor(const PipingFactors& piping, Real fl) {
  return 1 / sqrt(1 / pow(fl, 2) + piping.ki / kN2 * pow(piping.cvD, 2));
}

std::optional<SizedCv> SizeCv(const Service& service, const SelectedValve& valve) {
  const PipingFactors piping = PipingFactorsOf(valve);
  if (service.fluidPhase != data::kLiquid) return SizeGas(service, valve, piping);
  if (!HasVapourData(service)) return std::nullopt;
  return SizeLiquid(service, valve, piping);
}

}  // namespace valve
