#include "common/table_reader.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace common {

namespace {

/// A field that is a number from its first to its last character, in the runtime's notation.
/// Reading the numeric prefix alone would take a word for 0 and so hide a shifted or damaged file.
std::optional<double> WholeNumber(std::string field) {
  if (field.find_first_not_of("0123456789+-.eEdD ") != std::string::npos) return std::nullopt;
  std::erase(field, ' ');
  std::replace_if(
      field.begin(), field.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
  if (field.starts_with('+')) field.erase(0, 1);
  double value = 0;
  const char* end = field.data() + field.size();
  const auto result = std::from_chars(field.data(), end, value);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return value;
}

}  // namespace

std::string TableReader::Text() {
  if (!good_) return {};
  std::optional<std::string> field = fields_.Next();
  good_ = field.has_value();
  return field.value_or(std::string());
}

Real TableReader::Number(std::string& text) {
  text = Text();
  const std::optional<double> number = WholeNumber(text);
  good_ = good_ && number.has_value();
  return number.value_or(0);
}

Real TableReader::Number() {
  std::string text;
  return Number(text);
}

float TableReader::SingleNumber() {
  const Real number = Number();
  if (abs(number) > std::numeric_limits<float>::max()) {
    good_ = false;
    return 0;
  }
  return static_cast<float>(static_cast<double>(number));
}

}  // namespace common
