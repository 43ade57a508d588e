#include "common/table_reader.h"

#include <limits>
#include <optional>

#include "common/number.h"

namespace common {

namespace {

/// A field that is a number and nothing else; blanks inside it are skipped, as the runtime does.
/// Reading the numeric prefix alone would take a word for 0 and so hide a shifted or damaged file.
std::optional<Real> NumberOf(std::string field) {
  std::erase(field, ' ');
  return WholeNumber(field);
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
  const std::optional<Real> number = NumberOf(text);
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
