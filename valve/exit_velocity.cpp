#include "valve/exit_velocity.h"

#include <limits>

#include "data/steam.h"
#include "valve/quotient.h"

namespace valve {

using common::pow;

Real OutletSteamDensity(const Service& service) {
  return data::SteamDensity(service.p2, service.tk);
}

Real ExitVelocity(const Service& service, Real d) {
  if (service.fluidPhase == data::kSteam) {
    return 354 * Quotient(service.w, OutletSteamDensity(service)) / pow(d, 2);
  }
  const Real velocity = 354 * Quotient(service.w, service.rho1) / pow(d, 2);
  if (service.fluidPhase == data::kGas) return velocity * Quotient(service.p1, service.p2);
  return velocity;
}

VelocityJudgement JudgeVelocity(const Service& service, Real velocity) {
  struct Limits {
    double caution, tooFast;
  };
  constexpr Limits kLiquid = {std::numeric_limits<double>::infinity(), 6};  // no caution
  constexpr Limits kGas = {150, 200};
  constexpr Limits kSaturatedSteam = {50, 80};
  constexpr Limits kSuperheatedSteam = {80, 120};
  const Limits limits = service.fluidPhase == data::kLiquid ? kLiquid
                        : service.fluidPhase == data::kGas  ? kGas
                        : service.saturated                 ? kSaturatedSteam
                                                            : kSuperheatedSteam;
  if (velocity > limits.tooFast) return VelocityJudgement::kTooFast;
  return velocity > limits.caution ? VelocityJudgement::kCaution : VelocityJudgement::kGood;
}

}  // namespace valve
