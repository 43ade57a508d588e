#pragma once

#include <optional>

#include "valve/service.h"

namespace valve {

/// Required Cv by the older FCI equations (FCI 62-1), which know no property of the valve. Gas and
/// steam are critical from dP = 0.5 p1 on. Raises the faults of missing entries: division by zero
/// (dP, density, pressure), root of a negative number (P2 above P1).
Real FciCv(const Service& service);

/// Required Cv before a valve is chosen, and whether the flow is choked.
struct RequiredCv {
  Real cv;
  bool choked = false;
};

/// Required Cv by the ISA equations with FL = Fp = FLP = 1. Nothing for a liquid without vapour or
/// critical pressure, for which the FCI result stands.
std::optional<RequiredCv> IsaCv(const Service& service);

/// A Cv with four significant figures. The decimal exponent is floor(ln Cv / 2.3025848865509033); a
/// Cv that is not positive raises kInvalidArgument.
Real FourFigures(Real cv);

}  // namespace valve
