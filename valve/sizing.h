#pragma once

#include <optional>

#include "valve/selected_valve.h"
#include "valve/service.h"

namespace valve {

/// Head losses of the reducers at a valve, and its piping factor.
struct PipingFactors {
  Real sumK;  // K1 + K2 + KB1 - KB2
  Real ki;    // K1 + KB1, inlet alone
  Real cvD;   // rated Cv over the square of the size in inches
  Real fp;    // 1 / sqrt(1 + sumK cvD^2 / 890), at most 1
};

/// Piping factors by ISA S75.01, with sizes in inches (N2 = 890). Raises kDivisionByZero without
/// bore or pipe and kInvalidArgument when the velocity head regained in the outlet exceeds the
/// losses and the valve is large for its size.
PipingFactors PipingFactorsOf(const SelectedValve& valve);

/// FLP = 1 / sqrt(1 / FL^2 + ki cvD^2 / 890): FL and the inlet reducer combined, without a limit.
Real CombinedRecoveryFactor(const PipingFactors& piping, Real fl);

/// Cv of a chosen valve for a service, before any correction for viscosity.
struct SizedCv {
  Real cv;
  bool choked = false;
  Real fp;
  Real flp;               // 0 unless choked; limited to 1 for gas and steam, not for a liquid
  std::optional<Real> y;  // gas and steam
};

/// Cv by the ISA equations with the valve's FL and piping. Nothing for a liquid without vapour or
/// critical pressure; missing sizes are found before that. Choked flow of a gas divides by FLP
/// although xT holds FL already, which makes Cv too big by about 1/FL, on the safe side.
std::optional<SizedCv> SizeCv(const Service& service, const SelectedValve& valve);

}  // namespace valve
