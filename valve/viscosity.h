#pragma once

#include <string_view>

#include "common/messages.h"
#include "valve/correction_detail.h"
#include "valve/sizing.h"

namespace valve {

/// The viscosity rule of a valve: "本山" with a model "06-...微少...", "山武" with "VSM...微少...",
/// otherwise the ISA rule.
ValveClass ClassOf(std::string_view maker, std::string_view model);

/// A sized valve corrected for viscosity.
struct ViscosityCorrection {
  Real fr = 1;  // Cv is divided by it
  Real n;       // noise coefficient: the valve's own, or nM of the rule of "本山"
  CorrectionDetail detail;
};

/// Viscosity factor of a sized valve. A viscosity of 0 skips every rule; the ISA rule is for
/// liquids alone. Below Re 0.01 a message is shown and the factor is 1, although it speaks of
/// 0.0055. A rated Cv that the rule of "本山" does not list gives factor 0.
ViscosityCorrection CorrectForViscosity(const Service& service, const SelectedValve& valve,
                                        const SizedCv& sized, common::Messages& messages);

/// Viscosity factor by the polynomial of the ISA curve, for a valve Reynolds number of 0.01 to 1e6;
/// it rises from 0.0055 to 1, which it reaches at about 3e5.
Real IsaReynoldsFactor(Real re);

}  // namespace valve
