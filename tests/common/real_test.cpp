#include "common/real.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace common {
namespace {

/// Number of the fault that an expression raises, 0 for none.
int FaultOf(const std::function<Real()>& expression) {
  try {
    expression();
    return 0;
  } catch (const RuntimeFault& fault) {
    return static_cast<int>(fault.Number());
  }
}

TEST(Real, RaisesTheFaultOfEachImpossibleOperation) {
  const Real zero = 0;
  const Real huge = 1e308;
  const struct {
    const char* what;
    std::function<Real()> expression;
    int fault;
  } rows[] = {
      {"1/0", [&] { return 1 / zero; }, 11},
      {"0/0", [&] { return zero / zero; }, 6},
      {"huge*10", [&] { return huge * 10; }, 6},
      {"huge+huge", [&] { return huge + huge; }, 6},
      {"-huge-huge", [&] { return -huge - huge; }, 6},
      {"huge/1e-10", [&] { return huge / 1e-10; }, 6},
      {"sqrt(-1)", [&] { return sqrt(zero - 1); }, 5},
      {"sqrt(0)", [&] { return sqrt(zero); }, 0},
      {"log(0)", [&] { return log(zero); }, 5},
      {"log(-1)", [&] { return log(zero - 1); }, 5},
      {"exp(1000)", [&] { return exp(zero + 1000); }, 6},
      {"exp(-1000)", [&] { return exp(zero - 1000); }, 0},
      {"(-1)^0.5", [&] { return pow(zero - 1, Real(0.5)); }, 5},
      {"(-8)^3", [&] { return pow(zero - 8, Real(3)); }, 0},
      {"0^-1", [&] { return pow(zero, Real(-1)); }, 5},
      {"0^-1 whole", [&] { return pow(zero, -1); }, 11},
      {"10^400", [&] { return pow(Real(10), 400); }, 6},
      {"NaN from outside", [] { return std::numeric_limits<double>::quiet_NaN(); }, 5},
      {"infinity from outside", [] { return std::numeric_limits<double>::infinity(); }, 6},
      {"index too large", [] { return IntIndex(1e12); }, 6},
      {"beyond single precision", [] { return Single(1e39); }, 6},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(FaultOf(row.expression), row.fault);
  }
}

TEST(Real, TableIndexIsChecked) {
  const std::vector<int> table = {1, 2, 3};
  EXPECT_EQ(At(table, 2), 3);
  EXPECT_EQ(FaultOf([&] { return At(table, 3); }), 9);
  EXPECT_EQ(FaultOf([&] { return At(table, -1); }), 9);
}

}  // namespace
}  // namespace common
