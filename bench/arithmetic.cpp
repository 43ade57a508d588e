// What the checked arithmetic costs: the same coefficient equation with checked numbers, with plain
// doubles and no check at all, and with plain doubles and a test of the processor's exception flags
// after each evaluation.

#include <benchmark/benchmark.h>

#include <cfenv>
#include <cmath>

#include "common/real.h"

namespace {

using common::Real;

/// Reader-Harris/Gallagher equation for corner taps without the tap terms.
template <class Number>
Number Coefficient(Number beta, Number re) {
  using common::pow;
  using std::pow;
  const Number beta2 = beta * beta;
  const Number beta4 = beta2 * beta2;
  const Number a = pow(19000 * beta / re, Number(0.8));
  return 0.5961 + 0.0261 * beta2 - 0.216 * beta4 * beta4 +
         0.000521 * pow(1000000 * beta / re, Number(0.7)) +
         (0.0188 + 0.0063 * a) * pow(beta, Number(3.5)) * pow(1000000 / re, Number(0.3));
}

void Checked(benchmark::State& state) {
  Real beta = 0.5;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(beta);
    benchmark::DoNotOptimize(Coefficient<Real>(beta, 70000));
  }
}
BENCHMARK(Checked);

void Unchecked(benchmark::State& state) {
  double beta = 0.5;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(beta);
    benchmark::DoNotOptimize(Coefficient<double>(beta, 70000));
  }
}
BENCHMARK(Unchecked);

void UncheckedWithFlagTest(benchmark::State& state) {
  double beta = 0.5;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(beta);
    std::feclearexcept(FE_ALL_EXCEPT);
    benchmark::DoNotOptimize(Coefficient<double>(beta, 70000));
    if (std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW) != 0) {
      state.SkipWithError("a fault");
    }
  }
}
BENCHMARK(UncheckedWithFlagTest);

}  // namespace
