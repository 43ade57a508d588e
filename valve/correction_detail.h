#pragma once

#include <optional>

#include "common/real.h"

namespace valve {

using common::Real;

/// Which viscosity rule a valve follows, decided by its maker and model.
enum class ValveClass {
  kOrdinary,
  k本山微少弁,  // maker "本山", model "06-..." with "微少"
  k山武微少弁,  // maker "山武", model "VSM..." with "微少"
};

/// How the Cv of the last sizing was corrected, for display. Nothing stands where a sizing had
/// nothing to tell: without a viscosity there is no Reynolds number.
struct CorrectionDetail {
  ValveClass valveClass = ValveClass::kOrdinary;
  int fluidPhase = 0;      // data::FluidPhase
  bool choked = false;     // FLP has been used, otherwise Fp
  Real fp;                 // piping geometry factor
  Real flp;                // FL and piping geometry combined, 0 unless choked
  std::optional<Real> y;   // gas expansion factor; gas and steam
  std::optional<Real> re;  // valve Reynolds number; ordinary liquid and 本山
  std::optional<Real> fr;  // viscosity factor by which Cv was divided; ordinary liquid and 本山
  std::optional<Real> rv;  // viscosity index; 山武
  std::optional<Real> fm;  // factor by which Cv was multiplied; 山武

  /// FLP of choked flow, else Fp: what every detail form shows first.
  Real PipingFactor() const { return choked ? flp : fp; }
};

}  // namespace valve
