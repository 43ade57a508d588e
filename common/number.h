#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/real.h"

namespace common {

/// Numeric prefix of a text, as entries and table cells are read: blanks anywhere are skipped, the
/// exponent is written with e or d, anything behind the number is ignored. "1/2" is 1, "1 2" is 12,
/// "1,234" is 1, "" and words are 0. Independent of the locale. Raises kOverflow beyond a double.
Real Val(std::string_view text);

/// The number that a text is from its first to its last character, blanks at its ends aside, so
/// that Val takes all of it; nothing for any other text and beyond a double.
std::optional<Real> WholeNumber(std::string_view text);

/// Number as text with up to 15 significant digits, point as decimal sign, "1E-05" below 0.0001.
std::string NumberText(Real value);

/// The same with a blank in front of a number that is not negative and no zero in front of the
/// point (" .5", "-.5"): the form of some messages.
std::string SpacedNumberText(Real value);

/// Number text of a single-precision value, up to 7 significant digits.
std::string SingleText(float value);

/// Number in a pattern such as "###,##0.00" or "0.####": '0' is a digit that always shows, '#' one
/// that shows when it counts, a comma in the whole part groups by thousands. The value is taken to
/// 15 significant digits first and then rounded half away from zero; "##0.###" of 2 is "2.".
std::string Format(Real value, std::string_view pattern);

/// Rounds to a number of decimals, half upwards, also for negative values:
/// floor(x * 10^n + 0.5) / 10^n, for n <= 0 floor(x / 10^|n| + 0.5) * 10^|n|.
Real RoundDigits(Real value, int digits);

/// y at x on the straight line through (x1, y1) and (x2, y2); extrapolates outside. The two y come
/// first. x1 = x2 raises a division fault.
Real Interpolate(Real y1, Real y2, Real x1, Real x, Real x2);

/// a * (b / c)^2.
Real ScaleFlowSquared(Real a, Real b, Real c);

/// Pipe Reynolds number of massFlow kg/h in a bore of diameter mm with viscosity in cP:
/// Re = 353.6777 W / (D mu); 353.6777 = 4e6 / (3600 pi), rounded, and meant so.
Real ReynoldsNumber(Real massFlow, Real diameter, Real viscosity);

}  // namespace common
