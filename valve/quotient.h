#pragma once

#include "common/real.h"

namespace valve {

/// a / b where both may be 0 because nothing has been entered. Sizing tells missing data from
/// wrong data by the number of the fault, so 0/0 is a division by zero here and no overflow.
inline common::Real Quotient(common::Real a, common::Real b) {
  if (b == 0) common::RaiseFault(common::Fault::kDivisionByZero);
  return a / b;
}

}  // namespace valve
