#include "temperature/sensor.h"

namespace temperature {

namespace {

/// Upper limits belong to the range above, but for the top one.
int RangeOf(const SensorTable& table, int kind, Real t) {
  const auto& high = common::At(table.rangeHigh, kind);
  int range = 2;
  if (t < high[0]) {
    range = 0;
  } else if (t < high[1]) {
    range = 1;
  }
  const bool twoRanges = high[1] == high[2];
  return range == 2 && twoRanges ? 1 : range;
}

/// Output by the powers of t, which kind 9 takes on the old scale.
Real Characteristic(const SensorTable& table, int kind, int range, Real t) {
  const auto& coefficients = common::At(common::At(table.coef, kind), range);
  Real output = 0;
  for (int power = SensorTable::kCoefficients - 1; power >= 0; --power) {
    Real c = common::At(coefficients, power);
    // Callendar-Van Dusen: C (t - 100) t^3.
    if (kind == kPt100 && power == 3) c = c * (t - 100);
    output = output * t + c;
  }
  if (kind == kTypeK) {
    // 126.9886 where the standard has 126.9686, and below 0 degC, too: the coefficients of TE.dat
    // allow for both.
    output += 118.5976 * exp(-0.0001183432 * pow(t - 126.9886, 2));
  }
  constexpr double kOhmAtZero = 100;
  return IsResistance(kind) ? output * kOhmAtZero : output;
}

}  // namespace

Real ScaleDifference(Real t) {
  return 0.045 * (t / 100) * (t / 100 - 1) * (t / 419.58 - 1) * (t / 630.74 - 1);
}

Real OldScaleTemperature(Real t) {
  constexpr int kMaxRounds = 100;
  Real s = t;
  for (int round = 0; round < kMaxRounds; ++round) {
    const Real next = t - ScaleDifference(s);
    const Real step = abs(s - next);
    s = next;
    if (step < 0.001) return s;
  }
  common::RaiseFault(common::Fault::kOverflow);
}

std::optional<Real> CalcSensorOutput(const SensorTable& table, int kind, Real t,
                                     common::Messages& messages, const std::string& title) {
  if (t < common::At(table.rangeLow, kind)[0]) {
    messages.Show("温度が低すぎます。", title);
    return std::nullopt;
  }
  if (t > common::At(table.rangeHigh, kind)[2]) {
    messages.Show("温度が高すぎます。", title);
    return std::nullopt;
  }
  const int range = RangeOf(table, kind, t);
  const bool onOldScale = kind == kJPt100 && t >= 0;
  return Characteristic(table, kind, range, onOldScale ? OldScaleTemperature(t) : t);
}

Real CalcTemperature(const SensorTable& table, int kind, Real output) {
  constexpr double kOutputTolerance = 0.001;
  constexpr double kTemperatureTolerance = 0.005;  // between the bounds, K
  Real low = common::At(table.rangeLow, kind)[0];
  Real high = common::At(table.rangeHigh, kind)[2];
  Real t;
  Real found;
  do {
    t = (low + high) / 2;
    found = Characteristic(table, kind, RangeOf(table, kind, t), t);
    (found < output ? low : high) = t;
  } while (abs(found - output) >= kOutputTolerance && abs(low - high) >= kTemperatureTolerance);
  return kind == kJPt100 && t >= 0 ? t + ScaleDifference(t) : t;
}

}  // namespace temperature
