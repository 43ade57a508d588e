#pragma once

#include "valve/service.h"

namespace valve {

enum class VelocityJudgement { kGood, kCaution, kTooFast };

/// Velocity in the outlet of a valve of size d mm, m/s: 354 Q / d^2 (3600 pi / 4 gives 353.68). A
/// gas expands from p1 to p2 at its inlet temperature. Steam has its outlet density by
/// OutletSteamDensity. Raises kDivisionByZero for a gas at p2 = 0, kInvalidArgument for steam at
/// p2 <= 0. A negative p2 or density gives a negative velocity, which means nothing.
Real ExitVelocity(const Service& service, Real d);

/// Density of steam at p2 and the inlet temperature, kg/m3, 4 decimals. At saturation the steam
/// that leaves is cooler: 4 % low when throttled to half. Below the saturation line the equation
/// yields wrong values, negative ones among them, without a fault.
Real OutletSteamDensity(const Service& service);

/// Judgement of the unrounded velocity: liquid above 6 m/s too fast; gas above 150 and 200, steam
/// above 80 and 120, saturated steam above 50 and 80 for caution and too fast.
VelocityJudgement JudgeVelocity(const Service& service, Real velocity);

}  // namespace valve
