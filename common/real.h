#pragma once

#include <cmath>
#include <concepts>
#include <iterator>
#include <type_traits>

#include "common/fault.h"

namespace common {

[[noreturn]] void RaiseFault(Fault fault);

/// A finite double. Every operation that would give infinity or NaN raises a RuntimeFault instead,
/// so that no sheet can show one and no loop can run on one. Formulas are written with Real and the
/// functions below, called without std::, and read like the handbook.
class Real {
 public:
  constexpr Real() = default;
  template <class T>
  requires std::is_arithmetic_v<T>
  // Implicit, so that literals and table values stand in a formula as they are.
  constexpr Real(T value) : value_(Checked(static_cast<double>(value))) {}  // NOLINT

  constexpr operator double() const { return value_; }  // NOLINT

  template <class T>
  constexpr Real& operator+=(T other) {
    return *this = *this + other;
  }
  template <class T>
  constexpr Real& operator-=(T other) {
    return *this = *this - other;
  }
  template <class T>
  constexpr Real& operator*=(T other) {
    return *this = *this * other;
  }
  template <class T>
  constexpr Real& operator/=(T other) {
    return *this = *this / other;
  }
  constexpr Real operator-() const { return Unchecked(-value_); }
  constexpr Real operator+() const { return *this; }

  /// For results that are known to be finite.
  static constexpr Real Unchecked(double value) {
    Real result;
    result.value_ = value;
    return result;
  }

 private:
  static constexpr double Checked(double value) {
    if (!__builtin_isfinite(value)) [[unlikely]] {
      RaiseFault(value != value ? Fault::kInvalidArgument : Fault::kOverflow);
    }
    return value;
  }

  double value_ = 0;
};

template <class A, class B>
concept RealOperands = (std::same_as<A, Real> &&
                        (std::same_as<B, Real> || std::is_arithmetic_v<B>)) ||
                       (std::same_as<B, Real> && std::is_arithmetic_v<A>);

template <class A, class B>
requires RealOperands<A, B>
constexpr Real operator+(A a, B b) { return static_cast<double>(a) + static_cast<double>(b); }

template <class A, class B>
requires RealOperands<A, B>
constexpr Real operator-(A a, B b) { return static_cast<double>(a) - static_cast<double>(b); }

template <class A, class B>
requires RealOperands<A, B>
constexpr Real operator*(A a, B b) { return static_cast<double>(a) * static_cast<double>(b); }

/// Division by zero raises kDivisionByZero; 0/0 raises kOverflow, as the runtime has it.
template <class A, class B>
requires RealOperands<A, B>
constexpr Real operator/(A a, B b) {
  const double divisor = static_cast<double>(b);
  if (divisor == 0) [[unlikely]] {
    RaiseFault(static_cast<double>(a) == 0 ? Fault::kOverflow : Fault::kDivisionByZero);
  }
  return static_cast<double>(a) / divisor;
}

/// Square root; a negative argument raises kInvalidArgument.
inline Real sqrt(Real x) {
  if (x < 0) [[unlikely]] {
    RaiseFault(Fault::kInvalidArgument);
  }
  return Real::Unchecked(std::sqrt(static_cast<double>(x)));
}

/// Natural logarithm; an argument that is not positive raises kInvalidArgument.
inline Real log(Real x) {
  if (x <= 0) [[unlikely]] {
    RaiseFault(Fault::kInvalidArgument);
  }
  return Real::Unchecked(std::log(static_cast<double>(x)));
}

/// e^x; raises kOverflow beyond the range of a double.
inline Real exp(Real x) { return std::exp(static_cast<double>(x)); }

/// x^y; a negative base with a broken exponent, or zero with a negative one, raises
/// kInvalidArgument.
inline Real pow(Real x, Real y) {
  const double base = x;
  const double exponent = y;
  if ((base < 0 && exponent != std::floor(exponent)) || (base == 0 && exponent < 0)) [[unlikely]] {
    RaiseFault(Fault::kInvalidArgument);
  }
  return std::pow(base, exponent);
}

/// x^n for whole n, by repeated squaring: the same to the last digits shown, and much faster.
template <std::integral N>
constexpr Real pow(Real x, N n) {
  if (n < 0) return Real(1) / pow(x, -n);
  Real result = 1;
  for (Real square = x; n > 0; n >>= 1) {
    if ((n & 1) != 0) result = result * square;
    if (n > 1) square = square * square;
  }
  return result;
}

inline Real sin(Real x) { return Real::Unchecked(std::sin(static_cast<double>(x))); }
inline Real cos(Real x) { return Real::Unchecked(std::cos(static_cast<double>(x))); }
inline Real sinh(Real x) { return std::sinh(static_cast<double>(x)); }
inline Real cosh(Real x) { return std::cosh(static_cast<double>(x)); }
inline Real atan(Real x) { return Real::Unchecked(std::atan(static_cast<double>(x))); }
inline Real abs(Real x) { return Real::Unchecked(std::fabs(static_cast<double>(x))); }

/// The greatest whole number not above x (towards minus infinity).
inline Real Int(Real x) { return Real::Unchecked(std::floor(static_cast<double>(x))); }

/// Int(x) as an index; raises kOverflow beyond 32 bits.
int IntIndex(Real x);

/// x rounded to single precision and back; raises kOverflow beyond the range of a float.
Real Single(Real x);

/// pi as the formulas of the sheets have it: the single-precision value, and meant so.
inline constexpr double kSinglePi = 3.1415927410125732;

/// Base-10 logarithm as the sheets take it: ln x over 2.3025848865509033, which is ln 10 to seven
/// digits and meant so.
inline constexpr double kLog10Divisor = 2.3025848865509033;
inline Real Log10(Real x) { return log(x) / kLog10Divisor; }

/// Element of a table; raises kIndexOutOfRange outside it.
template <class Table>
auto& At(Table& table, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= std::size(table)) [[unlikely]] {
    RaiseFault(Fault::kIndexOutOfRange);
  }
  return table[static_cast<std::size_t>(index)];
}

}  // namespace common
