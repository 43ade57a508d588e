#include "flow/vortex_meter.h"

#include <algorithm>

#include "common/number.h"
#include "data/units.h"

namespace flow {

using common::At;
using common::kSinglePi;
using common::pow;
using common::RoundDigits;
using common::sqrt;

namespace {

/// Makers 0 and 1 state frequency and Reynolds bounds of their own, the others do not.
bool IsFirstMakers(const VortexInputs& inputs) { return inputs.maker <= 1; }

bool IsLiquid(const VortexInputs& inputs) { return inputs.fluidPhase == kLiquid; }

/// Whether the size is one of the ten that the makers' formulas know, from low to high.
bool Within(Real size, double low, double high) {
  constexpr double kSizes[] = {15, 25, 40, 50, 80, 100, 150, 200, 250, 300};
  return size >= low && size <= high && std::count(std::begin(kSizes), std::end(kSizes), size) > 0;
}

/// Volume flow of velocity v m/s in a bore of mm, m3/h.
Real FlowOfVelocity(Real v, Real bore) { return v * kSinglePi * pow(bore / 1000, 2) / 4 * 3600; }

/// Lowest velocity of makers 0 and 1, m/s.
Real MinVelocityFirst(const VortexInputs& inputs, Real size) {
  const Real rho = inputs.rho;
  if (!IsLiquid(inputs)) {
    const Real p = rho < 1.2 ? Real(0.5) : Real(1) / 3;
    Real c;
    if (size == 15) {
      c = 9.6;
    } else if (Within(size, 40, 200)) {
      c = 4.9;
    } else if (size == 25 || Within(size, 250, 300)) {
      c = 7;
    }
    return c / pow(rho, p);
  }
  Real c;
  if (size == 15) {
    c = 15.2;
  } else if (size == 25) {
    c = 11;
  } else if (Within(size, 40, 150)) {
    c = 7.7;
  } else if (size == 200) {
    c = 13.3;
  } else if (Within(size, 250, 300)) {
    c = 19;
  }
  return c / sqrt(rho);
}

/// Lowest velocity of makers 2 and 3 for gas and steam, m/s; 0 up to 0.6 kg/m3.
Real MinGasVelocityLast(Real rho, Real size) {
  if (rho <= 0.6) return 0;
  if (size == 15) return rho < 8.9 ? sqrt(80 / rho) : Real(3);
  if (size == 25) return rho < 11 ? sqrt(45 / rho) : Real(2);
  if (size == 40 || size == 100) {
    if (rho < 3.4) return sqrt(31 / rho);
    return rho < 37 ? pow(875 / rho, 0.2) : Real(2);
  }
  if (size == 50 || size == 80) return rho < 7.8 ? sqrt(31 / rho) : Real(2);
  if (size == 150) {
    if (rho < 1.5) return sqrt(31 / rho);
    return rho < 12 ? pow(2840 / rho, 0.2) : Real(3);
  }
  if (size == 200) {
    if (rho < 1.3) return sqrt(45 / rho);
    return rho < 41 ? pow(9900 / rho, 0.2) : Real(3);
  }
  return Within(size, 250, 300) ? pow(21000 / rho, 0.2) : Real(0);
}

/// The same for liquids.
Real MinLiquidVelocityLast(Real rho, Real size) {
  constexpr double kThird = 1.0 / 3;
  if (size == 15) return pow(125 / rho, kThird);
  if (size == 25) return pow(43 / rho, kThird);
  if (Within(size, 40, 100)) return pow(27 / rho, kThird);
  if (size == 150) return pow(2.4 / rho, 0.2);
  if (size == 200) return pow(5.3 / rho, 0.2);
  return Within(size, 250, 300) ? pow(10 / rho, 0.2) : Real(0);
}

// Largest velocities, as volume flows in m3/h of a bore in mm2 (pi/4 * 3600e-6 = 0.0028274), and
// Reynolds bounds as volume flows of bore in mm times viscosity in cSt (Re * 2.827e-6).
constexpr double kLiquidMax = 0.028274334669113155;   // 10 m/s
constexpr double kGasMaxFirst = 0.16964600801467894;  // 60 m/s
constexpr double kGasMaxLast = 0.22619467735290524;   // 80 m/s
constexpr double kReynoldsMax = 282.5;                // Re 1e8
constexpr double kReynoldsMin = 0.0565;               // Re 2e4

MeterRange FirstMakersLimits(const VortexInputs& inputs, Real size, Real bore, Real kFactor) {
  const Real nu = inputs.mu / inputs.rho * 1000;  // cSt
  const Real f = !IsLiquid(inputs) ? 10 : size < 200 ? 3 : 1;
  MeterRange range;
  range.qMin = 3.6 * f / KFactorAtTemperature(kFactor, inputs.t);
  if (bore == 0) return range;
  range.qMin = std::max(range.qMin, kReynoldsMin * bore * nu);
  range.qMin = std::max(range.qMin, FlowOfVelocity(MinVelocityFirst(inputs, size), bore));
  if (IsLiquid(inputs)) {
    range.qMax = kLiquidMax * pow(bore, 2);
  } else {
    range.qMax = std::min(kGasMaxFirst * pow(bore, 2), kReynoldsMax * bore * nu);
  }
  return range;
}

MeterRange LastMakersLimits(const VortexInputs& inputs, Real size, Real bore) {
  if (!IsLiquid(inputs)) {
    return {FlowOfVelocity(MinGasVelocityLast(inputs.rho, size), bore), kGasMaxLast * pow(bore, 2)};
  }
  const Real nu = inputs.mu / inputs.rho * 1000;  // cSt
  const Real n = size < 150 ? 20 : 40;            // thousands of the lowest Reynolds number
  const Real qRe = (n * nu * bore) / 354;
  const Real qV = FlowOfVelocity(MinLiquidVelocityLast(inputs.rho, size), bore);
  return {std::max(qRe, qV), kLiquidMax * pow(bore, 2)};
}

/// Loss coefficient of makers 0 and 1: dP = a rho Q^2 / 10000.
Real LossCoefficient(Real size) {
  struct Row {
    double size, a;
  };
  constexpr Row kRows[] = {{15, 0.346},    {25, 0.0306},   {40, 0.00532},   {50, 0.00199},
                           {80, 0.000412}, {100, 0.00014}, {150, 2.95e-05}, {200, 9.59e-06},
                           {250, 4e-06},   {300, 1.94e-06}};
  for (const Row& row : kRows) {
    if (size == row.size) return row.a;
  }
  return 0;
}

}  // namespace

bool IsGasTooLight(const VortexInputs& inputs) {
  return inputs.fluidPhase == kGas && inputs.maker > 2 && inputs.rho < 0.6;
}

Real KFactorAtTemperature(Real kFactor, Real t) { return kFactor * (1 - 4.81e-05 * (t - 15)); }

MeterRange MeterFlowLimits(const VortexTable& table, const VortexInputs& inputs, int i) {
  const Real size = At(table.meterSize, i);
  const Real bore = At(At(table.meterBore, inputs.maker), i);
  const Real kFactor = At(At(table.meterKFactor, inputs.maker), i);
  return IsFirstMakers(inputs) ? FirstMakersLimits(inputs, size, bore, kFactor)
                               : LastMakersLimits(inputs, size, bore);
}

Real MeterPressureLoss(const VortexTable& table, const VortexInputs& inputs, int i) {
  const Real rho = inputs.rho;
  const Real Q = inputs.scaleFlow;
  if (IsFirstMakers(inputs)) {
    return LossCoefficient(At(table.meterSize, i)) * rho * pow(Q, 2) / 10000;
  }
  return 1.377 * rho * pow(Q, 2) / pow(At(At(table.meterBore, inputs.maker), i), 4);
}

Real MeterFrequency(const VortexTable& table, const VortexInputs& inputs, int i, Real rangeHigh) {
  const Real kFactor = At(At(table.meterKFactor, inputs.maker), i);
  if (kFactor == 0 || rangeHigh < 95) return 0;
  return RoundDigits(KFactorAtTemperature(kFactor, inputs.t) * inputs.scaleFlow / 3.6, 2);
}

VortexRatings RateVortexMeters(const VortexTable& table, const VortexInputs& inputs) {
  VortexRatings ratings;
  for (int i = 0; i < VortexTable::kSizes; ++i) {
    if (At(At(table.meterBore, inputs.maker), i) == 0) continue;
    VortexRating& rating = At(ratings, i);
    rating.made = true;
    const MeterRange range = MeterFlowLimits(table, inputs, i);
    rating.rangeLow = RoundDigits(range.qMin / inputs.scaleFlow * 100, 1);
    rating.rangeHigh = RoundDigits(range.qMax / inputs.scaleFlow * 100, 1);
    const Real dP = MeterPressureLoss(table, inputs, i);
    rating.pressureLoss = dP * data::kMmH2OPerKgfCm2;
    rating.backPressure = 2.7 * dP + 1.3 * inputs.vapourPressure;
    rating.listed = dP < inputs.p && rating.rangeLow < 90 && rating.rangeHigh >= 90;
    if (!rating.listed) continue;
    rating.frequency = MeterFrequency(table, inputs, i, rating.rangeHigh);
    rating.cavitates = IsLiquid(inputs) && rating.backPressure > inputs.p;
  }
  return ratings;
}

int RecommendedSize(const VortexRatings& ratings) {
  const auto first = [&ratings](auto fits) {
    const auto found = std::find_if(ratings.begin(), ratings.end(), fits);
    return found == ratings.end() ? -1 : static_cast<int>(found - ratings.begin());
  };
  const int full = first([](const VortexRating& r) { return r.listed && r.rangeHigh >= 100; });
  return full >= 0 ? full : first([](const VortexRating& r) { return r.listed; });
}

}  // namespace flow
