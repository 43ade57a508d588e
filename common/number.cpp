#include "common/number.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

namespace common {

namespace {

/// Significant decimal digits of a positive number, d1 d2 d3 ... standing for d1.d2d3... *
/// 10^exponent.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

Decimal ToDecimal(double magnitude, int significantDigits) {
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                 std::chars_format::scientific, significantDigits - 1);
  const std::string_view text(buffer, static_cast<std::size_t>(end.ptr - buffer));
  const auto mark = text.find('e');
  Decimal result;
  for (const char c : text.substr(0, mark)) {
    if (c != '.') result.digits += c;
  }
  const char* exponent = buffer + mark + 1;
  if (*exponent == '+') ++exponent;
  std::from_chars(exponent, end.ptr, result.exponent);
  return result;
}

/// Digit at the decimal place with weight 10^place; 0 beyond the digits kept.
char DigitAt(const Decimal& decimal, int place) {
  const int position = decimal.exponent - place;
  if (position < 0 || position >= static_cast<int>(decimal.digits.size())) return '0';
  return decimal.digits[static_cast<std::size_t>(position)];
}

/// Whole and fractional digits of a magnitude rounded half up at the given number of decimals.
std::pair<std::string, std::string> RoundedDigits(double magnitude, int decimals) {
  constexpr int kSignificantDigits = 15;
  const Decimal decimal = ToDecimal(magnitude, kSignificantDigits);
  std::string digits;
  for (int place = std::max(decimal.exponent, 0); place >= -decimals; --place) {
    digits += DigitAt(decimal, place);
  }
  if (DigitAt(decimal, -decimals - 1) >= '5') {
    auto digit = digits.rbegin();
    while (digit != digits.rend() && *digit == '9') *digit++ = '0';
    if (digit == digits.rend()) {
      digits.insert(digits.begin(), '1');
    } else {
      ++*digit;
    }
  }
  const std::size_t whole = digits.size() - static_cast<std::size_t>(decimals);
  return {digits.substr(0, whole), digits.substr(whole)};
}

std::string Grouped(const std::string& whole) {
  std::string text;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (i > 0 && (whole.size() - i) % 3 == 0) text += ',';
    text += whole[i];
  }
  return text;
}

template <class Float>
std::string GeneralText(Float value, int significantDigits) {
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general,
                                 significantDigits);
  std::string text(buffer, end.ptr);
  for (char& c : text) {
    if (c == 'e') c = 'E';
  }
  return text == "-0" ? "0" : text;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The blanks that the runtime skips inside a number.
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

/// The longest prefix that is a number, of a text without blanks.
struct NumericPrefix {
  double value = 0;
  std::size_t length = 0;
  bool tooLarge = false;  // beyond a double
};

NumericPrefix PrefixOf(std::string text) {
  const std::size_t sign = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
  // from_chars would take words for infinity, too.
  if (sign == text.size() || !(IsDigit(text[sign]) || text[sign] == '.')) return {};
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
  const char* const begin = text.data() + (text.front() == '+' ? 1 : 0);
  NumericPrefix prefix;
  const auto result = std::from_chars(begin, text.data() + text.size(), prefix.value);
  if (result.ec == std::errc::invalid_argument) return {};
  prefix.length = static_cast<std::size_t>(result.ptr - text.data());
  if (result.ec == std::errc::result_out_of_range) {
    // The value is left alone; a negative exponent means that it is too small to count.
    const std::string_view number(begin, result.ptr);
    const auto mark = number.find_first_of("eE");
    prefix.tooLarge = mark == std::string_view::npos || number[mark + 1] != '-';
  }
  return prefix;
}

}  // namespace

Real Val(std::string_view text) {
  std::string packed;
  std::remove_copy_if(text.begin(), text.end(), std::back_inserter(packed), IsBlank);
  const NumericPrefix prefix = PrefixOf(std::move(packed));
  if (prefix.tooLarge) RaiseFault(Fault::kOverflow);
  return prefix.value;
}

std::optional<Real> WholeNumber(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  const NumericPrefix prefix = PrefixOf(std::string(text));
  if (prefix.length == 0 || prefix.length < text.size() || prefix.tooLarge) return std::nullopt;
  return prefix.value;
}

std::string NumberText(Real value) {
  // Beyond it 15 digits would round up to a number that no double can hold, and that could not be
  // read back.
  constexpr double kLargest = 1.79769313486231e308;
  return GeneralText(std::clamp(static_cast<double>(value), -kLargest, kLargest), 15);
}

std::string SpacedNumberText(Real value) {
  std::string text = NumberText(value);
  const bool negative = text.front() == '-';
  if (negative) text.erase(0, 1);
  if (text.starts_with("0.")) text.erase(0, 1);
  return (negative ? "-" : " ") + text;
}

std::string SingleText(float value) { return GeneralText(value, 7); }

std::string Format(Real value, std::string_view pattern) {
  const auto point = pattern.find('.');
  const std::string_view wholePattern = pattern.substr(0, point);
  const std::string_view decimalPattern =
      point == std::string_view::npos ? std::string_view() : pattern.substr(point + 1);
  const bool grouped = wholePattern.find(',') != std::string_view::npos;
  std::size_t wholeZeros = 0;
  for (const char c : wholePattern) wholeZeros += c == '0' ? 1 : 0;
  const auto lastZero = decimalPattern.rfind('0');
  const std::size_t requiredDecimals = lastZero == std::string_view::npos ? 0 : lastZero + 1;

  auto [whole, decimals] = RoundedDigits(abs(value), static_cast<int>(decimalPattern.size()));
  const auto significant = whole.find_first_not_of('0');
  whole.erase(0, significant == std::string::npos ? whole.size() : significant);
  if (whole.size() < wholeZeros) whole.insert(0, wholeZeros - whole.size(), '0');
  while (decimals.size() > requiredDecimals && decimals.back() == '0') decimals.pop_back();

  std::string text = grouped ? Grouped(whole) : whole;
  if (point != std::string_view::npos) text += '.';
  text += decimals;
  const bool zero = text.find_first_of("123456789") == std::string::npos;
  return value < 0 && !zero ? "-" + text : text;
}

Real RoundDigits(Real value, int digits) {
  const Real factor = pow(Real(10), digits < 0 ? -digits : digits);
  if (digits > 0) return Int(value * factor + 0.5) / factor;
  return Int(value / factor + 0.5) * factor;
}

Real Interpolate(Real y1, Real y2, Real x1, Real x, Real x2) {
  return ((x - x1) / (x2 - x1)) * (y2 - y1) + y1;
}

Real ScaleFlowSquared(Real a, Real b, Real c) {
  const Real ratio = b / c;
  return a * ratio * ratio;
}

Real ReynoldsNumber(Real massFlow, Real diameter, Real viscosity) {
  return 353.6777 * massFlow / (diameter * viscosity);
}

}  // namespace common
