#pragma once

#include <string>
#include <string_view>

#include "common/real.h"

namespace valve {

using common::Real;

/// Positions in the list of characteristics; any other index is none.
enum Characteristic {
  kNoCharacteristic = -1,
  kEqualPercent = 0,
  kLinear = 1,
  kButterfly60 = 2,
  kModifiedParabolic = 3,
  kQuickOpen = 4,
  kOtherCharacteristic = 5,
};

/// Opening of a valve, 1 for fully open, at a Cv of its rated Cv. 0 for a characteristic that is
/// not known. Below 0 the valve cannot throttle so far, above 1 it is too small. Missing entries
/// raise kDivisionByZero, a rangeability that is not positive kInvalidArgument where its logarithm
/// is needed. The modified parabola steps from 0.435 to 0.446 at a quarter of its range.
Real Opening(int characteristic, Real cv, Real ratedCv, Real rangeability);

/// Rangeability of a trim as text: some small-flow models have one by the rated Cv, all others the
/// one that the catalogue stores.
std::string RangeabilityOf(std::string_view model, Real ratedCv, const std::string& stored);

/// Whether a trim of this model is linear whatever the catalogue says.
bool IsLinearTrim(std::string_view model, Real ratedCv);

}  // namespace valve
