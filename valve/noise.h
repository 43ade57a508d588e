#pragma once

#include "common/messages.h"
#include "valve/selected_valve.h"
#include "valve/service.h"

namespace valve {

/// Noise level of a valve in dB(A), 1 m from the pipe. cv: the final Cv. 0 when the equation does
/// not apply. A liquid without vapour pressure is told, level 0.
///
/// Gas and steam: acoustic efficiency by FL and pressure ratio (two pairs of polynomials that meet
/// within 0.5 dB at 2.8), less the loss in the pipe wall, plus a term of the molecular weight; not
/// below 0. A wall weight of 0 leaves the wall out and gives the level inside the pipe, about 37 dB
/// higher. Liquid: holds for cavitation beyond the choked limit alone, Pv < P2 < Pvc; not limited
/// downwards.
Real NoiseLevel(const Service& service, const SelectedValve& valve, Real cv,
                common::Messages& messages);

/// p1 - FL^2 (p1 - Pv), kgf/cm2: the outlet pressure at which a liquid chokes. The liquid equation
/// calls it the vena contracta pressure.
Real VenaContractaPressure(const Service& service, Real fl);

}  // namespace valve
