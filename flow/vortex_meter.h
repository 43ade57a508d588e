#pragma once

#include <array>

#include "common/real.h"
#include "flow/element.h"
#include "flow/vortex_table.h"

namespace flow {

/// What a vortex meter is chosen for.
struct VortexInputs {
  int maker = 0;  // row of the table
  int fluidPhase = kLiquid;
  Real p;               // kgf/cm2 absolute
  Real t;               // degC
  Real rho;             // density at operating conditions, kg/m3
  Real mu;              // viscosity, cP
  Real vapourPressure;  // Pv of a liquid, kgf/cm2 absolute
  Real scaleFlow;       // maximum scale flow, m3/h at operating conditions
};

/// What a meter of one size can measure, m3/h.
struct MeterRange {
  Real qMin;
  Real qMax;
};

/// One nominal size of a maker.
struct VortexRating {
  bool made = false;       // the maker has this size
  Real rangeLow;           // per cent of scale, 1 decimal
  Real rangeHigh;          // the same
  Real pressureLoss;       // at scale flow, mmH2O
  Real backPressure;       // pressure that a liquid needs to stay free of vapour, kgf/cm2 abs
  bool listed = false;     // it measures up to scale and its loss is below the pressure
  Real frequency;          // nominal, at scale flow, Hz; listed sizes
  bool cavitates = false;  // a liquid at a pressure below backPressure; listed sizes
};

using VortexRatings = std::array<VortexRating, VortexTable::kSizes>;

/// Whether the maker's line has no meter for so light a gas: maker 3 below 0.6 kg/m3. Steam is
/// never refused.
bool IsGasTooLight(const VortexInputs& inputs);

/// K-factor at operating temperature, pulses per litre: K (1 - 4.81e-05 (T - 15)), three times the
/// expansion of a stainless steel body.
Real KFactorAtTemperature(Real kFactor, Real t);

/// Range of size i (row of the table). Makers 0 and 1: bounds of frequency, Reynolds number and
/// velocity; makers 2 and 3: bounds of velocity and, for liquids, Reynolds number.
MeterRange MeterFlowLimits(const VortexTable& table, const VortexInputs& inputs, int i);

/// Loss of size i at scale flow, kgf/cm2.
Real MeterPressureLoss(const VortexTable& table, const VortexInputs& inputs, int i);

/// Frequency of size i at scale flow in Hz with 2 decimals; 0 for a meter that does not reach 95 %
/// of scale (rangeHigh in per cent).
Real MeterFrequency(const VortexTable& table, const VortexInputs& inputs, int i, Real rangeHigh);

/// Rates all ten sizes. Raises a fault for a scale flow or density of 0.
VortexRatings RateVortexMeters(const VortexTable& table, const VortexInputs& inputs);

/// The size to recommend: the smallest listed one that reaches 100 % of scale, otherwise the
/// smallest listed; -1 for none.
int RecommendedSize(const VortexRatings& ratings);

}  // namespace flow
