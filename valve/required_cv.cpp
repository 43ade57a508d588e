#include "valve/required_cv.h"

#include "common/number.h"
#include "valve/isa_equations.h"

namespace valve {

using common::sqrt;

namespace {

bool IsCritical(const Service& service) { return service.dP >= 0.5 * service.p1; }

Real FciLiquidCv(const Service& service) {
  return 1.167 * (service.w / 1000) / sqrt(service.SpecificGravity() * service.dP);
}

Real FciGasCv(const Service& service) {
  const Real normalFlow = service.w / service.rho;  // Nm3/h
  const Real root = sqrt(service.SpecificGravity() * service.tk);
  if (IsCritical(service)) return normalFlow * root / (238 * service.p1);
  return normalFlow * root / (273 * sqrt(service.dP * (service.p1 + service.p2)));
}

Real FciSteamCv(const Service& service) {
  const Real flow = service.w * (1 + 0.00126 * service.superheat);
  if (IsCritical(service)) return flow / (11.7 * service.p1);
  return flow / (13.5 * sqrt(service.dP * (service.p1 + service.p2)));
}

}  // namespace

Real FciCv(const Service& service) {
  if (service.fluidPhase == data::kGas) return FciGasCv(service);
  return service.fluidPhase == data::kSteam ? FciSteamCv(service) : FciLiquidCv(service);
}

std::optional<RequiredCv> IsaCv(const Service& service) {
  constexpr double kFl = 1;      // no valve is known yet
  constexpr double kPiping = 1;  // Fp and FLP
  if (service.fluidPhase != data::kLiquid) {
    const GasExpansion expansion = ExpansionOf(service, TerminalRatio(kFl));
    return RequiredCv{GasCv(service, kPiping, expansion), IsGasChoked(service, kFl)};
  }
  if (!HasVapourData(service)) return std::nullopt;
  const Real pF = ChokedContractaPressure(service);
  const bool choked = IsLiquidChoked(service, kFl, pF);
  const Real drop = choked ? service.p1 - pF : service.dP;
  return RequiredCv{LiquidCv(service, kPiping, drop), choked};
}

Real FourFigures(Real cv) {
  return common::RoundDigits(cv, 3 - common::IntIndex(common::Log10(cv)));
}

}  // namespace valve
