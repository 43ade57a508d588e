#pragma once

#include <optional>
#include <string>

#include "common/messages.h"
#include "temperature/sensor_table.h"

namespace temperature {

using common::Real;

// Kinds with a rule of their own.
inline constexpr int kTypeK = 4;
inline constexpr int kPt100 = 8;   // JIS C 1604-1997, IEC 60751
inline constexpr int kJPt100 = 9;  // JIS C 1604-1989, on the temperature scale of 1968

inline bool IsResistance(int kind) { return kind >= kPt100; }

/// Output at a temperature in degC: uV for kinds 0 to 7 (JIS C 1602-1995), ohm for 8 and 9. Outside
/// the kind's range it says so under the title and gives nothing; both limits are inside.
std::optional<Real> CalcSensorOutput(const SensorTable& table, int kind, Real t,
                                     common::Messages& messages, const std::string& title);

/// Temperature in degC of an output in uV or ohm, by bisection over the kind's range to 0.005 K or
/// 0.001 uV or ohm. An output beyond the range gives its limit. Below 60 degC type B, which has a
/// minimum near 21 degC, gives the upper one of two temperatures.
Real CalcTemperature(const SensorTable& table, int kind, Real output);

/// Temperature on the scale of 1968, to which the reference functions of kind 9 belong, of one of
/// 1990 from 0 degC on, by t90 = t68 + ScaleDifference(t68); capped at 100 rounds.
Real OldScaleTemperature(Real t);

/// What a temperature t on the old scale is lower than on that of 1990, K; used from 0 degC on.
Real ScaleDifference(Real t);

}  // namespace temperature
