#include "valve/opening.h"

#include "valve/quotient.h"

namespace valve {

using common::log;
using common::pow;

namespace {

/// Part of the controllable range between the least Cv and the rated one.
Real RangeFraction(Real cv, Real ratedCv, Real rangeability) {
  const Real leastCv = Quotient(ratedCv, rangeability);
  return Quotient(cv - leastCv, ratedCv - leastCv);
}

Real ModifiedParabolicOpening(Real x) {
  if (x < 0.25) return 23.769 * pow(x, 3) - 15.728 * pow(x, 2) + 4.1873 * x;
  return Real(52) / 70 * x + 0.26;
}

}  // namespace

Real Opening(int characteristic, Real cv, Real ratedCv, Real rangeability) {
  switch (characteristic) {
    case kEqualPercent: {
      const Real reduction = log(Quotient(cv, ratedCv));  // a missing rated Cv is told first
      return 1 + Quotient(reduction, log(rangeability));
    }
    case kLinear:
      return RangeFraction(cv, ratedCv, rangeability);
    case kButterfly60: {
      const Real x = Quotient(cv, ratedCv);
      return 0.14032 + 2.0853 * x - 2.1879 * pow(x, 2) + 0.96557 * pow(x, 3);
    }
    case kModifiedParabolic:
      return ModifiedParabolicOpening(RangeFraction(cv, ratedCv, rangeability));
    case kQuickOpen: {
      const Real x = RangeFraction(cv, ratedCv, rangeability);
      return 1.3561 * pow(x, 3) - 0.7008 * pow(x, 2) + 0.3459 * x;
    }
    default:
      return 0;
  }
}

std::string RangeabilityOf(std::string_view model, Real ratedCv, const std::string& stored) {
  if (model.starts_with("VSM")) {
    if (ratedCv >= 0.16) return "30";
    if (ratedCv >= 0.02) return "25";
    if (ratedCv <= 0.01) return "20";
  }
  if (model.starts_with("81 ")) {
    if (ratedCv <= 0.15) return "10";
    if (ratedCv <= 0.8) return "15";
    if (ratedCv == 1.5) return "25";
  }
  return stored;
}

bool IsLinearTrim(std::string_view model, Real ratedCv) {
  return model.starts_with("81 ") && ratedCv <= 0.056;
}

}  // namespace valve
