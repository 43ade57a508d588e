#include "data/field_list.h"

#include <limits>

#include "common/fields.h"
#include "common/number.h"

namespace data {

bool IsText(std::string_view bytes) { return bytes.find('\0') == std::string_view::npos; }

std::optional<std::vector<std::string>> ReadFields(std::string bytes, std::size_t count) {
  if (!IsText(bytes)) return std::nullopt;
  common::FieldReader reader(std::move(bytes));
  std::vector<std::string> fields;
  while (fields.size() < count) {
    auto field = reader.Next();
    if (!field) return std::nullopt;
    fields.push_back(std::move(*field));
  }
  if (!reader.AtEnd()) return std::nullopt;
  return fields;
}

std::optional<std::vector<float>> ReadSingles(std::string bytes, std::size_t count) {
  const auto fields = ReadFields(std::move(bytes), count);
  if (!fields) return std::nullopt;
  std::vector<float> numbers;
  for (const std::string& field : *fields) {
    const auto number = common::WholeNumber(field);
    if (!number || abs(*number) > std::numeric_limits<float>::max()) return std::nullopt;
    numbers.push_back(static_cast<float>(static_cast<double>(*number)));
  }
  return numbers;
}

}  // namespace data
