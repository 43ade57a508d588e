#include "valve/isa_equations.h"

#include "valve/quotient.h"

namespace valve {

using common::pow;
using common::sqrt;

Real TerminalRatio(Real fl) { return 0.84 * pow(fl, 2); }

GasExpansion ExpansionOf(const Service& service, Real xT) {
  constexpr double kLeastExpansion = 0.667;  // 2/3 rounded up, which the limit of x is lifted to
  const Real limit = service.Fk() * xT;
  Real x = Quotient(service.dP, service.p1);
  if (x > limit) x = limit;
  Real y = 1 - Quotient(x, 3 * limit);
  if (y > 1 || y < kLeastExpansion) y = kLeastExpansion;
  return {x, y};
}

Real GasCv(const Service& service, Real factor, const GasExpansion& expansion) {
  const auto& [x, y] = expansion;
  return Quotient(service.w, 27.1 * factor * y * sqrt(x * service.p1 * service.rho1));
}

bool IsGasChoked(const Service& service, Real fl) {
  return service.dP >= 0.5 * pow(fl, 2) * service.p1;
}

bool HasVapourData(const Service& service) { return service.pc * service.pv != 0; }

Real ChokedContractaPressure(const Service& service) {
  const Real ff = 0.96 - 0.28 * sqrt(service.pv / service.pc);
  return ff * service.pv;
}

bool IsLiquidChoked(const Service& service, Real fl, Real pF) {
  return service.dP >= pow(fl, 2) * (service.p1 - pF);
}

Real LiquidCv(const Service& service, Real factor, Real drop) {
  const Real q = Quotient(service.w, service.rho1);  // m3/h
  return Quotient(q, 0.857 * factor) * sqrt(Quotient(service.SpecificGravity(), drop));
}

}  // namespace valve
