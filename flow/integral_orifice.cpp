#include "flow/integral_orifice.h"

#include "common/number.h"
#include "data/units.h"
#include "flow/rounds.h"

namespace flow {

using common::abs;
using common::At;
using common::log;
using common::pow;
using common::RoundDigits;
using common::sqrt;
using data::kMmH2OPerKgfCm2;

namespace {

constexpr double kUsablePressure = 0.75;   // share of the pressure that a differential may take
constexpr double kLargestGroup1 = 200000;  // mmH2O

/// Flow coefficients of the bores of group 1, from the makers' calibration; they are also those of
/// the K values and of the laws of group 0.
constexpr double kAlpha[] = {0.8887445, 0.8022436, 0.8107588, 0.8201471, 0.8157833, 0.8544329};

/// Differential in mmH2O that a model's transmitter measures.
struct Range {
  double low, high;
};
constexpr Range kModelRange[] = {{500, 21000}, {120, 640}, {100, 21000}};
constexpr Range kGroup2Range = {100, 40000};

/// Volume flows at operating density, m3/h: at scale and at normal flow.
struct Volumes {
  Real Q, Qn;
};

/// Flow of water or air that makes the same differential, in l/min, and its bounds.
struct Equivalent {
  double factor;   // sqrt(1/1000) for water, sqrt(1/1.293) or sqrt(1/1.223) for air
  double largest;  // l/min at scale flow
  double least;    // l/min at normal flow
};

int TablePhase(const IntegralInputs& inputs) { return inputs.fluidPhase == kLiquid ? 0 : 1; }

/// Of a volume flow in m3/h at operating density.
Real EquivalentFlow(const Equivalent& equivalent, Real Q, Real rho) {
  return equivalent.factor * Q * sqrt(rho) * 1000 / 60;
}

/// The equivalent flow and its two notes, which come first in groups 0 and 2. False: noted.
bool RateFlow(const Equivalent& equivalent, const Volumes& volumes, Real rho, BoreRating& rating) {
  rating.equivalentFlow = EquivalentFlow(equivalent, volumes.Q, rho);
  if (*rating.equivalentFlow > equivalent.largest) {
    rating.note = kScaleFlowTooLarge;
  } else if (EquivalentFlow(equivalent, volumes.Qn, rho) < equivalent.least) {
    rating.note = kNormalFlowTooSmall;
  }
  return rating.note.empty();
}

/// The two notes on the differential, which come last in groups 0 and 2.
void RateDifferential(const Range& range, const IntegralInputs& inputs, BoreRating& rating) {
  if (rating.dP > inputs.p * kMmH2OPerKgfCm2 * kUsablePressure) {
    rating.note = kDifferentialTooLarge;
  } else if (rating.dP < range.low || rating.dP > range.high) {
    rating.note = kOutOfRange;
  }
}

/// Coefficient ratio Kaf of a bore, nothing below its Reynolds range.
std::optional<Real> CoefficientRatio(const IntegralTable& table, int p, int i, Real re) {
  if (re > At(At(table.kafReHigh, p), i)) return 1;
  if (re < At(At(table.kafReLow, p), i)) return std::nullopt;
  const Real x = log(re);
  const Real kaf = At(At(table.kafC2, p), i) * pow(x, 2) + At(At(table.kafC1, p), i) * x +
                   At(At(table.kafC0, p), i);
  return kaf > 1 ? Real(1) : kaf;
}

void RateGroup0(const IntegralTable& table, const IntegralInputs& inputs, const Volumes& volumes,
                int i, BoreRating& rating) {
  constexpr Equivalent kWater = {0.03162, 33, 0.016};
  constexpr Equivalent kAir = {0.8794, 910, 0.45};  // at 0 degC
  const int p = TablePhase(inputs);
  if (!RateFlow(p == 0 ? kWater : kAir, volumes, inputs.rho, rating)) return;
  const Real a = At(At(At(table.integralA, inputs.model), p), i);
  const Real b = At(At(At(table.integralB, inputs.model), p), i);
  const Real dP = a * pow(*rating.equivalentFlow, b);
  rating.kaf = CoefficientRatio(table, p, i, rating.re);
  if (!rating.kaf) {
    rating.note = kReynoldsTooLow;
    return;
  }
  rating.dP = dP / pow(*rating.kaf, 2);
  RateDifferential(At(kModelRange, inputs.model), inputs, rating);
}

/// Area of a stainless steel bore at temperature over that at 20 degC.
Real ThermalExpansion(Real T) {
  const Real aT = 16.06 - 0.00177 * T + 8.2e-06 * pow(T, 2);  // 1e-6/degC
  return pow(1 + aT * 1e-06 * (T - 20), 2);
}

/// Finds the differential of a gas or steam together with its expansion factor. flowShare: square
/// of normal over scale flow; differential: that of an expansion factor, mmH2O. False: noted.
template <class Differential>
bool SettleExpansion(const IntegralInputs& inputs, Real flowShare, Real beta,
                     Differential differential, BoreRating& rating) {
  constexpr double kStartDifferential = 1000;  // mmH2O
  constexpr double kSettled = 0.0001;
  const Real P = inputs.p;
  const Real x0 = kStartDifferential * flowShare / kMmH2OPerKgfCm2 / P;
  Real eps = IntegralExpansion(x0, beta, inputs.kappa);
  Real previous;
  Rounds rounds;
  do {
    rounds.Next();
    previous = eps;
    rating.dP = differential(eps);
    if (rating.dP > P * kMmH2OPerKgfCm2) {
      rating.note = kDifferentialTooLarge;
      return false;
    }
    const Real x = rating.dP * flowShare / (P * kMmH2OPerKgfCm2);
    eps = IntegralExpansion(x, beta, inputs.kappa);
  } while (abs(eps - previous) / eps >= kSettled);
  rating.eps = eps;
  return true;
}

void RateGroup1(const IntegralTable& table, const IntegralInputs& inputs, const Volumes& volumes,
                int i, BoreRating& rating) {
  // kg/h through the 14 mm pipe: 0.0125218 * 14.008^2.
  constexpr double kFlowConstant = 2.457;
  if (rating.re < At(table.integralReLow, i)) {
    rating.note = kReynoldsTooLow;
    return;
  }
  const Real rho = inputs.rho;
  const Real Wmax = volumes.Q * rho;
  const Real Wn = volumes.Qn * rho;
  const Real Fa = ThermalExpansion(inputs.temperatureC);
  const Real K = At(table.integralK, i);
  const auto differential = [&](Real eps) {
    return pow(Wmax / (kFlowConstant * Fa * eps * K * sqrt(rho)), 2);
  };
  if (inputs.fluidPhase == kLiquid) {
    rating.eps = 1;
    rating.dP = differential(1);
    if (rating.dP > inputs.p * kMmH2OPerKgfCm2 * kUsablePressure) {
      rating.note = kDifferentialTooLarge;
    }
  } else if (!SettleExpansion(inputs, pow(Wn / Wmax, 2), At(At(table.integralBeta, 1), i),
                              differential, rating)) {
    return;
  }
  if (rating.dP > kLargestGroup1) rating.note = kDifferentialTooLarge;
  if (rating.note.empty()) rating.alpha = At(kAlpha, i);
}

void RateGroup2(const IntegralTable& table, const IntegralInputs& inputs, const Volumes& volumes,
                int i, BoreRating& rating) {
  constexpr Equivalent kWater = {0.03164, 67, 0.016};
  constexpr Equivalent kAir = {0.9042, 1940, 0.42};  // at 288.75 K
  const int p = TablePhase(inputs);
  if (!RateFlow(p == 0 ? kWater : kAir, volumes, inputs.rho, rating)) return;
  // The exponents of this group's law stand in the file and are not used.
  const Real dP = (pow(*rating.equivalentFlow, 2) /
                   At(At(At(table.integralA, IntegralTable::kGroup2Law), p), i)) *
                  1000;
  if (rating.re < (p == 0 ? 450 : 1220)) {
    rating.note = kReynoldsTooLow;
    return;
  }
  rating.dP = dP;
  RateDifferential(kGroup2Range, inputs, rating);
}

}  // namespace

Real BoreReynolds(const IntegralTable& table, int group, int i, Real massFlow, Real mu) {
  // 354 and 25.2 are rounded (353.678, and that over 14 mm) and meant so.
  switch (group) {
    case 0:
      return 354 * massFlow / (mu * At(At(table.integralDia, 0), i));
    case 1:
      return 25.2 * massFlow / mu;
    default:
      return 354 * massFlow / (mu * 13);
  }
}

Real IntegralExpansion(Real x, Real beta, Real kappa) {
  const Real tau = pow(1 - x, 2 / kappa);
  const Real beta4 = pow(beta, 4);
  return sqrt(tau * (kappa / (kappa - 1)) * ((1 - pow(1 - x, (kappa - 1) / kappa)) / x) *
              ((1 - beta4) / (1 - beta4 * tau)));
}

BoreRating RateBore(const IntegralTable& table, const IntegralInputs& inputs, int i) {
  const int group = IntegralGroup(inputs.model);
  const Volumes volumes = {inputs.flow / inputs.rho, inputs.normalFlow / inputs.rho};
  BoreRating rating;
  rating.re = BoreReynolds(table, group, i, inputs.normalFlow, inputs.mu);
  switch (group) {
    case 0:
      RateGroup0(table, inputs, volumes, i, rating);
      break;
    case 1:
      RateGroup1(table, inputs, volumes, i, rating);
      break;
    default:
      RateGroup2(table, inputs, volumes, i, rating);
  }
  rating.dP = RoundDigits(rating.dP, 0);
  return rating;
}

Real IntegralPermanentLoss(const IntegralTable& table, int group, int i, Real dP) {
  if (group == 1) {
    const Real K = At(table.integralK, i);
    return dP * (1 - K) / (1 + K);
  }
  return (1 - At(At(table.integralBeta, group), i)) * dP;
}

}  // namespace flow
