#include "common/real.h"

#include <limits>

namespace common {

void RaiseFault(Fault fault) { throw RuntimeFault(fault); }

int IntIndex(Real x) {
  const double whole = Int(x);
  if (whole < std::numeric_limits<int>::min() || whole > std::numeric_limits<int>::max()) {
    RaiseFault(Fault::kOverflow);
  }
  return static_cast<int>(whole);
}

Real Single(Real x) {
  if (abs(x) > std::numeric_limits<float>::max()) RaiseFault(Fault::kOverflow);
  return static_cast<float>(static_cast<double>(x));
}

}  // namespace common
