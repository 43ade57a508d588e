#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace common {

/// The number that a text is from its first to its last character, whatever the locale: "-3" and
/// "1.5e3", but neither "+3" nor " 3". Nothing for any other text and beyond the type's range; for
/// a floating-point type "inf" and "nan" are numbers.
template <class Number>
std::optional<Number> ParseNumber(std::string_view text) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

}  // namespace common
