#pragma once

#include "valve/service.h"

namespace valve {

// Equations for the flow coefficient by ISA S75.01 / IEC 60534-2-1 in metric engineering units,
// with piping factors as arguments, so that a bare service (all 1) and a chosen valve share them.
// Cv in US gpm at 1 psi; its constants are rounded (27.1 for 27.3 sqrt(0.980665) = 27.03, 0.857 for
// gpm of m3/h and psi of kgf/cm2: water at 1 gpm and 1 psi gives 0.9995).

/// Terminal pressure drop ratio of a valve, taken from its recovery factor: xT = 0.84 FL^2.
Real TerminalRatio(Real fl);

/// Pressure drop ratio, limited to Fk xT, and the expansion factor Y that belongs to it.
struct GasExpansion {
  Real x;
  Real y;  // 0.667 to 1
};

/// x = dP / p1 up to Fk xT, Y = 1 - x / (3 Fk xT). Y outside 0.667 to 1 becomes 0.667: the limit
/// gives 2/3, and a negative dP is caught by the root behind it.
GasExpansion ExpansionOf(const Service& service, Real xT);

/// Cv of gas or steam: W / (27.1 factor Y sqrt(x p1 rho1)). factor: Fp, or FLP when choked.
Real GasCv(const Service& service, Real factor, const GasExpansion& expansion);

/// Whether gas or steam counts as choked: dP >= 0.5 FL^2 p1. The limit of x is another threshold.
bool IsGasChoked(const Service& service, Real fl);

/// Whether a liquid has both vapour and critical pressure, which its equations need.
bool HasVapourData(const Service& service);

/// FF Pv: pressure in the vena contracta of a choked liquid, kgf/cm2, with the critical pressure
/// ratio factor FF = 0.96 - 0.28 sqrt(Pv / Pc).
Real ChokedContractaPressure(const Service& service);

/// Whether a liquid is choked: dP >= FL^2 (p1 - pF). pF: ChokedContractaPressure.
bool IsLiquidChoked(const Service& service, Real fl, Real pF);

/// Cv of a liquid: Q / (0.857 factor) sqrt(SG / drop). factor: Fp with the drop dP, or FLP with
/// p1 - pF when choked.
Real LiquidCv(const Service& service, Real factor, Real drop);

}  // namespace valve
